// templateboring.cpp -- boring files as the converters read them.
#include "convert/templateboring.h"

#include "boring/boringblocks.h"

#include <memory>

static void ReadParts(LineReader& in, BoringRecord& boring)
{
    boring.RepPartCount = in.Count();
    for (int row = 1; row <= boring.RepPartCount; ++row) {
        boring.RepParts[row].Item = in.Line();
        boring.RepParts[row].Width = in.Line();
    }
}

void ReadBoringBlocks(LineReader& in, const Text& version, BoringRecord& boring, LastBlock last)
{
    boring.Name = in.Line();
    boring.MapFile = in.Line();
    ReadCells(in, boring.Info);
    ReadLines(in, boring.Scale);
    ReadParts(in, boring);
    boring.LayoutFile = in.Line();
    ReadBlock(in, boring.Samples, boring.SampleCount);
    ReadBlock(in, boring.Lith, boring.LithCount);
    ReadBlock(in, boring.Des, boring.DesCount);
    ReadBlock(in, boring.Params, boring.ParamCount, ParamCells(version));
    ReadCells(in, boring.SampleParamSetup);
    ReadCells(in, boring.GenParamSetup);
    if (last == LastBlock::GenParamSetup || (last == LastBlock::Client && !HasClient(version)))
        return;
    ReadBlock(in, boring.WellInfo, boring.WellInfoCount);
    ReadBlock(in, boring.WellNotes, boring.WellNoteCount);
    ReadLines(in, boring.GenWell);
    ReadBlock(in, boring.OuterLayers, boring.OuterLayerCount);
    ReadBlock(in, boring.InnerLayers, boring.InnerLayerCount);
    if (last == LastBlock::InnerLayers)
        return;
    ReadBlock(in, boring.Remarks, boring.RemarkCount);
    ReadBlock(in, boring.Cuttings, boring.CuttingCount);
    ReadBlock(in, boring.Legend, boring.LegendCount);
    ReadBlock(in, boring.Formations, boring.FormationCount);
    ReadLines(in, boring.BottNotes);
    ReadLines(in, boring.Client);
}

void TakeTemplate(LineReader& in, const Text& version, bool client)
{
    const auto boring = std::make_unique<BoringRecord>();
    ReadBoringBlocks(in, version, *boring, client ? LastBlock::Client : LastBlock::GenParamSetup);
    for (int row = 1; row <= MaxInfo; ++row)
        BoringData.Info[row][1] = boring->Info[row][1];
    BoringData.RepParts = boring->RepParts;
    BoringData.RepPartCount = boring->RepPartCount;
    BoringData.LayoutFile = boring->LayoutFile;
    BoringData.SampleParamSetup = boring->SampleParamSetup;
    BoringData.GenParamSetup = boring->GenParamSetup;
    BoringData.Client = boring->Client;
}
