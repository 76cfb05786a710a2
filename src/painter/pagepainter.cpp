// pagepainter.cpp -- the objects of a page as strokes, fills and glyphs of a QPainter.
//
// Nearly everything on a page is black ink, and black on black looks the same in any order. So black objects are
// gathered by their pen or pattern and drawn together, until an object comes that covers what lies beneath it. A PDF
// gets a tenth of the style changes that way, and one tiling pattern where there were a hundred.
#include "painter/pagepainter.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"

#include <QGlyphRun>
#include <QImage>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

// ---- Fonts

// One size serves all text: Qt rounds the pixel size of a font, so each text is scaled from this one instead.
static constexpr int EmPixels = 256;
// The ascent and descent of Arial together, in parts of the em.
static constexpr double CellOfEm = 1.117;
// From the point of a text object, which holds the nudge of 0.11, down to the baseline: the pen marks the middle of
// the capitals, which are 0.716 of the height.
static constexpr double BaselineOffset = 0.358 - 0.11;

namespace
{
struct Face {
    QRawFont font;
    std::array<quint32, 256> glyph{};
    std::array<double, 256> advance{}; // at EmPixels
};
} // namespace

static QString FamilyOf(const Text& fontName)
{
    if (fontName.empty() || SameText(fontName, "Arial"))
        return QStringLiteral("Liberation Sans");
    return QString::fromStdString(ToUtf8(fontName));
}

// The face of a font, made once; it is never given back, since Qt may end before a static would.
static const Face& FaceOf(const Text& fontName, bool bold)
{
    static auto& faces = *new std::map<std::pair<Text, bool>, Face>;
    const auto [entry, isNew] = faces.try_emplace({fontName, bold});
    Face& face = entry->second;
    if (!isNew)
        return face;
    QFont font(FamilyOf(fontName));
    font.setPixelSize(EmPixels);
    font.setBold(bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    face.font = QRawFont::fromFont(font);
    for (int code = 0; code < 256; ++code) {
        // A tab and its kin have no shape; they take the room of a blank.
        const Text letter(1, code < 32 ? ' ' : static_cast<char>(code));
        const QList<quint32> glyphs = face.font.glyphIndexesForString(QString::fromStdString(ToUtf8(letter)));
        face.glyph[size_t(code)] = glyphs.isEmpty() ? 0 : glyphs.first();
        const QList<QPointF> advances = face.font.advancesForGlyphIndexes({face.glyph[size_t(code)]});
        face.advance[size_t(code)] = advances.isEmpty() ? 0 : advances.first().x();
    }
    return face;
}

bool PageFontThere()
{
    return FaceOf("Arial", false).font.familyName() == FamilyOf("Arial");
}

double TextAdvance(const Text& words, const Text& fontName, bool bold)
{
    const Face& face = FaceOf(fontName, bold);
    double sum = 0;
    for (const char letter : words)
        sum += face.advance[static_cast<unsigned char>(letter)];
    return sum / EmPixels;
}

// ---- Pictures and patterns

namespace
{
struct Tile {
    QImage image;     // null: a blank pattern
    bool ink = false; // nothing but black strokes
};

// What is made of the pictures of patterns, which it lives as long as. Of a run each tile is one image throughout, so
// that a PDF has it once.
struct Tiles {
    std::map<Text, Tile> byName;
    std::map<std::pair<Text, double>, QImage> averaged; // by name and pixels to a dot
    int emptied = 0;                                    // PatternPicturesEmptied when the first one was made
};
} // namespace

static Tiles& AllTiles()
{
    static auto& tiles = *new Tiles;
    return tiles;
}

// At the start of a page.
static void FollowPatterns()
{
    if (AllTiles().emptied != PatternPicturesEmptied)
        AllTiles() = Tiles{{}, {}, PatternPicturesEmptied};
}

// A pattern's bitmap with its white made transparent. A grey is black that is thinned, so that it looks the same on
// white and goes with the colour of a ground.
static const Tile& TileOf(const Text& name)
{
    std::map<Text, Tile>& tiles = AllTiles().byName;
    const auto [entry, isNew] = tiles.try_emplace(name);
    Tile& tile = entry->second;
    if (!isNew)
        return tile;
    try {
        const Bitmap& bitmap = PatternPicture(name);
        QImage image(bitmap.Width, bitmap.Height, QImage::Format_ARGB32);
        tile.ink = true;
        bool blank = true;
        for (int y = 0; y < bitmap.Height; ++y) {
            auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < bitmap.Width; ++x) {
                const uint32_t color = bitmap.At(x, y) & 0xFFFFFF;
                const uint32_t grey = color & 255;
                if (color == grey * 0x010101)
                    row[x] = (255 - grey) << 24;
                else {
                    row[x] = 0xFF000000 | color;
                    tile.ink = false;
                }
                blank = blank && row[x] == 0;
            }
        }
        if (!blank)
            tile.image = image;
    } catch (...) {
        tiles.erase(entry);
        throw;
    }
    return tile;
}

