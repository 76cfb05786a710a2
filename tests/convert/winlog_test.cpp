// winlog_test.cpp -- WinLog files, and the template boring that they are read upon.
#include "convert/winlog.h"

#include "convert/converted.h"

#include "boring/boringdata.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

static const Text done = "All .LOG Files Converted";

// A file with some text in place of other.
static void Write(const Text& name, const Text& of, std::initializer_list<std::pair<std::string, std::string>> changes)
{
    std::string bytes = ConvertData("log/" + of);
    for (const auto& [from, to] : changes) {
        REQUIRE(bytes.find(from) != std::string::npos);
        bytes.replace(bytes.find(from), from.size(), to);
    }
    WriteScratch(name, bytes);
}

static void ConvertChanged(const Text& of, std::initializer_list<std::pair<std::string, std::string>> changes)
{
    Write("x.LOG", of, changes);
    Messages.clear();
    Run(ConvertWinLog, {"x.LOG"});
    CHECK(Told() == std::vector<Text>{done});
    Open("x.bor");
}

static Text ErrorOf(std::initializer_list<std::pair<std::string, std::string>> changes)
{
    Write("x.LOG", "ordinary.LOG", changes);
    Messages.clear();
    Run(ConvertWinLog, {"x.LOG"});
    REQUIRE(Messages.size() == 1);
    CHECK_FALSE(FileExists(Scratch("x.bor")));
    return Messages[0].words;
}

TEST_CASE("WinLog files on a template become boring files beside them, byte for byte the kept ones")
{
    CopyData("log");
    WinLogTemplate = Scratch("template.BOR");
    Run(ConvertWinLog, {"ordinary.LOG", "short.LOG", "thirds.LOG", "nopage.LOG"});
    CHECK(Told() == std::vector<Text>{done});
    for (const char* name : {"ordinary.bor", "short.bor", "thirds.bor", "nopage.bor"})
        CheckKept(name, Text("log/kept/") + name, "2", "0");
}

TEST_CASE("a WinLog file of a wrong format is told, and its boring is the empty template; the run goes on")
{
    CopyData("log");
    WriteScratch("empty.LOG", "");
    WinLogTemplate = Scratch("template.BOR");
    Run(ConvertWinLog, {"foreign.LOG", "empty.LOG", "short.LOG"});
    CHECK(Told() == std::vector<Text>{"Invalid Format for WinLog File: " + Scratch("foreign.LOG"),
                                      "Invalid Format for WinLog File: " + Scratch("empty.LOG"), done});
    CheckKept("foreign.bor", "log/kept/foreign.bor", "2", "0");
    CHECK(FileExists(Scratch("short.bor")));
}

TEST_CASE("without a template the prompts, report parts and set-ups are empty")
{
    ConvertChanged("ordinary.LOG", {});
    CHECK(BoringData.Info[1][1] == "");
    CHECK(BoringData.RepPartCount == 0);
    CHECK(BoringData.Client[1] == "Town of Alder");
}

TEST_CASE("of a template only prompts, report parts, layout and set-ups are kept, blank parts at the end are not")
{
    CopyData("log");
    WinLogTemplate = Scratch("template.BOR");
    ConvertChanged("ordinary.LOG", {});
    CHECK(BoringData.Info[1][1] == "Prompt 1");
    CHECK(BoringData.Info[1][2] == "K. Weber");
    CHECK(BoringData.Info[5][2] == "");
    CHECK(BoringData.RepPartCount == 4);
    CHECK(BoringData.LayoutFile == "Pbasic.lay");
    CHECK(BoringData.SampleParamSetup[1][1] == "Par 1");
    CHECK(BoringData.GenParamSetup[1][1] == "PID");
    CHECK(BoringData.MapFile == "");
    CHECK(BoringData.ParamCount == 0);
    CHECK(BoringData.Client[4] == "fifth");
    CHECK(BoringData.Scale[4] == "");
}

TEST_CASE("a template of a wrong format is told, and the conversion goes on without it")
{
    WriteScratch("old.BOR", "4.6\r\nx\r\n");
    WinLogTemplate = Scratch("old.BOR");
    Write("x.LOG", "ordinary.LOG", {});
    Run(ConvertWinLog, {"x.LOG"});
    CHECK(Told() == std::vector<Text>{"This boring file has an invalid format.", done});
    CHECK(Messages[0].icon == Exclamation);
    Open("x.bor");
    CHECK(BoringData.Name == "B-21");
}

