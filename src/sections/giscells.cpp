// giscells.cpp -- the layers of a GIS table between two borings.
#include "sections/giscells.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "gis/gisfile.h"
#include "sections/layershapes.h"
#include "session/files.h"
#include "session/savename.h"

namespace
{
// One boring's end of a layer.
struct LayerEnd {
    double Top = 0, Bottom = 0; // depths
    bool Moved = false;         // the layer does not reach the boring
    bool Between = false;       // nor does its cell tell the depth at which it ends
};
} // namespace

void VCROSS::spellgisnames()
{
    for (int row = 1; row <= GisData.boringCount; ++row) {
        Text& name = GisData.boringCells[row][GisFileName];
        name = UpperCase(WithEnding(name, ".BOR"));
    }
}

int VCROSS::gisrowof(const Text& boringFile)
{
    for (int row = 1; row <= GisData.boringCount; ++row)
        if (GisData.boringCells[row][GisFileName] == boringFile)
            return row;
    return 0;
}

static std::string_view CellAbove(int row, int k)
{
    return k == 1 ? std::string_view("0-0") : std::string_view(GisData.layerCells[row][k - 1]);
}

// Kept: the number in front of the "-" of the cell above, whatever that cell is; so a layer under "X", "X-25" or a
// blank cell begins at the ground and covers what was drawn there. Who pinches a layer out writes top and bottom in the
// next cell.
static double FirstNumber(std::string_view cell)
{
    return TextNumber(Before(cell, '-'));
}

static double MeanOf(std::string_view cell)
{
    return Holds(cell, '-') ? (FirstNumber(cell) + TextNumber(Behind(cell, '-'))) / 2 : TextNumber(cell);
}

static LayerEnd EndOf(int row, int k)
{
    const Text cell = UpperCase(Trim(GisData.layerCells[row][k]));
    const bool range = Holds(cell, '-');
    LayerEnd end;
    if (cell.starts_with('X')) {
        end.Moved = true;
        end.Between = !range;
        if (range)
            end.Top = end.Bottom = TextNumber(Behind(cell, '-'));
    } else if (range) {
        end.Top = FirstNumber(cell);
        end.Bottom = TextNumber(Behind(cell, '-'));
    } else {
        end.Top = FirstNumber(CellAbove(row, k));
        end.Bottom = cell.empty() ? end.Top : TextNumber(cell);
    }
    return end;
}

static double HeightAt(float ground, double depth)
{
    return ground - Over(depth * VCROSS::LayerFill.rise, VCROSS::LayerFill.riseDepth);
}

bool VCROSS::setgispoints(int k)
{
    LayerFillRecord& f = LayerFill;
    const int leftRow = CrossRun.gisRow[f.leftBoring], rightRow = CrossRun.gisRow[f.rightBoring];
    const LayerEnd left = EndOf(leftRow, k), right = EndOf(rightRow, k);
    float leftX = f.leftX, rightX = f.rightX;
    if (left.Moved)
        leftX = (double(leftX) + rightX) / 2;
    // Kept: from the place that the left side has moved to. With both sides moved the right one stands at three
    // quarters of the way.
    if (right.Moved)
        rightX = (double(leftX) + rightX) / 2;
    const double between = (HeightAt(f.leftGround, MeanOf(CellAbove(leftRow, k))) +
                            HeightAt(f.rightGround, MeanOf(CellAbove(rightRow, k)))) /
                           2;
    const auto height = [&](const LayerEnd& end, float ground, double depth) {
        return end.Between ? between : HeightAt(ground, depth);
    };
    setcorner(1, leftX, height(left, f.leftGround, left.Top));
    setcorner(2, leftX, height(left, f.leftGround, left.Bottom));
    setcorner(3, rightX, height(right, f.rightGround, right.Bottom));
    setcorner(4, rightX, height(right, f.rightGround, right.Top));
    closecorners(5);
    return f.polyY[1] != f.polyY[2] || f.polyY[3] != f.polyY[4];
}

// A layer is named by a fill code, or has a colour. The pattern is chosen first: where that fails, no polygon is left
// under way.
static void FillGisLayer(int k)
{
    const Text& color = GisData.layerColor[k];
    if (!IsBlank(color)) {
        VCROSS::walkcorners();
        polyfillrgb(getcolor(color, true));
        return;
    }
    setpatt(GisData.layerName[k]);
    VCROSS::walkcorners();
    polyfillwhite();
}

bool VCROSS::fillgislayers()
{
    for (int k = 1; k <= GisData.layerCount; ++k) {
        if (setgispoints(k))
            FillGisLayer(k);
        if (fillstopped())
            return false;
    }
    return true;
}
