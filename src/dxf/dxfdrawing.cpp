// dxfdrawing.cpp -- the sections of a DXF drawing around its entities.
#include "dxf/dxfdrawing.h"

#include "session/session.h"

#include <charconv>
#include <cmath>

namespace
{
// The handles of what every drawing has.
enum Handle {
    RootDictionary = 1,
    GroupDictionary,
    LayoutDictionary,
    MlineDictionary,
    PlotSettingsDictionary,
    PlotStyleDictionary,
    NormalPlotStyle,
    MlineStandard,
    ImageDictionary,
    RasterVariables,
    ModelLayout,
    PaperLayout,
    ViewportTable = 0x20,
    LinetypeTable,
    LayerTable,
    StyleTable,
    ViewTable,
    UcsTable,
    AppidTable,
    DimstyleTable,
    BlockRecordTable,
    ModelSpace = 0x30,
    PaperSpace,
    ModelBlock,
    ModelBlockEnd,
    PaperBlock,
    PaperBlockEnd,
    FirstViewport,
    LayerZero
};

constexpr char MarkWords[] = "Drawing of ";

constexpr const char* layerNames[] = {"LINES", "RECTANGLES", "ELLIPSES", "ARCS",  "OUTLINES",
                                      "FILLS", "PATTERNS",   "STROKES",  "TEXTS", "PICTURES"};

// Dashes in inches of the page: pen down, and gaps as negative lengths. The names are those that a drawing program
// without types of its own in the file knows.
struct Linetype {
    const char* Name;
    const char* Picture;
    std::vector<double> Dashes;
};
const std::vector<Linetype>& Linetypes()
{
    static const std::vector<Linetype> types = {
        {"ByBlock", "", {}},
        {"ByLayer", "", {}},
        {"Continuous", "Solid line", {}},
        {"DASHED", "Dash __ __ __ __", {0.06, -0.03}},
        {"DOT", "Dot . . . . . . .", {0.012, -0.03}},
        {"DASHDOT", "Dash dot __ . __ .", {0.06, -0.03, 0.012, -0.03}},
        {"DIVIDE", "Dash dot dot __ . . __", {0.06, -0.03, 0.012, -0.03, 0.012, -0.03}},
    };
    return types;
}

void Section(DxfTags& out, const char* name)
{
    out.Add(0, "SECTION");
    out.Add(2, name);
}

void EndSection(DxfTags& out)
{
    out.Add(0, "ENDSEC");
}

void Table(DxfTags& out, const char* name, int handle, size_t count)
{
    out.Add(0, "TABLE");
    out.Add(2, name);
    out.AddHandle(5, handle);
    out.AddHandle(330, 0);
    out.Add(100, "AcDbSymbolTable");
    out.Add(70, static_cast<int>(count));
}

// The head of a table's entry. The code of a handle is 5, but for dimension styles.
void Record(DxfTags& out, const char* type, int handle, int table, const char* subclass, std::string_view name,
            int handleCode = 5)
{
    out.Add(0, type);
    out.AddHandle(handleCode, handle);
    out.AddHandle(330, table);
    out.Add(100, "AcDbSymbolTableRecord");
    out.Add(100, subclass);
    out.Add(2, name);
    out.Add(70, 0);
}

void Object(DxfTags& out, const char* type, int handle, int owner, const char* subclass)
{
    out.Add(0, type);
    out.AddHandle(5, handle);
    if (owner != 0) {
        out.Add(102, "{ACAD_REACTORS");
        out.AddHandle(330, owner);
        out.Add(102, "}");
    }
    out.AddHandle(330, owner);
    out.Add(100, subclass);
}

void Dictionary(DxfTags& out, int handle, int owner, const std::vector<std::pair<std::string, int>>& entries)
{
    Object(out, "DICTIONARY", handle, owner, "AcDbDictionary");
    out.Add(281, 1);
    for (const auto& [name, entry] : entries) {
        out.Add(3, name);
        out.AddHandle(350, entry);
    }
}

// A length of paper in millimetres: what can be printed on, and the margins on both sides.
double PaperLength(double inches, const DxfSheet& sheet)
{
    return (inches + 2 * sheet.UnprintableInches) * 25.4;
}

void Layout(DxfTags& out, int handle, const char* name, int order, int space, const DxfSheet& sheet)
{
    Object(out, "LAYOUT", handle, LayoutDictionary, "AcDbPlotSettings");
    out.Add(1, "");
    out.Add(2, "none_device");
    out.Add(4, "");
    out.Add(6, "");
    const double margin = sheet.UnprintableInches * 25.4;
    for (int code = 40; code <= 43; ++code)
        out.Add(code, margin);
    out.Add(44, PaperLength(sheet.InchesWide, sheet));
    out.Add(45, PaperLength(sheet.InchesHigh, sheet));
    for (const int code : {46, 47, 48, 49, 140, 141})
        out.Add(code, 0);
    // An inch of paper for so many drawing units, so that a plot of the limits is the page in its size.
    out.Add(142, 1);
    out.Add(143, sheet.UnitsPerInch);
    out.Add(70, space == ModelSpace ? 1024 : 0);
    out.Add(72, 0);
    out.Add(73, 0);
    out.Add(74, 2);
    out.Add(7, "");
    out.Add(75, 16);
    out.Add(147, 1);
    out.Add(148, 0);
    out.Add(149, 0);
    out.Add(100, "AcDbLayout");
    out.Add(1, name);
    out.Add(70, 1);
    out.Add(71, order);
    out.AddPoint(10, 0, 0);
    out.AddPoint(11, sheet.Width, sheet.Height);
    out.AddPoint(12, 0, 0);
    out.Add(32, 0);
    out.AddPoint(14, sheet.Left, sheet.Bottom);
    out.Add(34, 0);
    out.AddPoint(15, sheet.Right, sheet.Top);
    out.Add(35, 0);
    out.Add(146, 0);
    out.AddPoint(13, 0, 0);
    out.Add(33, 0);
    out.AddPoint(16, 1, 0);
    out.Add(36, 0);
    out.AddPoint(17, 0, 1);
    out.Add(37, 0);
    out.Add(76, 0);
    out.AddHandle(330, space);
}

void Block(DxfTags& out, int handle, int end, int record, std::string_view name, bool paper,
           const DxfTags& entities = {})
{
    const auto head = [&](const char* type, int own) {
        out.Add(0, type);
        out.AddHandle(5, own);
        out.AddHandle(330, record);
        out.Add(100, "AcDbEntity");
        if (paper)
            out.Add(67, 1);
        out.Add(8, "0");
    };
    head("BLOCK", handle);
    out.Add(100, "AcDbBlockBegin");
    out.Add(2, name);
    out.Add(70, 0);
    out.AddPoint(10, 0, 0);
    out.Add(30, 0);
    out.Add(3, name);
    out.Add(1, "");
    out.Append(entities);
    head("ENDBLK", end);
    out.Add(100, "AcDbBlockEnd");
}

void Classes(DxfTags& out, int images)
{
    const struct {
        const char *Name, *Class;
        int Flags, Count, IsEntity;
    } classes[] = {
        {"RASTERVARIABLES", "AcDbRasterVariables", 0, 1, 0},
        {"IMAGE", "AcDbRasterImage", 127, images, 1},
        {"IMAGEDEF", "AcDbRasterImageDef", 0, images, 0},
        {"IMAGEDEF_REACTOR", "AcDbRasterImageDefReactor", 1, images, 0},
        {"LAYOUT", "AcDbLayout", 0, 2, 0},
        {"ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault", 0, 1, 0},
        {"ACDBPLACEHOLDER", "AcDbPlaceHolder", 0, 1, 0},
    };
    Section(out, "CLASSES");
    for (const auto& one : classes) {
        out.Add(0, "CLASS");
        out.Add(1, one.Name);
        out.Add(2, one.Class);
        out.Add(3, one.Flags || one.Class == std::string_view("AcDbRasterVariables") ||
                           one.Class == std::string_view("AcDbRasterImageDef")
                       ? "ISM"
                       : "ObjectDBX Classes");
        out.Add(90, one.Flags);
        out.Add(91, one.Count);
        out.Add(280, 0);
        out.Add(281, one.IsEntity);
    }
    EndSection(out);
}
} // namespace

