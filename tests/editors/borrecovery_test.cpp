// borrecovery_test.cpp -- the log tool's recovery copies: what Save would write, and nothing noticed.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "editors/borinput.h"
#include "places.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"
#include "testing.h"

static Text Folder()
{
    return Scratch("recovery");
}

static void Start()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    RecoveryTools[LogTool] = {"VeskLog", &BoringFileName, frmBorinput::WriteCopy, frmBorinput::OpenCopy};
    RecoveryInterval = 0;
    frmBorinput::Load();
    StartRecovery(Folder());
    WatchTool(LogTool);
    Messages.clear();
}

static void Open(const char* sample)
{
    std::filesystem::copy_file(Text(SOURCE_DIR) + "/samples/" + sample, Scratch(sample),
                               std::filesystem::copy_options::overwrite_existing);
    frmBorinput::OpenNamed(Scratch(sample));
    Messages.clear();
}

static size_t Copies()
{
    return FilesIn(Folder(), ".copy").size();
}

TEST_CASE("the copy of a boring holds what Save writes, byte for byte, and leaves everything as it was")
{
    Start();
    for (const char* sample : {"TC-101.BOR", "TC-102.BOR", "MW-108.BOR"}) {
        CAPTURE(sample);
        Open(sample);
        frmBorinput::MemoDes.text += "@99 a marker that is not there\r\nloose";
        frmBorinput::SSScale.Cell(6, 1) = "1.5";
        frmBorinput::SSLith.Cell(1, 2) = "  cl ";
        FileChanged = 1;
        LineCount = 3;
        LineBuffer[3] = "kept";
        BoringData.Name = "as opened";
        frmBorinput::WriteCopy(Scratch("copy"));
        CHECK(Messages.empty());
        CHECK(FileChanged == 1);
        CHECK(BoringFileName == Scratch(sample));
        CHECK(LineCount == 3);
        CHECK(LineBuffer[3] == "kept");
        CHECK(BoringData.Name == "as opened");
        CHECK(frmBorinput::SSLith.Cell(1, 2) == "  cl ");
        frmBorinput::mnuSave();
        CHECK(Messages.size() > 0);
        CHECK(ReadScratch("copy") == ReadScratch(sample));
        CHECK_FALSE(FileExists(Scratch("copy.notes")));
    }
}

TEST_CASE("a recovered boring has its name, its boxes and the flag")
{
    Start();
    Open("TC-101.BOR");
    frmBorinput::Text1 = "changed";
    FileChanged = 1;
    frmBorinput::WriteCopy(Scratch("copy"));
    frmBorinput::mnuSave();
    const std::string saved = ReadScratch("TC-101.BOR");
    frmBorinput::mnuNew();
    frmBorinput::OpenCopy(Scratch("copy"), Scratch("TC-101.BOR"));
    CHECK(FileChanged == 1);
    CHECK(BoringFileName == Scratch("TC-101.BOR"));
    CHECK(frmBorinput::Title == Scratch("TC-101.BOR") + " - VeskLog - Boring Log Diagram");
    CHECK(frmBorinput::Text1 == "changed");
    frmBorinput::mnuSave();
    CHECK(ReadScratch("TC-101.BOR") == saved);
}

TEST_CASE("a recovered boring that had no name has none, and its title no path")
{
    Start();
    frmBorinput::Text1 = "new";
    FileChanged = 1;
    frmBorinput::WriteCopy(Scratch("copy"));
    frmBorinput::OpenCopy(Scratch("copy"), "");
    CHECK(BoringFileName == "");
    CHECK(frmBorinput::Text1 == "new");
    CHECK(frmBorinput::Title == "VeskLog - Boring Log Diagram");
    CHECK(FileChanged == 1);
}

static Text Paragraphs(int count)
{
    Text text;
    for (int i = 1; i <= count; ++i)
        text += "line " + PlainNumber(i) + CrLf;
    return text;
}

