// recovery_test.cpp -- copies of what is not saved yet, for a tool whose document is one text.
#include "session/recovery.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

static Text document, documentName;
static std::vector<Text> opened;

static Text Folder()
{
    return Scratch("userdata/recovery");
}

static void WriteDocument(const Text& copy)
{
    WriteWholeFile(copy, document);
    WriteWholeFile(copy + ".more", "beside");
}

static void OpenDocument(const Text& copy, const Text& name)
{
    document = ReadWholeFile(copy);
    documentName = name;
    opened.push_back(name);
    FileChanged = 1;
}

static void StartRun()
{
    document = documentName = "";
    opened.clear();
    FileChanged = 0;
    RecoveryInterval = 0;
    RecoveryTools[LogTool] = {"VeskLog", &documentName, WriteDocument, OpenDocument};
    RecoveryTools[CrossTool] = {"VeskCross", &documentName, WriteDocument, OpenDocument};
    StartRecovery(Folder());
    WatchTool(LogTool);
}

// A run of the program that ends without coming to its end.
static void CrashedRun(const std::function<void()>& work)
{
    const pid_t child = ::fork();
    REQUIRE(child >= 0);
    if (child == 0) {
        StartRun();
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    REQUIRE(status == 0);
}

static void Type(const Text& text, const Text& name)
{
    document = text;
    documentName = name;
    FileChanged = 1;
    KeepCopy();
}

static size_t Copies()
{
    return FilesIn(Folder(), ".copy").size();
}

TEST_CASE("a changed document is copied, and the next start offers it after a crash")
{
    CrashedRun([] { Type("half a boring", "/site/B-1.BOR"); });
    StartRun();
    Answers = {Yes};
    OfferCopies();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].buttons == YesNoCancel);
    CHECK(Messages[0].icon == Question);
    CHECK(Messages[0].words.starts_with("The program ended before /site/B-1.BOR was saved.  A copy of "));
    CHECK(Messages[0].words.ends_with(" was kept.  Would you like to open it?"));
    CHECK(document == "half a boring");
    CHECK(documentName == "/site/B-1.BOR");
    CHECK(FileChanged == 1);
    // The copy is this run's own now.
    CHECK(Copies() == 1);
    OfferCopies();
    CHECK(Messages.size() == 1);
}

TEST_CASE("a copy that was opened and not saved is offered again after a second crash")
{
    CrashedRun([] { Type("half a boring", "/site/B-1.BOR"); });
    CrashedRun([] {
        Answers = {Yes};
        OfferCopies();
    });
    StartRun();
    Answers = {Yes};
    OfferCopies();
    CHECK(opened == std::vector<Text>{"/site/B-1.BOR"});
    CHECK(document == "half a boring");
}

TEST_CASE("a file that was written after its copy is told of, since the copy may be the older one")
{
    WriteScratch("B.BOR", "a");
    CrashedRun([] { Type("half", Scratch("B.BOR")); });
    StartRun();
    SUBCASE("written since")
    {
        WriteWholeFile(Scratch("B.BOR"), "a");
        OfferCopies();
        CHECK(Messages.back().words.ends_with(
            " was kept.  The file itself has been written since.  Would you like to open it?"));
    }
    SUBCASE("as it was")
    {
        OfferCopies();
        CHECK(Messages.back().words.ends_with(" was kept.  Would you like to open it?"));
    }
}

TEST_CASE("a document without a name is offered as a new file of its tool")
{
    CrashedRun([] { Type("new", ""); });
    StartRun();
    Answers = {Yes};
    OfferCopies();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words.starts_with("The program ended before a new VeskLog file was saved."));
    CHECK(opened == std::vector<Text>{""});
}

TEST_CASE("No takes the copy away, with what the tool has put beside it")
{
    CrashedRun([] { Type("half", "B-1.BOR"); });
    StartRun();
    Answers = {No};
    OfferCopies();
    CHECK(Messages.size() == 1);
    CHECK(opened.empty());
    EndRecovery();
    CHECK(FilesIn(Folder(), "").empty());
}

