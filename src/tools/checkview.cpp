// checkview.cpp -- a check list in order and in words.
#include "tools/checkview.h"

#include "boring/boringboxes.h"
#include "report/prompts.h"
#include "session/projectconfig.h"
#include "session/session.h"

#include <algorithm>
#include <string_view>
#include <tuple>

static const char* const offKey = "check.off";

// ---- The project's choice

static std::vector<Text> KindsOff()
{
    return SettingList(ProjectSetting(offKey));
}

static bool Names(const std::vector<Text>& keys, const Text& key)
{
    return std::any_of(keys.begin(), keys.end(), [&](const Text& one) { return SameText(one, key); });
}

bool KindIsOff(const Text& key)
{
    return Names(KindsOff(), key);
}

bool SwitchKind(const Text& key, bool off)
{
    std::vector<Text> keys = KindsOff();
    if (Names(keys, key) == off)
        return true;
    if (off)
        keys.push_back(key);
    else
        std::erase_if(keys, [&](const Text& one) { return SameText(one, key); });
    return SetProjectSetting(offKey, ListSetting(keys));
}

// ---- Order

// Boxes that share a number stand in the order in which the check came to them.
static std::vector<const CheckEntry*> FirstOfBoxes(const std::vector<CheckEntry>& entries)
{
    std::vector<const CheckEntry*> first;
    for (const CheckEntry& entry : entries)
        if (std::none_of(first.begin(), first.end(), [&](const CheckEntry* one) {
                return one->InGrid == entry.InGrid && std::string_view(one->TextBox) == entry.TextBox;
            }))
            first.push_back(&entry);
    return first;
}

CheckList ListForProject(std::vector<CheckEntry> found, bool all)
{
    const std::vector<const CheckEntry*> boxes = FirstOfBoxes(found);
    const auto box = [&](const CheckEntry& entry) {
        return std::find_if(boxes.begin(), boxes.end(),
                            [&](const CheckEntry* one) {
                                return one->InGrid == entry.InGrid && std::string_view(one->TextBox) == entry.TextBox;
                            }) -
               boxes.begin();
    };
    using Key = std::tuple<CheckWeight, int, std::ptrdiff_t, int, int, int>;
    std::vector<std::pair<Key, size_t>> order;
    for (size_t i = 0; i < found.size(); ++i) {
        const CheckEntry& entry = found[i];
        order.push_back({{WeightOf(entry), entry.Box, box(entry), entry.Row, entry.Place, entry.Column}, i});
    }
    std::sort(order.begin(), order.end()); // by what was found first where all else is the same
    const std::vector<Text> off = all ? std::vector<Text>() : KindsOff();
    CheckList list;
    for (const auto& [key, i] : order)
        if (Names(off, found[i].Kind))
            ++list.Hidden;
        else
            list.Entries.push_back(found[i]);
    return list;
}

// ---- Words

const char* WeightWord(CheckWeight weight)
{
    return weight == CheckWeight::Error ? "Error" : weight == CheckWeight::Warning ? "Warning" : "Remark";
}

Text EntryInWords(const CheckEntry& entry)
{
    return Text(WeightWord(WeightOf(entry))) + ": " + entry.Words;
}

Text KindInWords(const CheckEntry& entry)
{
    for (const CheckKind& kind : CheckKinds())
        if (std::string_view(kind.key) == entry.Kind)
            return kind.words;
    return "";
}

// The label of a text box, and the text in it.
static std::pair<Text, const Text*> BoxOfText(std::string_view name)
{
    using namespace frmBorinput;
    const struct {
        std::string_view name;
        int slot;
        const char* words;
        const Text& text;
    } boxes[] = {
        {"MemoDes", 72, "Descriptions", MemoDes.text},
        {"MemoWcon", 112, "Well Construction Notes", MemoWcon.text},
        {"MemoRemarks", 127, "Remarks", MemoRemarks.text},
        {"MemoBottNotes", 113, "General Notes:", MemoBottNotes.text},
        {"txtClient", 2, "Client/Project Information", txtClient},
        {"MemoSoil", 213, "Notes", frmSoil::MemoSoil.text},
        {"Text1", 19, "Boring Name", Text1},
        {"Text2", 20, "Map File", Text2},
    };
    for (const auto& box : boxes)
        if (box.name == name) {
            Text words = PromptLabel(box.slot, box.words);
            if (words.ends_with(':'))
                words.pop_back();
            return {words, &box.text};
        }
    return {Text(name), nullptr};
}

// The line of a text in which a place is; a line end counts as one character.
static int LineAt(const Text& text, int place)
{
    int line = 1;
    for (size_t i = 0; i < text.size() && place > 0; ++i) {
        if (text[i] == '\r')
            continue;
        line += text[i] == '\n';
        --place;
    }
    return line;
}

static Text Heading(const std::vector<Text>& headings, int n)
{
    return n > 0 && size_t(n) < headings.size() ? headings[size_t(n)] : Text();
}

static Text PlaceInGrid(const Grid& grid, int row, int column)
{
    const Text rowWords = Heading(grid.rowHeadings, row), columnWords = Heading(grid.headings, column);
    Text words = grid.title;
    words += (words.empty() ? "" : ", ") + (rowWords.empty() ? "row " + PlainNumber(row) : Text(Trim(rowWords)));
    return columnWords.empty() ? words : words + ", " + Text(Trim(columnWords));
}

Text PlaceInWords(const CheckEntry& entry)
{
    if (entry.TextBox[0]) {
        const auto [label, text] = BoxOfText(entry.TextBox);
        return text && Holds(*text, '\n') ? label + ", line " + PlainNumber(LineAt(*text, entry.Place)) : label;
    }
    const Grid* grid = entry.InGrid ? entry.InGrid : frmBorinput::BoxGrid(entry.Box);
    return grid ? PlaceInGrid(*grid, entry.Row, entry.Column) : Text();
}

Text CountsInWords(const std::vector<CheckEntry>& entries)
{
    static constexpr std::pair<CheckWeight, const char*> weights[] = {
        {CheckWeight::Error, "error"}, {CheckWeight::Warning, "warning"}, {CheckWeight::Remark, "remark"}};
    Text words;
    for (const auto& [weight, word] : weights) {
        const auto count = std::count_if(entries.begin(), entries.end(),
                                         [w = weight](const CheckEntry& entry) { return WeightOf(entry) == w; });
        if (count > 0)
            words += (words.empty() ? "" : ", ") + PlainNumber(int(count)) + " " + word + (count == 1 ? "" : "s");
    }
    return words;
}

Text HiddenInWords(int hidden)
{
    if (hidden == 0)
        return "";
    return PlainNumber(hidden) + (hidden == 1 ? " more is" : " more are") + " not shown, by the project's choice";
}