TEST_CASE("a template that ends early or has a count above its bound is a run-time error")
{
    const std::string bytes = ConvertData("log/template.BOR");
    WinLogTemplate = Scratch("t.BOR");
    WriteScratch("t.BOR", bytes.substr(0, 300));
    CHECK(ErrorOf({}) == "Error 62 in ConvertWinLog.  Please contact Norvane");
    std::string many = bytes;
    many.replace(many.find("\r\n6\r\ndepth scale"), 5, "\r\n31\r\n");
    WriteScratch("t.BOR", many);
    CHECK(ErrorOf({}) == "Error 9 in ConvertWinLog.  Please contact Norvane");
    WinLogTemplate = Scratch("none.BOR");
    CHECK(ErrorOf({}) == "Error 53 in ConvertWinLog.  Please contact Norvane");
}

TEST_CASE(
    "the end depth is the next whole number of pages, and the increment 1 up to 20, 5 behind a last 5 or 0, else 2")
{
    struct Case {
        const char *depth, *page, *end, *increment, *pageBreak;
    };
    const Case cases[] = {{"47", "10", "50", "5", "10"},     {"8", "10", "10", "1", ""},
                          {"33", "11", "33", "2", "11"},     {"20", "20", "20", "1", ""},
                          {"21", "7.5", "22.5", "5", "7.5"}, {"0", "25", "25", "5", ""},
                          {"21", "0.7", "21", "2", "0.7"},   {"30", "-10", "", "", "-10"},
                          {"30", "none", "", "", ""},        {"30", "0", "", "", ""}};
    for (const Case& c : cases) {
        INFO(c.depth, " ", c.page);
        ConvertChanged("ordinary.LOG", {{"MaxDepth=47", std::string("MaxDepth=") + c.depth},
                                        {"Per Page=10", std::string("Per Page=") + c.page}});
        CHECK(BoringData.Scale[1] == c.end);
        CHECK(BoringData.Scale[2] == c.increment);
        CHECK(BoringData.Scale[3] == c.pageBreak);
        CHECK(BoringData.Lith[3][1] == c.depth);
    }
}

TEST_CASE("a fourth line that is no elevation is itself tested for the page depth and for a section")
{
    ConvertChanged("ordinary.LOG", {{"Elev=101.5\r\nOther=1\r\n", ""}});
    CHECK(BoringData.Scale[5] == "");
    CHECK(BoringData.Scale[1] == "50");
    ConvertChanged("nopage.LOG", {});
    CHECK(BoringData.Name == "B-21");
    CHECK(BoringData.Scale[1] == "");
}

TEST_CASE("a fourth line is an elevation by its whole key alone")
{
    ConvertChanged("ordinary.LOG", {{"Elev=101.5", "Elevation=101.5"}});
    CHECK(BoringData.Scale[5] == "");
    CHECK(BoringData.Scale[1] == "50");
}

TEST_CASE("headers are name, client and information, and the next section goes on behind them")
{
    ConvertChanged("ordinary.LOG", {});
    CHECK(BoringData.Name == "B-21");
    CHECK(BoringData.Client[2] == "Water Works");
    CHECK(BoringData.Client[3] == "");
    CHECK(BoringData.Client[4] == "fifth");
    CHECK(BoringData.Info[2][2] == "Drill Co.");
    CHECK(BoringData.Info[3][2] == "3/1/99");
    CHECK(BoringData.Info[4][2] == "12.5");
    CHECK(BoringData.Info[5][2] == "");
}

TEST_CASE("sample keys fill the row of their number, and the end is start and size")
{
    ConvertChanged("ordinary.LOG", {});
    REQUIRE(BoringData.SampleCount == 3);
    const char* const first[] = {"0", "1.5", "", "", "", "S-1", "SS", "12", "80", "0.5"};
    for (int column = 1; column <= 10; ++column)
        CHECK(BoringData.Samples[1][column] == first[column - 1]);
    CHECK(BoringData.Samples[1][21] == "last");
    CHECK(BoringData.Samples[2][2] == "11.5");
    CHECK(BoringData.Samples[3][7] == "unquoted");
}