// A tile at its size on a raster of few dots: averaged, for taking every fourth dot would lose strokes. Several
// tiles side by side come nearer to a whole number of pixels.
static QImage Averaged(const QImage& tile, double dotsPerPixel)
{
    int best = 1;
    double bestError = 1;
    for (int copies = 1; copies <= 4; ++copies) {
        const double size = copies * tile.width() * dotsPerPixel;
        const double error = std::fabs(size - std::round(size)) / copies;
        if (error < bestError - 1e-9) {
            best = copies;
            bestError = error;
        }
    }
    QImage many(best * tile.width(), best * tile.height(), QImage::Format_ARGB32_Premultiplied);
    many.fill(0);
    QPainter painter(&many);
    painter.fillRect(many.rect(), QBrush(tile));
    painter.end();
    return many.scaled(std::max(1, int(std::round(many.width() * dotsPerPixel))),
                       std::max(1, int(std::round(many.height() * dotsPerPixel))), Qt::IgnoreAspectRatio,
                       Qt::SmoothTransformation);
}

namespace
{
struct LoadedPicture {
    QImage image;            // null: the file is no picture
    bool photograph = false; // came compressed with losses; may go on so
    FileState state;         // of the file, before it was read
};
} // namespace

static std::map<std::string, LoadedPicture>& AllPictures() // by path
{
    static auto& pictures = *new std::map<std::string, LoadedPicture>;
    return pictures;
}

static LoadedPicture Loaded(const std::string& path)
{
    LoadedPicture picture;
    picture.state = Machine::StateOf(path);
    QImageReader::setAllocationLimit(1024); // megabytes: site maps are large
    QImageReader reader(QString::fromStdString(path));
    reader.setDecideFormatFromContent(true);
    if (!reader.read(&picture.image))
        picture.image = QImage(); // as far as it could be read
    picture.photograph = reader.format() == "jpeg";
    return picture;
}

// A logo or a map, loaded once; so is one that cannot be, which would cost as much on every page.
static const LoadedPicture& PictureOf(const Text& name)
{
    std::map<std::string, LoadedPicture>& pictures = AllPictures();
    const std::string path = NativePath(name);
    auto found = pictures.find(path);
    if (found == pictures.end()) {
        if (!FileExists(name))
            throw RunTimeError{FileNotFound};
        found = pictures.emplace(path, Loaded(path)).first;
    }
    if (found->second.image.isNull())
        throw RunTimeError{InvalidPicture};
    return found->second;
}

