// patternguide.cpp -- the Fill Pattern Guide: every user pattern with its number and name on one page.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

Slots<Text, MaxPatternNames> patternNames;

static const SharedRecord shared[] = {
    {"patternNames", Kind::Run, patternNames},
};

// Kept: the misspellings; offices know the patterns by these names.
static constexpr std::string_view names[MaxPatternNames] = {
    "GW, well graded gravels",
    "GP, poorly graded gravels",
    "GM, silty gravels",
    "GC, clayey gravels",
    "SW, well graded sands",
    "SP, poorly graded sands",
    "SM, silty sands",
    "SC, clayey sands",
    "ML, inorganic silts",
    "MH, elastic silts",
    "CL, inorganic clays",
    "CH, fat clays",
    "PT, peat or organic soils",
    "AR, artificial materials or fill",
    "LS, limestone",
    "LC, crystaline limestone",
    "DO, dolomite",
    "SH, shale",
    "CO, coal",
    "SS, sandstone",
    "MS, mudstone",
    "SL, siltstone",
    "CG, conglomerate",
    "BR, breccia",
    "MA, marble 1",
    "MB, marble 2",
    "GT, glacial till",
    "VL, volcanics",
    "GR, granitics",
    "ME, metamorphics",
    "QU, quartzite",
    "fine granitics",
    "porphyrilic plutoric rock",
    "shist",
    "folded shist",
    "matrix supported conglomerate",
    "conglomeralic sandstone",
    "fine sandstone",
    "silty sandstone",
    "graywacke",
    "grout",
    "caliche",
    "rock core",
    "roots, organic material",
    "silty clay",
    "sandy clay",
    "clayey silt",
    "sandy silt",
    "weathered shale",
    "dolomitic limestone",
    "calcitic dolomite",
    "shaley limestone",
    "weathered limestone",
    "sandy limestone",
    "clayey limestone",
    "cherty limestone",
    "bedded chert",
    "phosphatic shale",
    "chalk",
    "marl",
    "fossiliferous limestone",
    "dolitic limestone",
    "pelleiat limestone",
    "Intraclastic limestone",
    "micritic limestone",
};

static constexpr int columns = 3, entriesPerColumn = 22;

// One entry, from its upper left corner: number, box with the pattern, name. The pen goes down to the next one.
static void Entry(int pattern)
{
    incseg(1);
    printtext(PlainNumber(pattern));
    moveright(0.25);
    movedown(0.15);
    setfillfile(pattern + 20);
    // The blank pattern has its box alone.
    if (pattern > 0)
        rectfill(0.4, 0.3);
    rectby(0.4, 0.3);
    moveright(0.5);
    moveup(0.15);
    printtext(patternNames[pattern]);
    moveleft(0.75);
    movedown(0.4);
}

static void DrawGuide()
{
    for (int i = 1; i <= MaxPatternNames; ++i)
        patternNames[i] = names[i - 1];
    canvasstart("P");
    setfontname("Arial");
    setcolor(0);
    float x = DeviceConfig.MarginX + 0.4;
    float y = DeviceConfig.MarginY + 10.6;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    rectby(7.7, -10.2);
    // The headings.
    setfontsize(14);
    textcenter();
    moveto(3.85, -0.3);
    printtext("GEOLOGICAL FILL PATTERNS");
    movedown(0.25);
    setfontsize(10);
    printtext("Fill Pattern Number & USCS Code or Geologic Code");
    // The patterns.
    moveto(0.2, -1.1);
    markorigin();
    setfontsize(9);
    textleft();
    SetProgress(columns * entriesPerColumn);
    for (int column = 0; column < columns; ++column) {
        moveto(column * 2.65, 0);
        for (int entry = 0; entry < entriesPerColumn; ++entry)
            Entry(column * entriesPerColumn + entry);
    }
}

// The page has no source file. Its exports land in the project folder, named as if it had one; and it is the only page
// of its run, so that Previous and GoTo of the screen view know where they are.
void patternstart()
try {
    RunPages.pageFile = JoinPath(ProjectPath.empty() ? WorkingFolder : ProjectPath, "fillpatt.bor");
    RunPages.pageCount = 1;
    RunPages.pageIndex = RunPages.zeroBased != 0 ? 0 : 1;
    RunPages.printing = 0;
    Platform.ShowProgress(true);
    DrawGuide();
    Platform.ShowProgress(false);
    ShowOrPrint();
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
