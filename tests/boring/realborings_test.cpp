// realborings_test.cpp -- boring files of real sites, where they are there, and a kept one: opened and saved again.
#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "editors/fillform.h"
#include "places.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>
#include <memory>

static std::vector<Text> RealBorings()
{
    std::vector<Text> names;
    std::error_code missing;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(Text(SOURCE_DIR) + "/../shared/data", missing))
        if (entry.path().extension() == ".BOR")
            names.push_back(entry.path().string());
    std::sort(names.begin(), names.end());
    return names;
}

static void Open(const Text& name)
{
    ClearBoringForm();
    BoringFileName = name;
    DialogMode = 2;
    OpenBoringFile2();
}

// The record as a file without its stored lines, in which all that is left has to survive a save.
static std::string Unwrapped()
{
    const auto whole = std::make_unique<BoringRecord>(BoringData);
    BoringData.DesCount = BoringData.WellNoteCount = BoringData.RemarkCount = 0;
    BoringData.BottNotes = {};
    WriteConvertedBoring(Scratch("unwrapped"));
    BoringData = *whole;
    return ReadScratch("unwrapped");
}

static std::vector<Text> FlowingTexts()
{
    using namespace frmBorinput;
    return {MemoDes.text, MemoWcon.text, MemoRemarks.text, MemoBottNotes.text};
}

static std::string SavedAs(const Text& name)
{
    BoringFileName = Scratch(name);
    SaveBoringFile();
    return ReadScratch(name);
}

// Where two files part, in words; "" where they are the same.
static std::string FirstDifference(const std::string& a, const std::string& b)
{
    if (a == b)
        return "";
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const size_t at = size_t(inA - a.begin());
    return "line " + std::to_string(1 + std::count(a.begin(), inA, '\n')) + ": \"" + a.substr(at, 30) + "\" and \"" +
           b.substr(at, 30) + "\"";
}

// Opens and saves the file. True where the saved file is the same byte for byte.
static bool SavesTheSame(const Text& name)
{
    INFO(name);
    const std::string file = ReadWholeFile(name);
    Open(name);
    CHECK(Messages.empty());
    WriteConvertedBoring(Scratch("as read"));
    const std::string asRead = ReadScratch("as read");
    // As it was read: all but the form of the last two numbers.
    const size_t tail = asRead.rfind("\r\n", asRead.rfind("\r\n", asRead.size() - 3) - 1);
    CHECK(FirstDifference(asRead.substr(0, tail), file.substr(0, tail)) == "");
    // The editor's pass takes a "-" of the paired parameter graphs, which begin with "P", for a blank width.
    FillBoringForm();
    CHECK(Messages.empty());
    const std::string unwrapped = Unwrapped();
    const std::vector<Text> texts = FlowingTexts();
    const std::string saved = SavedAs("first.BOR");
    // Read again, only the cuts of lines within paragraphs may have changed, and from now on nothing does.
    Messages.clear();
    Open(Scratch("first.BOR"));
    CHECK(Messages.empty());
    CHECK(FirstDifference(Unwrapped(), unwrapped) == "");
    FillBoringForm();
    CHECK(FlowingTexts() == texts);
    CHECK(FirstDifference(SavedAs("second.BOR"), saved) == "");
    Messages.clear();
    return saved == file;
}

TEST_CASE("a file whose lines this program wrapped is saved byte for byte as it was")
{
    CHECK(SavesTheSame(TestData("boring/whole.BOR")));
}

TEST_CASE("of a boring wrapped elsewhere only the cuts of lines within paragraphs change at a save")
{
    CHECK_FALSE(SavesTheSame(TestData("boring/wrapped-elsewhere.BOR")));
    int same = 0, all = 0;
    for (const Text& name : RealBorings()) {
        same += SavesTheSame(name);
        ++all;
    }
    MESSAGE(same, " of ", all, " real borings are saved byte for byte as they were");
}
