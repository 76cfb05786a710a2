// projectlist_test.cpp -- the project list, its file and its editor.
#include "boring/projectlist.h"

#include "session/deviceconfig.h"
#include "testing.h"

static const std::string twoProjects =
    Lines({" 2 ", "Harbour,harbour.hdg,HARBOUR.BMP", "C:\\projects\\harbour", "Old mill", "/srv/mill"});

TEST_CASE("a project list is read with the heading file and the logo behind the name, or the name alone")
{
    WriteScratch("svproj.lst", twoProjects);
    LoadProjectList();
    CHECK(ProjectCount == 2);
    CHECK(ProjectList[1].ProjectId == "Harbour");
    CHECK(ProjectList[1].HeadingFile == "harbour.hdg");
    CHECK(ProjectList[1].LogoFile == "HARBOUR.BMP");
    CHECK(ProjectList[1].ProjectFolder == "C:\\projects\\harbour");
    CHECK(ProjectList[2].ProjectId == "Old mill");
    CHECK(ProjectList[2].HeadingFile == "");
    CHECK(ProjectList[2].LogoFile == "");
}

TEST_CASE("a project line with one comma has a heading file and no logo")
{
    WriteScratch("svproj.lst", Lines({" 1 ", "Harbour,harbour.hdg", "/srv"}));
    LoadProjectList();
    CHECK(ProjectList[1].HeadingFile == "harbour.hdg");
    CHECK(ProjectList[1].LogoFile == "");
}

TEST_CASE("a comma in the heading file's path shifts the rest, and the logo keeps all behind the second comma")
{
    WriteScratch("svproj.lst", Lines({" 1 ", "Harbour,/srv/a,b.hdg,LOGO.BMP,more", "/srv"}));
    LoadProjectList();
    CHECK(ProjectList[1].ProjectId == "Harbour");
    CHECK(ProjectList[1].HeadingFile == "/srv/a");
    CHECK(ProjectList[1].LogoFile == "b.hdg,LOGO.BMP,more");
}

TEST_CASE("a project list that does not exist, or that has no name, is an empty one")
{
    ProjectCount = 3;
    LoadProjectList();
    CHECK(ProjectCount == 0);
    ProjectCount = 3;
    DeviceConfig.SystemFiles[ProjectListFile] = "";
    LoadProjectList();
    CHECK(ProjectCount == 0);
    CHECK(Messages.empty());
}

TEST_CASE("a project list that ends early is failure 62; its rows before that stay, the missing ones are empty")
{
    ProjectList[2].ProjectId = "of the list before";
    WriteScratch("svproj.lst", Lines({" 2 ", "Harbour", "/srv"}));
    CHECK(FailureOf(LoadProjectList) == 62);
    CHECK(ProjectList[1].ProjectFolder == "/srv");
    CHECK(ProjectList[2].ProjectId == "");
}

TEST_CASE("a project list of more than 500 projects is failure 9 at the first that has no room")
{
    std::string list = "501\r\n";
    for (int i = 1; i <= 501; ++i)
        list += "P" + std::to_string(i) + "\r\n/srv\r\n";
    WriteScratch("svproj.lst", list);
    CHECK(FailureOf(LoadProjectList) == 9);
    CHECK(ProjectCount == 500);
    CHECK(ProjectList[500].ProjectId == "P500");
}

TEST_CASE("a project list is written as it is read, the older form with its two commas")
{
    WriteScratch("svproj.lst", twoProjects);
    LoadProjectList();
    SaveProjectList();
    CHECK(ReadScratch("svproj.lst") ==
          Lines({" 2 ", "Harbour,harbour.hdg,HARBOUR.BMP", "C:\\projects\\harbour", "Old mill,,", "/srv/mill"}));
}

TEST_CASE("with no project list file in the set-up a box tells so and nothing is written")
{
    DeviceConfig.SystemFiles[ProjectListFile] = "";
    ProjectCount = 1;
    SaveProjectList();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "The filename for Project File/Path is invalid.  Select Utilities:Graphics/System Set-Up.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == NoIcon);
    CHECK(std::filesystem::is_empty(ScratchFolder()));
}

