// layerpage.cpp -- a section and a fence of a few borings, and the polygons between them.
#include "layerpage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/fencerun.h"
#include "sections/layershapes.h"
#include "session/files.h"

#include <cmath>

using namespace VCROSS;

std::vector<Layer> Varved(int count)
{
    std::vector<Layer> layers;
    for (int k = 1; k <= count; ++k)
        layers.push_back({static_cast<float>(0.5 * k), k % 2 ? "SM" : "CL"});
    return layers;
}

static void StartPage()
{
    SetPatterns({0, 21, 22, 25, 26, 27, 28, 29, 31, 32});
    CrossRun = CrossRunRecord();
    FenceRun = FenceRunRecord();
    LayerFill = LayerFillRecord();
    GisData = GisRecord();
    PageList = PageListRecord();
    CrossRun.pageMode = "L";
    CrossRun.pageWidth = 11;
    CrossRun.pageHeight = 8.5;
    CrossRun.vStart = 100;
    canvasstart("L");
    SetProgress(1000);
}

static void SetHoles(const std::vector<Hole>& holes)
{
    CrossRun.boringCount = static_cast<int16_t>(holes.size());
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        const Hole& hole = holes[i - 1];
        CrossRun.refElevation[i] = hole.Ground + 1; // the top of a casing
        CrossRun.stickUp[i] = 1;
        for (const Layer& layer : hole.Layers) {
            const int k = ++CrossRun.layerCount[i];
            CrossRun.layerDepth[i][k] = layer.Depth;
            CrossRun.layerCode[i][k] = layer.Code;
        }
    }
}

void SetSection(const std::vector<Hole>& holes)
{
    StartPage();
    SetHoles(holes);
    CrossRun.hEnd = CrossRun.hRange = 800;
    CrossRun.vEnd = 40;
    CrossRun.vRange = 60;
    CrossRun.scaleX = 100;
    CrossRun.scaleY = 10;
    CrossRun.columnWidth = 0.2f;
    LayerFill.columnUnits = 20;
    LayerFill.pinchTolerance = 10;
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        CrossRun.distance[i] = holes[i - 1].At;
        CrossRun.columnRight[i] = holes[i - 1].At + 10;
        CrossRun.groundY[i] = holes[i - 1].Ground - 100;
    }
    float x = 1.25, y = 7.25;
    setorigin(x, y);
    REQUIRE(PageCanvas.originX == 600);
    REQUIRE(PageCanvas.originY == 600);
}

void SetFence(const std::vector<Hole>& holes, const std::vector<std::pair<int, int>>& panels)
{
    StartPage();
    SetHoles(holes);
    CrossRun.vEnd = 0;
    CrossRun.vRange = 100;
    FenceRun.xRange = 600;
    FenceRun.baseWidth = 6;
    for (int i = 1; i <= CrossRun.boringCount; ++i)
        FenceRun.siteX[i] = holes[i - 1].At;
    for (const auto& [a, b] : panels) {
        const int k = ++FenceRun.sectionCount;
        FenceRun.sectionA[k] = static_cast<int16_t>(a);
        FenceRun.sectionB[k] = static_cast<int16_t>(b);
    }
}

void SetGis(const std::vector<std::pair<const char*, const char*>>& layers,
            const std::vector<std::vector<const char*>>& rows)
{
    GisData = GisRecord();
    for (const auto& [name, color] : layers) {
        const int k = ++GisData.layerCount;
        GisData.layerName[k] = name;
        GisData.layerColor[k] = color;
    }
    for (const auto& row : rows) {
        const int n = ++GisData.boringCount;
        for (size_t column = 0; column < row.size(); ++column)
            if (column < 4)
                GisData.boringCells[n][GisX + int(column)] = row[column];
            else
                GisData.layerCells[n][int(column) - 3] = row[column];
    }
}

static Text Number(double value)
{
    const double rounded = std::round(value * 100) / 100;
    return PlainNumber(rounded == 0 ? 0.0 : rounded);
}

static Text CodeOf(const Text& picture)
{
    const int file = static_cast<int>(TextNumber(BaseName(picture).substr(1)));
    return file == 0 ? "blank" : file > 20 && file <= 20 + MaxUscsCodes ? uscsCodes[file - 20] : "F" + Number(file);
}

static Text Fill(const PageObject& object)
{
    if (object.Brush == BrushStyle::Picture)
        return CodeOf(object.BrushPicture);
    const int32_t color = object.BrushColor;
    return Number(color & 255) + "," + Number(color >> 8 & 255) + "," + Number(color >> 16 & 255);
}

static double XOf(const PagePoint& point)
{
    return (double(point.X) - PageCanvas.originX) * PageCanvas.scaleX / PageCanvas.unitsPerInch;
}

static Text Corners(const PageObject& object)
{
    Text words;
    for (const PagePoint& point : object.Vertices)
        words += " " + Number(XOf(point)) + "," +
                 Number((double(PageCanvas.originY) - point.Y) * PageCanvas.scaleY / PageCanvas.unitsPerInch);
    return words;
}

static Drawing PolygonsWhere(bool (*shown)(const PageObject& object))
{
    Drawing drawing;
    const auto& objects = PageList.Objects;
    for (size_t i = 0; i < objects.size(); ++i) {
        const PageObject& object = objects[i];
        if (!shown(object))
            continue;
        const bool hides = object.Brush == BrushStyle::Solid && object.BrushColor == White && i + 1 < objects.size() &&
                           objects[i + 1].Brush == BrushStyle::Picture && objects[i + 1].Vertices == object.Vertices;
        drawing.push_back((hides ? Fill(objects[++i]) + " hiding" : Fill(object)) + Corners(object));
    }
    return drawing;
}

Drawing Polygons()
{
    return PolygonsWhere([](const PageObject&) { return true; });
}

Drawing BetweenColumns()
{
    return PolygonsWhere([](const PageObject& object) {
        for (const PagePoint& point : object.Vertices)
            if (XOf(point) < CrossRun.distance[1] || XOf(point) > CrossRun.distance[2])
                return false;
        return true;
    });
}

Text Built()
{
    const LayerFillRecord& f = LayerFill;
    Text words;
    for (int n = 1; n <= f.corners; ++n)
        words += Number(f.polyX[n]) + "," + Number(f.polyY[n]) + " ";
    return words + "as " + Number(f.fillBoring) + "." + Number(f.fillLayer) + " then " + Number(f.leftLayer) + "," +
           Number(f.rightLayer);
}
