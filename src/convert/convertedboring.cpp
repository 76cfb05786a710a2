// convertedboring.cpp -- what the converters share.
#include "convert/convertedboring.h"

#include "boring/boringdata.h"
#include "canvas/batch.h"
#include "session/platform.h"

void ClearForConversion()
{
    BoringData.SampleCount = MaxSamples;
    BoringData.LithCount = MaxLith;
    BoringData.DesCount = MaxDes;
    BoringData.ParamCount = MaxParams;
    BoringData.WellNoteCount = MaxWellNotes;
    BoringData.OuterLayerCount = BoringData.InnerLayerCount = MaxLayers;
    BoringData.RemarkCount = MaxRemarks;
    ClearBoringArrays();
}

void SetReportPart(int row, const FixedPart& part)
{
    BoringData.RepParts[row] = {part.Item, part.Width};
    BoringData.RepPartCount = row;
}

void DropBlankReportParts()
{
    while (BoringData.RepPartCount > 0 && IsBlank(BoringData.RepParts[BoringData.RepPartCount].Item))
        --BoringData.RepPartCount;
}

Text ConvertedName(const Text& file)
{
    return Text(Before(file, '.')) + ".bor";
}

ConversionProgress::ConversionProgress(int total)
{
    Platform.ShowProgress(true);
    SetProgress(total);
}

ConversionProgress::~ConversionProgress()
{
    Platform.ShowProgress(false);
}
