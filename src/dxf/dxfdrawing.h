// dxfdrawing.h -- a DXF drawing under way: groups of code and value, handles, and all that stands around the entities.
//
// The form is that of AutoCAD 2004 (AC1018), the first with true colours, in the drawing's code page. dxf.cpp says
// what the entities are; here are the sections that every reader wants to find before and behind them.
#pragma once

#include "session/text.h"

#include <map>
#include <vector>

// Text of code and value lines.
class DxfTags
{
public:
    void Add(int code, std::string_view value);
    void Add(int code, const char* value)
    {
        Add(code, std::string_view(value));
    }
    void Add(int code, int value);
    void Add(int code, double value); // up to 6 decimals, no trailing zeros
    void AddTenths(int code, double value);
    void AddHandle(int code, int handle);
    void AddPoint(int code, double x, double y); // x by that code, y by the code + 10
    void Append(const DxfTags& tags)
    {
        bytes += tags.bytes;
    }
    std::string bytes;
};

struct DxfSheet {
    Text Mark;                                                       // what the drawing is of, for its second line
    double Width = 0, Height = 0;                                    // drawing units
    double UnitsPerInch = 600;                                       // drawing units to the inch of paper
    double Left = 0, Bottom = 0, Right = 0, Top = 0;                 // what the entities fill
    double UnprintableInches = 0.25, InchesWide = 0, InchesHigh = 0; // the printable sheet and its margin
};

// Layers by kind of content, in the order of the layer table.
enum class DxfLayer { Lines, Rectangles, Ellipses, Arcs, Outlines, Fills, Patterns, Strokes, Texts, Pictures };

class DxfDrawing
{
public:
    // Starts an entity of the model space: its type, handle and layer. Returns the handle.
    int Entity(const char* type, DxfLayer layer);
    // Starts an entity of a block, on the layer of whatever insert shows it.
    void BlockEntity(DxfTags& block, const char* type);
    // Adds a block of those entities under a name that is made from this one, and returns that name.
    Text Block(std::string_view name, DxfTags entities);
    // Returns the name of a font's text style, which is made when first asked for.
    const Text& Style(const Text& font, bool bold);
    // Adds a picture's definition and the entity's link to it, and returns their handles. path is in the machine's own
    // encoding, the size in pixels.
    struct ImageLink {
        int Definition, Reactor;
    };
    ImageLink Image(int entity, const std::string& path, int width, int height);
    // Returns the whole file, with the entities so far.
    std::string File(const DxfSheet& sheet);

    DxfTags Entities;

private:
    struct FontStyle {
        Text Font;
        bool Bold;
        Text Name;
    };
    struct Definition {
        int Handle;
        std::string Path;
        int Width, Height;
        std::vector<std::pair<int, int>> Reactors; // handle, and the entity that it watches
    };

    struct BlockOfEntities {
        Text Name;
        int Record, Begin, End; // handles
        DxfTags Entities;
    };

    int NewHandle()
    {
        return nextHandle++;
    }
    void Header(DxfTags& out, const DxfSheet& sheet) const;
    void Tables(DxfTags& out, const DxfSheet& sheet);
    void Blocks(DxfTags& out);
    void Objects(DxfTags& out, const DxfSheet& sheet);

    int nextHandle = 0x100; // below it are the handles of what every drawing has
    std::vector<FontStyle> styles;
    std::vector<Definition> definitions;
    std::vector<BlockOfEntities> blocks;
};

// Returns the mark of a drawing by its bytes; "" where it has none.
Text MarkOfDxf(std::string_view drawing);
// Returns a text as the value of a group: control characters and "^" by the caret, "%%" and "\U+" so that they stay
// what they are, codes without a character as the replacement sign.
std::string DxfString(std::string_view text);
// Returns the text as the name of a table entry, without the letters that such names cannot have.
Text DxfName(std::string_view name);
