// tablefile.h -- a table of several borings one after the other, and the description text that such tables hold.
#pragma once

#include "session/files.h"

// The file is read line by line, with the next line in view: a line that belongs to the next boring stays there for it.
class TableFile
{
public:
    explicit TableFile(const Text& name);
    bool AtEnd() const;
    const Text& Next() const; // Returns the next line; not to be asked at the end.
    void Take();              // Goes on to the line behind it.

private:
    LineReader in;
    Text line;
    bool ended = false;
};

// Appends the paragraph mark unless the line has it.
void MarkLine(Text& line);

// Reads the description of one boring into BoringData.Des, up to the depth line that is below the one before; that line
// is the next boring's. Depth lines begin with ".L=" or ".D=", paragraphs with "."; other lines flow on.
void ReadDescriptionText(TableFile& in);
