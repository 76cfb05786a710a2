// prompts.cpp -- the labels of the input windows, and the editor of prompt.txt.
#include "report/prompts.h"

#include "boring/boringboxes.h"
#include "grid/gridedit.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/shared.h"

Slots<Slots<Text, 2>, MaxPrompts> PromptTable;
int16_t PromptForce = 0;
Slots<std::optional<Text>, MaxPrompts> PromptSlot;

static const char* const promptFile = "prompt.txt";

namespace
{
// A run of slots that no window has a label for.
struct Reserved {
    int first, last;
};

// Slots that a grid of the log tool bears: its title, or headings from column or row 1 on.
enum Place { Title, Headings, Rows };
struct GridLabels {
    int first, last;
    Grid& grid;
    Place place;
};
} // namespace

static constexpr Reserved reservedSlots[] = {{26, 31},   {53, 57},   {66, 66},   {73, 75},   {91, 95},   {108, 108},
                                             {114, 114}, {123, 123}, {128, 130}, {154, 155}, {183, 185}, {214, 215}};

static const GridLabels gridLabels[] = {
    {8, 8, frmBorinput::SSInfo, Title},           {9, 10, frmBorinput::SSInfo, Headings},
    {11, 11, frmBorinput::SSScale, Title},        {12, 18, frmBorinput::SSScale, Rows},
    {22, 22, frmBorinput::SSRepParts, Title},     {23, 24, frmBorinput::SSRepParts, Headings},
    {32, 32, frmBorinput::SSP1Setup, Title},      {34, 42, frmBorinput::SSP1Setup, Headings},
    {43, 43, frmBorinput::SSP2Setup, Title},      {45, 52, frmBorinput::SSP2Setup, Headings},
    {58, 58, frmBorinput::SSSamp, Title},         {59, 63, frmBorinput::SSSamp, Headings},
    {64, 64, frmBorinput::SSPar, Title},          {65, 65, frmBorinput::SSPar, Headings},
    {67, 67, frmBorinput::SSLith, Title},         {68, 71, frmBorinput::SSLith, Headings},
    {76, 76, frmBorinput::SSGenWellInfo, Title},  {77, 90, frmBorinput::SSGenWellInfo, Rows},
    {96, 96, frmBorinput::SSOuterLay, Title},     {97, 101, frmBorinput::SSOuterLay, Headings},
    {102, 102, frmBorinput::SSInnerLay, Title},   {103, 107, frmBorinput::SSInnerLay, Headings},
    {109, 109, frmBorinput::SSW, Title},          {110, 111, frmBorinput::SSW, Headings},
    {115, 115, frmBorinput::SSFormations, Title}, {116, 117, frmBorinput::SSFormations, Headings},
    {118, 118, frmBorinput::SSCuttings, Title},   {119, 122, frmBorinput::SSCuttings, Headings},
    {124, 124, frmBorinput::SSLegend, Title},     {125, 126, frmBorinput::SSLegend, Headings},
};

static constexpr int viewDataSlot = 192; // a button that points to where the data is shown

Text PromptLabel(int slot, const Text& design)
{
    return PromptSlot[slot].value_or(design);
}

static void SetLabel(int slot, const Text& label)
{
    for (const Reserved& reserved : reservedSlots)
        if (slot >= reserved.first && slot <= reserved.last)
            return;
    PromptSlot[slot] = slot == viewDataSlot ? label + " ->" : label;
    for (const GridLabels& labels : gridLabels) {
        if (slot < labels.first || slot > labels.last)
            continue;
        if (labels.place == Title) {
            labels.grid.title = label;
            continue;
        }
        std::vector<Text>& names = labels.place == Headings ? labels.grid.headings : labels.grid.rowHeadings;
        const size_t at = size_t(slot - labels.first) + 1;
        if (names.size() <= at)
            names.resize(at + 1);
        names[at] = label;
    }
}

static void ReadPrompts(Slots<Slots<Text, 2>, MaxPrompts>& table)
{
    LineReader in(promptFile);
    for (const PromptColumn column : {DefaultText, NewText})
        for (int slot = 1; slot <= MaxPrompts; ++slot)
            table[slot][column] = in.Line();
}

void LoadPrompts()
{
    ReadPrompts(PromptTable);
    // Kept: a label that was changed and is back at its default stays as it is in the windows, unless it is forced.
    for (int slot = 1; slot <= MaxPrompts; ++slot)
        if (PromptForce == 1 || PromptTable[slot][NewText] != PromptTable[slot][DefaultText])
            SetLabel(slot, PromptTable[slot][NewText]);
    PromptForce = 0;
}

// ----------------------------------------------------------------------------------------------------- the editor

Grid frmPrompt::SS1(MaxPrompts, 2);
bool frmPrompt::Changed = false;

static const SharedRecord shared[] = {
    {"PromptTable", Kind::Session, PromptTable},
    {"PromptForce", Kind::Session, PromptForce},
    {"PromptSlot", Kind::Session, PromptSlot},
    {"frmPrompt::SS1", Kind::Window, frmPrompt::SS1},
    {"frmPrompt::Changed", Kind::Window, frmPrompt::Changed},
};

void frmPrompt::Load()
{
    SS1 = Grid(MaxPrompts, 2);
    SS1.title = "VeskLog - VeskCross - VeskFence - VeskGIS - VeskSoil Prompts";
    SS1.headings = {"", "Default Text", "New Text"};
    SS1.locked = 1;
    SS1.column = SS1.selected.left = SS1.selected.right = NewText;
    SS1.changed = [] { Changed = true; };
    Changed = false;
    Slots<Slots<Text, 2>, MaxPrompts> table;
    ReadPrompts(table);
    for (int slot = 1; slot <= MaxPrompts; ++slot)
        for (const PromptColumn column : {DefaultText, NewText})
            SS1.Cell(slot, column) = table[slot][column];
}

static void WritePrompts()
{
    LineWriter out(promptFile);
    for (const PromptColumn column : {DefaultText, NewText})
        for (int slot = 1; slot <= MaxPrompts; ++slot)
            out.Line(frmPrompt::SS1.Cell(slot, column));
    out.Close();
    frmPrompt::Changed = false;
}

void frmPrompt::mnuSave()
{
    WritePrompts();
    LoadPrompts();
}

void frmPrompt::mnuRevert()
{
    for (int slot = 1; slot <= MaxPrompts; ++slot)
        SS1.Cell(slot, NewText) = SS1.Cell(slot, DefaultText);
    ForgetSteps(SS1);
    WritePrompts();
    PromptForce = 1;
    LoadPrompts();
}

bool frmPrompt::mnuExit()
{
    if (!Changed)
        return true;
    const int answer = MsgBox("Would you like to save changes before quitting?", YesNoCancel, Question);
    if (answer == Yes)
        mnuSave();
    return answer != Cancel;
}
