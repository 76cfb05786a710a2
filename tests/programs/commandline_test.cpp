// commandline_test.cpp -- the command lines of the program without windows, and the set-up that it leaves alone.
#include "programs/commandline.h"

#include "testing.h"

#include "session/deviceconfig.h"
#include "session/session.h"

#include <sstream>

TEST_CASE("a log's command line: options in any order, files with full paths")
{
    const CommandLine line =
        ReadCommandLine({"log",   "/a/B-1.BOR", "--pdf", "/o/x.pdf", "--home",     "/h",     "--project",
                         "/p",    "--page",     "2",     "--date",   "1 May 2001", "--png",  "/o",
                         "--dpi", "300",        "--dxf", "/d",       "--list",     "/l.txt", "B-2.BOR"});
    REQUIRE(line.Wrong == "");
    CHECK(line.Job->JobCode == 2);
    REQUIRE(line.Files.size() == 2);
    CHECK(line.Files[0] == "/a/B-1.BOR");
    CHECK(line.Files[1] == std::filesystem::current_path().string() + "/B-2.BOR");
    CHECK(line.Home == "/h");
    CHECK(line.Project == "/p");
    CHECK(line.Pdf == "/o/x.pdf");
    CHECK(line.Png == "/o");
    CHECK(line.Dxf == "/d");
    CHECK(line.List == "/l.txt");
    CHECK(line.Page == "2");
    CHECK(line.DateGiven);
    CHECK(line.Date == "1 May 2001");
    CHECK(line.Dpi == 300);
}

TEST_CASE("without options there is no date, no page, and 150 dots to the inch")
{
    const CommandLine line = ReadCommandLine({"log", "B-1.BOR"});
    CHECK(line.Wrong == "");
    CHECK(!line.DateGiven);
    CHECK(line.Page == "");
    CHECK(line.Dpi == 150);
    CHECK(line.Home == "");
}

TEST_CASE("names come in UTF-8 and are held in the code page")
{
    CHECK(ReadCommandLine({"log", "/M\xC3\xBCller.BOR"}).Files[0] == "/M\xFCller.BOR");
}

TEST_CASE("a wrong command line is told in one line, with no job")
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> lines = {
        {{}, "no job given"},
        {{"logs"}, "unknown job: logs"},
        {{"log"}, "no file given for log"},
        {{"log", "--pdf", "x.pdf"}, "no file given for log"},
        {{"log", "--pdf"}, "nothing behind --pdf"},
        {{"log", "--pdg", "x", "B-1.BOR"}, "unknown option for log: --pdg"},
        {{"log", "B-1.BOR", "--page", "two"}, "--page takes a number, not two"},
        {{"log", "B-1.BOR", "--png", "o", "--dpi", "5"}, "--dpi takes a number from 10 to 1200, not 5"},
        {{"log", "B-1.BOR", "--dpi", "100"}, "--dpi goes with --png"},
        {{"log", "", "B-1.BOR"}, "an empty file name"},
        {{"log", "--type", "1", "B-1.BOR"}, "unknown option for log: --type"},
        {{"intro", "--type", "3", "B-1.BOR"}, "--type takes 1 or 2, not 3"},
        {{"intro", "--type", "1"}, "no file given for intro"},
        {{"guide", "B-1.BOR"}, "guide takes no file"},
        {{"guide", "--dxf", "o"}, "unknown option for guide: --dxf"},
        {{"soil"}, "no file given for soil"},
        {{"soil", "--gis", "a.GIS", "a.SOI"}, "unknown option for soil: --gis"},
        {{"gis-add", "B-1.BOR"}, "gis-add takes --gis FILE"},
        {{"gis-add", "--gis", "a.GIS"}, "no file given for gis-add"},
        {{"gis-add", "--evs", "e.txt", "B-1.BOR"}, "unknown option for gis-add: --evs"},
        {{"gis-export", "a.GIS"}, "gis-export takes --arcview OUT | --evs OUT"},
        {{"gis-export", "--evs", "e", "--arcview", "a", "a.GIS"}, "gis-export takes --arcview OUT | --evs OUT"},
        {{"gis-export", "--evs", "e", "a.GIS", "b.GIS"}, "gis-export takes one file"},
    };
    for (const auto& [words, wrong] : lines) {
        const CommandLine line = ReadCommandLine(words);
        CHECK(line.Wrong == wrong);
        CHECK(line.Job == nullptr);
    }
}

