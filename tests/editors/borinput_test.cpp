// borinput_test.cpp -- the commands of the log tool's window, with no window.
#include "editors/borinput.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

// The start of the log tool's window, in an installation that has its prompts.
static void LoadTool()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    frmBorinput::Load();
}

static Text Sample(const Text& name)
{
    return Text(SOURCE_DIR) + "/samples/" + name;
}

static Text chosen; // what the user picks in the chooser
static int choosers, dialogs, jobs, ends;

static void Prepare()
{
    chosen = "";
    choosers = dialogs = jobs = ends = 0;
    Platform.ShowChooser = [] {
        ++choosers;
        DialogResult = chosen;
        DialogMode = 2;
    };
    Platform.ShowDrawPrint = [] { ++dialogs; };
    Platform.EndProcess = [] { ++ends; };
    JobTable[1] = JobTable[9] = [] { ++jobs; };
    LoadTool();
    Messages.clear();
}

static void Open(const Text& name)
{
    chosen = name;
    frmBorinput::mnuOpen();
}

TEST_CASE("loading sets the title, the box widths and the flag")
{
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0", "Arial", " 100 ", " 50 ", "-20 "}));
    FileChanged = 1;
    BoringFileName = "old";
    ActiveBox = 3;
    LoadTool();
    CHECK(frmBorinput::Title == ScratchFolder() + " - VeskLog - Boring Log Diagram");
    CHECK(FileChanged == 0);
    CHECK(ActiveBox == 0);
    CHECK(BoringFileName == "");
    CHECK(frmBorinput::MemoDes.widthTwips == 4305);
    CHECK(frmBorinput::MemoWcon.widthTwips == 3299);
    CHECK(frmBorinput::MemoRemarks.widthTwips == 2203);
    CHECK(Messages.empty());
}

TEST_CASE("with device.cfg missing the message comes once and the file is complete after the start")
{
    LoadTool();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Couldn't Find DEVICE.CFG File, creating new");
    LineReader file("device.cfg");
    file.Skip(14);
    CHECK(file.Line() == JoinPath(ScratchFolder(), "fills/"));
    CHECK(file.AtEnd());
}

TEST_CASE("Open reads the boring into the boxes and shows its name")
{
    Prepare();
    Open(Sample("TC-101.BOR"));
    CHECK(frmBorinput::Title == Sample("TC-101.BOR") + " - VeskLog - Boring Log Diagram");
    CHECK(frmBorinput::Text1 == "TC-101");
    CHECK(frmBorinput::SSScale.Cell(1, 1) == "90");
    CHECK(FileChanged == 0);
}

TEST_CASE("after a conversion that fails for too many notes or remarks, New and Open tell nothing and leave none of it")
{
    using namespace frmBorinput;
    for (const auto& [box, lines] : {std::pair(&MemoWcon, 61), {&MemoRemarks, 601}}) {
        for (const bool open : {false, true}) {
            const int rows = lines;
            CAPTURE(rows);
            CAPTURE(open);
            Prepare();
            mnuNew();
            Text1 = "B-1";
            SSSamp.Cell(1, 1) = "10";
            SSLegend.Cell(1, 1) = "CL";
            for (int i = 0; i < lines; ++i)
                box->text += "x\r\n";
            Answers = {Yes};
            mnuConvertFeetMeters();
            REQUIRE(Messages.size() == 2);
            CHECK(Messages[1].words == "Error 9 in convertfeet2meters.  Please contact Norvane");
            CHECK(SSSamp.Cell(1, 1) == "10");
            CHECK(BoringData.WellNoteCount <= MaxWellNotes);
            CHECK(BoringData.RemarkCount <= MaxRemarks);
            Messages.clear();
            if (open)
                Open(Sample("TC-101.BOR"));
            else
                mnuNew();
            CHECK(Messages.empty());
            CHECK(Text1 == (open ? "TC-101" : ""));
            CHECK(BoringData.Name == Text1);
            CHECK(box->text.find("x\r\nx") == Text::npos);
            const Text left = Text("x") + ParagraphMark;
            for (const Text& note : BoringData.WellNotes.slot)
                CHECK(note != left);
            for (const Text& remark : BoringData.Remarks.slot)
                CHECK(remark != left);
            CHECK((open || (BoringData.WellNoteCount == 0 && BoringData.RemarkCount == 0)));
            CHECK(BoringData.Legend[1][1] != "CL");
            FileChanged = 0;
        }
    }
}

