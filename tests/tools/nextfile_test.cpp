// nextfile_test.cpp -- files from outside and recent ones: the tool of the ending opens them, each after its question,
// and one that is refused leaves no name that a save could write over. With no window.
#include "tools/nextfile.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/oldboring.h"
#include "editors/borinput.h"
#include "gis/gistool.h"
#include "places.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"
#include "testing.h"
#include "tools/toolcommands.h"

static ToolRecord* const tools[] = {&CrossForm, &FenceForm, &SoilForm, &GisForm};

static const char* const quitting = "Would you like to save the current file before quitting?";
static const char* const opening = "Would you like to save the current file before opening another file?";

static std::vector<std::pair<Tool, Text>> shown; // the tools that came, each with its file

static void Prepare()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    FillOlderForms();
    shown.clear();
    Platform.ShowTool = [](Tool tool) { shown.push_back({tool, TakeNextFile()}); };
    Platform.ShowChooser = [] { DialogResult = ""; };
    frmBorinput::Load();
    Messages.clear();
}

static void Sample(const char* name)
{
    std::filesystem::copy_file(Text(SOURCE_DIR) + "/samples/" + name, Scratch(name),
                               std::filesystem::copy_options::overwrite_existing);
}

// A boring of form 3.0 or 4.0 with one layer.
static std::string OldBoring(int form)
{
    std::string file = "OLD-7\r\n";
    const auto blank = [&file](int lines) {
        for (int i = 0; i < lines; ++i)
            file += "\r\n";
    };
    blank(16 + (form == 3 ? 4 : 6));
    file += "DEP,SDES,USCS\r\n0\r\n1\r\n4.5\r\nSM\r\n1\r\n";
    file += form == 3 ? "" : "red\r\n";
    file += "1\r\nbrown sand\r\n0\r\n";
    blank(144 + 160 + 39);
    file += "0\r\n0\r\n";
    blank(form == 3 ? 9 : 11);
    file += "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n";
    return file;
}

// ---- Endings

TEST_CASE("the tool of a file is that of its ending, in any case of its letters")
{
    CHECK(ToolOfFile("/a/b.BOR") == Tool::Log);
    CHECK(ToolOfFile("b.sv3") == Tool::Log);
    CHECK(ToolOfFile("b.SV4") == Tool::Log);
    CHECK(ToolOfFile("b.Cro") == Tool::Cross);
    CHECK(ToolOfFile("b.fen") == Tool::Fence);
    CHECK(ToolOfFile("b.SOI") == Tool::Soil);
    CHECK(ToolOfFile("b.GIS") == Tool::GIS);
    CHECK(ToolOfFile("b.cro.bak") == Tool::Log);
    for (const char* name : {"b.bor", "b.SV3", "b.sv4", "b.CRO", "b.FEN", "b.soi", "b.gis", "b.gcv"})
        CHECK_MESSAGE(OpensFile(name), name);
    for (const char* name : {"b.hdg", "b", "", "bor", "b.BOR~", "b.LAY"})
        CHECK_MESSAGE(!OpensFile(name), name);
    CHECK(IsConversionMap("x.Gcv"));
    CHECK_FALSE(IsConversionMap("x.CRO"));
}

// ---- Borings of older forms

TEST_CASE("a recent boring of an older form is read in the form of its ending, and Save keeps what it holds")
{
    for (const int form : {3, 4}) {
        CAPTURE(form);
        Prepare();
        const Text name = Scratch(form == 3 ? "OLD.SV3" : "old.sv4");
        WriteWholeFile(name, OldBoring(form));
        frmBorinput::OpenNamed(name);
        CHECK(Messages.empty());
        CHECK(frmBorinput::Text1 == "OLD-7");
        CHECK(frmBorinput::SSLith.Cell(1, 1) == "4.5");
        CHECK(frmBorinput::SSLith.Cell(1, 4) == (form == 3 ? "" : "red"));
        CHECK(frmBorinput::MemoDes.text == "brown sand\r\n");
        CHECK(BoringFileName == name);
        CHECK(frmBorinput::RecentFile == name);
        // Saved under its name it is of the current form, and is read so.
        frmBorinput::mnuSave();
        CHECK(ReadWholeFile(name).starts_with("5.0.12\r\nOLD-7\r\n"));
        Messages.clear();
        frmBorinput::OpenNamed(name);
        CHECK(Messages.empty());
        CHECK(frmBorinput::Text1 == "OLD-7");
        CHECK(frmBorinput::SSLith.Cell(1, 1) == "4.5");
    }
}