// ---- Groups

void DxfTags::Add(int code, std::string_view value)
{
    char buffer[12];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, code);
    bytes.append(buffer, end.ptr);
    bytes += CrLf;
    bytes += value;
    bytes += CrLf;
}

void DxfTags::Add(int code, int value)
{
    char buffer[16];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    Add(code, std::string_view(buffer, end.ptr));
}

void DxfTags::Add(int code, double value)
{
    if (value == std::trunc(value) && std::fabs(value) < 2e9) {
        Add(code, static_cast<int>(value));
        return;
    }
    char buffer[400];
    auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 6).ptr;
    while (end[-1] == '0')
        --end;
    if (end[-1] == '.')
        --end;
    const std::string_view text(buffer, end);
    Add(code, text == "-0" ? std::string_view("0") : text);
}

void DxfTags::AddTenths(int code, double value)
{
    const auto tenths = static_cast<long long>(std::llround(value * 10));
    if (tenths % 10 == 0)
        return Add(code, static_cast<int>(tenths / 10));
    char buffer[24];
    char* end = std::to_chars(buffer, buffer + sizeof buffer, tenths).ptr;
    char* digits = buffer + (tenths < 0);
    if (end - digits == 1) { // 0.5, not .5
        digits[1] = digits[0];
        digits[0] = '0';
        ++end;
    }
    end[0] = end[-1];
    end[-1] = '.';
    Add(code, std::string_view(buffer, end + 1));
}

