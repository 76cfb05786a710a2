// vlog.h -- the drawing routines of the log, one line each.
//
// Every column is entered with the pen at its left edge on the baseline and leaves it at its right edge on the
// baseline, with both scales 1 and line style 1; the pen's travel is the only record of where a column stands.
#pragma once

#include "session/text.h"

#include <vector>

namespace VLOG
{
// logrun.cpp
void vlogstart(); // draws the pages of log.mas, one after another
// columns.cpp
void processrepparts();             // draws the report part at ColumnNumber, by the table of all columns
bool knowncolumn(const Text& name); // returns whether a report part's name, in upper case, stands in the table
// frame.cpp, scale.cpp
void drawframe();
void framefont(); // sets the font of the set-up, 6 point, left aligned
void dateline();  // draws the date and the boring's file, outside the frame
void drawscale();
void drawelev();
// lithology.cpp
void drawuscs();
void drawformation();
void drawcuttings();
void drawcuttingsgraph();
// samples.cpp
void drawsamp();
void drawblows();
void drawlabno();
struct Blow {
    float Depth; // of the middle of its part of the sample
    Text Value;
};
std::vector<Blow> blowsonpage(); // returns every blow count of the page, from the top
// descriptions.cpp; dotdescriptions.cpp, manualdescriptions.cpp, desclegend.cpp
void ArrangeDescs();
void drawdes();
void drawdesdot();
void drawdesold();
void drawdesclegend();
// remarks.cpp
void drawremarks(float width);
void drawwcon(float width);
// titleblocks.cpp
void drawlogo(double e);
void drawclient(double e);
void drawborinfo(double e, int kind, int row);
void drawlongborinfo(double e);
void drawlogplusinfo(double e);
void drawmap();
void drawbottnotes(double e, int kind);
// paramnumbers.cpp, paramgraphs.cpp, blowgraphs.cpp, generalgraphs.cpp
void drawpar(float width);
void drawpargraph(float width);
void draw2pargraph();
void draw4pargraph();
void drawblowgraph();
void drawblowgraph2();
void drawgpar(float width);
void drawgpargraph();
void drawmpgraph();
// welldiagram.cpp, wellcasings.cpp, wellfills.cpp, waterlevels.cpp
void drawgw();
void drawwaterlevels();
// narrowcolumn.cpp: what the narrow columns begin and end with.
// Marks the origin and draws a heading that reads upward from (x, 0.05), 8 point.
void turnedheading(double x, const Text& words);
// Draws the lines of the heading band and, with bodyBox, the box of the body; leaves the origin on the depth line and
// the y scale at DepthPerInch.
void narrowcolumn(double width, bool bodyBox = true);
// Sets the y scale to 1 and moves the pen to the right edge on the baseline.
void endcolumn(double width);
} // namespace VLOG
