// manualdescriptions.cpp -- the description column whose boxes the user moves by hand: the first line is "MANUAL", and
// each contact tells by how many lines it stands lower on the text side.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "logrender/vlog.h"

#include <cmath>

namespace
{
float DepthOfContact(int i)
{
    return i > 0 ? LogBoring.Contacts[i].Depth : 0;
}

// An "@" line: whether the text of its unit prints, which is on the page where the unit begins. The pen goes to the
// text's first line. Kept: that is below the unit's true top, also when the contact there is displaced.
bool StartUnit(const Text& line)
{
    const double number = TextNumber(line.substr(1));
    if (!VLOG::contactonpage(number))
        return false;
    const int n = RoundInt16(number);
    const bool firstOnPage = n == LogGeometry.ContactFirst;
    if (firstOnPage && DepthOfContact(n - 1) < LogPage.PageStartDepth)
        return false;
    VLOG::movetodepth(firstOnPage ? LogPage.PageStartDepth : DepthOfContact(n - 1));
    moveright(VLOG::TextIndent);
    movedown(0.08);
    return true;
}

// Kept: a line type "N" is drawn like any other here.
void DrawContact(const LogContact& contact)
{
    const float h = LogGeometry.ColumnWidth;
    setlinestyle(UpperCase(contact.LineType) == "D" ? 2 : 1);
    VLOG::movetodepth(contact.Depth);
    if (contact.Offset == 0 || contact.Depth == LogPage.PageEndDepth) {
        lineright(2 * h);
        return;
    }
    const double lower = contact.Offset * VLOG::LinePitch;
    lineby(0.05, -lower);
    lineright(2 * h - 0.1);
    lineby(0.05, lower);
}
} // namespace

// The description column of hand-placed boxes; ColumnWidth is half its width. The contact lines come after all text.
void VLOG::drawdesold()
try {
    descriptionbox(false);
    setscaley(1);
    bool print = false;
    for (int i = 1; i <= LogBoring.DesCount; ++i) {
        const Text& line = LogBoring.Des[i];
        if (line.starts_with('@')) {
            print = StartUnit(line);
        } else if (line.starts_with('-')) {
            print = depthplaced(line);
        } else if (line.starts_with('#')) {
            setfontsize(TextNumber(line.substr(1)));
        } else if (print) {
            printtext(line);
            movedown(LinePitch);
        }
    }
    if (LogGeometry.ContactFirst > 0)
        for (int i = LogGeometry.ContactFirst; i <= LogGeometry.ContactLast; ++i)
            DrawContact(LogBoring.Contacts[i]);
    enddescriptions();
} catch (...) {
    ReportFailure(__func__);
}
