// convertfuzz_test.cpp -- damaged foreign files through each converter: a known message or none, never a crash or a
// hang.
#include "fuzz/mutate.h"

#include "convert/converted.h"
#include "convert/gtgsgeneral.h"
#include "convert/gtgsprt.h"
#include "convert/gtgstext.h"
#include "convert/irpims.h"
#include "convert/winlog.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/session.h"

#include <map>
#include <set>

static Text Error(int number, const Text& procedure)
{
    return "Error " + PlainNumber(number) + " in " + procedure + ".  Please contact Norvane";
}

static void Damage(const Text& name, const std::string& bytes, int seed)
{
    WriteWholeFile(Scratch(name), Mutate(bytes, uint64_t(seed)), Durability::Scratch);
}

// Each message is one of these, and a file that is there opens without one.
static void CheckRun(const std::set<Text>& known, const Text& made)
{
    for (const PlainMessage& message : Messages)
        CHECK_MESSAGE(known.contains(message.words), message.words);
    if (made.empty() || !FileExists(Scratch(made)))
        return;
    Messages.clear();
    ClearBoringArrays();
    BoringFileName = Scratch(made);
    DialogMode = -1;
    OpenBoringFile2();
    CHECK(Messages.empty());
    std::filesystem::remove(Scratch(made));
}

static void FuzzFiles(void (*job)(), const Text& folder, const std::vector<Text>& sources, const Text& ending,
                      const std::set<Text>& known)
{
    std::vector<std::string> bytes;
    for (const Text& source : sources)
        bytes.push_back(ConvertData(folder + source));
    const int count = MutantCount(150);
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        Damage("x" + ending, bytes[size_t(seed) % bytes.size()], seed);
        Messages.clear();
        runFileCount = 1;
        runFiles[1] = Scratch("x" + ending);
        job();
        REQUIRE(Messages.size() <= 2);
        CheckRun(known, "x.bor");
    }
}

TEST_CASE("fuzz: damaged print files")
{
    FuzzFiles(
        ConvertGTGS2BOR, "prt/", {"ordinary.PRT", "pages.PRT"}, ".PRT",
        {"All .PRT Files Converted", "Invalid Format for GTGS File: " + Scratch("x.PRT"), Error(9, "ConvertGTGS2BOR")});
}

TEST_CASE("fuzz: damaged WinLog files")
{
    CopyData("log");
    WinLogTemplate = Scratch("template.BOR");
    FuzzFiles(ConvertWinLog, "log/", {"ordinary.LOG", "thirds.LOG"}, ".LOG",
              {"All .LOG Files Converted", "Invalid Format for WinLog File: " + Scratch("x.LOG"),
               Error(6, "ConvertWinLog"), Error(9, "ConvertWinLog"), Error(62, "ConvertWinLog")});
}

TEST_CASE("fuzz: damaged templates")
{
    CopyData("log");
    const std::string bytes = ConvertData("log/template.BOR");
    const std::set<Text> known{"All .LOG Files Converted", "This boring file has an invalid format.",
                               Error(6, "ConvertWinLog"), Error(9, "ConvertWinLog"), Error(62, "ConvertWinLog")};
    WinLogTemplate = Scratch("t.BOR");
    const int count = MutantCount(100);
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        Damage("t.BOR", bytes, seed);
        Messages.clear();
        Run(ConvertWinLog, {"short.LOG"});
        CheckRun(known, "short.bor");
    }
}

TEST_CASE("fuzz: damaged borings for the tables of the export")
{
    lastDir = ScratchFolder();
    FuzzFiles(Export2IRPIMS, "irpims/", {"B-1.BOR", "B-2.BOR"}, ".dat",
              {"Created TIMBORE.TXT, TIMLITH.TXT, TIMCONS.TXT", "Invalid Format for Boring File: " + Scratch("x.dat"),
               Error(6, "Export2IRPIMS"), Error(9, "Export2IRPIMS"), Error(62, "Export2IRPIMS")});
}

TEST_CASE("fuzz: damaged text tables in their fixed form")
{
    CopyData("txt");
    lastDir = ScratchFolder();
    static const char* const tables[] = {"headers.txt", "depths.txt", "depthr.txt", "lith.txt",
                                         "desc.txt",    "well.txt",   "remarks.txt"};
    std::map<Text, std::string> bytes;
    for (const char* table : tables)
        bytes[table] = ConvertData(Text("txt/") + table);
    const int count = MutantCount(150);
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        // The headers name the files: a damaged name may be none, or one in a folder that is not there.
        const Text table = tables[seed % 7];
        Damage(table, bytes[table], seed);
        Messages.clear();
        ConvertGTGSText();
        for (const PlainMessage& message : Messages)
            CHECK_MESSAGE((message.words.starts_with("This conversion") ||
                           message.words == "All .TXT Files Converted" ||
                           message.words == Error(9, "ConvertGTGSText") ||
                           (table == "headers.txt" &&
                            message.words.ends_with("in WriteConvertedBoring.  Please contact Norvane"))),
                          message.words);
        if (table == "headers.txt") {
            std::filesystem::remove_all(ScratchFolder());
            std::filesystem::create_directories(ScratchFolder());
            CopyData("txt");
        } else {
            WriteWholeFile(Scratch(table), bytes[table], Durability::Scratch);
            Messages.clear();
            CheckRun({}, "B-1.bor");
        }
    }
}

TEST_CASE("fuzz: damaged text tables, maps and templates of the general conversion")
{
    static const char* const sources[] = {"headers.txt", "lith.txt",  "desc.txt",
                                          "well.txt",    "comma.GCV", "template.BOR"};
    CopyData("general");
    std::map<Text, std::string> bytes;
    for (const char* source : sources)
        bytes[source] = ConvertData(Text("general/") + source);
    const std::set<Text> known{"New Boring File Created:  " + Scratch("x.bor"),
                               "Error processing headers.txt file:",
                               "Error processing lith.txt file:",
                               "Error processing desc.txt file:",
                               "Error processing well.txt file:",
                               "Please specify a Boring File to be used as a template for the converted GTGS data.",
                               "The Boring File to be used as a template was not found, please try again.",
                               "The Boring File to be used as a template has an invalid format, please use another.",
                               Error(6, "OpenGTGSConversionFile"),
                               Error(62, "OpenGTGSConversionFile")};
    const int count = MutantCount(150);
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        const Text source = sources[seed % 6];
        Damage(source, bytes[source], seed);
        Messages.clear();
        OpenGTGSConversionFile(Scratch("comma.GCV"));
        GtgsMapping.textPath = "";
        ConvertGTGSGeneral(Scratch("x.bor"));
        REQUIRE(Messages.size() <= 2);
        CheckRun(known, "x.bor");
        WriteWholeFile(Scratch(source), bytes[source], Durability::Scratch);
    }
}