TEST_CASE("Open cancelled in the chooser leaves the boring, and the flag is 0 all the same")
{
    Prepare();
    Open(Sample("TC-101.BOR"));
    FileChanged = 1;
    Answers = {No};
    Open("");
    CHECK(frmBorinput::Text1 == "TC-101");
    CHECK(FileChanged == 0);
}

TEST_CASE("after No to Open's question New asks a second time, and a Cancel there only skips the clearing")
{
    Prepare();
    Open(Sample("TC-101.BOR"));
    FileChanged = 1;
    frmBorinput::SSLegend.Cell(30, 2) = "typed";
    Answers = {No, Cancel};
    Open(Sample("TC-103.BOR"));
    REQUIRE(Messages.size() >= 2);
    CHECK(Messages[0].words == "Would you like to save the current file before opening another file?");
    CHECK(Messages[1].words == "Would you like to save the current file before starting a new file?");
    CHECK(frmBorinput::Text1 == "TC-103");
    CHECK(frmBorinput::SSLegend.Cell(30, 2) == "typed");
    CHECK(FileChanged == 0);
}

TEST_CASE("Cancel at Open's question opens nothing")
{
    Prepare();
    FileChanged = 1;
    Answers = {Cancel};
    Open(Sample("TC-101.BOR"));
    CHECK(choosers == 0);
    CHECK(FileChanged == 1);
}

TEST_CASE("Save As adds the ending, asks before it overwrites, and No leaves the file")
{
    Prepare();
    Open(Sample("TC-101.BOR"));
    chosen = Scratch("COPY");
    WriteScratch("COPY.BOR", "old");
    Answers = {No};
    frmBorinput::mnuSaveAs();
    CHECK(Messages.back().words ==
          "The file, " + Scratch("COPY.BOR") + " already exists.  Do you wish to overwrite it?");
    CHECK(ReadScratch("COPY.BOR") == "old");
    Answers = {Yes};
    frmBorinput::mnuSaveAs();
    CHECK(ReadScratch("COPY.BOR").size() > 1000);
    CHECK(BoringFileName == Scratch("COPY.BOR"));
    CHECK(frmBorinput::Title == Scratch("COPY.BOR") + " - VeskLog - Boring Log Diagram");
}

TEST_CASE("Preview draws the open boring with no dialog, a changed one after saving it without a question")
{
    Prepare();
    WriteScratch("B-1.BOR", ReadWholeFile(Sample("TC-103.BOR")));
    Open(Scratch("B-1.BOR"));
    frmBorinput::Text1 = "renamed";
    FileChanged = 1;
    frmBorinput::mnuPreview();
    CHECK(jobs == 1);
    CHECK(dialogs == 0);
    CHECK(singleFile == 0);
    CHECK(FileChanged == 0);
    CHECK(LineReader(MasFile()).Line() == "1");
    CHECK(ReadScratch("B-1.BOR").find("renamed") != std::string::npos);
    for (const PlainMessage& message : Messages)
        CHECK(message.buttons == OkOnly);
}

TEST_CASE("Preview of a boring with no name opens the batch dialog")
{
    Prepare();
    frmBorinput::mnuPreview();
    CHECK(dialogs == 1);
    CHECK(jobs == 0);
    CHECK(jobCode == 1);
}

TEST_CASE("Batch Draw and Batch Print ask about a changed boring, and Cancel ends them")
{
    Prepare();
    frmBorinput::mnuBatchDraw();
    CHECK(jobCode == 1);
    frmBorinput::mnuPrint();
    CHECK(jobCode == 2);
    CHECK(dialogs == 2);
    CHECK(Messages.empty());
    FileChanged = 1;
    Answers = {Cancel};
    frmBorinput::mnuBatchDraw();
    CHECK(dialogs == 2);
    CHECK(Messages.back().words == "Would you like to save the current file before drawing?");
    CHECK(FileChanged == 1);
}

