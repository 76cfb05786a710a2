// opensave_test.cpp -- the file chooser without its window, and the list of layouts.
#include "boring/opensave.h"

#include "boring/boringboxes.h"
#include "boring/projectlist.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

#include <sys/stat.h>
#include <unistd.h>

using frmOpenSave::Dialog;

static void Open(int mode)
{
    DialogMode = int16_t(mode);
    frmOpenSave::Load();
}

static Text Choose(const Text& name)
{
    Dialog.fileText = name;
    frmOpenSave::Command1();
    return DialogResult;
}

TEST_CASE("each mode of the chooser has its title, its pattern, its folder and its height")
{
    std::filesystem::create_directories(Scratch("project"));
    std::filesystem::create_directories(Scratch("profiles"));
    ProjectPath = Scratch("project");
    DeviceConfig.SystemFiles[ProfileFolder] = Scratch("profiles");
    const struct {
        const char *title, *pattern, *folder;
    } told[] = {{"Open Boring Diagram File", "*.BOR", "project"},
                {"Save Boring Diagram File", "*.BOR", "project"},
                {"Open Cross Section File", "*.CRO", "project"},
                {"Save Cross Section File", "*.CRO", "project"},
                {"Open Fence Diagram File", "*.FEN", "project"},
                {"Save Fence Diagram File", "*.FEN", "project"},
                {"Open Soil Analysis File", "*.SOI", "project"},
                {"Save Soil Analysis File", "*.SOI", "project"},
                {"Open Heading File", "*.HDG", ""},
                {"Save Heading File", "*.HDG", ""},
                {"Import Description Text", "*.TXT", "project"},
                {"Open Layout File", "*.LAY", ""},
                {"Save Layout File", "*.LAY", ""},
                {"Open Font/Text Profile", "*.PRF", "profiles"},
                {"Save Font/Text Profile", "*.PRF", "profiles"},
                {"Export GIS File", "*.TXT", "project"},
                {"Open GIS File", "*.GIS", "project"},
                {"Save GIS File", "*.GIS", "project"},
                {"Select BOR Merge File", "*.BOR", "project"},
                {"Open GTGS Conversion File", "*.GCV", "profiles"},
                {"Save GTGS Conversion File", "*.GCV", "profiles"}};
    int mode = 0;
    for (const auto& one : told) {
        Open(++mode);
        CHECK(Dialog.Title == one.title);
        CHECK(Dialog.Pattern == one.pattern);
        CHECK(Dialog.Dir1 == (*one.folder ? Scratch(one.folder) : ScratchFolder()));
        CHECK(Dialog.Projects == (Text(one.folder) == "project"));
        CHECK(Dialog.Version == (mode == 1 ? 2 : -1));
    }
    CHECK(mode == 21);
}

TEST_CASE("the chooser lists the files that fit its pattern, by name and whatever the case of their letters")
{
    for (const char* name : {"b.bor", "A.BOR", "c.BOR.txt", "d.CRO"})
        WriteScratch(name, "");
    Open(1);
    CHECK(Dialog.File1 == std::vector<Text>{"A.BOR", "b.bor"});
    std::filesystem::create_directories(Scratch("sub"));
    WriteScratch("sub/e.Bor", "");
    frmOpenSave::ChangeFolder(Scratch("sub"));
    CHECK(Dialog.Dir1 == Scratch("sub"));
    CHECK(Dialog.File1 == std::vector<Text>{"e.Bor"});
}

TEST_CASE("a start folder that is not there is the working folder instead")
{
    ProjectPath = Scratch("gone");
    Open(1);
    CHECK(Dialog.Dir1 == ScratchFolder());
}

TEST_CASE("OK joins the folder shown and the name typed, and hands over the version")
{
    Open(1);
    CHECK(Choose("x.bor") == Scratch("x.bor"));
    CHECK(DialogMode == 2);
    Open(2);
    CHECK(Choose("x.bor") == Scratch("x.bor"));
    CHECK(DialogMode == -1);
}

TEST_CASE("a whole path in the name box ignores the folder shown")
{
    Open(1);
    CHECK(Choose("C:\\x.bor") == "C:\\x.bor");
    CHECK(Choose("\\\\server\\x.bor") == "\\\\server\\x.bor");
    CHECK(Choose("C:x.bor") == "C:x.bor");
    CHECK(Choose("/srv/x.bor") == "/srv/x.bor");
}

TEST_CASE("a folder alone in the name box names no file")
{
    Open(1);
    CHECK(Choose("/srv/") == "");
    CHECK(Choose("C:\\logs\\") == "");
}

TEST_CASE("OK with nothing typed is an empty answer, with the version all the same")
{
    Open(1);
    DialogResult = "of the time before";
    CHECK(Choose("") == "");
    CHECK(DialogMode == 2);
}

TEST_CASE("the separator is left out at the root of the diskette drive alone")
{
    Open(2);
    Dialog.Dir1 = "a:\\";
    CHECK(Choose("x.bor") == "a:\\x.bor");
    Dialog.Dir1 = "a:\\logs";
    CHECK(Choose("x.bor") == "a:\\logsx.bor");
    Dialog.Dir1 = "/";
    CHECK(Choose("x.bor") == "//x.bor");
}

