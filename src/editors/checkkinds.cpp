// checkkinds.cpp -- the kinds of lines that the check lists have.
#include "editors/checkentry.h"

#include <string_view>

const std::vector<CheckKind>& CheckKinds()
{
    static const std::vector<CheckKind> kinds = {
        // Borings
        {"scale", CheckWeight::Error, "A scale that the page cannot follow"},
        {"save", CheckWeight::Warning, "What a save warns of besides"},
        {"page-gap", CheckWeight::Error, "Depths between two pages that are on none"},
        {"page-overlap", CheckWeight::Remark, "Depths that are on two pages"},
        {"depth-number", CheckWeight::Error, "Depths that are no number"},
        {"depth-form", CheckWeight::Warning, "Depths of which only a part is read"},
        {"contact-order", CheckWeight::Error, "Contacts out of order or without a depth"},
        {"sample-ends", CheckWeight::Error, "Samples without a start or an end, or upside down"},
        {"sample-same", CheckWeight::Warning, "Two samples of one depth"},
        {"sample-overlap", CheckWeight::Remark, "Samples that overlap"},
        {"below-log", CheckWeight::Error, "Depths below the end of the log"},
        {"below-contact", CheckWeight::Remark, "Depths below the last contact"},
        {"water", CheckWeight::Warning, "Water deeper than the hole"},
        {"marker-none", CheckWeight::Error, "Descriptions that belong to no layer"},
        {"marker-code", CheckWeight::Warning, "Descriptions that contradict the code of their layer"},
        {"text-lost", CheckWeight::Error, "Text that is not printed"},
        {"text-room", CheckWeight::Error, "Text that has no room on the page"},
        {"lines", CheckWeight::Error, "Text of more lines than its box holds"},
        {"letters", CheckWeight::Error, "Letters outside the code page"},
        {"fill", CheckWeight::Error, "Codes that draw blank"},
        {"fill-letters", CheckWeight::Remark, "Codes that draw blank where patterns are drawn"},
        {"color", CheckWeight::Error, "Colors that are drawn white"},
        {"well-fill", CheckWeight::Warning, "Layers of the well that draw blank"},
        {"legend-fill", CheckWeight::Warning, "Codes of the intro page's legend that draw blank"},
        {"part", CheckWeight::Error, "Report parts that are not drawn"},
        {"part-kind", CheckWeight::Warning, "Graphs that print numbers"},
        {"width", CheckWeight::Error, "Report parts wider than the page"},
        {"axis-fails", CheckWeight::Error, "Axes that cannot be drawn"},
        {"axis", CheckWeight::Warning, "Values beyond the axis of their graph"},
        {"file", CheckWeight::Error, "Files of the page that are not found"},
        {"file-unused", CheckWeight::Remark, "Files that are not found and that the page does not show"},
        {"layout-none", CheckWeight::Warning, "No layout is named"},
        // Sections, fences, soil tables, the workbench
        {"gis-columns", CheckWeight::Warning, "Columns of the table that are not those of its layer list"},
        {"gis-no-top", CheckWeight::Warning, "Layers that are drawn from the ground on"},
    };
    return kinds;
}

CheckWeight WeightOf(const CheckEntry& entry)
{
    for (const CheckKind& kind : CheckKinds())
        if (std::string_view(kind.key) == entry.Kind)
            return kind.weight;
    return CheckWeight::Warning;
}