TEST_CASE("intro pages run as the print job with the report choice of their type, the first one unless told")
{
    CHECK(ReadCommandLine({"log", "B-1.BOR"}).ReportOption == 0);
    CHECK(ReadCommandLine({"intro", "B-1.BOR"}).ReportOption == 1);
    CHECK(ReadCommandLine({"intro", "--type", "1", "B-1.BOR"}).ReportOption == 1);
    const CommandLine line =
        ReadCommandLine({"intro", "--type", "2", "--date", "1 May 2001", "--pdf", "/o/x.pdf", "/a/B-1.BOR"});
    CHECK(line.Wrong == "");
    CHECK(line.ReportOption == 2);
    CHECK(line.Job->JobCode == 2);
    CHECK(line.Date == "1 May 2001");
    CHECK(line.Pdf == "/o/x.pdf");
    CHECK(line.Files.size() == 1);
}

TEST_CASE("cross sections run as the print job, with the options of a log")
{
    const CommandLine line =
        ReadCommandLine({"section", "--home", "/h",    "--project", "/p",    "--page",   "2",
                         "--date",  "x",      "--pdf", "/o/p",      "--png", "/o",       "--dpi",
                         "72",      "--dxf",  "/o",    "--list",    "/o/l",  "/a/A.CRO", "/a/B.CRO"});
    CHECK(line.Wrong == "");
    CHECK(line.Job->JobCode == 4);
    CHECK(line.ReportOption == 0);
    CHECK(line.Files.size() == 2);
    CHECK(ReadCommandLine({"section"}).Wrong == "no file given for section");
}

TEST_CASE("soil tables run as their print job, with the options of the logs")
{
    const CommandLine line = ReadCommandLine({"soil", "--png", "/o", "--dpi", "80", "/a/A.SOI", "/a/B.SOI"});
    CHECK(line.Wrong == "");
    CHECK(line.Job->JobCode == 8);
    CHECK(line.Job->Work == BatchWork::Draws);
    CHECK(line.Files.size() == 2);
}

TEST_CASE("the jobs of the GIS table take full paths")
{
    const CommandLine add = ReadCommandLine({"gis-add", "/a/B-1.BOR", "--gis", "/a/SITE.GIS", "/a/B-2.BOR"});
    CHECK(add.Wrong == "");
    CHECK(add.Job->Work == BatchWork::AddsToGis);
    CHECK(add.Gis == "/a/SITE.GIS");
    CHECK(add.Files.size() == 2);
    const CommandLine out = ReadCommandLine({"gis-export", "--arcview", "a.txt", "/a/SITE.GIS"});
    CHECK(out.Wrong == "");
    CHECK(out.Job->Work == BatchWork::ExportsGis);
    CHECK(out.ArcView == std::filesystem::current_path().string() + "/a.txt");
    CHECK(out.Evs == "");
}

TEST_CASE("a file whose name begins with a hyphen goes behind two hyphens")
{
    const CommandLine line = ReadCommandLine({"log", "--", "-1.BOR"});
    CHECK(line.Wrong == "");
    CHECK(line.Files.size() == 1);
}

TEST_CASE("a check takes any files, and an option without a word")
{
    CommandLine line = ReadCommandLine({"check", "a.BOR", "--all", "b.CRO"});
    CHECK(line.Wrong == "");
    CHECK(line.All);
    CHECK(line.Files.size() == 2);
    CHECK_FALSE(ReadCommandLine({"check", "a.BOR"}).All);
    CHECK(ReadCommandLine({"check", "--", "--all"}).Files.size() == 1);
    CHECK(ReadCommandLine({"check"}).Wrong == "no file given for check");
    CHECK(ReadCommandLine({"log", "--all", "a.BOR"}).Wrong == "unknown option for log: --all");
    CHECK(ReadCommandLine({"check", "--pdf", "a.pdf", "a.BOR"}).Wrong == "unknown option for check: --pdf");
}