void DxfTags::AddHandle(int code, int handle)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (unsigned rest = static_cast<unsigned>(handle); rest > 0 || text.empty(); rest >>= 4)
        text.insert(text.begin(), digits[rest & 15]);
    Add(code, text);
}

void DxfTags::AddPoint(int code, double x, double y)
{
    Add(code, x);
    Add(code + 10, y);
}

// ---- Words

Text MarkOfDxf(std::string_view drawing)
{
    const std::string_view head = drawing.substr(0, drawing.find("\r\n0\r\n"));
    const std::string begin = "\r\n999\r\n" + Text(MarkWords);
    const size_t at = head.find(begin);
    if (at == std::string_view::npos)
        return "";
    const std::string_view mark = head.substr(at + begin.size());
    return Text(mark.substr(0, mark.find("\r\n")));
}

std::string DxfString(std::string_view text)
{
    std::string value;
    value.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x20) {
            value += '^';
            value += static_cast<char>(code + 0x40);
        } else if (letter == '^')
            value += "^ ";
        else if (letter == '%' && ((i > 0 && text[i - 1] == '%') || (i + 1 < text.size() && text[i + 1] == '%')))
            value += "%%%";
        else if (letter == '\\' && i + 2 < text.size() && text[i + 2] == '+' &&
                 (text[i + 1] == 'U' || text[i + 1] == 'u' || text[i + 1] == 'M' || text[i + 1] == 'm'))
            value += "\\U+005C";
        else if (code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D)
            value += "\\U+FFFD";
        else
            value += letter;
    }
    return value;
}

Text DxfName(std::string_view name)
{
    Text kept;
    for (const char letter : name) {
        const auto code = static_cast<unsigned char>(letter);
        kept += code < 0x20 || code >= 0x7F || Holds("<>/\\\":;?*|,=`^%", letter) ? '_' : letter;
    }
    return kept.empty() ? "_" : kept;
}

// A path of this machine in the drawing's code page; what it lacks by its number.
static std::string DxfPath(const std::string& utf8)
{
    std::string value;
    for (size_t i = 0; i < utf8.size();) {
        size_t length = 1;
        while (i + length < utf8.size() && (static_cast<unsigned char>(utf8[i + length]) & 0xC0) == 0x80)
            ++length;
        const std::string letter = utf8.substr(i, length);
        i += length;
        const Text one = FromUtf8(letter);
        if (ToUtf8(one) == letter || length == 1) {
            value += DxfString(one);
            continue;
        }
        unsigned number = static_cast<unsigned char>(letter[0]) & (0xFFu >> (length + 1));
        for (size_t k = 1; k < length; ++k)
            number = number << 6 | (static_cast<unsigned char>(letter[k]) & 0x3Fu);
        char digits[12];
        const auto end = std::to_chars(digits, digits + sizeof digits, number, 16).ptr;
        std::string hex(digits, end);
        for (char& digit : hex)
            digit = UpperCase(digit);
        value += "\\U+" + std::string(hex.size() < 4 ? 4 - hex.size() : 0, '0') + hex;
    }
    return value;
}

