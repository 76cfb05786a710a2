// layershapes.cpp -- how the layers of two neighbouring borings join.
#include "sections/layershapes.h"

#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "run/batchrun.h"
#include "session/platform.h"
#include "session/shared.h"

VCROSS::LayerFillRecord VCROSS::LayerFill;

static const SharedRecord shared[] = {
    {"VCROSS::LayerFill", Kind::Run, VCROSS::LayerFill},
};

float VCROSS::contacttop(float ground, int boring, int layer)
{
    return layer == 1 ? ground : contactbottom(ground, boring, layer - 1);
}

float VCROSS::contactbottom(float ground, int boring, int layer)
{
    return ground - CrossRun.layerDepth[boring][layer];
}

// ---- The rules

// The contacts of both sides join by now, by the code above them and the code below: a plain join, but for a layer that
// is thick enough between two of one material to be a lens in them.
static std::string_view likepairs(float (*height)(int boring, int layer))
{
    using namespace VCROSS;
    const LayerFillRecord& f = LayerFill;
    const auto& left = CrossRun.layerCode[f.leftBoring];
    const auto& right = CrossRun.layerCode[f.rightBoring];
    const int l = f.leftLayer, r = f.rightLayer;
    const auto farbelow = [&](float y, float other) {
        const float limit = static_cast<float>(double(other) - f.pinchTolerance);
        return y < limit;
    };
    if (l == CrossRun.layerCount[f.leftBoring] - 1)
        return "B";
    if (farbelow(height(f.rightBoring, r), height(f.leftBoring, l + 1)))
        return left[l + 2] == left[l] ? "CD" : "B";
    if (farbelow(height(f.leftBoring, l), height(f.rightBoring, r + 1)))
        return right[r + 2] == right[r] ? "GH" : "B";
    return "B";
}

std::string_view VCROSS::chooseshapes(float (*height)(int boring, int layer))
{
    const LayerFillRecord& f = LayerFill;
    const auto& left = CrossRun.layerCode[f.leftBoring];
    const auto& right = CrossRun.layerCode[f.rightBoring];
    const int l = f.leftLayer, r = f.rightLayer;
    if (right[r] != left[l])
        return right[r + 1] == left[l] || right[r + 2] == left[l] ? "J" : "I";
    if (right[r + 1] == left[l + 1])
        return likepairs(height);
    if (left[l + 2] == left[l])
        return "CD";
    // Kept: no tolerance here. With different codes below, any height will do for a lens.
    if (height(f.leftBoring, l) < height(f.rightBoring, r + 1) && right[r + 2] == right[r])
        return "GH";
    return "B";
}

// ---- The polygons

void VCROSS::setcorner(int n, float x, float y)
{
    LayerFill.polyX[n] = x;
    LayerFill.polyY[n] = y;
}

void VCROSS::closecorners(int n)
{
    setcorner(n, LayerFill.polyX[1], LayerFill.polyY[1]);
    LayerFill.corners = n;
}

// Each call begins with the left layer, corners 1 and 2 at its top and bottom:
//
//     B 1---4    C 1---4    G 1---4    D 1--.       .--1 H   I 1---3    J     .--1
//       |   |      |   |      |   |      |   `3   3'   |       | .-'      3--'   |
//       2---3      |   |      2   |      2--'     `--2         2'          `--.  |
//                  2---3       `--3                                            `-2
void VCROSS::setlayerpoints(char shape)
{
    LayerFillRecord& f = LayerFill;
    int16_t &l = f.leftLayer, &r = f.rightLayer;
    const auto leftTop = [&](int layer) { return contacttop(f.leftGround, f.leftBoring, layer); };
    const auto leftBottom = [&](int layer) { return contactbottom(f.leftGround, f.leftBoring, layer); };
    const auto rightTop = [&](int layer) { return contacttop(f.rightGround, f.rightBoring, layer); };
    const auto rightBottom = [&](int layer) { return contactbottom(f.rightGround, f.rightBoring, layer); };
    const auto fillfrom = [&](int boring, int layer) {
        f.fillBoring = static_cast<int16_t>(boring);
        f.fillLayer = static_cast<int16_t>(layer);
    };
    setcorner(1, f.leftX, leftTop(l));
    setcorner(2, f.leftX, leftBottom(l));
    fillfrom(f.leftBoring, l);
    switch (shape) {
    case 'B': // the two layers are one
        setcorner(3, f.rightX, rightBottom(r));
        setcorner(4, f.rightX, rightTop(r));
        closecorners(5);
        ++l;
        ++r;
        break;
    case 'C': // three layers of the left side, one of the right: the ground of the lens "D"
        setcorner(2, f.leftX, leftBottom(l + 2));
        setcorner(3, f.rightX, rightBottom(r));
        setcorner(4, f.rightX, rightTop(r));
        closecorners(5);
        break;
    case 'D': {                                               // the middle one of the three
        const double above = double(f.polyY[3]) + f.polyY[4]; // of "C"
        setcorner(1, f.leftX, leftBottom(l));
        setcorner(2, f.leftX, leftBottom(l + 1));
        setcorner(3, f.leftX + f.halfway, (double(f.polyY[1]) + f.polyY[2] + above) / 4);
        closecorners(4);
        fillfrom(f.leftBoring, l + 1);
        l = static_cast<int16_t>(l + 3);
        ++r;
        break;
    }
    case 'G': // one layer of the left side, three of the right: the ground of the lens "H"
        setcorner(3, f.rightX, rightBottom(r + 2));
        setcorner(4, f.rightX, rightTop(r));
        closecorners(5);
        break;
    case 'H': {
        const double around = double(f.polyY[1]) + f.polyY[2];
        setcorner(1, f.rightX, rightBottom(r));
        setcorner(2, f.rightX, rightBottom(r + 1));
        setcorner(3, f.rightX - f.halfway, (double(f.polyY[1]) + f.polyY[2] + around) / 4);
        closecorners(4);
        fillfrom(f.rightBoring, r + 1);
        ++l;
        r = static_cast<int16_t>(r + 3);
        break;
    }
    case 'I': // the left layer pinches out
        setcorner(3, f.rightX, rightTop(r));
        closecorners(4);
        ++l;
        break;
    case 'J': { // the right one does
        setcorner(3, f.leftX, f.polyY[1]);
        setcorner(1, f.rightX, rightTop(r));
        setcorner(2, f.rightX, rightBottom(r));
        closecorners(4);
        fillfrom(f.rightBoring, r);
        ++r;
        break;
    }
    default:
        throw RunTimeError{InvalidCall};
    }
}

void VCROSS::walkcorners()
{
    const LayerFillRecord& f = LayerFill;
    moveto(f.polyX[1], f.polyY[1]);
    for (int n = 2; n <= f.corners; ++n)
        polyto(f.polyX[n], f.polyY[n]);
}

void VCROSS::filllayer(void (*close)())
{
    setpatt(CrossRun.layerCode[LayerFill.fillBoring][LayerFill.fillLayer]);
    walkcorners();
    close();
}

bool VCROSS::fillstopped()
{
    Platform.Breathe();
    if (stopRequested == 0)
        return false;
    stopRequested = 0;
    return true;
}
