// converted.cpp -- what the tests of the converters share.
#include "convert/converted.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "editors/fillform.h"
#include "places.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/session.h"

static std::string DataPath(const Text& name)
{
    return std::string(SOURCE_DIR) + "/tests/convert/data/" + name;
}

std::string ConvertData(const Text& name)
{
    return ReadWholeFile(DataPath(name));
}

void CopyData(const Text& folder)
{
    for (const auto& entry : std::filesystem::directory_iterator(DataPath(folder)))
        if (entry.is_regular_file())
            std::filesystem::copy(entry.path(), ScratchFolder());
}

void Run(void (*job)(), std::initializer_list<std::string_view> files)
{
    runFileCount = 0;
    for (const std::string_view file : files)
        runFiles[++runFileCount] = Scratch(Text(file));
    job();
}

std::vector<Text> Told()
{
    std::vector<Text> words;
    for (const PlainMessage& message : Messages)
        words.push_back(message.words);
    return words;
}

void Open(const Text& name)
{
    Messages.clear();
    ClearBoringForm();
    BoringFileName = Scratch(name);
    DialogMode = -1;
    OpenBoringFile2();
    CHECK(Told() == std::vector<Text>());
}

void CheckReadsBack(const Text& name, const Text& style, const Text& draft)
{
    const std::string bytes = ReadScratch(name);
    Open(name);
    WriteBoring(Scratch("again.bor"), style, draft);
    CHECK(ReadScratch("again.bor") == bytes);
    const Text description = FlowingText(BoringData.Des, BoringData.DesCount);
    const Text remarks = FlowingText(BoringData.Remarks, BoringData.RemarkCount);
    FillBoringForm();
    BoringFileName = Scratch("saved.bor");
    SaveBoringFile();
    Open("saved.bor");
    CHECK(FlowingText(BoringData.Des, BoringData.DesCount) == description);
    CHECK(FlowingText(BoringData.Remarks, BoringData.RemarkCount) == remarks);
    FillBoringForm();
    BoringFileName = Scratch("resaved.bor");
    SaveBoringFile();
    CHECK(ReadScratch("resaved.bor") == ReadScratch("saved.bor"));
}

void CheckKept(const Text& name, const Text& kept, const Text& style, const Text& draft)
{
    INFO(kept);
    CHECK(ReadScratch(name) == ConvertData(kept));
    CheckReadsBack(name, style, draft);
}
