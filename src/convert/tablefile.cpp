// tablefile.cpp -- tables of several borings, and their description text.
#include "convert/tablefile.h"

#include "boring/boringdata.h"

TableFile::TableFile(const Text& name) : in(name)
{
    Take();
}

bool TableFile::AtEnd() const
{
    return ended;
}

const Text& TableFile::Next() const
{
    return line;
}

void TableFile::Take()
{
    ended = in.AtEnd();
    line = ended ? Text() : in.Line();
}

void MarkLine(Text& line)
{
    if (!line.ends_with(ParagraphMark))
        line += ParagraphMark;
}

// Without the formatting codes: "|B2", and any other "|" with the letter behind it.
static Text WithoutCodes(const Text& line)
{
    Text plain;
    for (size_t at = 0; at < line.size();) {
        if (line[at] != '|')
            plain += line[at++];
        else
            at += line.compare(at, 3, "|B2") == 0 ? 3 : 2;
    }
    return plain;
}

static bool IsDepthLine(const Text& line)
{
    const Text mark = UpperCase(line.substr(0, 3));
    return mark == ".L=" || mark == ".D=";
}

void ReadDescriptionText(TableFile& in)
{
    bool depthSeen = false;
    double depth = 0;
    for (; !in.AtEnd(); in.Take()) {
        const Text& line = in.Next();
        if (IsDepthLine(line)) {
            const double next = TextNumber(line.substr(3));
            if (depthSeen && next < depth)
                return;
            depthSeen = true;
            depth = next;
        }
        Text& stored = BoringData.Des[BoringData.DesCount + 1];
        if (line.starts_with('.')) {
            stored = line + ParagraphMark;
            MarkLine(BoringData.Des[BoringData.DesCount]); // slot 0 for the first line
        } else {
            stored = WithoutCodes(line) + " ";
        }
        ++BoringData.DesCount;
    }
}
