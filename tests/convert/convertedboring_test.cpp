// convertedboring_test.cpp -- what the conversions of files to borings beside them have in common.
#include "convert/converted.h"
#include "convert/gtgsprt.h"
#include "convert/winlog.h"

#include "boring/boringdata.h"
#include "logrender/boringtext.h"
#include "session/files.h"
#include "session/platform.h"

#include <sys/syscall.h>
#include <unistd.h>

// Every wait for the disk, counted on its way to the system.
static int waits;
extern "C" int fsync(int handle)
{
    ++waits;
    return int(::syscall(SYS_fsync, handle));
}

static Text Refusal(const Text& name)
{
    return "This file would be replaced by its own conversion and is left as it is: " + Scratch(name);
}

TEST_CASE("a file whose converted boring would be itself is refused by name, and the others are converted")
{
    struct Conversion {
        const char *folder, *first, *last, *done;
        void (*Run)();
    };
    for (const Conversion& c : {Conversion{"prt", "ordinary", "pages", "All .PRT Files Converted", ConvertGTGS2BOR},
                                Conversion{"log", "thirds", "nopage", "All .LOG Files Converted", ConvertWinLog}}) {
        CopyData(c.folder);
        WinLogTemplate = Scratch("template.BOR");
        const Text ending = UpperCase(Text(".") + c.folder);
        const Text first = c.first + ending, last = c.last + ending;
        WriteScratch("UPPER.BOR", "saved\r\n");
        WriteScratch("lower.bor", "saved\r\n");
        Messages.clear();
        Run(c.Run, {first, "UPPER.BOR", "lower.bor", last});
        CHECK(Told() == std::vector<Text>{Refusal("UPPER.BOR"), Refusal("lower.bor"), c.done});
        CHECK(Messages[0].icon == Exclamation);
        CHECK(ReadScratch("UPPER.BOR") == "saved\r\n");
        CHECK(ReadScratch("lower.bor") == "saved\r\n");
        for (const char* name : {c.first, c.last})
            CHECK(ReadScratch(Text(name) + ".bor") == ConvertData(Text(c.folder) + "/kept/" + name + ".bor"));
    }
}

TEST_CASE("a conversion does not write through a link into the file that it reads")
{
    CopyData("prt");
    const std::string bytes = ReadScratch("ordinary.PRT");
    std::filesystem::create_symlink(Scratch("ordinary.PRT"), Scratch("ordinary.bor"));
    std::filesystem::create_symlink(Scratch("early.PRT"), Scratch("x.PRT"));
    Run(ConvertGTGS2BOR, {"ordinary.PRT", "x.PRT"});
    CHECK(Told() == std::vector<Text>{Refusal("ordinary.PRT"), "All .PRT Files Converted"});
    CHECK(ReadScratch("ordinary.PRT") == bytes);
    CHECK(ReadScratch("x.bor") == ConvertData("prt/kept/early.bor"));
}

TEST_CASE("a converted boring has no blank report parts behind its last one, be they empty or of blanks")
{
    CopyData("log");
    WinLogTemplate = Scratch("T.BOR");
    const auto parts = [](std::vector<std::vector<Text>> given) {
        BoringText boring;
        boring.RepParts = given;
        WriteBoring("T.BOR", boring);
        Messages.clear();
        Run(ConvertWinLog, {"ordinary.LOG"});
        CHECK(Told() == std::vector<Text>{"All .LOG Files Converted"});
        Open("ordinary.bor");
        return BoringData.RepPartCount;
    };
    CHECK(parts({{"depth scale", "0.4"}, {"uscs", "0.25"}}) == 2);
    CHECK(parts({{"depth scale", "0.4"}, {"   ", "0.25"}, {"", ""}}) == 1);
    CHECK(parts({{"", ""}, {"uscs", "0.25"}, {" ", ""}}) == 2);
    CHECK(parts({{" ", "1"}}) == 0);
    CHECK(parts({{"", ""}, {"  ", ""}}) == 0);
}

TEST_CASE("a conversion waits for the disk where it replaces a boring, and does not where it makes one")
{
    CopyData("log");
    waits = 0;
    Run(ConvertWinLog, {"ordinary.LOG"});
    CHECK(waits == 0);
    Run(ConvertWinLog, {"ordinary.LOG"});
    CHECK(waits > 0);
}
