// desclegend_test.cpp -- the legend in the description heading. The band's line is at -240, its top at -780.
#include "canvas/metaugl.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/deviceconfig.h"

static void StartLegend()
{
    for (const char* name : {"F27", "F40", "F29"})
        for (const char* form : {".BMP", "_sc.BMP"})
            WriteScratch(Text(name) + form, "a pattern that is there");
    DeviceConfig.SystemFiles[FillFolder] = ScratchFolder();
    StartColumn();
    LegendInUse = 1;
    LegendBoxFill[1] = 1;
    LegendBoxFill[2] = 27;
    LegendBoxFill[3] = 40;
    LegendBoxFill[4] = 29;
}

TEST_CASE("the sample box panel has an X for the first box, patterns for the others, and no box for an empty key")
{
    StartLegend();
    HeadingWords[45] = " 1";
    HeadingWords[43] = "";
    VLOG::drawdesclegend();
    CHECK(Drawn() == Drawing{"line 0,-240 1200,-240", "text 60,-720 8pt W40", "line 60,-585 210,-645",
                             "line 60,-645 210,-585", "rectangle 60,-585 210,-645", "text 252,-615 7pt W41",
                             "polygon 60,-483 210,-483 210,-543 60,-543 F27", "rectangle 60,-483 210,-543",
                             "text 252,-513 7pt W42", "polygon 60,-279 210,-279 210,-339 60,-339 F29",
                             "rectangle 60,-279 210,-339", "text 252,-309 7pt W44"});
}

TEST_CASE("a first box with a pattern of its own is filled with it")
{
    StartLegend();
    HeadingWords[45] = "1";
    HeadingWords[42] = HeadingWords[43] = HeadingWords[44] = "";
    LegendBoxFill[1] = 40;
    VLOG::drawdesclegend();
    CHECK(Drawn(2) == Drawing{"polygon 60,-585 210,-585 210,-645 60,-645 F40", "rectangle 60,-585 210,-645",
                              "text 252,-615 7pt W41"});
}

TEST_CASE("the water level panel has a solid and an open triangle, and a diamond when it has words")
{
    StartLegend();
    HeadingWords[49] = " 1";
    HeadingWords[47] = "Static|Artesian";
    VLOG::drawdesclegend();
    CHECK(Drawn() == Drawing{"line 0,-240 1200,-240", "text 60,-720 8pt W46", "line 60,-585 156,-585",
                             "polygon 82,-630 134,-630 108,-585 black", "text 198,-585 7pt Static",
                             "line 60,-441 156,-441", "line 82,-486 134,-486", "line 134,-486 108,-441",
                             "line 108,-441 82,-486", "text 198,-441 7pt W48", "line 60,-297 156,-297",
                             "polygon 78,-327 108,-357 138,-327 108,-297 black", "text 198,-297 7pt Artesian"});
    StartLegend();
    HeadingWords[49] = " 1";
    HeadingWords[47] = "Static";
    VLOG::drawdesclegend();
    CHECK(Drawn().back() == "text 198,-441 7pt W48");
}

TEST_CASE("two panels stand side by side with a divider between them")
{
    StartLegend();
    HeadingWords[55] = HeadingWords[61] = " 1";
    HeadingWords[53] = "";
    VLOG::drawdesclegend();
    CHECK(Drawn() == Drawing{"line 0,-240 1200,-240", "text 60,-720 8pt W50", "text 60,-604 7pt W51",
                             "text 60,-506 7pt W52", "text 60,-407 7pt ", "text 60,-309 7pt W54",
                             "line 600,-240 600,-780", "text 660,-735 8pt W56", "text 660,-619 7pt W57",
                             "text 660,-521 7pt W58", "text 660,-422 7pt W59", "text 660,-324 7pt W60"});
}

TEST_CASE("a third panel overprints the second")
{
    StartLegend();
    HeadingWords[45] = HeadingWords[49] = HeadingWords[55] = " 1";
    VLOG::drawdesclegend();
    int titles = 0, dividers = 0;
    for (const Text& object : Drawn()) {
        titles += object == "text 660,-720 8pt W46" || object == "text 660,-720 8pt W50";
        dividers += object == "line 600,-240 600,-780";
    }
    CHECK(titles == 2);
    CHECK(dividers == 2);
}

TEST_CASE("a panel is on for the value 1 alone")
{
    StartLegend();
    HeadingWords[45] = " 2";
    HeadingWords[49] = "0";
    HeadingWords[55] = "";
    VLOG::drawdesclegend();
    CHECK(Drawn() == Drawing{"line 0,-240 1200,-240"});
}

TEST_CASE("after a legend the description column goes on at its own place")
{
    StartLegend();
    HeadingWords[45] = HeadingWords[55] = " 1";
    SetContacts({50});
    SetLines({"@1", "a"});
    VLOG::drawdes();
    CHECK(Drawn().back() == "text 30,48 8pt a");
    CHECK(EndsAtBaseline(2));
    CHECK(Messages.empty());
}
