// paramnumbers.cpp -- the columns that print the numbers of a parameter, of the samples or of the boring.
#include "canvas/metaugl.h"
#include "logrender/generalvalues.h"
#include "logrender/graph.h"
#include "logrender/vlog.h"
#include "session/failure.h"

// The small heading of a parameter's column, three lines; a first line too long for the column turns it upward, and
// then there is room for two. Pen: from the left edge on the baseline, which becomes the origin.
static void NumbersHeading(const LogParamSetup& setup, double w)
{
    markorigin();
    setfontsize(7);
    textcenter();
    moveright(w / 2);
    if (setup.Split[1].size() > 7) {
        setfontsize(8);
        textleft();
        moveup(0.05);
        settextangle(90);
        if (setup.Split[2].empty())
            printtext(setup.Split[1]);
        else {
            moveto(w / 3, 0.05);
            printtext(setup.Split[1]);
            moveto(2 * w / 3, 0.05);
            printtext(setup.Split[2]);
        }
        settextangle(0);
        movedown(0.05);
        return;
    }
    moveup(0.363);
    for (int line = 1; line <= 3; ++line) {
        printtext(setup.Split[line]);
        movedown(0.125);
    }
    moveup(0.012);
}

static void FullWidthLine(double depth, double w)
{
    moveto(0, VLOG::belowstart(depth));
    lineright(w);
}

// Sample parameter ParamNumber 1, its text as typed at the middle of each sample.
void VLOG::drawpar(float width)
try {
    const double w = width;
    const int n = LogGeometry.ParamNumber[1];
    const LogParamSetup& setup = LogBoring.SampleSetup[n];
    const bool lines = UpperCase(setup.Name).ends_with("/L");
    NumbersHeading(setup, w);
    narrowcolumn(w);
    for (int i = LogGeometry.SampleFirst; i > 0 && i <= LogGeometry.SampleLast; ++i) {
        const LogSample& sample = LogBoring.Samples[i];
        moveto(w / 2, samplemiddle(i));
        printtext(sample.Param[n]);
        if (lines) {
            FullWidthLine(sample.Top, w);
            FullWidthLine(sample.Bottom, w);
        }
    }
    endcolumn(w);
} catch (...) {
    ReportFailure(__func__);
}

// General parameter ParamNumber 1, its text as it stands at each depth.
void VLOG::drawgpar(float width)
try {
    const double w = width;
    const int n = LogGeometry.ParamNumber[1];
    NumbersHeading(LogBoring.GenSetup[n], w);
    narrowcolumn(w);
    GeneralValues values;
    findgeneralvalues(n, values);
    for (const GeneralValue& row : values.Rows) {
        moveto(w / 2, belowstart(row.Depth));
        printtext(row.Value);
    }
    endcolumn(w);
} catch (...) {
    ReportFailure(__func__);
}