// ---- Files that are refused

TEST_CASE("a file that the log tool refuses from outside leaves no name, is not listed, and Save asks for one")
{
    Prepare();
    WriteScratch("X.BOR", "a letter\r\nto the client\r\n");
    Sample("TC-101.BOR");
    WriteScratch("CUT.BOR", ReadScratch("TC-101.BOR").substr(0, 900));
    const std::pair<const char*, const char*> refused[] = {
        {"X.BOR", "This boring file has an invalid format."},
        {"X.CRO.txt", "Error 53 in OpenBoringFile2.  Please contact Norvane"},
        {"CUT.BOR", "Error 62 in OpenBoringFile2.  Please contact Norvane"},
        {"none.SV4", "Error 53 in OpenBoringFile2.  Please contact Norvane"}};
    for (const auto& [name, words] : refused) {
        const Text file = name;
        CAPTURE(file);
        frmBorinput::OpenNamed(Scratch("TC-101.BOR"));
        REQUIRE(frmBorinput::RecentFile == Scratch("TC-101.BOR"));
        Messages.clear();
        const std::string before = ReadScratch(name);
        frmBorinput::OpenFromOutside(Scratch(name));
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == words);
        CHECK(BoringFileName == "");
        CHECK(frmBorinput::Title == "VeskLog - Boring Log Diagram");
        CHECK(frmBorinput::RecentFile == "");
        CHECK(FileChanged == 0);
        frmBorinput::mnuSave(); // the chooser is cancelled
        CHECK(ReadScratch(name) == before);
        CHECK(FileExists(Scratch(name)) == !before.empty());
    }
}

TEST_CASE("a boring that Open refuses keeps its name, but is not among the recent files until a save has written it")
{
    Prepare();
    WriteScratch("X.BOR", "a letter\r\nto the client\r\n");
    Platform.ShowChooser = [] {
        DialogResult = Scratch("X.BOR");
        DialogMode = 2;
    };
    frmBorinput::mnuOpen();
    CHECK(BoringFileName == Scratch("X.BOR"));
    CHECK(frmBorinput::RecentFile == "");
    frmBorinput::mnuSave();
    CHECK(ReadScratch("X.BOR").starts_with("5.0.12\r\n"));
    CHECK(frmBorinput::RecentFile == Scratch("X.BOR"));
    frmBorinput::mnuNew();
    CHECK(frmBorinput::RecentFile == "");
}

TEST_CASE("a file that is not there or ends early leaves no name in its tool, is not listed, and Save asks for one")
{
    for (ToolRecord* tool : tools)
        for (const bool there : {true, false}) {
            CAPTURE(tool->window);
            CAPTURE(there);
            Prepare();
            LoadTool(*tool);
            const Text name = Scratch(Text("X") + tool->ending);
            std::filesystem::remove(name);
            if (there)
                WriteWholeFile(name, " 3 \r\nonly\r\n");
            ToolOpenFromOutside(*tool, name);
            CHECK(Messages.size() == 1);
            CHECK(tool->FileName == "");
            CHECK(tool->Title == tool->title);
            CHECK(tool->RecentFile == "");
            CHECK(FileChanged == 0);
            CHECK_FALSE(ToolSave(*tool));
            CHECK(FileExists(name) == there);
            if (there)
                CHECK(ReadWholeFile(name) == " 3 \r\nonly\r\n");
        }
}

TEST_CASE("a tool lists what it has read whole or saved")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare();
        LoadTool(*tool);
        CHECK(tool->RecentFile == "");
        static Text chosen;
        chosen = Scratch(Text("A") + tool->ending);
        Platform.ShowChooser = [] { DialogResult = chosen; };
        REQUIRE(ToolSaveAs(*tool));
        CHECK(tool->RecentFile == chosen);
        ToolNew(*tool);
        CHECK(tool->RecentFile == "");
        ToolOpenNamed(*tool, chosen);
        CHECK(tool->FileName == chosen);
        CHECK(tool->RecentFile == chosen);
    }
}

// ---- From tool to tool