bool PictureLoads(const Text& name)
{
    try {
        PictureOf(name);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void DropChangedPictures()
{
    std::erase_if(AllPictures(), [](const auto& entry) { return entry.second.state != Machine::StateOf(entry.first); });
}

// ---- The page

static QColor ColorFrom(int32_t color)
{
    return QColor(color & 255, color >> 8 & 255, color >> 16 & 255);
}

namespace
{
using PenKey = std::pair<int16_t, int32_t>; // style and width of a black pen

// Black objects of one pen, or of one pen and pattern.
struct Ink {
    QList<QLine> lines;
    QPainterPath outlines;
    QList<QPainterPath> solids; // each by itself: in one path an overlap would stay unfilled
    std::map<Text, std::pair<QBrush, QList<QPolygon>>> patterns;
};

class PagePlotter
{
public:
    PagePlotter(QPainter& onto, double unitScale, PatternForm patternForm);
    ~PagePlotter();
    void Plot(const PageObject& object);
    void Alone(const PageObject& object);
    void Flush();

private:
    QPen PenOf(const PageObject& object) const;
    QPen PenOf(int16_t style, int32_t width, int32_t color) const;
    QBrush BrushOf(const Text& name) const;
    void Draw(const PageObject& object);
    void DrawTextObject(const PageObject& object);
    void DrawPicture(const PageObject& object);

    QPainter& painter;
    double scale;
    PatternForm form;
    double unitsPerInch;
    bool raster;
    QTransform page;
    std::map<PenKey, Ink> inks;
    std::vector<const PageObject*> texts;
};
} // namespace

PagePlotter::PagePlotter(QPainter& onto, double unitScale, PatternForm patternForm)
    : painter(onto), scale(unitScale), form(patternForm),
      unitsPerInch(PageCanvas.unitsPerInch > 0 ? double(PageCanvas.unitsPerInch) : 600)
{
    const QPaintEngine::Type engine = painter.paintEngine() ? painter.paintEngine()->type() : QPaintEngine::Raster;
    raster = engine != QPaintEngine::Pdf && engine != QPaintEngine::Picture;
    painter.save();
    painter.scale(scale, scale);
    painter.setBrushOrigin(0, 0);
    page = painter.worldTransform();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::LosslessImageRendering);
    // The screen form lies pixel on pixel; only what is averaged or a photograph may be smoothed.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, form == PatternForm::Print);
}

PagePlotter::~PagePlotter()
{
    painter.restore();
}

// Flat caps, round joins (a mitre grows into a thorn at the tip of a wedge), dashes of page lengths whatever the pen's
// width. A width of 0 is one device unit; no line is thinner than a pixel.
QPen PagePlotter::PenOf(int16_t style, int32_t width, int32_t color) const
{
    static constexpr double dash = 0.06, dot = 0.012, gap = 0.03;
    static const std::array<QList<qreal>, 5> lengths = {
        QList<qreal>(), {dash, gap}, {dot, gap}, {dash, gap, dot, gap}, {dash, gap, dot, gap, dot, gap}};
    const double units = std::max({double(width), 1.0, raster ? 1 / scale : 1.0});
    QPen pen(ColorFrom(color), units, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (style >= 1 && style <= 4) {
        QList<qreal> pattern = lengths[size_t(style)];
        for (qreal& length : pattern)
            length *= unitsPerInch / units;
        pen.setDashPattern(pattern);
    }
    return pen;
}

QPen PagePlotter::PenOf(const PageObject& object) const
{
    return PenOf(object.PenStyle, object.PenWidth, object.PenColor);
}

// The bitmap to fill with. A tinted pattern is its tint with the untinted bitmap on it.
static Text PatternOf(const PageObject& object, PatternForm form)
{
    if (!object.TintOf.empty())
        return form == PatternForm::Print ? PrintForm(object.TintOf) : object.TintOf;
    return form == PatternForm::Print && !object.Fill.empty() ? object.Fill : object.BrushPicture;
}

// The tiling brush of a bitmap; no brush for a blank one.
QBrush PagePlotter::BrushOf(const Text& name) const
{
    const Tile& tile = TileOf(name);
    if (tile.image.isNull())
        return QBrush(Qt::NoBrush);
    if (form == PatternForm::Screen) {
        QBrush brush(tile.image);
        brush.setTransform(QTransform::fromScale(1 / scale, 1 / scale));
        return brush;
    }
    const double unitsPerDot = unitsPerInch / 600;
    const double dotsPerPixel = unitsPerDot * scale; // pixels of the painter to a dot of the tile
    if (raster && dotsPerPixel < 0.99) {
        QImage& image = AllTiles().averaged[{name, dotsPerPixel}];
        if (image.isNull())
            image = Averaged(tile.image, dotsPerPixel);
        // As many whole tiles as fit the averaged picture, stretched by less than a pixel.
        const double tilesWide = std::round(image.width() / (tile.image.width() * dotsPerPixel));
        const double tilesHigh = std::round(image.height() / (tile.image.height() * dotsPerPixel));
        QBrush brush(image);
        brush.setTransform(QTransform::fromScale(tilesWide * tile.image.width() * unitsPerDot / image.width(),
                                                 tilesHigh * tile.image.height() * unitsPerDot / image.height()));
        return brush;
    }
    QBrush brush(tile.image);
    if (std::fabs(unitsPerDot - 1) > 1e-6)
        brush.setTransform(QTransform::fromScale(unitsPerDot, unitsPerDot));
    return brush;
}

static QPolygon PolygonOf(const PageObject& object)
{
    QPolygon polygon;
    if (object.Kind == ObjectKind::Polygon)
        for (const PagePoint& point : object.Vertices)
            polygon << QPoint(point.X, point.Y);
    else
        polygon << QPoint(object.X1, object.Y1) << QPoint(object.X2, object.Y1) << QPoint(object.X2, object.Y2)
                << QPoint(object.X1, object.Y2);
    return polygon;
}

// Half an ellipse over the chord between the two vertices, as high as the first corner stands off it.
static void AddArc(QPainterPath& path, const PageObject& object)
{
    if (object.Vertices.size() < 2)
        return;
    const PagePoint& from = object.Vertices[0];
    const PagePoint& to = object.Vertices[1];
    const double left = std::min(from.X, to.X);
    const double width = std::abs(to.X - from.X);
    const double chord = (from.Y + to.Y) / 2.0;
    const double rise = std::fabs(object.Y1 - chord);
    const QRectF ellipse(left, chord - rise, width, 2 * rise);
    path.arcMoveTo(ellipse, 180);
    path.arcTo(ellipse, 180, object.Y1 < chord ? -180 : 180);
}

static void AddShape(QPainterPath& path, const PageObject& object)
{
    if (object.Kind == ObjectKind::Ellipse)
        path.addEllipse(QRectF(QPointF(object.X1, object.Y1), QPointF(object.X2, object.Y2)).normalized());
    else if (object.Kind == ObjectKind::Arc)
        AddArc(path, object);
    else {
        path.addPolygon(PolygonOf(object));
        path.closeSubpath();
    }
}

void PagePlotter::Plot(const PageObject& object)
{
    const bool blackPen = object.PenColor == 0;
    switch (object.Kind) {
    case ObjectKind::Text:
        texts.push_back(&object);
        return;
    case ObjectKind::Picture:
        return Alone(object);
    case ObjectKind::Line:
        if (!blackPen)
            return Alone(object);
        inks[{object.PenStyle, object.PenWidth}].lines << QLine(object.X1, object.Y1, object.X2, object.Y2);
        return;
    case ObjectKind::Arc:
        if (!blackPen)
            return Alone(object);
        AddShape(inks[{object.PenStyle, object.PenWidth}].outlines, object);
        return;
    case ObjectKind::Rectangle:
    case ObjectKind::Ellipse:
    case ObjectKind::Polygon:
        break;
    }
    if (!blackPen)
        return Alone(object);
    Ink& ink = inks[{object.PenStyle, object.PenWidth}];
    if (object.Brush == BrushStyle::Hollow)
        return AddShape(ink.outlines, object);
    if (object.Brush == BrushStyle::Solid && object.BrushColor == 0)
        return AddShape(ink.solids.emplaceBack(), object);
    if (object.Brush == BrushStyle::Solid || !object.TintOf.empty() || object.Kind == ObjectKind::Ellipse)
        return Alone(object);
    const Text name = PatternOf(object, form);
    if (!TileOf(name).ink)
        return Alone(object);
    const auto [entry, isNew] = ink.patterns.try_emplace(name);
    if (isNew)
        entry->second.first = BrushOf(name);
    entry->second.second << PolygonOf(object);
}

// All that was gathered, onto the paper.
void PagePlotter::Flush()
{
    for (auto& [key, ink] : inks) {
        painter.setPen(PenOf(key.first, key.second, 0));
        for (auto& [name, shapes] : ink.patterns) {
            painter.setBrush(shapes.first);
            for (const QPolygon& polygon : shapes.second)
                painter.drawPolygon(polygon);
        }
        painter.setBrush(Qt::black);
        for (const QPainterPath& solid : ink.solids)
            painter.drawPath(solid);
        painter.setBrush(Qt::NoBrush);
        if (!ink.lines.isEmpty())
            painter.drawLines(ink.lines);
        if (!ink.outlines.isEmpty())
            painter.drawPath(ink.outlines);
    }
    inks.clear();
    if (texts.empty())
        return;
    painter.setPen(QPen(Qt::black, 1));
    for (const PageObject* object : texts)
        DrawTextObject(*object);
    painter.setWorldTransform(page);
    texts.clear();
}

// An object whose place in the order shows.
void PagePlotter::Alone(const PageObject& object)
{
    Flush();
    Draw(object);
}

void PagePlotter::Draw(const PageObject& object)
{
    if (object.Kind == ObjectKind::Picture)
        return DrawPicture(object);
    QPainterPath shape;
    if (object.Kind == ObjectKind::Line) {
        painter.setPen(PenOf(object));
        painter.drawLine(object.X1, object.Y1, object.X2, object.Y2);
        return;
    }
    AddShape(shape, object);
    if (object.Kind == ObjectKind::Arc || object.Brush == BrushStyle::Hollow)
        painter.setBrush(Qt::NoBrush);
    else if (object.Brush == BrushStyle::Solid)
        painter.setBrush(ColorFrom(object.BrushColor));
    else {
        if (!object.TintOf.empty())
            painter.fillPath(shape, ColorFrom(ParseColor(object.Tint)));
        painter.setBrush(BrushOf(PatternOf(object, form)));
    }
    painter.setPen(PenOf(object));
    painter.drawPath(shape);
}

// The words along their baseline, which runs at the object's angle through a point below its anchor, "below" being
// the text's own.
void PagePlotter::DrawTextObject(const PageObject& object)
{
    if (object.String.empty())
        return;
    const Face& face = FaceOf(object.FontName, object.Bold);
    if (!face.font.isValid())
        return;
    const double height = std::fabs(object.FontHeight) / (object.FontHeight < 0 ? 1 : CellOfEm);
    QList<quint32> glyphs;
    QList<QPointF> positions;
    glyphs.reserve(qsizetype(object.String.size()));
    positions.reserve(qsizetype(object.String.size()));
    double along = 0;
    for (const char letter : object.String) {
        const size_t code = static_cast<unsigned char>(letter);
        glyphs << face.glyph[code];
        positions << QPointF(along, 0);
        along += face.advance[code];
    }
    const double start = object.HAlign == 1 ? -along / 2 : object.HAlign == 2 ? -along : 0;
    // Turns about the anchor; quarter turns by whole numbers, so that upright and level text stays so.
    const double quarters = object.TextAngle / 90;
    const bool square = quarters == std::floor(quarters);
    const int turns = square ? int(std::fmod(std::fmod(quarters, 4) + 4, 4)) : 0;
    static constexpr int cosines[] = {1, 0, -1, 0}, sines[] = {0, 1, 0, -1};
    const double radians = object.TextAngle * 3.14159265358979323846 / 180;
    const double c = square ? cosines[turns] : std::cos(radians);
    const double s = square ? sines[turns] : std::sin(radians);
    const double size = height / EmPixels;
    const double down = BaselineOffset * height;
    const QTransform text(size * c, -size * s, size * s, size * c, object.X1 + down * s + start * size * c,
                          object.Y1 + down * c - start * size * s);
    painter.setWorldTransform(text * page);
    QGlyphRun run;
    run.setRawFont(face.font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    painter.drawGlyphRun(QPointF(0, 0), run);
}

void PagePlotter::DrawPicture(const PageObject& object)
{
    const LoadedPicture& picture = PictureOf(object.String);
    const QRectF place = QRectF(QPointF(object.X1, object.Y1), QPointF(object.X2, object.Y2)).normalized();
    painter.setRenderHint(QPainter::LosslessImageRendering, !picture.photograph);
    const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture.image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
    painter.setRenderHint(QPainter::LosslessImageRendering);
}

// A ground and, next to it, the same shape outlined in another colour: the outline of the ground would show through
// as a grey seam where the edge of a line covers half a pixel.
static bool OutlinedAnew(const PageObject& ground, const PageObject& next)
{
    return ground.Kind == ObjectKind::Polygon && next.Kind == ObjectKind::Polygon && ground.PenStyle == 0 &&
           next.PenStyle == 0 && ground.PenWidth == next.PenWidth && ground.PenColor != next.PenColor &&
           ground.Vertices == next.Vertices;
}

void LoadPagePictures(PatternForm form)
{
    FollowPatterns();
    for (const PageObject& object : PageList.Objects)
        if (object.Kind == ObjectKind::Picture)
            PictureOf(object.String);
        else if (object.Brush == BrushStyle::Picture)
            TileOf(PatternOf(object, form));
}

void PaintPage(QPainter& painter, double scale, PatternForm form)
{
    FollowPatterns();
    int failure = 0;
    {
        const std::vector<PageObject>& objects = PageList.Objects;
        PagePlotter plotter(painter, scale, form);
        for (size_t i = 0; i < objects.size(); ++i)
            try {
                if (i + 1 < objects.size() && OutlinedAnew(objects[i], objects[i + 1])) {
                    PageObject ground = objects[i];
                    ground.PenColor = objects[i + 1].PenColor;
                    plotter.Alone(ground);
                } else
                    plotter.Plot(objects[i]);
            } catch (const RunTimeError& error) {
                if (failure == 0)
                    failure = error.Number;
            }
        plotter.Flush();
    }
    if (failure != 0)
        throw RunTimeError{failure};
}
