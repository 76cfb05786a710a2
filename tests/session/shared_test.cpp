#include "session/shared.h"

#include "boring/boringboxes.h"
#include "sections/crosstool.h"
#include "session/session.h"
#include "session/slots.h"
#include "testing.h"
#include "tools/hush.h"

#include <algorithm>
#include <string_view>

namespace
{
struct Pair {
    Text& first; // a record of this kind cannot be assigned
    int second;
};
} // namespace

static Text document = "start";
static Pair pair = {document, 1};
static const SharedRecord shared[] = {
    {"document", Kind::Document, document},
    {"pair", Kind::Window, pair},
};

TEST_CASE("kept records get back the values that they had, however often, those that hold references too")
{
    const KeptRecords before({Kind::Document, Kind::Boxes, Kind::Window});
    for (int time = 0; time < 2; ++time) {
        document = "changed";
        pair.second = 2;
        frmBorinput::SSLith.Resize(3, 2);
        CrossForm.active = &frmBorinput::SSLith;
        before.PutBack();
        CHECK(document == "start");
        CHECK(pair.second == 1);
        CHECK(&pair.first == &document);
        CHECK(frmBorinput::SSLith.columns == 4);
        CHECK(CrossForm.active == nullptr);
    }
}

TEST_CASE("all records of several kinds are put back at the end of the scope")
{
    frmBorinput::Title = "window";
    {
        const KeepAll records{Kind::Document, Kind::Run};
        document = "changed";
        RunFolder = "elsewhere";
        frmBorinput::Title = "changed"; // which stands in a box
    }
    CHECK(document == "start");
    CHECK(RunFolder == ScratchFolder());
    CHECK(frmBorinput::Title == "changed");
}

TEST_CASE("growing slots are those that were asked for, every access checked")
{
    GrowingSlots<Text, 20> slots;
    slots[7] = "seven";
    const Text& seventh = slots[7];
    CHECK(slots[20].empty());
    CHECK(&seventh == &slots[7]);
    const GrowingSlots<Text, 20> copy = slots;
    CHECK(copy[7] == "seven");
    CHECK(copy[3].empty());
    CHECK_THROWS_AS(slots[21], RunTimeError);
    CHECK_THROWS_AS(copy[-1], RunTimeError);
    slots.Clear();
    CHECK(slots[7].empty());
}

TEST_CASE("a record that nothing has changed is put back in place, so that what points into it goes on to be good")
{
    document = "a text that is too long for a string to hold in itself";
    const char* const where = document.data();
    {
        const Hushed quiet;
    }
    CHECK(document.data() == where);
}

TEST_CASE("a kind that was not asked for is left alone")
{
    const KeptRecords before({Kind::Session, Kind::Run});
    document = "changed";
    RunFolder = "elsewhere";
    before.PutBack();
    CHECK(document == "changed");
    CHECK(RunFolder == ScratchFolder());
}

TEST_CASE("the list has the records of all files, each under a name and once")
{
    std::vector<std::string_view> names;
    for (const SharedRecord* record : SharedRecords())
        names.push_back(record->name);
    for (const char* name : {"BoringData", "VCROSS::CrossRun", "frmGIS::SSGISInfo", "PageCanvas", "Platform"})
        CHECK(std::count(names.begin(), names.end(), name) == 1);
}

// Whichever of the two comes second sees what the other one has left.
static void LeaveTraces()
{
    CHECK(frmBorinput::MemoBottNotes.widthTwips > 0);
    CHECK(frmBorinput::MemoBottNotes.text.empty());
    CHECK(frmBorinput::SSLith.columns == 4);
    CHECK(frmBorinput::SSLith.offered.empty());
    CHECK((CrossForm.ShowForm == nullptr));
    CHECK(std::filesystem::current_path() != std::filesystem::path(ScratchFolder()));
    CHECK(std::filesystem::is_empty(ScratchFolder()));
    frmBorinput::MemoBottNotes = {"left", 1, 1};
    frmBorinput::SSLith.Resize(1, 1);
    frmBorinput::SSLith.offered = {{"left"}};
    CrossForm.ShowForm = [](bool) {};
    WriteScratch("left", "left");
    std::filesystem::current_path(ScratchFolder());
}

TEST_CASE("nothing of one test is left for another, be it the first")
{
    LeaveTraces();
}

TEST_CASE("nothing of one test is left for another, be it the second")
{
    LeaveTraces();
}
