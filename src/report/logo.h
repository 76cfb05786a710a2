// logo.h -- the logo window: logo.txt in the working folder, as the user edits it. The drawings read it through
// getclientlogo (report/heading.h).
#pragma once

#include "session/text.h"

namespace frmLogo
{
// Its boxes.
struct Record {
    Text Text1;           // the logo text, CR LF line ends; three lines of it count
    bool graphic = false; // "Use Graphic Logo", else "Use Text Logo"
    Text fileText, resolutionText;
};
extern Record Dialog;

void Load();     // Fills the boxes from logo.txt, as far as it has lines; a missing file is failure 53.
void Command1(); // OK: writes logo.txt.
} // namespace frmLogo
