// prompts_test.cpp -- the labels of the windows by prompt.txt, and its editor.
#include "report/prompts.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "grid/gridedit.h"
#include "places.h"
#include "session/files.h"

// A prompt file: default "dn" and new text "dn" for slot n, but for what is set.
static void WritePrompts(std::initializer_list<std::pair<int, Text>> changed = {})
{
    std::string defaults, words;
    for (int slot = 1; slot <= MaxPrompts; ++slot) {
        Text word = "d" + std::to_string(slot);
        defaults += word + "\r\n";
        for (const auto& [at, text] : changed)
            if (at == slot)
                word = text;
        words += word + "\r\n";
    }
    WriteScratch("prompt.txt", defaults + words);
}

static int LabelsSet()
{
    int count = 0;
    for (int slot = 1; slot <= MaxPrompts; ++slot)
        count += PromptSlot[slot].has_value();
    return count;
}

TEST_CASE("a new text relabels its slot, and an unchanged one leaves the label by design")
{
    frmBorinput::SSLith.title = "Lithology";
    frmBorinput::SSLith.headings = {"", "Depth", "USCS", "Line T.", "Color"};
    WritePrompts({{19, "Hole Name"}, {67, "Strata"}, {69, "Code"}});
    LoadPrompts();
    CHECK(PromptLabel(19, "Boring Name") == "Hole Name");
    CHECK(PromptLabel(20, "Map File") == "Map File");
    CHECK(frmBorinput::SSLith.title == "Strata");
    CHECK(frmBorinput::SSLith.headings == std::vector<Text>{"", "Depth", "Code", "Line T.", "Color"});
    CHECK(LabelsSet() == 3);
    CHECK(PromptTable[19][DefaultText] == "d19");
    CHECK(PromptTable[19][NewText] == "Hole Name");
}

TEST_CASE("the names of the rows of the scale and of the wells are slots too")
{
    frmBorinput::SSScale.rowHeadings = {"", "End Depth", "Inc,#Ticks"};
    WritePrompts({{12, "Bottom"}, {90, "Other"}, {18, "X, Y"}});
    LoadPrompts();
    CHECK(frmBorinput::SSScale.rowHeadings[1] == "Bottom");
    CHECK(frmBorinput::SSScale.rowHeadings[2] == "Inc,#Ticks");
    CHECK(frmBorinput::SSScale.rowHeadings[7] == "X, Y");
    CHECK(frmBorinput::SSGenWellInfo.rowHeadings[14] == "Other");
}

TEST_CASE("an empty new text makes the label empty")
{
    WritePrompts({{72, ""}, {19, ""}});
    LoadPrompts();
    CHECK(PromptLabel(19, "Boring Name") == "");
    CHECK(PromptLabel(72, "Descriptions") == "");
}

TEST_CASE("the label of View Data gets its arrow")
{
    WritePrompts({{192, "Show"}});
    LoadPrompts();
    CHECK(PromptLabel(192, "View Data ->") == "Show ->");
}

TEST_CASE("slots in reserve are read and relabel nothing; forced, all 182 others are set, once")
{
    WritePrompts({{26, "x"}, {66, "x"}, {215, "x"}});
    LoadPrompts();
    CHECK(LabelsSet() == 0);
    CHECK(PromptTable[66][NewText] == "x");
    PromptForce = 1;
    LoadPrompts();
    CHECK(LabelsSet() == 182);
    CHECK(PromptForce == 0);
    CHECK(frmBorinput::SSLegend.headings[2] == "d126");
    CHECK(frmBorinput::SSSamp.headings[5] == "d63");
}

TEST_CASE("a prompt file that is missing or short is a failure by number, with no report of its own")
{
    CHECK(FailureOf(LoadPrompts) == FileNotFound);
    WriteScratch("prompt.txt", Lines({"a", "b"}));
    CHECK(FailureOf(LoadPrompts) == InputPastEnd);
    CHECK(FailureOf(frmPrompt::Load) == InputPastEnd);
    CHECK(Messages.empty());
}

TEST_CASE("the stock file of prompts has a default and a label for every slot, and relabels nothing")
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"));
    LoadPrompts();
    CHECK(LabelsSet() == 0);
    CHECK(PromptTable[19][DefaultText] == "Boring Name");
    CHECK(PromptTable[213][DefaultText] == "Notes");
}

