// lithology.cpp -- the soil classification as patterns or as letters, and the formations beside it.
#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "session/failure.h"

#include <cmath>

namespace
{
// The pattern text of a contact: "GW", "SP,sand", "SM/ML", "F12/CL,fill".
struct PatternText {
    bool Two = false;
    int16_t First = 0, Second = 0; // file numbers
    Text Label;                    // empty: none
};
} // namespace

// A half of a double code that is a pattern number, and so nothing to read: "F12", but not the letters "FL".
static bool NumberCode(std::string_view half)
{
    return half.starts_with("F") && half != "FL";
}

// T in upper case, split at its first "/", else at its first "-".
static PatternText SplitPattern(const Text& t)
{
    PatternText pattern;
    const char separator = Holds(t, '/') ? '/' : '-';
    const std::string_view last = Holds(t, separator) ? Behind(t, separator) : std::string_view(t);
    const std::string_view code = Before(last, ',');
    const bool labelled = Holds(last, ',');
    if (Holds(t, separator)) {
        const std::string_view front = Before(t, separator);
        pattern.Two = true;
        pattern.First = getpch(Text(front));
        pattern.Second = getpch(Text(code));
        if (labelled)
            pattern.Label = Behind(last, ',');
        else if (!NumberCode(front) && !NumberCode(code))
            pattern.Label = t;
        return pattern;
    }
    pattern.First = getpch(Text(code));
    pattern.Label = labelled ? Text(Behind(last, ',')) : t;
    if (pattern.Label.starts_with("F"))
        pattern.Label.clear();
    return pattern;
}

// One rectangle of a unit, upward from the contact; the pen is on it.
static void FillUnit(int16_t pattern, double width, double height, const Text& color)
{
    setfillfile(pattern);
    if (IsBlank(color))
        rectfill(width, height);
    else
        rectfillcolored(width, height, getcolor(Text(Trim(color)), false));
    if (std::fabs(height) > 0.01)
        bringtofront(); // so that it ends above what the unit beside it drew
}

// A gradational contact: a wave across the column.
static void Wave(double w, float depth)
{
    moveto(0, -depth);
    drawarc(w / 2, 1);
    moveright(w / 2);
    drawarc(w / 2, -1);
    moveleft(w / 2);
}

// The waves of the units that run into one another, over the fills on both sides: each is seen whole.
static void Waves(double w)
{
    for (int i = LogGeometry.ContactFirst; i > 0 && i < LogGeometry.ContactLast; ++i) {
        const Text type = UpperCase(LogBoring.Contacts[i].LineType);
        if (type == "D" || type == "N")
            Wave(w, LogBoring.Contacts[i].Depth - double(LogPage.PageStartDepth));
    }
}

// The column of codes (letters) or of patterns (GraphicFlag). Pen: left on the depth scale; the dispatcher puts the y
// scale back and steps to the right edge.
void VLOG::drawuscs()
try {
    LogGeometryRecord& g = LogGeometry;
    if (g.ColumnWidth == 0)
        g.ColumnWidth = 0.25;
    const double w = g.ColumnWidth;
    turnedheading(w / 2, HeadingWords[g.GraphicFlag ? 10 : 11]);
    narrowcolumn(w, !g.GraphicFlag);
    for (int i = g.ContactFirst; i > 0 && i <= g.ContactLast; ++i) {
        const LogContact& contact = LogBoring.Contacts[i];
        const double start = LogPage.PageStartDepth;
        const float b = contact.Depth - start;
        const float t = i == g.ContactFirst ? 0.0 : LogBoring.Contacts[i - 1].Depth - start;
        const float m = (double(t) + double(b)) / 2;
        const double height = double(b) - double(t);
        if (!g.GraphicFlag) {
            moveto(0, -b);
            lineright(w);
        }
        const Text code = UpperCase(contact.Pattern);
        const PatternText pattern = SplitPattern(code);
        if (!g.GraphicFlag) {
            if (m > 0 && !pattern.Label.empty()) {
                moveto(w / 2, -m);
                printtext(pattern.Label);
            }
            continue;
        }
        if (!code.empty()) {
            moveto(0, -b);
            if (!pattern.Two)
                FillUnit(pattern.First, w, height, contact.Color);
            else {
                // The halves stand side by side from where the first one left the pen: on whole units.
                FillUnit(pattern.First, w / 2, height, contact.Color);
                moveright(w / 2);
                FillUnit(pattern.Second, w / 2, height, contact.Color);
            }
        }
        incseg(2);
    }
    if (g.GraphicFlag)
        Waves(w);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawformation()
try {
    markorigin();
    lineright(0.25);
    lineup(1.2);
    setfontsize(8);
    textleft();
    settextangle(90);
    moveto(0.123, 0.05);
    printtext(HeadingWords[26]);
    settextangle(0);
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    setfontsize(7);
    textcenter();
    rectby(0.25, -LogGeometry.BottomSpan);
    settextangle(90);
    const LogGeometryRecord& g = LogGeometry;
    for (int i = g.FormationFirst; i > 0 && i <= g.FormationLast; ++i) {
        const LogFormation& formation = LogBoring.Formations[i];
        const double start = LogPage.PageStartDepth;
        const float b = formation.Depth - start;
        const float t = i == g.FormationFirst ? 0.0 : LogBoring.Formations[i - 1].Depth - start;
        moveto(0, -b);
        lineright(0.25);
        moveto(0.12, -(double(t) + double(b)) / 2);
        const Text name(Before(formation.Description, ','));
        const float tall = (double(b) - double(t)) / g.DepthPerInch;
        printtext(name.size() <= 3 || tall >= 0.2f ? name : Text(Behind(formation.Description, ',')));
    }
    settextangle(0);
    endcolumn(0.25);
} catch (...) {
    ReportFailure(__func__);
}
