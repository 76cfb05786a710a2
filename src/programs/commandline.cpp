// commandline.cpp -- reading a command line by the table of jobs. A new job is a line of the table.
#include "programs/commandline.h"

#include "run/batchrun.h"
#include "session/files.h"

#include <algorithm>

// The jobs that draw the pages of files take the options of a log. --page has no effect where a file has one page.
static constexpr char LogOptions[] = "--home DIR;--project DIR;--page N;--date TEXT;--pdf FILE;--png DIR;--dpi N;"
                                     "--dxf DIR;--list FILE;--jobs N";
static constexpr char IntroOptions[] = "--type 1|2;--home DIR;--project DIR;--page N;--date TEXT;--pdf FILE;--png DIR;"
                                       "--dpi N;--dxf DIR;--list FILE;--jobs N";
static constexpr char GuideOptions[] = "--home DIR;--pdf FILE;--png DIR;--dpi N;--list FILE";

static constexpr BatchJob Jobs[] = {
    {"log", PrintLogsJob, 0, LogOptions, "FILE.BOR...", "the boring logs of saved borings"},
    {"intro", PrintLogsJob, 1, IntroOptions, "FILE.BOR...", "the intro pages of saved borings, one each"},
    {"section", PrintSectionsJob, 0, LogOptions, "FILE.CRO...", "cross sections, a page each"},
    {"fence", PrintFencesJob, 0, LogOptions, "FILE.FEN...", "fence diagrams, a page each"},
    {"soil", PrintSoilJob, 0, LogOptions, "FILE.SOI...", "the soil analysis tables of saved definitions"},
    {"guide", GuideJob, 0, GuideOptions, "", "the Fill Pattern Guide"},
    {"gis-add", NoJob, 0, "--home DIR", "FILE.BOR...",
     "adds borings to the table of a GIS file, which is made if it is not there", BatchWork::AddsToGis, "--gis FILE"},
    {"gis-export", NoJob, 0, "--home DIR", "FILE.GIS", "writes the table of a GIS file for another program",
     BatchWork::ExportsGis, "--arcview OUT | --evs OUT"},
    {"convert-txt", NoJob, 0, "--home DIR", "DIR",
     "converts the GTGS text tables of a folder, a boring file for each boring", BatchWork::ConvertsTables},
    {"convert-general", NoJob, 0, "--name NAME;--home DIR;--project DIR", "[DIR]",
     "converts one boring of GTGS text tables by a map", BatchWork::ConvertsByMap, "--map FILE.GCV"},
    {"convert-prt", PrtJob, 0, "--home DIR;--jobs N", "FILE.PRT...",
     "converts GTGS print files, each to a boring file beside it", BatchWork::Converts},
    {"convert-log", WinLogJob, 0, "--template FILE.BOR;--home DIR;--jobs N", "FILE.LOG...",
     "converts WinLog files, each to a boring file beside it", BatchWork::Converts},
    {"export-irpims", IrpimsJob, 0, "--home DIR", "FILE.BOR...", "writes the three IRPIMS tables of saved borings",
     BatchWork::Converts, "--out DIR"},
    {"check", NoJob, 0, "--all;--home DIR;--project DIR;--jobs N", "FILE...",
     "lists what a reviewer would flag in borings, sections, fences, soil tables and GIS files", BatchWork::Checks},
};

static constexpr int SmallestDpi = 10, LargestDpi = 1200, MostJobs = 256;

namespace
{
struct Option {
    const char* name;
    Text CommandLine::*text; // where its word goes; --dpi, --type and --jobs are numbers
    bool path;
};
} // namespace

// What a run gives the processes that do its shares: "2/4:FOLDER". Not for users, and in no help.
static constexpr char ShareOption[] = "--share";

static constexpr char AllOption[] = "--all"; // it has no word

static constexpr Option Options[] = {
    {"--type", nullptr, false},
    {"--home", &CommandLine::Home, true},
    {"--project", &CommandLine::Project, true},
    {"--page", &CommandLine::Page, false},
    {"--date", &CommandLine::Date, false},
    {"--pdf", &CommandLine::Pdf, true},
    {"--png", &CommandLine::Png, true},
    {"--dpi", nullptr, false},
    {"--dxf", &CommandLine::Dxf, true},
    {"--list", &CommandLine::List, true},
    {"--gis", &CommandLine::Gis, true},
    {"--arcview", &CommandLine::ArcView, true},
    {"--evs", &CommandLine::Evs, true},
    {"--map", &CommandLine::Map, true},
    {"--template", &CommandLine::Template, true},
    {"--out", &CommandLine::Out, true},
    {"--name", &CommandLine::Name, false},
    {"--jobs", nullptr, false},
};

// Whether the option stands in a list of them.
static bool Lists(std::string_view options, std::string_view option)
{
    const size_t at = options.find(option);
    const size_t end = at + option.size();
    return at != std::string_view::npos && (at == 0 || options[at - 1] == ';' || options[at - 1] == ' ') &&
           (end == options.size() || options[end] == ' ' || options[end] == ';');
}

