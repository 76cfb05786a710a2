// files_test.cpp -- text files line by line, names in any case, saves that leave the old file whole.
#include "session/files.h"

#include "testing.h"

#include "session/failure.h"
#include "session/machine.h"
#include "session/session.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

TEST_CASE("a file that is written anew is in another state, also as large as it was, and one that is gone has none")
{
    const std::string path = Scratch("a.txt");
    CHECK(Machine::StateOf(path) == FileState());
    WriteWholeFile("a.txt", "one", Durability::Scratch);
    const FileState first = Machine::StateOf(path);
    CHECK(first.Size == 3);
    CHECK(Machine::StateOf(path) == first);
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    CHECK(Machine::StateOf(path) == first); // its bytes are what they were
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    WriteWholeFile("a.txt", "two", Durability::Scratch);
    CHECK_FALSE(Machine::StateOf(path) == first);
    const FileState second = Machine::StateOf(path);
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    CHECK_FALSE(Machine::StateOf(path) == second);
    std::filesystem::remove(path);
    CHECK(Machine::StateOf(path) == FileState());
}

TEST_CASE("CR LF, a lone CR and a lone LF each end a line, and byte 26 ends the file")
{
    WriteScratch("a.txt", "one\r\ntwo\rthree\n\nfive\x1Asix\r\n");
    LineReader in("a.txt");
    CHECK(in.Line() == "one");
    CHECK(in.Line() == "two");
    CHECK(in.Line() == "three");
    CHECK(in.Line() == "");
    CHECK_FALSE(in.AtEnd());
    CHECK(in.Line() == "five");
    CHECK(in.AtEnd());
}

TEST_CASE("a closing line end does not add a line, and reading past the end is failure 62")
{
    WriteScratch("a.txt", "one\r\n");
    LineReader in("a.txt");
    in.Line();
    CHECK(in.AtEnd());
    CHECK(FailureOf([] {
              LineReader again("a.txt");
              again.Skip(2);
          }) == InputPastEnd);
}

TEST_CASE("a missing file is failure 53, a missing folder 76, a folder or an empty name 75")
{
    CHECK(FailureOf([] { ReadWholeFile("nothing.txt"); }) == FileNotFound);
    CHECK(FailureOf([] { ReadWholeFile("nowhere/nothing.txt"); }) == PathNotFound);
    CHECK(FailureOf([] { ReadWholeFile("."); }) == PathAccess);
    CHECK(FailureOf([] { ReadWholeFile(""); }) == PathAccess);
    CHECK(FailureOf([] { ReadWholeFile(Text("a\0b", 3)); }) == BadFileName);
    CHECK(FailureOf([] { ReadWholeFile(Text(300, 'x')); }) == BadFileName);
}

TEST_CASE("counts are rounded, and one below zero is none")
{
    WriteScratch("a.txt", Lines({"2.5", " 7 ", "-3", "x", "40000", "1E10"}));
    LineReader in("a.txt");
    CHECK(in.Count() == 2);
    CHECK(in.Count() == 7);
    CHECK(in.Count() == 0);
    CHECK(in.Count() == 0);
    CHECK(in.Count() == 40000);
    CHECK_THROWS_AS(in.Count(), RunTimeError);
}

TEST_CASE("a name is matched in any case of its letters, component by component")
{
    std::filesystem::create_directory(Scratch("Fills"));
    WriteScratch("Fills/F01.BMP", "x");
    CHECK(FileExists("FILLS\\f01.bmp"));
    CHECK(NativePath("fills/F01.bmp") == Scratch("Fills/F01.BMP"));
    CHECK(NativePath("fills\\new.bmp") == Scratch("Fills/new.bmp"));
    CHECK_FALSE(FileExists("Fills"));
    CHECK_FALSE(FileExists(""));
}

TEST_CASE("of names that differ in case only the exact one wins, else the first in name order")
{
    WriteScratch("b.txt", "b");
    WriteScratch("B.TXT", "B");
    CHECK(NativePath("b.txt") == Scratch("b.txt"));
    CHECK(NativePath("B.txt") == Scratch("B.TXT"));
}

