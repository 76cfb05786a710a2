// checkparts.h -- what the parts of a boring's check list share. Each looks at one side of the boring as it stands in
// the boxes, and flags what the page would show wrongly or not at all. They read files where a run looks for them, show
// nothing and change nothing; CheckBoring calls them in its hush.
#pragma once

#include "report/layout.h"
#include "tools/checkentry.h"

namespace BoringChecks
{
// The numbers of the boxes, as ActiveBox. The text boxes share one.
enum Box {
    ScaleBox = 2,
    PartsBox = 3,
    SampleSetupBox = 4,
    GeneralSetupBox = 5,
    ParamBox = 6,
    SampleBox = 7,
    LithBox = 8,
    TextBoxes = 9,
    WellBox = 10,
    OuterBox = 11,
    InnerBox = 12,
    CuttingBox = 14,
    FormationBox = 15,
    LegendBox = 16
};

// ---- The list

extern std::vector<CheckEntry>* list; // where the entries go; set by CheckBoring

void Flag(const char* kind, const Text& words, int box, int row, int column = 1);
void FlagText(const char* kind, const Text& words, const char* textBox, int place = 0);

// ---- The boxes

int Rows(int box);                       // up to the last one with data
Text Cell(int box, int row, int column); // as the file will hold it: without blanks at its ends
double Number(int box, int row, int column);
bool Empty(int box, int row, int column);
bool EmptyRow(int box, int row);
Text WhereIs(int box,
             int row); // "Soil Sample Data, row 3", or the row's own name: "General Well Information, Stick-Up"
Text Quoted(const Text& words);

// A stored line of the descriptions or of the remarks, without the mark that ends a paragraph, and where the line
// begins in the text of its box, line ends as one character.
struct StoredLine {
    Text Words;
    int Place;
};
// Returns the lines as the file holds them or will hold them: kind 1 is the descriptions, 3 the remarks. Leaves them in
// LineBuffer.
std::vector<StoredLine> StoredLines(int kind);

// ---- The page

// The depths of a page of the log, by the scale that is typed in, as a run cuts them.
struct PageDepths {
    float Start, End;
};
std::vector<PageDepths> LogPages();
float EndOfLog();    // returns the depth that the last page ends at; 0 for a log without pages
float LastContact(); // returns the depth of the deepest contact; 0 without contacts
struct DrawnPart {
    Text Name; // in upper case
    double Width;
    int Row;
};
std::vector<DrawnPart> DrawnParts(); // returns the report parts up to the first empty one, where a run ends
bool Draws(const char* front);       // returns whether the name of one of them begins so
bool DrawsGraphic();                 // returns whether patterns of the soil codes are drawn
bool DrawsWell();
Text LayoutFilePath();                 // returns where a run looks for the layout
bool ReadLayout(LayoutRecord& layout); // reads the layout; returns false where it is not there
double PageLength();                   // returns the inches that a page has for its depths, by the layout

// Looks up the pattern files in their folder, if it has changed: before codes are held against them.
void LookForPatterns();

// ---- The parts of the list

void CheckScale(); // flags what a save warns of
void CheckPages();
void CheckDepthCells();
void CheckContacts();
void CheckSamples();
void CheckDepths();
void CheckWater();
void CheckMarkers();
void CheckNouns();
void CheckLostText();
void CheckLines();
void CheckRoom();
void CheckLetters();
void CheckCodes();
void CheckSampleKeys();
void CheckWellFills();
void CheckLegend();
void CheckReportParts();
void CheckWidth();
void CheckGraphs();
void CheckFiles();
} // namespace BoringChecks