TEST_CASE(
    "only No takes a copy away: at Cancel, which is Escape too, it waits for the next start, and the next is asked")
{
    CrashedRun([] {
        Type("a section", "/site/A.CRO");
        LeaveDocument();
        FileChanged = 1;
        WatchTool(CrossTool);
        Type("half", "B-1.BOR");
    });
    StartRun();
    const size_t left = Copies();
    REQUIRE(left >= 1);
    Answers.assign(left, Cancel);
    OfferCopies();
    CHECK(Messages.size() == left);
    CHECK(opened.empty());
    EndRecovery();
    CHECK(Copies() == left);
    Messages.clear();
    StartRun();
    Answers.assign(left, Yes);
    OfferCopies();
    CHECK(Messages.size() == 1);
    CHECK(opened.size() == 1);
    CHECK(document == "half");
}

TEST_CASE("nothing is kept of a document that is not changed, nor after a clean end")
{
    StartRun();
    KeepCopy();
    CHECK(Copies() == 0);
    Type("a", "B.BOR");
    CHECK(Copies() == 1);
    EndRecovery();
    CHECK(FilesIn(Folder(), "").empty());
}

TEST_CASE("the copy goes when the flag does, and a new change is copied at once")
{
    StartRun();
    RecoveryInterval = 1000000;
    Type("a", "B.BOR");
    Type("ab", "B.BOR");
    const Text first = FilesIn(Folder(), ".copy").at(0);
    CHECK(ReadWholeFile(JoinPath(Folder(), first)) == "a");
    FileChanged = 0;
    KeepCopy();
    CHECK(Copies() == 0);
    Type("abc", "B.BOR");
    CHECK(ReadWholeFile(JoinPath(Folder(), FilesIn(Folder(), ".copy").at(0))) == "abc");
}

static void SaveInto()
{
    WriteWholeFile(documentName, document);
}

static void SaveRefused()
{
}

TEST_CASE("a save that has written the file takes the copy away")
{
    StartRun();
    Type("a", Scratch("B.BOR"));
    SaveDocument(SaveInto);
    CHECK(Copies() == 0);
    // The same bytes once more.
    Type("a", Scratch("B.BOR"));
    SaveDocument(SaveInto);
    CHECK(Copies() == 0);
}

TEST_CASE("after a refused save the copy is made anew and stays beyond the end, until a save has written the file")
{
    StartRun();
    RecoveryInterval = 1000000;
    Type("a", Scratch("B.BOR"));
    document = "ab";
    SaveDocument(SaveRefused);
    FileChanged = 0;
    KeepCopy();
    REQUIRE(Copies() == 1);
    SUBCASE("offered at the next start")
    {
        EndRecovery();
        StartRun();
        Answers = {Yes};
        OfferCopies();
        CHECK(document == "ab");
        CHECK(documentName == Scratch("B.BOR"));
    }
    SUBCASE("written later")
    {
        SaveDocument(SaveInto);
        CHECK(Copies() == 0);
    }
    SUBCASE("dropped by the user's No")
    {
        FileChanged = 1;
        DropCopy();
        CHECK(Copies() == 0);
    }
    SUBCASE("another document leaves it to the next start, with a copy of its own beside it")
    {
        LeaveDocument();
        CHECK(Copies() == 1);
        Type("other", "C.BOR");
        CHECK(Copies() == 2);
        DropCopy();
        CHECK(Copies() == 1);
        EndRecovery();
        StartRun();
        Answers = {Yes};
        OfferCopies();
        CHECK(document == "ab");
    }
}

TEST_CASE("another document in the boxes takes the copy of the one before away")
{
    StartRun();
    Type("a", "B.BOR");
    LeaveDocument();
    CHECK(Copies() == 0);
}

TEST_CASE("each tool has its own copy, and one that is left takes along what is not owed")
{
    StartRun();
    Type("a", "B.BOR");
    SaveDocument(SaveRefused);
    FileChanged = 0;
    WatchTool(CrossTool);
    Type("section", "S.CRO");
    CHECK(Copies() == 2);
    FileChanged = 0;
    WatchTool(LogTool);
    CHECK(Copies() == 1);
    document = "a";
    documentName = Scratch("B.BOR");
    SaveDocument(SaveInto);
    CHECK(Copies() == 0);
}

