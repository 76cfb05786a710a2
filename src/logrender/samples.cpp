// samples.cpp -- the columns of the samples: boxes, blow counts, laboratory numbers.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/failure.h"

#include <cmath>

// The box of a sample's condition, a small integer that names a key pattern; 1 with its own pattern is an X.
static void ConditionBox(const LogSample& sample, double h)
{
    const double typed = std::nearbyint(TextNumber(sample.Condition));
    const int condition = typed >= 0 && typed <= 4 ? static_cast<int>(typed) : 0;
    if (condition == 1 && LegendBoxFill[1] == 1) {
        lineby(0.2, -h);
        moveleft(0.2);
        lineby(0.2, h);
        moveleft(0.2);
    } else {
        setfillfile(LegendBoxFill[condition]);
        rectfill(0.2, -h);
    }
    rectby(0.2, -h);
}

void VLOG::drawsamp()
try {
    const LogGeometryRecord& g = LogGeometry;
    turnedheading(0.15, HeadingWords[6]);
    narrowcolumn(0.3);
    for (int i = g.SampleFirst; i > 0 && i <= g.SampleLast; ++i) {
        const LogSample& sample = LogBoring.Samples[i];
        const double h = double(sample.Bottom) - double(sample.Top);
        moveto(0.05, -(double(sample.Top) - double(LogPage.PageStartDepth)));
        if (g.GraphicSampleFlag) {
            ConditionBox(sample, h);
            continue;
        }
        rectby(0.2, -h);
        movedown(h / 2);
        moveright(0.1);
        printtext(PlainNumber(i));
    }
    endcolumn(0.3);
} catch (...) {
    ReportFailure(__func__);
}

// The counts of a sample as typed, "6,8,11": up to ten, and what follows overwrites the tenth.
static int SplitBlows(const Text& blows, Slots<Text, 10>& values)
{
    std::string_view rest = blows;
    int count = 0;
    for (;;) {
        count = count < 10 ? count + 1 : 10;
        values[count] = LTrim(Before(rest, ','));
        if (!Holds(rest, ','))
            return count;
        rest = Behind(rest, ',');
    }
}

// Each count stands in the middle of its part of the sample. The uncut depths are used, so that a sample across a page
// break shows on each page just the counts that fall there.
std::vector<VLOG::Blow> VLOG::blowsonpage()
{
    const LogGeometryRecord& g = LogGeometry;
    std::vector<Blow> blows;
    for (int i = g.SampleFirst; i > 0 && i <= g.SampleLast; ++i) {
        const LogSample& sample = LogBoring.Samples[i];
        if (!(TextNumber(sample.Blows) > -1))
            continue;
        Slots<Text, 10> values;
        const int n = SplitBlows(sample.Blows, values);
        const double top = i == g.SampleFirst ? g.SampleTopHeld : sample.Top;
        const double bottom = i == g.SampleLast ? g.SampleBottomHeld : sample.Bottom;
        for (int j = 1; j <= n; ++j) {
            const float middle = top + (j - 0.5) * (bottom - top) / n;
            if (middle >= LogPage.PageStartDepth && middle <= LogPage.PageEndDepth)
                blows.push_back({middle, values[j]});
        }
    }
    return blows;
}

void VLOG::drawblows()
try {
    turnedheading(0.1, HeadingWords[7]);
    narrowcolumn(0.2);
    for (const Blow& blow : blowsonpage()) {
        moveto(0.1, -(double(blow.Depth) - double(LogPage.PageStartDepth)));
        printtext(blow.Value);
    }
    endcolumn(0.2);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawlabno()
try {
    const LogGeometryRecord& g = LogGeometry;
    markorigin();
    setfontsize(8);
    textcenter();
    moveto(0.3, 0.115);
    printtext(HeadingWords[9]);
    narrowcolumn(0.6);
    for (int i = g.SampleFirst; i > 0 && i <= g.SampleLast; ++i) {
        const LogSample& sample = LogBoring.Samples[i];
        const float middle = (double(sample.Top) + double(sample.Bottom)) / 2;
        moveto(0.3, -(double(middle) - double(LogPage.PageStartDepth)));
        printtext(sample.LabNumber);
    }
    endcolumn(0.6);
} catch (...) {
    ReportFailure(__func__);
}
