// crosspage.cpp -- the files of a cross section run, and what was drawn from them.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "session/files.h"

std::string SectionText::Bytes() const
{
    std::string bytes = " " + std::to_string(Borings.size()) + " \r\n";
    for (const std::vector<Text>& row : Borings)
        AddLines(bytes, row, 7, "");
    AddLines(bytes, {"", HStart, HEnd, HInc, HUnit, VStart, VEnd, VInc, VUnit, ""}, 10, "");
    AddLines(bytes, {MainTitle, Title1, Title2, Left, Right, Layers}, 6, "");
    AddLines(bytes, Legend, 8, ";");
    AddLines(bytes, Tail, Tail.size(), "");
    return bytes;
}

void WriteSection(const Text& file, const SectionText& section)
{
    WriteScratch(file, section.Bytes());
}

bool ReadSection(const SectionText& section)
{
    WriteSection("A.CRO", section);
    RunPages.pageFile = Scratch("A.CRO");
    return VCROSS::getcrossdata();
}

BoringText SectionBoring(const Text& name, const BoringText::Rows& layers)
{
    BoringText boring;
    boring.Name = name;
    boring.Lith = layers;
    boring.GenWell = {"MW-" + name, "", "", "", "90", "0"};
    boring.OuterLayers = {{"0", "10", "Sand"}};
    boring.InnerLayers = {{"0", "4", "Casing"}};
    return boring;
}

void StartSection()
{
    NumberHeadings();
    PageList = PageListRecord();
    canvasstart(VCROSS::CrossRun.pageMode);
}

// The margins of the sheet are 0.25 wide: the frame's corner is 0.45 from the printable sheet's left edge and from its
// upper one.
Drawing SectionDrawn(size_t skip)
{
    return DrawnFrom(630, 570, skip);
}

Drawing SheetDrawn(size_t skip)
{
    return DrawnFrom(270, 270, skip);
}

size_t Objects()
{
    return PageList.Objects.size();
}

Drawing DrawBorings(const SectionText& section)
{
    REQUIRE(ReadSection(section));
    StartSection();
    VCROSS::drawcrossframe();
    const size_t first = Objects();
    VCROSS::drawcrossborings();
    return SectionDrawn(first + 7);
}
