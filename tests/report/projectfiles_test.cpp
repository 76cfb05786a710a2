// projectfiles_test.cpp -- where a page looks for the layout and the maps that its boring names.
#include "report/projectfiles.h"

#include "session/deviceconfig.h"
#include "session/session.h"
#include "testing.h"

static void MakeFolders()
{
    for (const char* folder : {"home", "layouts", "project", "site"})
        std::filesystem::create_directories(Scratch(folder));
    WorkingFolder = Scratch("home");
    ProjectPath = Scratch("project");
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("home");
}

static Text Layout()
{
    return LayoutPath("A.LAY", Scratch("site/B-1.BOR"));
}

TEST_CASE("a layout is the project's own, else the one beside the boring, else that of the layout folder")
{
    MakeFolders();
    CHECK(Layout() == Scratch("home/A.LAY"));
    WriteScratch("home/A.LAY", "");
    CHECK(Layout() == Scratch("home/A.LAY"));
    WriteScratch("site/a.lay", "");
    CHECK(Layout() == Scratch("site/A.LAY"));
    WriteScratch("project/A.lay", "");
    CHECK(Layout() == Scratch("project/A.LAY"));
}

TEST_CASE("where an office has chosen a layout folder of its own, that one alone holds")
{
    MakeFolders();
    WriteScratch("project/A.LAY", "");
    WriteScratch("site/A.LAY", "");
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts");
    CHECK(Layout() == Scratch("layouts/A.LAY"));
}

TEST_CASE("a map is the project's, else the one beside the boring")
{
    MakeFolders();
    const Text boring = Scratch("site/B-1.BOR");
    CHECK(MapPath("SITE.BMP", boring) == Scratch("project/SITE.BMP"));
    WriteScratch("site/site.bmp", "");
    CHECK(MapPath("SITE.BMP", boring) == Scratch("site/SITE.BMP"));
    WriteScratch("project/site.bmp", "");
    CHECK(MapPath("SITE.BMP", boring) == Scratch("project/SITE.BMP"));
}

TEST_CASE("a copy that is drawn elsewhere finds what lies beside the boring itself")
{
    MakeFolders();
    WriteScratch("site/A.LAY", "");
    WriteScratch("site/SITE.BMP", "");
    SourceFolder = Scratch("site");
    CHECK(LayoutPath("A.LAY", Scratch("home/preview.BOR")) == Scratch("site/A.LAY"));
    CHECK(MapPath("SITE.BMP", Scratch("home/preview.BOR")) == Scratch("site/SITE.BMP"));
}