static bool Knows(const BatchJob& job, std::string_view option)
{
    return Lists(job.Options, option) || Lists(job.Needs, option);
}

// What is wrong with the options that the job cannot do without; "" for nothing.
static std::string MissingOption(const CommandLine& line)
{
    const BatchJob& job = *line.Job;
    if (!*job.Needs)
        return "";
    int given = 0;
    for (const Option& option : Options)
        if (option.text && Lists(job.Needs, option.name) && !(line.*option.text).empty())
            ++given;
    return given == 1 ? "" : std::string(job.Name) + " takes " + job.Needs;
}

// A slip that would cost a source: an output that is one of the files given, or that would take the place of a file
// that this program reads and the output is not, or of another output. "" for none.
static std::string LostFile(const CommandLine& line)
{
    struct Output {
        const char* option;
        const Text& name;
        const char* ending; // that it may replace
    };
    for (const Output& output :
         {Output{"--pdf", line.Pdf, ""}, Output{"--list", line.List, ""}, Output{"--arcview", line.ArcView, ""},
          Output{"--evs", line.Evs, ""}, Output{"--gis", line.Gis, ".GIS"}}) {
        if (output.name.empty())
            continue;
        bool lost = std::any_of(line.Files.begin(), line.Files.end(),
                                [&](const Text& file) { return SameFile(file, output.name); });
        for (const char* source : {".BOR", ".CRO", ".FEN", ".SOI", ".GIS", ".GCV", ".LAY", ".HDG"})
            lost = lost || (UpperCase(output.name).ends_with(source) && Text(source) != output.ending &&
                            FileExists(output.name));
        if (lost)
            return std::string(output.option) + " would replace " + ToUtf8(output.name);
    }
    if (!line.Pdf.empty() && (SameText(line.Pdf, line.List) || SameFile(line.Pdf, line.List)))
        return "--list would replace " + ToUtf8(line.Pdf);
    return "";
}