// ---- What entities ask for

int DxfDrawing::Entity(const char* type, DxfLayer layer)
{
    const int handle = NewHandle();
    Entities.Add(0, type);
    Entities.AddHandle(5, handle);
    Entities.AddHandle(330, ModelSpace);
    Entities.Add(100, "AcDbEntity");
    Entities.Add(8, layerNames[static_cast<int>(layer)]);
    return handle;
}

void DxfDrawing::BlockEntity(DxfTags& block, const char* type)
{
    block.Add(0, type);
    block.AddHandle(5, NewHandle());
    block.Add(100, "AcDbEntity");
    block.Add(8, "0");
}

Text DxfDrawing::Block(std::string_view name, DxfTags entities)
{
    // The number keeps two apart whatever they are named after.
    const Text whole = DxfName(name) + "-" + PlainNumber(static_cast<int>(blocks.size()) + 1);
    const int record = NewHandle(), begin = NewHandle(), end = NewHandle();
    blocks.push_back({whole, record, begin, end, std::move(entities)});
    return whole;
}

const Text& DxfDrawing::Style(const Text& font, bool bold)
{
    for (const FontStyle& style : styles)
        if (style.Bold == bold && SameText(style.Font, font))
            return style.Name;
    Text name = DxfName(UpperCase(font)) + (bold ? "_BOLD" : "");
    const auto taken = [&] {
        for (const FontStyle& style : styles)
            if (style.Name == name)
                return true;
        return name == "STANDARD";
    };
    while (taken())
        name += "_";
    return styles.emplace_back(FontStyle{font, bold, name}).Name;
}

DxfDrawing::ImageLink DxfDrawing::Image(int entity, const std::string& path, int width, int height)
{
    Definition* found = nullptr;
    for (Definition& one : definitions)
        if (one.Path == path)
            found = &one;
    if (!found)
        found = &definitions.emplace_back(Definition{NewHandle(), path, width, height, {}});
    const int reactor = NewHandle();
    found->Reactors.push_back({reactor, entity});
    return {found->Handle, reactor};
}

// ---- Sections