TEST_CASE(
    "a file of another tool that comes to the log window goes there by the question of the hand-over, with its name")
{
    for (const auto& [name, tool] : {std::pair("/s/X.CRO", Tool::Cross),
                                     {"/s/X.FEN", Tool::Fence},
                                     {"/s/X.soi", Tool::Soil},
                                     {"/s/X.GIS", Tool::GIS}}) {
        const Text file = name;
        CAPTURE(file);
        Prepare();
        Sample("TC-101.BOR");
        frmBorinput::OpenNamed(Scratch("TC-101.BOR"));
        Messages.clear();
        FileChanged = 1;
        Answers = {Cancel};
        frmBorinput::OpenFromOutside(name);
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == quitting);
        CHECK(shown.empty());
        CHECK(NextFile == "");
        Answers = {No};
        frmBorinput::OpenFromOutside(name);
        CHECK(shown == std::vector<std::pair<Tool, Text>>{{tool, name}});
        CHECK(BoringFileName == Scratch("TC-101.BOR"));
        frmBorinput::mnuvcross(); // by the menu it comes with no file
        CHECK(shown.back() == std::pair<Tool, Text>(Tool::Cross, ""));
    }
}

TEST_CASE(
    "a file that comes to a tool's window opens there by the question of Open, or in its own tool by that of leaving")
{
    for (ToolRecord* tool : tools)
        for (const char* ending : {".bor", ".sv3", ".CRO", ".FEN", ".SOI", ".GIS", ".GCV"}) {
            CAPTURE(tool->window);
            CAPTURE(ending);
            Prepare();
            LoadTool(*tool);
            static int closed;
            closed = 0;
            tool->Unload = [] { ++closed; };
            const Text name = Scratch(Text("X") + ending);
            const bool own = SameText(ending, tool->ending);
            FileChanged = 1;
            Answers = {Cancel};
            ToolOpenFromOutside(*tool, name);
            REQUIRE(Messages.size() == 1);
            CHECK(Messages[0].words == (own ? opening : quitting));
            CHECK(FileChanged == 1);
            CHECK(NextFile == "");
            Answers = {No};
            ToolOpenFromOutside(*tool, name);
            CHECK(closed == (own ? 0 : 1));
            CHECK(NextFile == (own ? Text() : name));
            if (!own)
                CHECK(NextTool == ToolOfFile(name));
            TakeNextFile();
            tool->Unload = nullptr;
        }
}

TEST_CASE("a map of the general conversion opens its editor over the log window")
{
    Prepare();
    static Text taken;
    taken = "";
    frmBorinput::Commands.mnuConvertGTGSgeneral = [] { taken = TakeNextFile(); };
    frmBorinput::OpenFromOutside(Scratch("M.gcv"));
    CHECK(taken == Scratch("M.gcv"));
    CHECK(BoringFileName == "");
    CHECK(shown.empty());
}

// ---- A save that has failed

TEST_CASE("a save that was refused or has failed is owed until one has written the file, in every tool")
{
    Prepare();
    RecoveryTools[LogTool] = {"VeskLog", &BoringFileName, frmBorinput::WriteCopy, frmBorinput::OpenCopy};
    StartRecovery(Scratch("recovery"));
    WatchTool(LogTool);
    BoringFileName = Scratch("B.BOR");
    CHECK_FALSE(SaveOwed());
    for (int i = 1; i <= 61; ++i)
        frmBorinput::MemoWcon.text += "x\r\n";
    FileChanged = 1;
    frmBorinput::mnuSave();
    CHECK(FileChanged == 0);
    CHECK(SaveOwed());
    CHECK(frmBorinput::RecentFile == "");
    frmBorinput::MemoWcon.text = "x";
    frmBorinput::mnuSave();
    CHECK_FALSE(SaveOwed());
    CHECK(frmBorinput::RecentFile == Scratch("B.BOR"));
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        LoadTool(*tool);
        RecoveryTools[RecoveryNumber(tool->tool)] = {tool->window, &tool->FileName,
                                                     [](const Text& copy) { WriteWholeFile(copy, ""); }};
        WatchTool(RecoveryNumber(tool->tool));
        tool->FileName = Scratch("none/X") + tool->ending;
        FileChanged = 1;
        CHECK_FALSE(ToolSave(*tool));
        CHECK(SaveOwed());
        tool->FileName = Scratch("X") + tool->ending;
        CHECK(ToolSave(*tool));
        CHECK_FALSE(SaveOwed());
    }
}