TEST_CASE("writing under another case replaces the file that is there")
{
    WriteScratch("a.bor", "old");
    WriteWholeFile("A.BOR", "new");
    CHECK(ReadScratch("a.bor") == "new");
    CHECK_FALSE(std::filesystem::exists(Scratch("A.BOR")));
}

TEST_CASE("a save that fails leaves the old file whole and no temporary file beside it")
{
    std::filesystem::create_directory(Scratch("dir"));
    CHECK(FailureOf([] { WriteWholeFile("dir", "x"); }) == PathAccess);
    CHECK(FailureOf([] { WriteWholeFile("nowhere/a.txt", "x"); }) == PathNotFound);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ScratchFolder()))
        files += entry.is_regular_file();
    CHECK(files == 0);
}

TEST_CASE("a save that the disk has no room for is failure 61 and leaves the old file whole")
{
    // A limit on the size of files stands for the full disk: the write comes back short in the same way.
    WriteScratch("a.txt", "old");
    rlimit limit;
    REQUIRE(::getrlimit(RLIMIT_FSIZE, &limit) == 0);
    const rlim_t before = limit.rlim_cur;
    ::signal(SIGXFSZ, SIG_IGN);
    limit.rlim_cur = 1000;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    const int failure = FailureOf([] { WriteWholeFile("a.txt", std::string(100000, 'x')); });
    limit.rlim_cur = before;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    CHECK(failure == DiskFull);
    CHECK(ReadScratch("a.txt") == "old");
    CHECK(FilesIn(ScratchFolder(), "").size() == 1);
}

TEST_CASE("a save keeps the mode of the file and goes through a link")
{
    WriteScratch("real.txt", "old");
    ::chmod(Scratch("real.txt").c_str(), 0640);
    REQUIRE(::symlink(Scratch("real.txt").c_str(), Scratch("link.txt").c_str()) == 0);
    WriteWholeFile("link.txt", "new");
    struct stat status;
    REQUIRE(::lstat(Scratch("link.txt").c_str(), &status) == 0);
    CHECK(S_ISLNK(status.st_mode));
    CHECK(ReadScratch("real.txt") == "new");
    REQUIRE(::stat(Scratch("real.txt").c_str(), &status) == 0);
    CHECK((status.st_mode & 0777) == 0640);
}

TEST_CASE("two names are one file in another case of their letters and through links, and a file not there is none")
{
    WriteScratch("a.BOR", "x");
    WriteScratch("b.bor", "x");
    std::filesystem::create_symlink(Scratch("a.BOR"), Scratch("link.PRT"));
    CHECK(SameFile(Scratch("a.BOR"), Scratch("A.bor")));
    CHECK(SameFile(Scratch("link.PRT"), Scratch("a.bor")));
    CHECK_FALSE(SameFile(Scratch("a.BOR"), Scratch("b.bor")));
    CHECK_FALSE(SameFile(Scratch("none.bor"), Scratch("none.bor")));
}

TEST_CASE("a folder is writable when the probe can be written and deleted there")
{
    CHECK(FolderWritable(ScratchFolder()));
    CHECK_FALSE(FolderWritable(""));
    CHECK_FALSE(FolderWritable(Scratch("nowhere")));
    CHECK_FALSE(std::filesystem::exists(Scratch("testzzz.who")));
}

TEST_CASE("folders and names are joined and parted at either separator")
{
    CHECK(JoinPath("a", "b") == "a/b");
    CHECK(JoinPath("a\\", "b") == "a\\b");
    CHECK(BaseName("C:\\JOB\\B-1.BOR") == "B-1.BOR");
    CHECK(BaseName("c:b") == "b");
    CHECK(FolderName("/a/b.txt") == "/a");
    CHECK(HasEnding("/a.b/c.txt"));
    CHECK_FALSE(HasEnding("/a.b/c"));
}

TEST_CASE("files of an ending are listed by name without regard to case")
{
    WriteScratch("b.LAY", "");
    WriteScratch("A.lay", "");
    WriteScratch("c.txt", "");
    CHECK(FilesIn(ScratchFolder(), ".lay") == std::vector<Text>{"A.lay", "b.LAY"});
}
