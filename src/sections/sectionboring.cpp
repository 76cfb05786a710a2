// sectionboring.cpp -- the borings of a section or fence, read from their files.
#include "sections/sectionboring.h"

#include "boring/boringblocks.h"
#include "logrender/logdata.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"

#include <algorithm>
#include <cstdint>

using namespace VCROSS;

Text VCROSS::BoringFileOf(const Text& name)
{
    return WithEnding(name, ".bor");
}

Text VCROSS::SectionBoringPath(const Text& name)
{
    return name.find_first_of(":\\/") == Text::npos ? JoinPath(ProjectPath, name) : name;
}

Text VCROSS::LayerCode(const Text& code)
{
    return IsBlank(code) ? "F0," : code;
}

bool VCROSS::SectionBoringThere(const Text& path)
{
    if (!FileExists(path)) {
        MsgBox("Boring File Not Found: " + path, OkOnly, Exclamation);
        return false;
    }
    if (!LineReader(path).Line().starts_with("5.")) {
        MsgBox("This boring file has the format of a previous version: " + path, OkOnly, Exclamation);
        return false;
    }
    return true;
}

void VCROSS::StepOverEntry()
{
    if (RunPages.printing == 0 && !Platform.Unattended)
        ++RunPages.pageIndex;
}

// ---- The blocks of the file

SectionBoringFile::SectionBoringFile(const Text& path) : in(path), version(in.Line())
{
}

Text SectionBoringFile::ToSamples()
{
    Text name = in.Line();
    in.Skip(1 + 2 * MaxInfo + MaxScale); // the map, the title information, the scale
    Pass(2);                             // report parts
    in.Skip(1);                          // the layout file
    return name;
}

void SectionBoringFile::Pass(int cells)
{
    SkipBlock(in, cells);
}

int SectionBoringFile::ParamCells() const
{
    return ::ParamCells(version);
}

void SectionBoringFile::GenWell(int i, SectionWell& well)
{
    well.WellName = in.Line();
    in.Skip(3);
    CrossRun.refElevation[i] = TextNumber(in.Line());
    CrossRun.stickUp[i] = TextNumber(in.Line());
    in.Skip(MaxGenWell - 6);
}

void SectionBoringFile::OuterLayers(SectionWell& well)
{
    for (int32_t rows = in.Count(); rows > 0; --rows) {
        in.Skip(1);
        well.boreDepth = std::max(well.boreDepth, static_cast<float>(TextNumber(in.Line())));
        in.Skip(LayerCells - 2);
    }
}

// The lithology. Kept: the count is taken as it stands, so what looks at a layer above the bound fails later too.
static void Layers(SectionBoringFile& boring, int i)
{
    CrossRunRecord& run = CrossRun;
    const int32_t count = boring.in.Count();
    run.layerCount[i] = static_cast<int16_t>(std::min<int32_t>(count, INT16_MAX));
    for (int k = 1; k <= count; ++k) {
        run.layerDepth[i][k] = TextNumber(boring.in.Line());
        run.layerCode[i][k] = LayerCode(boring.in.Line());
        boring.in.Skip(LithCells - 2);
    }
    run.deepestLayer[i] = run.layerDepth[i][count];
}

// From the descriptions to the well's numbers.
static void ToGenWell(SectionBoringFile& boring)
{
    boring.Pass(1); // descriptions
    boring.Pass(boring.ParamCells());
    boring.in.Skip(SetupLines);
    boring.Pass(2); // well construction
    boring.Pass(1); // its notes
}

// The casing's end, and the screens in it.
static void InnerLayers(SectionBoringFile& boring, SectionWell& well)
{
    for (int32_t rows = boring.in.Count(); rows > 0; --rows) {
        const float start = TextNumber(boring.in.Line());
        const float end = TextNumber(boring.in.Line());
        well.casingDepth = std::max(well.casingDepth, end);
        if (UpperCase(boring.in.Line()).find("SCREEN") != Text::npos) {
            // Kept: the sixth screen and those below it take the place of the fifth.
            well.screenCount = std::min<int16_t>(static_cast<int16_t>(well.screenCount + 1), 5);
            well.screenTop[well.screenCount] = start;
            well.screenBottom[well.screenCount] = end;
        }
        boring.in.Skip(LayerCells - 3);
    }
}

void SectionBoringFile::ClientBlock()
{
    Pass(1); // remarks
    Pass(CuttingCells);
    Pass(2); // legend
    Pass(2); // formations
    in.Skip(MaxBottNotes);
    LogBoring.Client = {};
    LogBoring.Style = 1;
    for (int i = 1; i <= MaxClient && !in.AtEnd(); ++i)
        LogBoring.Client[i] = in.Line();
    if (!in.AtEnd())
        LogBoring.Style = RoundInt16(TextNumber(in.Line()));
}

// ---- The readers

void VCROSS::ReadSectionLayers(const Text& path, int i)
{
    SectionBoringFile boring(path);
    boring.ToSamples();
    boring.Pass(SampleCells);
    Layers(boring, i);
}

void VCROSS::ReadSectionWell(const Text& path, int i, SectionWell& well, bool withClient)
{
    well = SectionWell();
    SectionBoringFile boring(path);
    well.Name = boring.ToSamples();
    boring.Pass(SampleCells);
    boring.Pass(LithCells);
    ToGenWell(boring);
    boring.GenWell(i, well);
    boring.OuterLayers(well);
    InnerLayers(boring, well);
    if (withClient)
        boring.ClientBlock();
}

void VCROSS::ReadFenceBoring(const Text& path, int i, SectionWell& well, bool withClient)
{
    well = SectionWell();
    SectionBoringFile boring(path);
    well.Name = boring.ToSamples();
    boring.Pass(SampleCells);
    Layers(boring, i);
    ToGenWell(boring);
    boring.GenWell(i, well);
    if (!withClient)
        return;
    boring.Pass(LayerCells); // outer layers
    boring.Pass(LayerCells); // inner layers
    boring.ClientBlock();
}