void DxfDrawing::Header(DxfTags& out, const DxfSheet& sheet) const
{
    out.Add(999, "One drawing unit is one device unit of the page: " + PlainNumber(sheet.UnitsPerInch) +
                     " units to the inch");
    if (!sheet.Mark.empty())
        out.Add(999, MarkWords + DxfString(sheet.Mark));
    Section(out, "HEADER");
    const auto name = [&](const char* variable) { out.Add(9, variable); };
    const auto number = [&](const char* variable, int code, double value) {
        name(variable);
        out.Add(code, value);
    };
    const auto word = [&](const char* variable, int code, const char* value) {
        name(variable);
        out.Add(code, value);
    };
    const auto point = [&](const char* variable, double x, double y) {
        name(variable);
        out.AddPoint(10, x, y);
        out.Add(30, 0);
    };
    const auto corner = [&](const char* variable, double x, double y) {
        name(variable);
        out.AddPoint(10, x, y);
    };
    word("$ACADVER", 1, "AC1018");
    word("$DWGCODEPAGE", 3, "ANSI_1252");
    point("$INSBASE", 0, 0);
    point("$EXTMIN", sheet.Left, sheet.Bottom);
    point("$EXTMAX", sheet.Right, sheet.Top);
    corner("$LIMMIN", 0, 0);
    corner("$LIMMAX", sheet.Width, sheet.Height);
    // The sheet of paper, in millimetres as in the layouts: a program that fits the drawing to its paper takes this
    // one.
    corner("$PLIMMIN", 0, 0);
    corner("$PLIMMAX", PaperLength(sheet.InchesWide, sheet), PaperLength(sheet.InchesHigh, sheet));
    number("$ORTHOMODE", 70, 0);
    number("$REGENMODE", 70, 1);
    number("$FILLMODE", 70, 1);
    number("$QTEXTMODE", 70, 0);
    number("$MIRRTEXT", 70, 0);
    number("$LTSCALE", 40, 1);
    number("$ATTMODE", 70, 1);
    number("$TEXTSIZE", 40, 0.716 / 7.2 * sheet.UnitsPerInch);
    word("$TEXTSTYLE", 7, "STANDARD");
    word("$CLAYER", 8, "0");
    word("$CELTYPE", 6, "ByLayer");
    number("$CECOLOR", 62, 256);
    number("$CELTSCALE", 40, 1);
    number("$DIMSCALE", 40, 1);
    word("$DIMSTYLE", 2, "STANDARD");
    number("$LUNITS", 70, 2);
    number("$LUPREC", 70, 4);
    number("$AUNITS", 70, 0);
    number("$AUPREC", 70, 2);
    number("$PDMODE", 70, 0);
    number("$PDSIZE", 40, 0);
    number("$PLINEWID", 40, 0);
    number("$TILEMODE", 70, 1);
    number("$MEASUREMENT", 70, 0);
    number("$CELWEIGHT", 370, -1);
    number("$ENDCAPS", 280, 0);
    number("$JOINSTYLE", 280, 1);
    number("$LWDISPLAY", 290, 1);
    // The page's unit is none of the units that a drawing can name: hence no unit here and the first line above.
    number("$INSUNITS", 70, 0);
    number("$PSTYLEMODE", 290, 1);
    name("$HANDSEED");
    out.AddHandle(5, nextHandle);
    EndSection(out);
}