TEST_CASE("the pattern guide runs with no dialog, and the next batch run takes its own files")
{
    Prepare();
    frmBorinput::mnuFillPatt();
    CHECK(jobs == 1);
    CHECK(dialogs == 0);
    CHECK(singleFile == 0);
}

TEST_CASE("Cancel at Exit's question keeps the program, No ends it with the flag cleared")
{
    Prepare();
    FileChanged = 1;
    Answers = {Cancel};
    CHECK_FALSE(frmBorinput::mnuExit());
    CHECK(ends == 0);
    CHECK(FileChanged == 1);
    Answers = {No};
    CHECK(frmBorinput::mnuExit());
    CHECK(ends == 1);
    CHECK(FileChanged == 0);
    CHECK(Messages.back().words == "Would you like to save the current file before quitting?");
    CHECK(Messages.back().buttons == YesNoCancel);
    CHECK(Messages.back().icon == Question);
}

TEST_CASE("Exit rewrites device.cfg only when the set-up has changed")
{
    Prepare();
    std::filesystem::remove(Scratch("device.cfg"));
    frmBorinput::mnuExit();
    CHECK_FALSE(FileExists("device.cfg"));
    DeviceChanged = 1;
    frmBorinput::mnuExit();
    CHECK(FileExists("device.cfg"));
    CHECK(DeviceChanged == 0);
}

TEST_CASE("Yes to a question saves the boring first, without asking for its name")
{
    Prepare();
    frmBorinput::Text1 = "B-9";
    BoringFileName = Scratch("B-9.BOR");
    FileChanged = 1;
    Answers = {Yes};
    frmBorinput::mnuNew();
    CHECK(ReadScratch("B-9.BOR").starts_with("5.0.12\r\nB-9\r\n"));
    CHECK(FileChanged == 0);
    CHECK(frmBorinput::Text1 == "");
    CHECK(BoringFileName == "");
    CHECK(choosers == 0);
}

TEST_CASE("Save of a boring with no name is Save As, whose Cancel leaves the flag")
{
    Prepare();
    frmBorinput::Text1 = "B-9";
    FileChanged = 1;
    frmBorinput::mnuSave();
    CHECK(choosers == 1);
    CHECK(BoringFileName == "");
    CHECK(FileChanged == 1);
    CHECK(Messages.empty());
    chosen = Scratch("b-9.bor");
    frmBorinput::mnuSave();
    CHECK(BoringFileName == Scratch("b-9.bor"));
    CHECK(ReadScratch("b-9.bor").starts_with("5.0.12\r\nB-9\r\n"));
    CHECK(FileChanged == 0);
}

TEST_CASE("the scale is checked at each Save and each Save As")
{
    Prepare();
    const Text lastContact = "The last contact depth, in the lithology section, determines";
    BoringFileName = Scratch("B-9.BOR");
    frmBorinput::mnuSave();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words.starts_with(lastContact));
    chosen = Scratch("B-10.BOR");
    frmBorinput::mnuSaveAs();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words.starts_with(lastContact));
}

TEST_CASE("a save that is refused clears the flag all the same")
{
    Prepare();
    WriteScratch("B-9.BOR", "old");
    BoringFileName = Scratch("B-9.BOR");
    for (int i = 1; i <= 61; ++i)
        frmBorinput::MemoWcon.text += "x\r\n";
    FileChanged = 1;
    frmBorinput::mnuSave();
    CHECK(FileChanged == 0);
    FileChanged = 1;
    chosen = Scratch("B-10.BOR");
    frmBorinput::mnuSaveAs();
    CHECK(FileChanged == 0);
    CHECK(ReadScratch("B-9.BOR") == "old");
    CHECK_FALSE(std::filesystem::exists(Scratch("B-10.BOR")));
}