TEST_CASE("Cancel leaves no answer, and the mode as it was")
{
    Open(1);
    Dialog.fileText = "x.bor";
    frmOpenSave::Command2();
    CHECK(DialogResult == "");
    CHECK(DialogMode == 1);
}

TEST_CASE("the chooser opens with the answer of the time before cleared")
{
    DialogResult = "/srv/old.bor";
    Open(2);
    CHECK(DialogResult == "");
    CHECK(Dialog.fileText == "");
}

TEST_CASE("another version shows its own files, and adds no ending to a name without one")
{
    for (const char* name : {"a.SV3", "b.sv4", "c.BOR"})
        WriteScratch(name, "");
    Open(1);
    frmOpenSave::ChangeVersion(0);
    CHECK(Dialog.Pattern == "*.SV3");
    CHECK(Dialog.File1 == std::vector<Text>{"a.SV3"});
    CHECK(Choose("old") == Scratch("old"));
    CHECK(DialogMode == 0);
    Open(1);
    frmOpenSave::ChangeVersion(1);
    CHECK(Dialog.Pattern == "*.SV4");
    CHECK(Dialog.File1 == std::vector<Text>{"b.sv4"});
    CHECK(Choose("b.sv4") == Scratch("b.sv4"));
    CHECK(DialogMode == 1);
    frmOpenSave::ChangeVersion(2);
    CHECK(Dialog.Pattern == "*.BOR");
    CHECK(Dialog.File1 == std::vector<Text>{"c.BOR"});
}

// ---- Projects

static void OneProject(const Text& folder, const Text& heading = "", const Text& logo = "")
{
    ProjectCount = 1;
    ProjectList[1] = {"Harbour", folder, heading, logo};
    Open(1);
}

TEST_CASE("the chooser shows the projects by their names and folders")
{
    OneProject("/srv/harbour", "harbour.hdg", "HARBOUR.BMP");
    CHECK(frmOpenSave::SS.headings == std::vector<Text>{"", "Project ID", "Project Path"});
    CHECK(frmOpenSave::SS.Cell(1, 1) == "Harbour");
    CHECK(frmOpenSave::SS.Cell(1, 2) == "/srv/harbour");
    CHECK(frmOpenSave::SS.DataRowCount() == 1);
}

TEST_CASE("a project that is chosen sets the heading file, line 5 of logo.txt, the project folder and four titles")
{
    std::filesystem::create_directories(Scratch("harbour"));
    WriteScratch("harbour/H-1.BOR", "");
    WriteScratch("logo.txt", Lines({"one", "two", "three", "1", "LOGO.BMP", "300"}));
    OneProject(Scratch("harbour"), "harbour.hdg", "HARBOUR.BMP");
    frmOpenSave::SelectProject(1);
    CHECK(Messages.empty());
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "harbour.hdg");
    CHECK(ReadScratch("logo.txt") == Lines({"one", "two", "three", "1", "HARBOUR.BMP", "300"}));
    CHECK(Dialog.Dir1 == Scratch("harbour"));
    CHECK(Dialog.File1 == std::vector<Text>{"H-1.BOR"});
    CHECK(ProjectPath == Scratch("harbour"));
    CHECK(frmBorinput::Title == Scratch("harbour") + " - VeskLog - Boring Log Diagram");
    CHECK(frmCross::Title == Scratch("harbour") + " - VeskCross - Cross Section Diagram");
    CHECK(frmFence::Title == Scratch("harbour") + " - VeskFence - Fence Diagram");
    CHECK(frmSoil::Title == Scratch("harbour") + " - VeskSoil - Soil Analysis Table");
    LineReader device("device.cfg");
    CHECK(device.Line() == Scratch("harbour"));
    device.Skip(7);
    CHECK(device.Line() == "harbour.hdg");
}

TEST_CASE("a project without heading file and logo leaves both as they are")
{
    WriteScratch("logo.txt", Lines({"one"}));
    OneProject(ScratchFolder());
    frmOpenSave::SelectProject(1);
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "us.hdg");
    CHECK(ReadScratch("logo.txt") == Lines({"one"}));
    CHECK(ProjectPath == ScratchFolder());
}

TEST_CASE("the project folder is as the chooser shows it: absolute, with no closing separator")
{
    std::filesystem::create_directories(Scratch("Harbour"));
    OneProject("harbour/");
    frmOpenSave::SelectProject(1);
    CHECK(ProjectPath == Scratch("Harbour"));
}

TEST_CASE("a project folder that cannot be written is told as one that does not exist; the heading file has changed")
{
    WriteScratch("logo.txt", Lines({"one"}));
    OneProject("/nowhere", "harbour.hdg");
    frmOpenSave::SelectProject(1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Warning:  /nowhere path does not exist.");
    CHECK(Messages[0].icon == Exclamation);
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(ProjectPath == ScratchFolder());
    CHECK(Dialog.Dir1 == ScratchFolder());
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "harbour.hdg");
    CHECK(frmBorinput::Title == "");
}