TEST_CASE("the top of a contact is the bottom of the row before, and the last one ends with the hole")
{
    ConvertChanged("ordinary.LOG", {});
    REQUIRE(BoringData.LithCount == 3);
    CHECK(BoringData.Lith[1][1] == "4.5");
    CHECK(BoringData.Lith[1][3] == "D");
    CHECK(BoringData.Lith[2][1] == "12.5");
    CHECK(BoringData.Lith[2][3] == "");
    CHECK(BoringData.Lith[3][1] == "47");
}

TEST_CASE("each contact has a marker, a title and a description, and empty ones leave no line")
{
    ConvertChanged("ordinary.LOG", {});
    const char* const lines[] = {"@1\xB6", "Fill\xB6",  "sand and gravel, moist\xB6", "@2\xB6", "Silty CLAY\xB6",
                                 "@3\xB6", "Gravel\xB6"};
    REQUIRE(BoringData.DesCount == 8);
    for (int row = 1; row <= 7; ++row)
        CHECK(BoringData.Des[row] == lines[row - 1]);
    CHECK(BoringData.Des[8].ends_with("is stored as one line\xB6"));
}

TEST_CASE("a contact without a description keeps an empty line, also when the boring before had one there")
{
    CopyData("log");
    Write("x.LOG", "ordinary.LOG", {{"Description1='sand and gravel, moist'\r\n", ""}});
    Run(ConvertWinLog, {"ordinary.LOG", "x.LOG"});
    Open("x.bor");
    CHECK(BoringData.Des[2] == "Fill\xB6");
    CHECK(BoringData.Des[3] == "");
    CHECK(BoringData.Des[4] == "@2\xB6");
}

TEST_CASE("well layers inside and outside go together, with the fills of their packing")
{
    ConvertChanged("ordinary.LOG", {});
    CHECK(BoringData.GenWell[11] == "7.5");
    CHECK(BoringData.GenWell[12] == "8");
    REQUIRE(BoringData.OuterLayerCount == 3);
    REQUIRE(BoringData.InnerLayerCount == 3);
    CHECK(BoringData.OuterLayers[2][1] == "5");
    CHECK(BoringData.InnerLayers[2][2] == "12.5");
    CHECK(BoringData.InnerLayers[1][3] == "");
    CHECK(BoringData.InnerLayers[2][3] == "Screen");
    CHECK(BoringData.OuterLayers[1][5] == "F7");
    CHECK(BoringData.OuterLayers[2][5] == "");
    CHECK(BoringData.OuterLayers[3][5] == "F41");
}

TEST_CASE("lengths under one top add up, each going on where the one before has ended")
{
    ConvertChanged("ordinary.LOG", {{"Length2=7.5", "Length2=2.25\r\nLength2=1.5\r\nPipe Code2=1\r\nLength2=3.75"}});
    CHECK(BoringData.OuterLayers[1][2] == "5");
    CHECK(BoringData.OuterLayers[2][1] == "5");
    CHECK(BoringData.OuterLayers[2][2] == "12.5");
    CHECK(BoringData.InnerLayers[2][2] == "12.5");
    // The next top is where it says, wherever the one before has come to.
    CHECK(BoringData.OuterLayers[3][1] == "12.5");
    CHECK(BoringData.OuterLayers[3][2] == "13.5");
    ConvertChanged("ordinary.LOG", {{"Length2=7.5", "Length2=0.1\r\nLength2=0.2"}, {"Top3=12.5", "Top3=20"}});
    CHECK(BoringData.OuterLayers[2][2] == "5.3");
    CHECK(BoringData.OuterLayers[3][2] == "21");
}

TEST_CASE("every packing code has its fill, and others none")
{
    const char* const fills[] = {"", "F7", "F11", "F13", "FB", "F6", "F2", "F41", "", ""};
    for (int code = 1; code <= 10; ++code) {
        ConvertChanged("ordinary.LOG", {{"Packing Code1=2", "Packing Code1=" + std::to_string(code)}});
        CHECK(BoringData.OuterLayers[1][5] == fills[code - 1]);
    }
}