TEST_CASE("the help has a usage line for each job")
{
    CHECK(ReadCommandLine({"log", "--help"}).Help);
    const std::string text = UsageText();
    CHECK(text.find("stratavue-batch log [--home DIR] [--project DIR] [--page N] [--date TEXT] [--pdf FILE] "
                    "[--png DIR [--dpi N]] [--dxf DIR] [--list FILE] [--jobs N] FILE.BOR...\n") != std::string::npos);
    CHECK(text.find("stratavue-batch intro [--type 1|2] [--home DIR]") != std::string::npos);
    CHECK(text.find("stratavue-batch section [--home DIR] [--project DIR] [--page N] [--date TEXT] [--pdf FILE] "
                    "[--png DIR [--dpi N]] [--dxf DIR] [--list FILE] [--jobs N] FILE.CRO...\n") != std::string::npos);
    CHECK(text.find("stratavue-batch guide [--home DIR] [--pdf FILE] [--png DIR [--dpi N]] [--list FILE]\n") !=
          std::string::npos);
    CHECK(text.find("stratavue-batch gis-add --gis FILE [--home DIR] FILE.BOR...\n") != std::string::npos);
    CHECK(text.find("stratavue-batch gis-export --arcview OUT | --evs OUT [--home DIR] FILE.GIS\n") !=
          std::string::npos);
    CHECK(text.find("stratavue-batch check [--all] [--home DIR] [--project DIR] [--jobs N] FILE...\n") !=
          std::string::npos);
    CHECK(text.find("soil             draws the soil analysis tables") != std::string::npos);
    CHECK(text.find("gis-add          adds borings") != std::string::npos);
}

TEST_CASE("the words of the help about jobs and options begin in one column")
{
    const std::string text = UsageText();
    const size_t from = text.find("Jobs:\n"), to = text.find("Messages go to");
    REQUIRE(from < to);
    REQUIRE(to < text.size());
    std::istringstream lines(text.substr(from, to - from));
    int described = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(' '))
            continue; // a heading
        ++described;
        INFO(line);
        REQUIRE(line.size() > 19);
        CHECK(line[18] == ' ');
        CHECK(line[19] != ' ');
        CHECK(line.size() <= 120);
    }
    CHECK(described > 25);
}

TEST_CASE(
    "an output that is one of the files given, or would take the place of another source, is a wrong command line")
{
    for (const char* name : {"A.BOR", "B.bor", "S.GIS", "E.TXT"})
        WriteScratch(name, "x");
    const auto wrong = [](std::vector<std::string> words) {
        for (std::string& word : words)
            if (word.find('.') != std::string::npos)
                word = Scratch(word);
        return ReadCommandLine(words).Wrong;
    };
    CHECK(wrong({"log", "--pdf", "A.BOR", "B.bor"}) == "--pdf would replace " + Scratch("A.BOR"));
    CHECK(wrong({"log", "--list", "a.bor", "A.BOR"}) == "--list would replace " + Scratch("a.bor"));
    CHECK(wrong({"log", "--pdf", Scratch("out"), "--list", Scratch("OUT"), "B.bor"}) ==
          "--list would replace " + Scratch("out"));
    CHECK(wrong({"gis-add", "--gis", "A.BOR", "B.bor"}) == "--gis would replace " + Scratch("A.BOR"));
    CHECK(wrong({"gis-export", "--evs", "S.GIS", "S.GIS"}) == "--evs would replace " + Scratch("S.GIS"));
    CHECK(wrong({"gis-export", "--arcview", "A.BOR", "S.GIS"}) == "--arcview would replace " + Scratch("A.BOR"));
    CHECK(wrong({"gis-add", "--gis", "S.GIS", "B.bor"}) == "");
    CHECK(wrong({"gis-export", "--evs", "E.TXT", "S.GIS"}) == "");
    CHECK(wrong({"log", "--pdf", "new.pdf", "B.bor"}) == "");
}

TEST_CASE("without windows the set-up is read and never written, and a missing one is no message")
{
    Platform.Unattended = true;
    LoadDevice();
    CHECK(Messages.empty());
    CHECK(!std::filesystem::exists(Scratch("device.cfg")));
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "us.hdg");
    CHECK(ProjectPath == ScratchFolder());
    const std::string file = Lines({"/nowhere", "0.5,0.25", "Arial"});
    WriteScratch("device.cfg", file);
    LoadDevice();
    DeviceChanged = 1;
    SaveDevice();
    CHECK(DeviceChanged == 0);
    CHECK(DeviceConfig.MarginX == 0.5f);
    CHECK(ReadScratch("device.cfg") == file);
    CHECK(Messages.empty());
}
