// projectconfig_test.cpp -- the settings of a project, and that nothing else in their file changes.
#include "session/projectconfig.h"

#include "session/session.h"
#include "testing.h"

#include <filesystem>

static void ProjectFolder()
{
    std::filesystem::create_directory(Scratch("site"));
    ProjectPath = Scratch("site");
}

TEST_CASE("a project without project.cfg has the fallback of every setting")
{
    ProjectFolder();
    CHECK(ProjectSetting("style", "plain") == "plain");
    CHECK(ProjectSetting("style") == "");
    CHECK(ProjectConfigFile() == "");
}

TEST_CASE("a setting is found in any case of its key, without the blanks around it, to the end of its line")
{
    ProjectFolder();
    WriteScratch("site/project.cfg", "# style = wrong\r\n\t Style\t=  clear \t\r\nprefix=A=B # 1\r\nempty =\r\n");
    CHECK(ProjectSetting("style", "plain") == "clear");
    CHECK(ProjectSetting("PREFIX") == "A=B # 1");
    CHECK(ProjectSetting("empty", "fallback") == "");
    CHECK(ProjectSetting("# style", "none") == "none");
}

TEST_CASE("of two lines with one key the last one counts, for reading and for writing")
{
    ProjectFolder();
    WriteScratch("site/project.cfg", "paper = A4\r\npaper = A3\r\n");
    CHECK(ProjectSetting("paper") == "A3");
    CHECK(SetProjectSetting("paper", "Letter"));
    CHECK(ReadScratch("site/project.cfg") == "paper = A4\r\npaper = Letter\r\n");
    CHECK(ProjectSetting("paper") == "Letter");
}

TEST_CASE("lines that are no settings are ignored and kept, with every line end as it was")
{
    ProjectFolder();
    const std::string before =
        "# ours\nno setting\r\n = nothing\r  later.key =  7  \n\n; scale = 3\r\n\xE9t\xE9 = \xB6\n";
    WriteScratch("site/project.cfg", before);
    CHECK(ProjectSetting("no setting", "none") == "none");
    CHECK(ProjectSetting("\xC9T\xC9") == "\xB6");
    CHECK(SetProjectSetting("later.key", "8"));
    CHECK(SetProjectSetting("scale", "100"));
    CHECK(ReadScratch("site/project.cfg") == "# ours\nno setting\r\n = nothing\r  later.key = 8\n\n; scale = 3\r\n"
                                             "\xE9t\xE9 = \xB6\nscale = 100\r\n");
}

TEST_CASE("a first setting makes the file in the project folder, its lines ended by CR LF")
{
    ProjectFolder();
    CHECK(SetProjectSetting("style", "clear"));
    CHECK(SetProjectSetting("paper", "A4"));
    CHECK(ReadScratch("site/project.cfg") == "style = clear\r\npaper = A4\r\n");
    CHECK(SetProjectSetting("style", ""));
    CHECK(ReadScratch("site/project.cfg") == "style =\r\npaper = A4\r\n");
    CHECK(ProjectSetting("style", "plain") == "");
    CHECK_FALSE(std::filesystem::exists(Scratch("project.cfg")));
    CHECK(ProjectConfigFile() == Scratch("site/project.cfg"));
}

TEST_CASE("a new setting goes behind a last line without a line end, and in front of the mark that ends a text file")
{
    ProjectFolder();
    WriteScratch("site/project.cfg", "paper = A4");
    CHECK(SetProjectSetting("style", "clear"));
    CHECK(ReadScratch("site/project.cfg") == "paper = A4\r\nstyle = clear\r\n");
    WriteScratch("site/project.cfg", "paper = A4\r\n\x1Astyle = hidden\r\n");
    CHECK(ProjectSetting("style", "none") == "none");
    CHECK(SetProjectSetting("style", "clear"));
    CHECK(ReadScratch("site/project.cfg") == "paper = A4\r\nstyle = clear\r\n\x1Astyle = hidden\r\n");
    CHECK(ProjectSetting("style") == "clear");
}

TEST_CASE("a project without a file has the settings of the working folder's, and its own file once one is changed")
{
    ProjectFolder();
    WriteScratch("project.cfg", "# office\r\npaper = A4\r\nstyle = plain\r\n");
    CHECK(ProjectSetting("paper") == "A4");
    CHECK(SetProjectSetting("style", "clear"));
    CHECK(ReadScratch("project.cfg") == "# office\r\npaper = A4\r\nstyle = plain\r\n");
    CHECK(ReadScratch("site/project.cfg") == "# office\r\npaper = A4\r\nstyle = clear\r\n");
    CHECK(ProjectSetting("paper") == "A4");
    // From then on the project's own file alone counts.
    WriteScratch("site/project.cfg", "style = clear\r\n");
    CHECK(ProjectSetting("paper", "none") == "none");
}

TEST_CASE("the name of project.cfg is found in any case, and a change from outside is seen at once")
{
    ProjectFolder();
    WriteScratch("site/PROJECT.CFG", "style = clear\r\n");
    CHECK(ProjectSetting("style") == "clear");
    WriteScratch("site/PROJECT.CFG", "style = plain, at last\r\n");
    CHECK(ProjectSetting("style") == "plain, at last");
    CHECK(SetProjectSetting("style", "clear"));
    CHECK(ReadScratch("site/PROJECT.CFG") == "style = clear\r\n");
    CHECK_FALSE(std::filesystem::exists(Scratch("site/project.cfg")));
    std::filesystem::remove(Scratch("site/PROJECT.CFG"));
    CHECK(ProjectSetting("style", "none") == "none");
}

TEST_CASE("a project.cfg that cannot be written is told, and the settings stay as they were")
{
    ProjectPath = Scratch("nowhere");
    CHECK_FALSE(SetProjectSetting("style", "clear"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "The settings of the project cannot be saved (error 76): " + Scratch("nowhere/project.cfg"));
    CHECK(Messages[0].icon == Exclamation);
    CHECK(ProjectSetting("style", "none") == "none");
}

TEST_CASE("a value stays in its line, and one that is there already writes nothing")
{
    ProjectFolder();
    CHECK(SetProjectSetting("title", "  two\r\nlines\x1A "));
    CHECK(ReadScratch("site/project.cfg") == "title = two  lines\r\n");
    const auto written = std::filesystem::last_write_time(Scratch("site/project.cfg"));
    CHECK(SetProjectSetting("title", "two  lines"));
    CHECK(std::filesystem::last_write_time(Scratch("site/project.cfg")) == written);
}

TEST_CASE("a list is parted at its commas, and joined again")
{
    CHECK(SettingList(" a,b ,, c d,").size() == 3);
    CHECK(ListSetting(SettingList(" a,b ,, c d,")) == "a, b, c d");
    CHECK(SettingList("").empty());
    CHECK(ListSetting({}) == "");
}
