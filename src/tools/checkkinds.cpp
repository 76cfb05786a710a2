// checkkinds.cpp -- the kinds of lines that the check lists have.
#include "tools/checkentry.h"

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
        // Sections, fences, soil tables
        {"named-boring", CheckWeight::Error, "Borings that are not found or cannot be read"},
        {"named-file", CheckWeight::Error, "Heading files, layer tables and data files that are not found"},
        {"sheet-number", CheckWeight::Error, "Cells of sections and fences that are no number"},
        {"sheet-scale", CheckWeight::Error, "Scales that are upside down or have no increment"},
        {"sheet-code", CheckWeight::Error, "Codes too short for a pattern, at which the drawing stops"},
        {"table-row", CheckWeight::Error, "Borings that the layer table does not have"},
        {"sheet-order", CheckWeight::Warning, "Borings out of order along a section"},
        {"sheet-frame", CheckWeight::Warning, "Borings beyond the frame or the base plane"},
        {"sheet-ticks", CheckWeight::Warning, "Scales with too few or too many ticks, and elevations that are rounded"},
        {"sheet-blank", CheckWeight::Warning, "Codes that draw blank in sections, fences and soil tables"},
        {"sheet-legend", CheckWeight::Warning, "Fills that the legend lacks"},
        {"sheet-column", CheckWeight::Warning, "Columns of a section that have no length"},
        {"sheet-label", CheckWeight::Warning, "Borings without the name that is to label them"},
        {"sheet-water", CheckWeight::Warning, "Water deeper than the boring, in sections and fences"},
        {"sheet-title", CheckWeight::Warning, "Titles that are wider than their box"},
        {"sheet-choice", CheckWeight::Warning, "Letters that a cell does not know"},
        {"sheet-parameter", CheckWeight::Warning, "Parameters of a section that show nothing"},
        // Fences
        {"fence-panel", CheckWeight::Error, "Panels that are not drawn"},
        {"fence-place", CheckWeight::Error, "Borings of a fence without coordinates"},
        {"fence-row", CheckWeight::Warning, "Rows of a fence without a boring"},
        // Soil tables
        {"soil-parameter", CheckWeight::Error, "Numbers of a soil table that are no parameter"},
        {"soil-columns", CheckWeight::Error, "More columns of a soil table than the page has room for"},
        {"soil-scale", CheckWeight::Error, "Bars of a soil table without a full scale"},
        {"soil-notes", CheckWeight::Error, "More notes of a soil table than there are lines"},
        {"soil-values", CheckWeight::Warning, "Columns of a soil table without values, without captions or twice"},
        {"soil-depth", CheckWeight::Warning, "Samples and layers below the depth scale of a soil table"},
        {"soil-rows", CheckWeight::Remark, "Rows of a soil table that are printed on one another"},
        // The workbench
        {"gis-number", CheckWeight::Error, "Cells of a layer table that are neither depth nor X"},
        {"gis-columns", CheckWeight::Warning, "Columns of the table that are not those of its layer list"},
        {"gis-no-top", CheckWeight::Warning, "Layers of a table that cover those above them"},
        {"gis-order", CheckWeight::Warning, "Depths of a layer table that are out of order"},
        {"gis-place", CheckWeight::Warning, "Borings of a layer table without coordinates or elevation"},
        {"gis-same-place", CheckWeight::Warning, "Borings of a layer table at one place"},
        {"gis-twice", CheckWeight::Warning, "Borings that a layer table has twice"},
        {"gis-boring", CheckWeight::Warning, "Borings of a layer table that are not found"},
        {"gis-color", CheckWeight::Warning, "Colors of a layer table that are none"},
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
