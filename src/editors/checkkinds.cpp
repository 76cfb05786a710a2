// checkkinds.cpp -- the kinds of lines that the check lists have.
#include "editors/checkentry.h"

#include <string_view>

const std::vector<CheckKind>& CheckKinds()
{
    static const std::vector<CheckKind> kinds = {
        // Borings
        {"save", CheckWeight::Warning, "What a save warns of"},
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