TEST_CASE("a project list that cannot be written is reported under its own name")
{
    DeviceConfig.SystemFiles[ProjectListFile] = "nowhere/svproj.lst";
    SaveProjectList();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveProjectList.  Please contact Norvane");
}

TEST_CASE("the last project cannot be deleted: an empty grid stores nothing and leaves the window open")
{
    WriteScratch("svproj.lst", twoProjects);
    LoadProjectList();
    frmProjEdit::Load();
    frmProjEdit::SS.Clear();
    CHECK_FALSE(frmProjEdit::Command1());
    CHECK(ProjectCount == 2);
    CHECK(ReadScratch("svproj.lst") == twoProjects);
    CHECK(Messages.empty());
}

TEST_CASE("the project list's editor shows the list, and takes it back in the order of its rows")
{
    ProjectCount = 1;
    ProjectList[1] = {"Harbour", ScratchFolder(), "harbour.hdg", "HARBOUR.BMP"};
    frmProjEdit::Load();
    CHECK(frmProjEdit::SS.rows == 500);
    CHECK(frmProjEdit::SS.headings == std::vector<Text>{"", "Project ID", "Project Path", "Heading File", "Logo File"});
    CHECK(frmProjEdit::SS.Cell(1, 1) == "Harbour");
    CHECK(frmProjEdit::SS.Cell(1, 2) == ScratchFolder());
    CHECK(frmProjEdit::SS.Cell(1, 3) == "harbour.hdg");
    CHECK(frmProjEdit::SS.Cell(1, 4) == "HARBOUR.BMP");
    frmProjEdit::SS.Cell(2, 1) = "A mill";
    frmProjEdit::SS.Cell(2, 2) = ScratchFolder();
    CHECK(frmProjEdit::Command1());
    CHECK(ProjectCount == 2);
    CHECK(ReadScratch("svproj.lst") ==
          Lines({" 2 ", "Harbour,harbour.hdg,HARBOUR.BMP", ScratchFolder(), "A mill,,", ScratchFolder()}));
    CHECK(Messages.empty());
}

TEST_CASE("a project whose folder cannot be written is warned of and kept, a blank row between projects too")
{
    frmProjEdit::Load();
    frmProjEdit::SS.Cell(1, 1) = "Gone";
    frmProjEdit::SS.Cell(1, 2) = "/nowhere";
    frmProjEdit::SS.Cell(3, 1) = "Here";
    frmProjEdit::SS.Cell(3, 2) = ScratchFolder();
    CHECK(frmProjEdit::Command1());
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Warning:  /nowhere path does not exist.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == Exclamation);
    CHECK(Messages[1].words == "Warning:   path does not exist.");
    CHECK(ProjectCount == 3);
    CHECK(ReadScratch("svproj.lst") == Lines({" 3 ", "Gone,,", "/nowhere", ",,", "", "Here,,", ScratchFolder()}));
}

TEST_CASE("a list of one project is a list, and the last of its folders is looked at as the others are")
{
    frmProjEdit::Load();
    frmProjEdit::SS.Cell(1, 1) = "Gone";
    frmProjEdit::SS.Cell(1, 2) = "/nowhere";
    CHECK(frmProjEdit::Command1());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Warning:  /nowhere path does not exist.");
    CHECK(ReadScratch("svproj.lst") == Lines({" 1 ", "Gone,,", "/nowhere"}));
}

TEST_CASE("the project list's editor opens on the list alone, in its first cell")
{
    ProjectCount = 1;
    ProjectList[1] = {"Harbour", ScratchFolder(), "", ""};
    frmProjEdit::Load();
    frmProjEdit::SS.Cell(7, 1) = "never stored";
    frmProjEdit::SS.row = 7;
    frmProjEdit::SS.column = 2;
    frmProjEdit::Load();
    CHECK(frmProjEdit::SS.DataRowCount() == 1);
    CHECK(frmProjEdit::SS.row == 1);
    CHECK(frmProjEdit::SS.column == 1);
    CHECK(frmProjEdit::SS.done.empty());
}