TEST_CASE("texts of more lines than a boring holds are whole in the copy, though a save is refused or cuts them")
{
    Start();
    Open("TC-101.BOR");
    frmBorinput::MemoDes.text = Paragraphs(1100);
    frmBorinput::MemoWcon.text = Paragraphs(61) + "- end";
    frmBorinput::MemoRemarks.text = Paragraphs(601);
    frmBorinput::MemoBottNotes.text = Paragraphs(11);
    FileChanged = 1;
    frmBorinput::mnuSave();
    CHECK(FileChanged == 0);
    REQUIRE(Copies() == 1);
    CHECK(ReadScratch("TC-101.BOR").find("line 61") == std::string::npos);
    const Text copy = JoinPath(Folder(), FilesIn(Folder(), ".copy")[0]);
    const Text texts[] = {frmBorinput::MemoDes.text, frmBorinput::MemoWcon.text, frmBorinput::MemoRemarks.text,
                          frmBorinput::MemoBottNotes.text};
    Messages.clear();
    frmBorinput::OpenCopy(copy, "B.BOR");
    CHECK(Messages.empty());
    CHECK(frmBorinput::MemoDes.text == texts[0]);
    CHECK(frmBorinput::MemoWcon.text == texts[1]);
    CHECK(frmBorinput::MemoRemarks.text == texts[2]);
    CHECK(frmBorinput::MemoBottNotes.text == texts[3]);
}

TEST_CASE("New and Open after a No leave no copy, and after a Yes the save takes it")
{
    Start();
    Open("TC-101.BOR");
    const auto change = [] {
        frmBorinput::Text1 += "x";
        FileChanged = 1;
        KeepCopy();
        CHECK(Copies() == 1);
    };
    change();
    Answers = {No};
    frmBorinput::mnuNew();
    CHECK(Copies() == 0);
    Open("TC-101.BOR");
    change();
    Answers = {No, No};
    Open("TC-101.BOR");
    CHECK(Copies() == 0);
    change();
    Answers = {No, Cancel}; // the second question, of New
    Open("TC-101.BOR");
    CHECK(Copies() == 0);
    change();
    // Cancelled in the chooser, with a copy made while it was up: the user has said No.
    Answers = {No};
    Platform.ShowChooser = [] {
        KeepCopy();
        CHECK(Copies() == 1);
        DialogResult = "";
    };
    frmBorinput::mnuOpen();
    CHECK(FileChanged == 0);
    CHECK(Copies() == 0);
    change();
    Answers = {Cancel};
    frmBorinput::mnuNew();
    CHECK(Copies() == 1);
    Messages.clear();
    Answers = {Yes, Ok, Ok, Ok, Ok, Ok};
    frmBorinput::mnuNew();
    CHECK(Copies() == 0);
    CHECK(BoringFileName == "");
}

TEST_CASE("a save that could not be written leaves the copy for the next start, through Exit too")
{
    Start();
    Open("TC-101.BOR");
    frmBorinput::Text1 = "precious";
    FileChanged = 1;
    BoringFileName = Scratch("no-such-folder/TC-101.BOR");
    frmBorinput::mnuSave();
    CHECK(Messages.back().words == "Error 76 in SaveBoringFile.  Please contact Norvane");
    CHECK(FileChanged == 0);
    CHECK(frmBorinput::mnuExit());
    EndRecovery();
    CHECK(Copies() == 1);
    Start();
    Answers = {Yes};
    OfferCopies();
    CHECK(frmBorinput::Text1 == "precious");
    CHECK(BoringFileName == Scratch("no-such-folder/TC-101.BOR"));
    CHECK(FileChanged == 1);
}

TEST_CASE("a Yes that ends in a name not given leaves the copy for the next start, and the chosen file is opened")
{
    Start();
    std::filesystem::copy_file(SOURCE_DIR "/samples/TC-103.BOR", Scratch("TC-103.BOR"));
    frmBorinput::Text1 = "without a name";
    FileChanged = 1;
    // Asked by Open, No; asked by New, Yes; and then no name is given.
    Platform.ShowChooser = [] {
        DialogResult = DialogMode == 1 ? Scratch("TC-103.BOR") : Text();
        DialogMode = DialogMode == 1 ? 2 : -1;
    };
    Answers = {No, Yes};
    frmBorinput::mnuOpen();
    CHECK(BoringFileName == Scratch("TC-103.BOR"));
    CHECK(frmBorinput::Text1 == "TC-103");
    CHECK(Messages.size() == 2);
    CHECK(Copies() == 1);
    EndRecovery();
    Start();
    Answers = {Yes};
    OfferCopies();
    CHECK(frmBorinput::Text1 == "without a name");
}