TEST_CASE("the prompt editor writes the defaults, then the new texts, and relabels at once")
{
    WritePrompts();
    frmPrompt::Load();
    CHECK(frmPrompt::SS1.headings == std::vector<Text>{"", "Default Text", "New Text"});
    TypeCell(frmPrompt::SS1, 19, NewText, "Hole Name");
    TypeCell(frmPrompt::SS1, 20, DefaultText, "locked");
    CHECK(frmPrompt::Changed);
    frmPrompt::mnuSave();
    CHECK_FALSE(frmPrompt::Changed);
    CHECK(PromptLabel(19, "Boring Name") == "Hole Name");
    LineReader in("prompt.txt");
    in.Skip(18);
    CHECK(in.Line() == "d19");
    CHECK(in.Line() == "d20");
    in.Skip(195 + 18);
    CHECK(in.Line() == "Hole Name");
    in.Skip(196);
    CHECK(in.AtEnd());
}

TEST_CASE("Revert restores all labels at once, even those whose design differs from the default of the file")
{
    WritePrompts({{19, "Hole Name"}, {67, ""}});
    LoadPrompts();
    frmPrompt::Load();
    frmPrompt::mnuRevert();
    CHECK(PromptLabel(19, "Boring Name") == "d19");
    CHECK(PromptLabel(20, "Map File") == "d20");
    CHECK(frmBorinput::SSLith.title == "d67");
    CHECK(LabelsSet() == 182);
    CHECK(PromptForce == 0);
    CHECK(frmPrompt::SS1.Cell(19, NewText) == "d19");
    PromptSlot = {};
    LoadPrompts(); // the file holds the defaults now
    CHECK(LabelsSet() == 0);
}

TEST_CASE("after Revert no typed prompt can be taken back or done again")
{
    WritePrompts();
    frmPrompt::Load();
    for (const char* words : {"Hole Name", "Hole"})
        TypeCell(frmPrompt::SS1, 19, NewText, words);
    REQUIRE(UndoGrid(frmPrompt::SS1));
    frmPrompt::mnuRevert();
    CHECK_FALSE(UndoGrid(frmPrompt::SS1));
    CHECK_FALSE(RedoGrid(frmPrompt::SS1));
    CHECK(frmPrompt::SS1.Cell(19, NewText) == "d19");
    CHECK_FALSE(frmPrompt::Changed);
}

TEST_CASE("a label typed back to its default without a revert stays in the window until it is forced")
{
    WritePrompts({{19, "Hole Name"}});
    LoadPrompts();
    WritePrompts();
    LoadPrompts();
    CHECK(PromptLabel(19, "Boring Name") == "Hole Name");
}

TEST_CASE("Exit of the prompt editor asks only when cells were changed")
{
    WritePrompts();
    frmPrompt::Load();
    CHECK(frmPrompt::mnuExit());
    CHECK(Messages.empty());
    TypeCell(frmPrompt::SS1, 19, NewText, "Hole Name");
    Answers = {Cancel, No, Yes};
    CHECK_FALSE(frmPrompt::mnuExit());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Would you like to save changes before quitting?");
    CHECK(Messages[0].buttons == YesNoCancel);
    CHECK(Messages[0].icon == Question);
    CHECK(frmPrompt::mnuExit());
    CHECK_FALSE(PromptSlot[19].has_value());
    CHECK(frmPrompt::mnuExit());
    CHECK(PromptLabel(19, "Boring Name") == "Hole Name");
}

TEST_CASE("the first and the last of the prompts are read, shown, saved and put back as the others are")
{
    const Text last = "d" + std::to_string(MaxPrompts);
    WritePrompts({{1, "first"}, {MaxPrompts, "last"}});
    LoadPrompts();
    CHECK(PromptTable[1][NewText] == "first");
    CHECK(PromptTable[MaxPrompts][NewText] == "last");
    CHECK(PromptTable[MaxPrompts][DefaultText] == last);
    frmPrompt::Load();
    CHECK(frmPrompt::SS1.Cell(1, NewText) == "first");
    CHECK(frmPrompt::SS1.Cell(MaxPrompts, NewText) == "last");
    CHECK(frmPrompt::SS1.Cell(MaxPrompts, DefaultText) == last);
    frmPrompt::mnuSave();
    LoadPrompts();
    CHECK(PromptTable[MaxPrompts][NewText] == "last");
    frmPrompt::mnuRevert();
    CHECK(frmPrompt::SS1.Cell(1, NewText) == "d1");
    CHECK(frmPrompt::SS1.Cell(MaxPrompts, NewText) == last);
    CHECK(PromptTable[1][NewText] == "d1");
    CHECK(PromptTable[MaxPrompts][NewText] == last);
}