TEST_CASE("a project folder on a read-only medium is told as one that does not exist")
{
    // The system's own folder of processes: there, and nothing can be written to it, whoever asks.
    OneProject("/proc");
    frmOpenSave::SelectProject(1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Warning:  /proc path does not exist.");
    CHECK(ProjectPath == ScratchFolder());
}

TEST_CASE("a short logo.txt grows to six lines when a project brings its logo")
{
    WriteScratch("logo.txt", Lines({"one", "two"}));
    OneProject(ScratchFolder(), "", "HARBOUR.BMP");
    frmOpenSave::SelectProject(1);
    CHECK(ReadScratch("logo.txt") == Lines({"one", "two", "", "", "HARBOUR.BMP", ""}));
}

TEST_CASE("a missing logo.txt is reported in the chooser's own words, and the project folder stays")
{
    std::filesystem::create_directories(Scratch("harbour"));
    OneProject(Scratch("harbour"), "", "HARBOUR.BMP");
    frmOpenSave::SelectProject(1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in Open/Save.  Please contact Norvane");
    CHECK(Messages[0].icon == NoIcon);
    CHECK(ProjectPath == ScratchFolder());
}

TEST_CASE("a row behind the last project is one without a folder")
{
    OneProject(ScratchFolder());
    frmOpenSave::SelectProject(2);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Warning:   path does not exist.");
}

TEST_CASE("after the project list was edited its grid shows the new projects and none of the old ones")
{
    OneProject("/srv/one");
    ProjectCount = 3;
    ProjectList[2] = {"Two", "/srv/two", "", ""};
    ProjectList[3] = {"Three", "/srv/three", "", ""};
    Open(1);
    CHECK(frmOpenSave::SS.DataRowCount() == 3);
    Platform.ShowProjEdit = [] {
        ProjectList[1].ProjectId = "Quay";
        ProjectCount = 2;
    };
    frmOpenSave::Command4();
    CHECK(frmOpenSave::SS.DataRowCount() == 2);
    CHECK(frmOpenSave::SS.Cell(1, 1) == "Quay");
    CHECK(frmOpenSave::SS.Cell(2, 1) == "Two");
}

// ---- The list of layouts

TEST_CASE("the layouts are listed by bare names from the layout folder, by name in any case, and the one typed stays")
{
    std::filesystem::create_directories(Scratch("layouts"));
    for (const char* name : {"layouts/well.lay", "layouts/Basic.LAY", "layouts/other.txt", "here.lay"})
        WriteScratch(name, "");
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts");
    frmBorinput::cmbLayFile = "typed.lay";
    frmBorinput::LayFiles = {"old.lay"};
    getfilelist(1);
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"Basic.LAY", "well.lay"});
    CHECK(frmBorinput::cmbLayFile == "typed.lay");
    CHECK(FileChanged == 0);
    CHECK(frmOpenSave::HiddenFiles.empty());
}

TEST_CASE("a layout folder that cannot be written gives the layouts of the working folder")
{
    WriteScratch("here.lay", "");
    DeviceConfig.SystemFiles[LayoutFolder] = "/nowhere";
    getfilelist(1);
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"here.lay"});
}

TEST_CASE("without a project folder the list of layouts stays as it is")
{
    WriteScratch("here.lay", "");
    ProjectPath = "";
    frmBorinput::LayFiles = {"old.lay"};
    getfilelist(1);
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"old.lay"});
}

TEST_CASE("any other mode of the layout list fills the chooser's hidden list alone")
{
    WriteScratch("here.lay", "");
    getfilelist(0);
    CHECK(frmBorinput::LayFiles.empty());
    CHECK(frmOpenSave::HiddenFiles == std::vector<Text>{"here.lay"});
}

TEST_CASE("a logo.txt of more lines keeps its six when a project brings its logo")
{
    WriteScratch("logo.txt", Lines({"1", "2", "3", "4", "5", "6", "7", "8"}));
    OneProject(ScratchFolder(), "", "HARBOUR.BMP");
    frmOpenSave::SelectProject(1);
    CHECK(Messages.empty());
    CHECK(ReadScratch("logo.txt") == Lines({"1", "2", "3", "4", "HARBOUR.BMP", "6"}));
}

TEST_CASE("a project's heading file is in the set-up file at once, though its folder is refused")
{
    OneProject("/nowhere", "harbour.hdg");
    frmOpenSave::SelectProject(1);
    LineReader device("device.cfg");
    CHECK(device.Line() == ScratchFolder());
    device.Skip(7);
    CHECK(device.Line() == "harbour.hdg");
}

TEST_CASE("the chooser shows no project that has left the list since it was open last")
{
    ProjectCount = 2;
    ProjectList[1] = {"Harbour", ScratchFolder(), "", ""};
    ProjectList[2] = {"Mill", ScratchFolder(), "", ""};
    Open(1);
    CHECK(frmOpenSave::SS.Cell(2, 1) == "Mill");
    ProjectCount = 1;
    Open(1);
    CHECK(frmOpenSave::SS.Cell(1, 1) == "Harbour");
    CHECK(frmOpenSave::SS.Cell(2, 1) == "");
}
