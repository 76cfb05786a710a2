// projectfiles.h -- where a page looks for the layout and the maps that its boring names. One rule for the windows and
// for the program without them.
//
//     layout   where the layout folder of the set-up is the working folder itself, as it is when nobody has chosen
//              one: the project folder, the boring's own folder; then the layout folder
//     map      the project folder, the boring's own folder
#pragma once

#include "session/text.h"

// The folder of the open boring while a copy of it is drawn elsewhere, as the live page does; "" at all other times.
extern Text SourceFolder;

// Return the path to use: the first place where the file is, else the last place of a layout and the first of a map.
Text LayoutPath(const Text& name, const Text& boring);
Text MapPath(const Text& name, const Text& boring);
