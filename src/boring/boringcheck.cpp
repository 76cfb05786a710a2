// boringcheck.cpp -- the warnings about the scale ahead of every save.
#include "boring/boringboxes.h"
#include "boring/boringfile.h"
#include "session/failure.h"
#include "session/platform.h"

#include <cmath>

static float ScaleValue(int row)
{
    return float(TextNumber(frmBorinput::SSScale.Cell(row, 1)));
}

// In single precision, so that 0.6 / 0.2 is whole as the user sees it.
static float Quotient(float a, float b)
{
    const float quotient = float(Over(double(a), double(b)));
    if (!std::isfinite(quotient))
        throw RunTimeError{Overflow};
    return quotient;
}

static bool Whole(float value)
{
    return value == std::floor(value);
}

static void Warn(const char* words)
{
    MsgBox(words, OkOnly, Exclamation);
}

void boringcheck()
try {
    const float EndDepth = ScaleValue(1), Inc = ScaleValue(2), PageBrk = ScaleValue(3);
    const float SurfElev = ScaleValue(5), StartElev = ScaleValue(6);
    const int contacts = frmBorinput::SSLith.DataRowCount();
    const float LastContact = contacts > 0 ? float(TextNumber(frmBorinput::SSLith.Cell(contacts, 1))) : 0.0f;
    const bool automatic = EndDepth == 0 && Inc == 0 && PageBrk == 0; // the renderer chooses the scale
    if (!automatic && EndDepth < LastContact)
        Warn("The 'Scale: End Depth' value must be greater or equal to the depth of the last contact.");
    if (Inc != 0) {
        if (!Whole(Quotient(EndDepth, Inc)))
            Warn("The 'Scale: Increment' value must divide evenly into the 'Scale: End Depth' value.");
    } else if (!automatic)
        Warn("A value is needed for the 'Scale: Increment.'");
    if (!automatic && PageBrk >= EndDepth)
        Warn("The 'Scale: Page Brk Depth' value must be less than the 'Scale: End Depth' value.");
    if (PageBrk != 0 && !Whole(Quotient(EndDepth, PageBrk)))
        Warn("The 'Scale: Page Brk Depth' value must divide evenly into the 'Scale: End Depth' value.");
    if (StartElev > SurfElev)
        Warn("The 'Scale: Start Elev.' value must be less than or equal to the 'Scale: Surface Elev.' value.");
    if (!Whole(StartElev))
        Warn("The 'Scale: Start Elev.' value must be an integer.");
    // The last contact has to lie on the last page, which begins at the depth T.
    float T = LastContact;
    if (PageBrk != 0) {
        const float pagesBefore = Quotient(EndDepth, PageBrk) - 1.0f;
        T = PageBrk * pagesBefore;
    }
    if (LastContact == 0 || LastContact < T)
        Warn(
            "The last contact depth, in the lithology section, determines the depth of the bottom line of each element "
            "listed under report parts.  Therefore, you should enter a value for this depth as deep as any other "
            "element on the diagram even if you choose not to include USCS or descriptions on the diagram.  If this "
            "value is deeper than the boring, you should enter ''F0'' as the USCS for this last contact.  You can note "
            "the depth of the end of the boring in the description text.");
} catch (...) {
    ReportFailure(__func__);
}
