// convertedboring.cpp -- what the converters share.
#include "convert/convertedboring.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/shared.h"

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

void SetFixedForm(std::span<const char* const> prompts, std::span<const FixedPart> parts, const char* layout)
{
    int row = 0;
    for (const char* prompt : prompts)
        BoringData.Info[++row][1] = prompt;
    row = 0;
    for (const FixedPart& part : parts)
        BoringData.RepParts[++row] = {part.Item, part.Width};
    BoringData.RepPartCount = row;
    BoringData.Scale[4] = "Feet";
    BoringData.LayoutFile = layout;
}

Text (*ConvertedName)(const Text& source) = nullptr;

static const SharedRecord shared[] = {
    {"ConvertedName", Kind::Machine, ConvertedName},
};

Text BesideSource(const Text& source)
{
    return Text(Before(source, '.')) + ".bor";
}

void ConvertRunFiles(void (*convert)(const Text& source))
{
    const ConversionProgress progress(runFileCount);
    for (int i = 1; i <= runFileCount; ++i) {
        const Text& source = runFiles[i];
        // The dialog lists no borings; a command line may name one.
        if (SameFile(source, BesideSource(source)))
            MsgBox("This file would be replaced by its own conversion and is left as it is: " + source, OkOnly,
                   Exclamation);
        else
            convert(source);
        incseg(1);
    }
}

// A new file can be made again from its source; waiting for the disk after each one would be most of a long run.
static Durability DurabilityOf(const Text& boring)
{
    return FileExists(boring) ? Durability::Saved : Durability::Scratch;
}

void WriteBesideSource(const Text& source, const Text& style, const Text& draft)
{
    while (BoringData.RepPartCount > 0 && IsBlank(BoringData.RepParts[BoringData.RepPartCount].Item))
        --BoringData.RepPartCount;
    const Text name = ConvertedName ? ConvertedName(source) : BesideSource(source);
    WriteBoring(name, style, draft, DurabilityOf(name));
}

void PlaceConverted(const Text& source, std::string_view bytes)
{
    WriteWholeFile(BesideSource(source), bytes, DurabilityOf(BesideSource(source)));
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
