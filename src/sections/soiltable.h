// soiltable.h -- SoilRun: the soil analysis table in drawing, and the run over the files of log.mas.
//
// Filled by getsoildata for each file, from the definition file and the boring that it names; empty before. The
// boring's client block goes where drawclient prints it from. Samples and layers are numbered from 1; depths are
// 32-bit.
#pragma once

#include "boring/boringdata.h"
#include "session/slots.h"
#include "session/text.h"

#include <vector>

namespace VCROSS
{
struct SoilRunRecord {
    // From the definition file.
    Text boringFile;
    std::vector<int> columnParam; // sample parameters, a table column each, from index 0
    Text label1, label2;          // captions of the two standard rows; blank: the row is hidden
    bool graph = false;           // bars in the place of numbers
    Text mainTitle, title1, title2, title3;
    Slots<Text, MaxBottNotes> notes;
    // From the boring.
    Text boringName;
    float depthMax = 0, depthInc = 0;
    Text depthUnit;
    int32_t sampleCount = 0;
    Slots<float, MaxSamples> sampleStart, sampleEnd;
    Slots<Text, MaxSamples> sampleLab;
    TextTable<MaxSamples, SampleParams> sampleParam;
    int32_t layerCount = 0;
    Slots<float, MaxLith> layerDepth; // of the bottom
    Slots<Text, MaxLith> layerCode;
    // Its parameters: three captions, two standards and the units. split1 is the full scale of the bars.
    Slots<Text, SampleParams> split1, split2, split3, standard1, standard2, units;
};
extern SoilRunRecord SoilRun;

void vsoilstart(); // draws every file of log.mas
// Reads RunPages.pageFile and its boring into SoilRun. Returns false where it is not there, and a box has told so.
bool getsoildata();
void drawsoilframe(); // draws the head and the foot of the page
void drawsoilmain();  // draws the log of the boring and the table
} // namespace VCROSS