static bool IsNumber(const std::string& word)
{
    return !word.empty() && word.size() < 6 &&
           std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

static std::string TakeShare(CommandLine& line, const std::string& word)
{
    const size_t of = std::min(word.find('/'), word.size()), folder = std::min(word.find(':'), word.size());
    const std::string share = word.substr(0, of), all = of < folder ? word.substr(of + 1, folder - of - 1) : "";
    line.Share = IsNumber(share) ? std::stoi(share) : 0;
    line.Of = IsNumber(all) ? std::stoi(all) : 0;
    line.ShareFolder = folder < word.size() ? FullPath(FromUtf8(word.substr(folder + 1))) : Text();
    const bool good = line.Share >= 1 && line.Share <= line.Of && !line.ShareFolder.empty();
    return good ? "" : "no share of a run: " + word;
}

// The option at the front of the words, with its word; what is wrong with it, "" for nothing.
static std::string TakeOption(CommandLine& line, const std::string& name, const std::string* word)
{
    const auto option =
        std::find_if(std::begin(Options), std::end(Options), [&](const Option& o) { return o.name == name; });
    if (name == ShareOption && word && Knows(*line.Job, "--jobs"))
        return TakeShare(line, *word);
    if (option == std::end(Options) || !Knows(*line.Job, name))
        return std::string("unknown option for ") + line.Job->Name + ": " + name;
    if (!word || word->empty())
        return "nothing behind " + name;
    if (name == "--dpi") {
        line.Dpi = IsNumber(*word) ? std::stoi(*word) : 0;
        if (line.Dpi < SmallestDpi || line.Dpi > LargestDpi)
            return "--dpi takes a number from 10 to 1200, not " + *word;
        return "";
    }
    if (name == "--jobs") {
        line.Jobs = IsNumber(*word) ? std::stoi(*word) : 0;
        if (line.Jobs < 1 || line.Jobs > MostJobs)
            return "--jobs takes a number from 1 to 256, not " + *word;
        return "";
    }
    if (name == "--type") {
        if (*word != "1" && *word != "2")
            return "--type takes 1 or 2, not " + *word;
        line.ReportOption = *word == "1" ? 1 : 2;
        return "";
    }
    if (name == "--page" && !IsNumber(*word))
        return "--page takes a number, not " + *word;
    line.*option->text = option->path ? FullPath(FromUtf8(*word)) : FromUtf8(*word);
    return "";
}

CommandLine ReadCommandLine(const std::vector<std::string>& words)
{
    CommandLine line;
    if (std::any_of(words.begin(), words.end(), [](const std::string& w) { return w == "--help" || w == "-h"; })) {
        line.Help = true;
        return line;
    }
    if (words.empty()) {
        line.Wrong = "no job given";
        return line;
    }
    const auto job =
        std::find_if(std::begin(Jobs), std::end(Jobs), [&](const BatchJob& j) { return j.Name == words[0]; });
    if (job == std::end(Jobs)) {
        line.Wrong = "unknown job: " + words[0];
        return line;
    }
    line.Job = job;
    line.ReportOption = job->ReportOption;
    bool optionsEnd = false, dpiGiven = false;
    for (size_t i = 1; i < words.size() && line.Wrong.empty(); ++i) {
        const std::string& word = words[i];
        if (word == "--" && !optionsEnd)
            optionsEnd = true;
        else if (word == AllOption && !optionsEnd && Knows(*job, word))
            line.All = true;
        else if (word.size() > 1 && word[0] == '-' && !optionsEnd) {
            line.Wrong = TakeOption(line, word, i + 1 < words.size() ? &words[i + 1] : nullptr);
            line.DateGiven = line.DateGiven || word == "--date";
            dpiGiven = dpiGiven || word == "--dpi";
            ++i;
        } else if (word.empty())
            line.Wrong = "an empty file name";
        else
            line.Files.push_back(FullPath(FromUtf8(word)));
    }
    const bool takesFiles = *job->Files != '\0';
    const char* const what = std::string_view(job->Files).find("DIR") == std::string_view::npos ? "file" : "folder";
    if (line.Wrong.empty() && takesFiles && *job->Files != '[' && line.Files.empty())
        line.Wrong = std::string("no ") + what + " given for " + job->Name;
    if (line.Wrong.empty() && !takesFiles && !line.Files.empty())
        line.Wrong = std::string(job->Name) + " takes no file";
    if (line.Wrong.empty())
        line.Wrong = MissingOption(line);
    if (line.Wrong.empty() && takesFiles && !std::string_view(job->Files).ends_with("...") && line.Files.size() > 1)
        line.Wrong = std::string(job->Name) + " takes one " + what;
    if (line.Wrong.empty() && dpiGiven && line.Png.empty())
        line.Wrong = "--dpi goes with --png";
    if (line.Wrong.empty())
        line.Wrong = LostFile(line);
    if (!line.Wrong.empty())
        line.Job = nullptr;
    return line;
}

std::string UsageText()
{
    std::string text = "Usage:\n";
    for (const BatchJob& job : Jobs) {
        text += std::string("  stratavue-batch ") + job.Name;
        if (*job.Needs)
            text += std::string(" ") + job.Needs;
        const std::string options = job.Options;
        for (size_t at = 0; at < options.size();) {
            const size_t end = std::min(options.find(';', at), options.size());
            const std::string option = options.substr(at, end - at);
            at = end + 1;
            if (option == "--png DIR")
                text += " [--png DIR [--dpi N]]";
            else if (option != "--dpi N")
                text += " [" + option + "]";
        }
        if (*job.Files)
            text += std::string(" ") + job.Files;
        text += "\n";
    }
    text += "Jobs:\n";
    for (const BatchJob& job : Jobs)
        text += std::string("  ") + job.Name + std::string(17 - std::string_view(job.Name).size(), ' ') +
                (job.Work == BatchWork::Draws ? "draws " : "") + job.HelpLine + "\n";
    text +=
        "Options:\n"
        "  --type 1|2       the arrangement of the intro pages (1)\n"
        "  --home DIR       the working folder, with the set-up and the stock files (the\n"
        "                   program's own folder; that of an installed program is\n"
        "                   Stratavue in the user's data folder)\n"
        "  --project DIR    the project folder (the folder of the first file; for a check that\n"
        "                   of each file)\n"
        "  --page N         only page N of each boring; any other job's page is a single one\n"
        "  --date TEXT      the text of the date line (today)\n"
        "  --pdf FILE       all pages as one PDF\n"
        "  --png DIR        each page as a picture, --dpi N dots to the inch (150), named\n"
        "                   NAME-PAGE.png for a log and NAME-JOB-PAGE.png for other jobs\n"
        "  --dxf DIR        each page as a drawing, named likewise\n"
        "  --list FILE      the objects of all pages as lines of text\n"
        "  --gis FILE       the table that borings are added to\n"
        "  --arcview OUT    the table as ArcView reads it\n"
        "  --evs OUT        the table as EVS reads it\n"
        "  --map FILE       how the tables are converted, as the editor of the general\n"
        "                   conversion has saved it\n"
        "  --name NAME      the new boring file, in the folder of the tables (the boring's\n"
        "                   own name)\n"
        "  --template FILE  the boring that gives prompts, report parts, layout and\n"
        "                   set-ups\n"
        "  --out DIR        the folder of the tables that are written\n"
        "  --jobs N         at most N processes at once for a run of many files (1); with\n"
        "                   --pdf one draws all\n"
        "  --all            also what the project has switched off\n"
        "Messages go to standard error, one line each. The exit status is 0 when all was done and no message but one\n"
        "that says so appeared, 1 when another appeared, and 2 for a wrong command line. A check lists on standard "
        "output,\n"
        "a line for each entry, and ends with 1 when one of them is an error.\n";
    return text;
}