void DxfDrawing::Tables(DxfTags& out, const DxfSheet& sheet)
{
    Section(out, "TABLES");
    const auto end = [&] { out.Add(0, "ENDTAB"); };

    Table(out, "VPORT", ViewportTable, 1);
    Record(out, "VPORT", FirstViewport, ViewportTable, "AcDbViewportTableRecord", "*Active");
    out.AddPoint(10, 0, 0);
    out.AddPoint(11, 1, 1);
    out.AddPoint(12, sheet.Width / 2, sheet.Height / 2);
    out.AddPoint(13, 0, 0);
    out.AddPoint(14, 10, 10);
    out.AddPoint(15, 10, 10);
    out.AddPoint(16, 0, 0);
    out.Add(36, 1);
    out.AddPoint(17, 0, 0);
    out.Add(37, 0);
    out.Add(40, sheet.Height);
    out.Add(41, sheet.Width / sheet.Height);
    out.Add(42, 50);
    for (const int code : {43, 44, 50, 51, 71})
        out.Add(code, 0);
    out.Add(72, 1000);
    out.Add(73, 1);
    out.Add(74, 3);
    for (const int code : {75, 76, 77, 78})
        out.Add(code, 0);
    end();

    Table(out, "LTYPE", LinetypeTable, Linetypes().size());
    for (const Linetype& type : Linetypes()) {
        Record(out, "LTYPE", NewHandle(), LinetypeTable, "AcDbLinetypeTableRecord", type.Name);
        out.Add(3, type.Picture);
        out.Add(72, 65);
        out.Add(73, static_cast<int>(type.Dashes.size()));
        double length = 0;
        for (const double dash : type.Dashes)
            length += std::fabs(dash);
        out.Add(40, length * sheet.UnitsPerInch);
        for (const double dash : type.Dashes) {
            out.Add(49, dash * sheet.UnitsPerInch);
            out.Add(74, 0);
        }
    }
    end();

    Table(out, "LAYER", LayerTable, std::size(layerNames) + 1);
    // Strokes have no pens of their own: those of patterns are all about this wide, in 1/100 mm.
    constexpr int strokes = 15, standard = -3;
    const auto layer = [&](int handle, const char* name, bool thin = false) {
        Record(out, "LAYER", handle, LayerTable, "AcDbLayerTableRecord", name);
        out.Add(62, 7);
        out.Add(6, "Continuous");
        out.Add(370, thin ? strokes : standard);
        out.AddHandle(390, NormalPlotStyle);
    };
    layer(LayerZero, "0");
    for (const char* name : layerNames)
        layer(NewHandle(), name, name == layerNames[static_cast<int>(DxfLayer::Strokes)]);
    end();

    const auto style = [&](const Text& name, const Text& font, bool bold) {
        Record(out, "STYLE", NewHandle(), StyleTable, "AcDbTextStyleTableRecord", name);
        out.Add(40, 0);
        out.Add(41, 1);
        out.Add(50, 0);
        out.Add(71, 0);
        out.Add(42, 0.716 / 7.2 * sheet.UnitsPerInch);
        Text file = DxfString(font);
        for (char& letter : file)
            if (letter >= 'A' && letter <= 'Z')
                letter = static_cast<char>(letter - 'A' + 'a');
        out.Add(3, file + (bold ? "bd.ttf" : ".ttf"));
        out.Add(4, "");
        // The family by name: then the file's name does not matter.
        out.Add(1001, "ACAD");
        out.Add(1000, DxfString(font));
        out.Add(1071, bold ? 0x2000022 : 0x22);
    };
    Table(out, "STYLE", StyleTable, styles.size() + 1);
    style("STANDARD", "Arial", false);
    for (const FontStyle& one : styles)
        style(one.Name, one.Font, one.Bold);
    end();

    Table(out, "VIEW", ViewTable, 0);
    end();
    Table(out, "UCS", UcsTable, 0);
    end();
    Table(out, "APPID", AppidTable, 1);
    Record(out, "APPID", NewHandle(), AppidTable, "AcDbRegAppTableRecord", "ACAD");
    end();
    Table(out, "DIMSTYLE", DimstyleTable, 1);
    out.Add(100, "AcDbDimStyleTable");
    Record(out, "DIMSTYLE", NewHandle(), DimstyleTable, "AcDbDimStyleTableRecord", "STANDARD", 105);
    end();
    Table(out, "BLOCK_RECORD", BlockRecordTable, blocks.size() + 2);
    const auto record = [&](int handle, std::string_view name, int layout) {
        out.Add(0, "BLOCK_RECORD");
        out.AddHandle(5, handle);
        out.AddHandle(330, BlockRecordTable);
        out.Add(100, "AcDbSymbolTableRecord");
        out.Add(100, "AcDbBlockTableRecord");
        out.Add(2, name);
        out.AddHandle(340, layout);
    };
    record(ModelSpace, "*Model_Space", ModelLayout);
    record(PaperSpace, "*Paper_Space", PaperLayout);
    for (const BlockOfEntities& block : blocks)
        record(block.Record, block.Name, 0);
    end();
    EndSection(out);
}

void DxfDrawing::Blocks(DxfTags& out)
{
    Section(out, "BLOCKS");
    ::Block(out, ModelBlock, ModelBlockEnd, ModelSpace, "*Model_Space", false);
    ::Block(out, PaperBlock, PaperBlockEnd, PaperSpace, "*Paper_Space", true);
    for (const BlockOfEntities& block : blocks)
        ::Block(out, block.Begin, block.End, block.Record, block.Name, false, block.Entities);
    EndSection(out);
}