TEST_CASE("remarks stand in their section alone, each depth with its minus")
{
    ConvertChanged("ordinary.LOG", {});
    const char* const lines[] = {"-4.5\xB6", "Boulder\xB6", "-9\xB6", "Lost circulation\xB6"};
    REQUIRE(BoringData.RemarkCount == 4);
    for (int row = 1; row <= 4; ++row)
        CHECK(BoringData.Remarks[row] == lines[row - 1]);
}

TEST_CASE("a file that stops before the remarks is a read past its end; one that stops in them is whole")
{
    const std::string bytes = ConvertData("log/ordinary.LOG");
    CopyData("log");
    for (const char* at : {"[Headers]", "Count=2", "[Samples]", "Depth2=10", "[Lithology]", "TopDepth2", "[Well]",
                           "Top2=5", "[Remarks]"}) {
        WriteScratch("x.LOG", bytes.substr(0, bytes.find(at)));
        Messages.clear();
        Run(ConvertWinLog, {"x.LOG", "short.LOG"});
        CHECK(Told() == std::vector<Text>{"Error 62 in ConvertWinLog.  Please contact Norvane"});
        CHECK_FALSE(FileExists(Scratch("x.bor")));
        CHECK_FALSE(FileExists(Scratch("short.bor")));
    }
    WriteScratch("x.LOG", bytes.substr(0, bytes.find("Text2=")));
    Messages.clear();
    Run(ConvertWinLog, {"x.LOG"});
    CHECK(Told() == std::vector<Text>{done});
}

TEST_CASE("a number of 0 is lost, and one above its bound is error 9")
{
    ConvertChanged("ordinary.LOG", {{"Depth1=0\r\n", "Depth0=99\r\n"},
                                    {"TopDepth1=0", "TopDepth0=99"},
                                    {"Water Depth1=7.5", "Water Depth0=99"},
                                    {"Description Title1", "Description Title0"}});
    CHECK(BoringData.Samples[1][1] == "");
    CHECK(BoringData.GenWell[10] == "");
    CHECK(BoringData.Lith[1][1] == "4.5");
    const Text error = "Error 9 in ConvertWinLog.  Please contact Norvane";
    std::filesystem::remove(Scratch("x.bor"));
    CHECK(ErrorOf({{"Depth1=0", "Depth81=0"}}) == error);
    CHECK(ErrorOf({{"Header 7", "Header 36"}}) == error);
    CHECK(ErrorOf({{"Count=2", "Count=29"}}) == error);
    CHECK(ErrorOf({{"Samples=3", "Samples=81"}}) == error);
    CHECK(ErrorOf({{"Layers=3", "Layers=101"}}) == error);
    CHECK(ErrorOf({{"Title3=", "Title334="}}) == error);
    CHECK(ErrorOf({{"Water Depth2", "Water Depth5"}}) == error);
}

TEST_CASE("the menu asks for the template, then shows the batch dialog; with none chosen there is no template")
{
    static int mode;
    Platform.ShowChooser = [] {
        mode = DialogMode;
        DialogResult = "/p/T.BOR";
    };
    static int dialogs;
    dialogs = 0;
    Platform.ShowDrawPrint = [] { ++dialogs; };
    frmBorinput::mnuConvertWinLog();
    CHECK(mode == 19);
    CHECK(jobCode == 12);
    CHECK(dialogs == 1);
    CHECK(WinLogTemplate == "/p/T.BOR");
    Platform.ShowChooser = [] { DialogResult = ""; };
    frmBorinput::mnuConvertWinLog();
    CHECK(WinLogTemplate == "");
}

TEST_CASE("lines that are no headers, codes, titles of other values and the line below a count are passed over")
{
    ConvertChanged("ordinary.LOG", {{"Font=3\r\n", "Font 1='no name'\r\nFont 7='no information'\r\n"},
                                    {"Samples=3\r\nskipped\r\n", "Samples=3\r\nSample2='skipped'\r\n"},
                                    {"Other Title 1='PID'\r\nCode1=7\r\n", "Other Title 1 2='PID'\r\nCode2=7\r\n"}});
    CHECK(BoringData.Name == "B-21");
    CHECK(BoringData.Info[2][2] == "Drill Co.");
    CHECK(BoringData.Samples[2][6] == "");
    for (int column = 6; column <= 21; ++column)
        CHECK(BoringData.Samples[2][column] == "");
    CHECK(BoringData.Samples[1][10] == "0.5");
    CHECK(BoringData.Samples[1][21] == "last");
}
