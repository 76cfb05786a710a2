// desclegend.cpp -- the legend in the heading band of a description column: sample boxes, water levels, two texts.
//
//   1.2  +------------------+------------------+
//        | Sample boxes     | Water levels     |   the first panel in use stands at the left,
//        | [::] split spoon |  v  static       |   every other one at the middle
//   0.3  +------------------+------------------+
//        |            DESCRIPTION              |
//     0  +-------------------------------------+
//
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "logrender/welldiagram.h"
#include "report/heading.h"

namespace
{
void Title(float x, float y, const Text& words, float down)
{
    moveto(x + 0.1, y);
    setfontsize(8);
    textleft();
    printtext(words);
    movedown(down);
    setfontsize(7);
}

// One sample box and its words, which are 0.05 above the pen. Pen: down a row of 0.17.
void BoxKey(int key)
{
    const Text& words = HeadingWords[40 + key];
    if (words.empty()) {
        movedown(0.17);
        return;
    }
    if (key == 1 && LegendBoxFill[key] == 1) {
        // An X in the box, as samples of that condition are drawn when no pattern was chosen for them.
        lineby(0.25, 0.1);
        moveleft(0.25);
        lineby(0.25, -0.1);
        moveleft(0.25);
    } else {
        setfillfile(LegendBoxFill[key]);
        rectfill(0.25, 0.1);
    }
    rectby(0.25, 0.1);
    moveright(0.32);
    moveup(0.05);
    printtext(words);
    moveleft(0.32);
    movedown(0.22);
}

void BoxPanel(float x)
{
    Title(x, 1.1, HeadingWords[40], 0.225);
    for (int key = 1; key <= 4; ++key)
        BoxKey(key);
}

// One mark on its water line, and its words.
void WaterKey(void (*mark)(float r), const Text& words)
{
    lineright(0.16);
    moveleft(0.08);
    moveup(0.05);
    mark(0.05);
    movedown(0.05);
    moveright(0.15);
    printtext(words);
    moveleft(0.15);
    moveleft(0.08);
    movedown(0.24);
}

void WaterPanel(float x)
{
    Title(x, 1.1, HeadingWords[46], 0.225);
    WaterKey(triangledownsolid, Text(Before(HeadingWords[47], '|')));
    WaterKey(triangledown, HeadingWords[48]);
    const Text diamond(Behind(HeadingWords[47], '|'));
    if (!diamond.empty())
        WaterKey(VLOG::diamond, diamond);
}

void TextPanel(float x, float y, int title)
{
    Title(x, y, HeadingWords[title], 0.193);
    for (int line = 1; line <= 4; ++line) {
        printtext(HeadingWords[title + line]);
        movedown(0.164);
    }
}

// The panels in their order, and the heading word that turns each on.
struct Panel {
    int Flag;
    void (*Draw)(float x);
};
const Panel panels[] = {
    {45, BoxPanel},
    {49, WaterPanel},
    {55, [](float x) { TextPanel(x, 1.1, 50); }},
    {61, [](float x) { TextPanel(x, 1.125, 56); }},
};

bool InUse(const Panel& panel)
{
    return TextNumber(HeadingWords[panel.Flag]) == 1;
}
} // namespace

// Reads ColumnWidth, half the column's width. Pen: at the column's left edge on the baseline, which is the origin;
// left anywhere. Kept: of three panels the third overprints the second.
void VLOG::drawdesclegend()
try {
    const float h = LogGeometry.ColumnWidth;
    moveup(0.3);
    lineright(2 * h);
    movedown(0.3);
    float x = 0;
    for (const Panel* panel = std::begin(panels); panel != std::end(panels); ++panel) {
        if (!InUse(*panel))
            continue;
        panel->Draw(x);
        x = h;
        moveto(h, 0.3);
        for (const Panel* later = panel + 1; later != std::end(panels); ++later)
            if (InUse(*later)) {
                lineup(0.9);
                break;
            }
    }
} catch (...) {
    ReportFailure(__func__);
}
