// cuttings.cpp -- grain sizes of the cuttings, as a table of percentages and as bars.
//
// A heading word of these columns may hold two texts parted by "|": the left one for the table, the right one for the
// bars.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/failure.h"

#include <algorithm>

static Text LeftWord(int slot)
{
    return Text(Before(HeadingWords[slot], '|'));
}

static Text RightWord(int slot)
{
    const Text& words = HeadingWords[slot];
    return Holds(words, '|') ? Text(Behind(words, '|')) : words;
}

static bool OnPage(const LogCuttings& row)
{
    return row.Depth >= LogPage.PageStartDepth && row.Depth <= LogPage.PageEndDepth;
}

// Leaves the origin on the depth line and the y scale on.
static void CuttingsBody()
{
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    rectby(0.9, -LogGeometry.BottomSpan);
}

static void EndCuttings()
{
    setscalex(1);
    setscaley(1);
    moveto(0.9, 0.1);
}

void VLOG::drawcuttings()
try {
    markorigin();
    moveto(0.45, 0.45);
    setfontsize(7);
    textcenter();
    printtext(LeftWord(22));
    moveup(0.15);
    printtext(LeftWord(21));
    moveup(0.15);
    printtext(LeftWord(20));
    moveto(0, 0);
    lineright(0.9);
    lineup(1.2);
    movedown(0.9);
    lineleft(0.9);
    moveto(0.15, 0.1);
    setfontsize(6);
    printtext(LeftWord(23));
    moveright(0.3);
    printtext(LeftWord(24));
    moveright(0.3);
    printtext(LeftWord(25));
    moveup(0.1);
    printtext("%");
    moveleft(0.3);
    printtext("%");
    moveleft(0.3);
    printtext("%");
    moveto(0.3, 0);
    lineup(0.3);
    moveto(0.6, 0);
    lineup(0.3);
    CuttingsBody();
    moveto(0.3, 0);
    linedown(LogGeometry.BottomSpan);
    moveto(0.6, 0);
    linedown(LogGeometry.BottomSpan);
    for (int i = 1; i <= LogBoring.CuttingCount; ++i) {
        const LogCuttings& row = LogBoring.Cuttings[i];
        if (!OnPage(row))
            continue;
        const double y = -(double(row.Depth) - double(LogPage.PageStartDepth));
        moveto(0.15, y);
        printnum(row.Fine);
        moveto(0.45, y);
        printnum(row.Medium);
        moveto(0.75, y);
        printnum(row.Coarse);
    }
    EndCuttings();
} catch (...) {
    ReportFailure(__func__);
}

namespace
{
// A key of the bars, from its heading word: text, pattern, and in the first one the height of a bar.
struct BarKey {
    Text Words;
    int16_t Pattern = 0;
    float Height = 1; // depth units
};
} // namespace

static BarKey ReadBarKey(int slot, int16_t pattern)
{
    const Text words = RightWord(slot);
    BarKey key;
    key.Words = Before(words, ',');
    key.Pattern = Holds(words, ',') ? getpch(Text(Before(Behind(words, ','), ','))) : pattern;
    const std::string_view behind = Behind(words, ',');
    if (Holds(behind, ','))
        key.Height = TextNumber(Behind(behind, ','));
    return key;
}

static void DrawBarKey(const BarKey& key)
{
    setfillfile(key.Pattern);
    rectfill(0.18, 0.1);
    rectby(0.18, 0.1);
    moveright(0.25);
    moveup(0.05);
    printtext(key.Words);
    moveleft(0.25);
    movedown(0.05);
    movedown(0.12);
}

void VLOG::drawcuttingsgraph()
try {
    markorigin();
    moveto(0.45, 0.75);
    setfontsize(8);
    textcenter();
    printtext(RightWord(22));
    moveup(0.15);
    printtext(RightWord(21));
    moveup(0.15);
    printtext(RightWord(20));
    moveto(0, 0);
    lineright(0.9);
    lineup(1.2);
    moveto(0.15, 0.45);
    setfontsize(6);
    textleft();
    Slots<BarKey, 3> keys;
    for (int k = 1; k <= 3; ++k) {
        keys[k] = ReadBarKey(22 + k, static_cast<int16_t>(9 + k));
        DrawBarKey(keys[k]);
    }
    moveto(0, 0);
    textcenter();
    for (const char* label : {"20", "40", "60", "80"}) {
        moveright(0.18);
        lineup(0.05);
        moveup(0.05);
        printtext(label);
        movedown(0.1);
    }
    CuttingsBody();
    setlinestyle(5);
    for (int k = 1; k <= 4; ++k) {
        moveto(0.18 * k, 0);
        linedown(LogGeometry.BottomSpan);
    }
    setlinestyle(1);
    for (int i = 1; i <= LogBoring.CuttingCount; ++i) {
        const LogCuttings& row = LogBoring.Cuttings[i];
        if (!OnPage(row))
            continue;
        moveto(0, -(double(row.Depth) - double(LogPage.PageStartDepth)));
        const float values[] = {row.Fine, row.Medium, row.Coarse};
        for (int k = 1; k <= 3; ++k) {
            const float length = std::min(double(values[k - 1]) / 100 * 0.9, 0.9);
            setfillfile(keys[k].Pattern);
            rectfillwhite(length, keys[1].Height);
            if (k < 3)
                moveright(length);
        }
    }
    EndCuttings();
} catch (...) {
    ReportFailure(__func__);
}
