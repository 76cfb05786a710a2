// checkedboring.h -- what the check lists of sections, fences and soil tables look at: the borings and layer tables
// that they name, as they are on disk.
//
// A check runs at every pause in the typing, so a file is read again only when it has changed. No record of a drawing
// is touched.
#pragma once

#include "boring/boringdata.h"
#include "gis/gisfile.h"
#include "session/slots.h"
#include "session/text.h"

#include <array>
#include <memory>
#include <vector>

namespace VCROSS
{
struct CheckedLayer {
    double Depth = 0; // of the bottom
    Text Code;        // as a drawing has it: "F0," for a blank one
};

struct CheckedSample {
    double Start = 0, End = 0;
    std::array<Text, SampleParams + 1> Param; // from index 1
};

struct CheckedBoring {
    bool There = false;   // the file can be read
    bool Current = false; // and has the form of this program
    int Failure = 0;      // the number of what its reading ended with
    Text Name, WellName;
    double RefElevation = 0, StickUp = 0;
    double BoreDepth = 0; // greatest end of the outer layers
    std::vector<CheckedLayer> Layers;
    double Deepest = 0; // of the layers
    // For values beside columns, and for soil tables.
    double DepthMax = 0;
    std::vector<CheckedSample> Samples;
    std::array<bool, GenParams + 1> GenParamFilled{};
    Slots<Slots<Text, 9>, SampleParams> SampleSetup;
    Slots<Slots<Text, 8>, GenParams> GenSetup;

    double Ground() const // returns the elevation of the ground
    {
        return RefElevation - StickUp;
    }
    double Depth() const // returns the depth of all that is drawn of it
    {
        return BoreDepth > Deepest ? BoreDepth : Deepest;
    }
    bool Whole() const // returns whether the file has this program's form and was read to its end
    {
        return Current && Failure == 0;
    }
};

using BoringLookedAt = std::shared_ptr<const CheckedBoring>;
// Returns the boring behind a path that a drawing would open; never null.
BoringLookedAt LookAtBoring(const Text& path);

using TableLookedAt = std::shared_ptr<const GisRecord>;
// Returns the layer table behind a path, with the file names in it as sections look them up; null for one that cannot
// be read whole. A name with no "." gets ".gis" behind it.
TableLookedAt LookAtTable(const Text& path);
// Returns the row of a boring's file in the table; 0 for none.
int RowInTable(const GisRecord& table, const Text& boringFile);
// Returns whether layer k is there at the boring of a row; false for row 0.
bool HasThickness(const GisRecord& table, int row, int k);
} // namespace VCROSS
