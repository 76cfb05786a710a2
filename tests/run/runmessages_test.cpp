// runmessages_test.cpp -- what a run of several files has to tell, one box at a time or in a list.
#include "run/runmessages.h"

#include "logrender/vlog.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

using frmDrawPrint::Dialog;

static std::vector<RunMessage> listed; // what the window of the list was shown with
static Text text;

// A user who asks for the list at the first box that offers it.
static int Box(const Text& words, Buttons buttons, Icon icon)
{
    if (CollectMessage(words, buttons, icon))
        return Ok;
    Messages.push_back({words, buttons, icon});
    if (OffersList(buttons, icon))
        RunMessages.Collecting = true;
    return buttons == OkOnly ? Ok : No;
}

static void Prepare()
{
    listed.clear();
    text.clear();
    Platform.MsgBox = Box;
    Platform.ShowRunMessages = [] {
        listed = RunMessages.List;
        text = RunMessagesText();
    };
}

static void Draw(int job, std::initializer_list<const char*> files)
{
    jobCode = static_cast<int16_t>(job);
    DrawPrintLoad();
    Dialog.FileCount = 0;
    for (const char* file : files) {
        Dialog.File1[++Dialog.FileCount] = file;
        Dialog.Selected[Dialog.FileCount] = true;
    }
    DrawPrintOk();
}

static void Sample(const char* name)
{
    std::filesystem::copy_file(Text(SOURCE_DIR) + "/samples/" + name, Scratch(name),
                               std::filesystem::copy_options::overwrite_existing);
}

// What every page needs, so that only what a test leaves out is told.
static void Words()
{
    for (const char* name : {"us.hdg", "logo.txt"})
        std::filesystem::copy_file(Text(SOURCE_DIR) + "/data/" + name, Scratch(name));
}

TEST_CASE("further messages of a run of several files go into a list with file and page, and the run goes on")
{
    Prepare();
    JobTable[1] = VLOG::vlogstart;
    Words();
    Sample("TC-101.BOR");
    Sample("TC-103.BOR");
    const std::string whole = ReadScratch("TC-101.BOR");
    WriteScratch("CUT.BOR", whole.substr(0, whole.size() / 2));
    // No layout is there, so that each page has a message.
    Draw(1, {"TC-103.BOR", "CUT.BOR", "TC-101.BOR"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words.starts_with("Layout File Not Found: "));
    CHECK(Listings.size() > 3);
    REQUIRE(listed.size() > 3);
    bool cut = false, later = false;
    for (const RunMessage& message : listed) {
        cut = cut || (message.File == Scratch("CUT.BOR") && message.Page == 1 &&
                      message.Words == "Error 62 in getvlogdata.  Please contact Norvane");
        later = later || (message.File == Scratch("TC-101.BOR") && message.Page == 2 &&
                          message.Words.starts_with("Layout File Not Found: "));
    }
    CHECK(cut);
    CHECK(later);
    CHECK(text.find(Scratch("TC-101.BOR") + "\t2\tLayout File Not Found: ") != Text::npos);
    CHECK_FALSE(RunMessages.Offered);
    CHECK_FALSE(RunMessages.Collecting);
    CHECK(RunMessages.List.empty());
}

TEST_CASE("a run of one file offers no list, and each of its messages is a box")
{
    Prepare();
    JobTable[1] = VLOG::vlogstart;
    Words();
    Sample("TC-101.BOR");
    Draw(1, {"TC-101.BOR"});
    REQUIRE_FALSE(Messages.empty());
    CHECK(Messages[0].words.starts_with("Layout File Not Found: "));
    CHECK(Messages.size() >= Listings.size());
    CHECK(listed.empty());
}

TEST_CASE("a heading file that is not there is one box for all pages of a run, where the user asks for the list")
{
    Prepare();
    Sample("TC-101.BOR");
    Sample("TC-102.BOR");
    Draw(1, {"TC-101.BOR", "TC-102.BOR"});
    CHECK(Messages.size() == 1);
    REQUIRE(listed.size() >= 2);
    CHECK(listed.front().File == Scratch("TC-101.BOR"));
    CHECK(listed.front().Page == 0);
    CHECK(listed.back().File == Scratch("TC-102.BOR"));
}

TEST_CASE("a question and the news that all is done are no messages of the list")
{
    Prepare();
    JobTable[12] = [] {
        MsgBox("wrong");
        progressValue = 1;
        MsgBox("wrong again", OkOnly, Exclamation);
        MsgBox("Replace it?", YesNo, Question);
        MsgBox("All .LOG Files Converted", OkOnly, Announcement);
    };
    progressValue = 0;
    Draw(12, {"a.LOG", "b.LOG"});
    REQUIRE(Messages.size() == 3);
    CHECK(Messages[1].words == "Replace it?");
    CHECK(Messages[2].words == "All .LOG Files Converted");
    REQUIRE(listed.size() == 1);
    CHECK(listed[0].Words == "wrong again");
    CHECK(listed[0].File == Scratch("b.LOG"));
    CHECK(listed[0].Page == 0);
}

TEST_CASE("messages of sheets and intro pages have their file and the page 1")
{
    Prepare();
    JobTable[3] = [] {
        RunPages.pageCount = 2;
        for (RunPages.pageIndex = 1; RunPages.pageIndex <= 2; ++RunPages.pageIndex)
            MsgBox("File Not Found: x", OkOnly, Exclamation);
    };
    Draw(3, {"a.CRO", "b.CRO"});
    REQUIRE(listed.size() == 1);
    CHECK(listed[0].File == Scratch("b.CRO"));
    CHECK(listed[0].Page == 1);
}