void DxfDrawing::Objects(DxfTags& out, const DxfSheet& sheet)
{
    Section(out, "OBJECTS");
    Dictionary(out, RootDictionary, 0,
               {{"ACAD_GROUP", GroupDictionary},
                {"ACAD_IMAGE_DICT", ImageDictionary},
                {"ACAD_IMAGE_VARS", RasterVariables},
                {"ACAD_LAYOUT", LayoutDictionary},
                {"ACAD_MLINESTYLE", MlineDictionary},
                {"ACAD_PLOTSETTINGS", PlotSettingsDictionary},
                {"ACAD_PLOTSTYLENAME", PlotStyleDictionary}});
    Dictionary(out, GroupDictionary, RootDictionary, {});
    Dictionary(out, LayoutDictionary, RootDictionary, {{"Model", ModelLayout}, {"Layout1", PaperLayout}});
    Dictionary(out, MlineDictionary, RootDictionary, {{"STANDARD", MlineStandard}});
    Dictionary(out, PlotSettingsDictionary, RootDictionary, {});

    Object(out, "ACDBDICTIONARYWDFLT", PlotStyleDictionary, RootDictionary, "AcDbDictionary");
    out.Add(281, 1);
    out.Add(3, "Normal");
    out.AddHandle(350, NormalPlotStyle);
    out.Add(100, "AcDbDictionaryWithDefault");
    out.AddHandle(340, NormalPlotStyle);
    out.Add(0, "ACDBPLACEHOLDER");
    out.AddHandle(5, NormalPlotStyle);
    out.AddHandle(330, PlotStyleDictionary);

    Object(out, "MLINESTYLE", MlineStandard, MlineDictionary, "AcDbMlineStyle");
    out.Add(2, "STANDARD");
    out.Add(70, 0);
    out.Add(3, "");
    out.Add(62, 256);
    out.Add(51, 90);
    out.Add(52, 90);
    out.Add(71, 2);
    for (const double offset : {0.5, -0.5}) {
        out.Add(49, offset);
        out.Add(62, 256);
        out.Add(6, "BYLAYER");
    }

    Layout(out, ModelLayout, "Model", 0, ModelSpace, sheet);
    Layout(out, PaperLayout, "Layout1", 1, PaperSpace, sheet);

    Object(out, "RASTERVARIABLES", RasterVariables, RootDictionary, "AcDbRasterVariables");
    out.Add(90, 0);
    out.Add(70, 0);
    out.Add(71, 1);
    out.Add(72, 0);
    std::vector<std::pair<std::string, int>> images;
    for (size_t i = 0; i < definitions.size(); ++i)
        images.push_back({"PICTURE" + PlainNumber(static_cast<int>(i) + 1), definitions[i].Handle});
    Dictionary(out, ImageDictionary, RootDictionary, images);
    for (const Definition& one : definitions) {
        out.Add(0, "IMAGEDEF");
        out.AddHandle(5, one.Handle);
        out.Add(102, "{ACAD_REACTORS");
        out.AddHandle(330, ImageDictionary);
        for (const auto& [reactor, entity] : one.Reactors)
            out.AddHandle(330, reactor);
        out.Add(102, "}");
        out.AddHandle(330, ImageDictionary);
        out.Add(100, "AcDbRasterImageDef");
        out.Add(90, 0);
        out.Add(1, DxfPath(one.Path));
        out.AddPoint(10, one.Width, one.Height);
        out.AddPoint(11, 1, 1);
        out.Add(280, 1);
        out.Add(281, 0);
        for (const auto& [reactor, entity] : one.Reactors) {
            out.Add(0, "IMAGEDEF_REACTOR");
            out.AddHandle(5, reactor);
            out.AddHandle(330, entity);
            out.Add(100, "AcDbRasterImageDefReactor");
            out.Add(90, 2);
            out.AddHandle(330, entity);
        }
    }
    EndSection(out);
}

std::string DxfDrawing::File(const DxfSheet& sheet)
{
    // The header names the first handle that is free, so the rest comes first.
    DxfTags tables, objects;
    Tables(tables, sheet);
    Objects(objects, sheet);
    DxfTags out;
    size_t inBlocks = 0;
    for (const BlockOfEntities& block : blocks)
        inBlocks += block.Entities.bytes.size() + 512;
    out.bytes.reserve(Entities.bytes.size() + tables.bytes.size() + objects.bytes.size() + inBlocks + 8192);
    Header(out, sheet);
    int images = 0;
    for (const Definition& one : definitions)
        images += static_cast<int>(one.Reactors.size());
    Classes(out, images);
    out.Append(tables);
    Blocks(out);
    Section(out, "ENTITIES");
    out.Append(Entities);
    EndSection(out);
    out.Append(objects);
    out.Add(0, "EOF");
    return out.bytes;
}