TEST_CASE("of several copies the newest is opened, and the others wait for the start after")
{
    CrashedRun([] {
        Type("log", "B.BOR");
        SaveDocument(SaveRefused);
        FileChanged = 0;
        WatchTool(CrossTool);
        Type("section", "S.CRO");
    });
    StartRun();
    Answers = {No, Yes};
    OfferCopies();
    CHECK(Messages.size() == 2);
    CHECK(opened.size() == 1);
    StartRun();
    CrashedRun([] {
        Type("log", "B.BOR");
        LeaveDocument();
    });
    CrashedRun([] { Type("one", "1.BOR"); });
    CrashedRun([] { Type("two", "2.BOR"); });
    Messages.clear();
    Answers = {Yes, Yes};
    OfferCopies();
    CHECK(Messages.size() == 1);
    FileChanged = 0;
    StartRun();
    OfferCopies();
    CHECK(Messages.size() == 2);
}

TEST_CASE("a program that still runs keeps its copies to itself")
{
    int ready[2];
    REQUIRE(::pipe(ready) == 0);
    const pid_t other = ::fork();
    REQUIRE(other >= 0);
    if (other == 0) {
        StartRun();
        Type("mine", "B.BOR");
        ::_exit(::write(ready[1], "x", 1) == 1 ? ::pause() : 1);
    }
    char sign = 0;
    CHECK(::read(ready[0], &sign, 1) == 1);
    ::close(ready[0]);
    ::close(ready[1]);
    StartRun();
    OfferCopies();
    CHECK(Messages.empty());
    CHECK(Copies() == 1);
    ::kill(other, SIGKILL);
    ::waitpid(other, nullptr, 0);
    Answers = {Yes};
    OfferCopies();
    CHECK(document == "mine");
}

TEST_CASE("a tool that is not in this program keeps its copies for one in which it is")
{
    CrashedRun([] {
        WatchTool(CrossTool);
        Type("section", "S.CRO");
    });
    StartRun();
    RecoveryTools[CrossTool] = {};
    OfferCopies();
    CHECK(Messages.empty());
    StartRun();
    Answers = {Yes};
    OfferCopies();
    CHECK(document == "section");
}

TEST_CASE("what a program left half written is not offered, and goes")
{
    CrashedRun([] {
        const Text run = FilesIn(Folder(), ".lock").at(0);
        const Text stem = run.substr(0, run.size() - 5);
        WriteWholeFile(JoinPath(Folder(), stem + "-1-1.copy"), "no text file");
        WriteWholeFile(JoinPath(Folder(), stem + "-2.txt"), "VeskLog\r\n");
        WriteWholeFile(JoinPath(Folder(), stem + "-3.txt"), "VeskLog\r\nB.BOR\r\nnow\r\nnot-there.copy\r\n\r\n");
    });
    StartRun();
    OfferCopies();
    CHECK(Messages.empty());
    EndRecovery();
    CHECK(FilesIn(Folder(), "").empty());
}

TEST_CASE("a folder that cannot be made is no hindrance")
{
    WriteScratch("userdata", "a file");
    StartRun();
    Type("a", "B.BOR");
    SaveDocument(SaveRefused);
    OfferCopies();
    EndRecovery();
    CHECK(Messages.empty());
}

TEST_CASE("a copy that cannot be written leaves the one before")
{
    StartRun();
    Type("a", "B.BOR");
    RecoveryTools[LogTool].Write = [](const Text& copy) {
        WriteWholeFile(copy + ".more", "half");
        throw RunTimeError{DiskFull};
    };
    Type("ab", "B.BOR");
    REQUIRE(Copies() == 1);
    CHECK(FilesIn(Folder(), ".more").size() == 1);
    CHECK(ReadWholeFile(JoinPath(Folder(), FilesIn(Folder(), ".copy").at(0))) == "a");
}
