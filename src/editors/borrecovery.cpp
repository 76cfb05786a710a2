// borrecovery.cpp -- the log tool's recovery copies: the boring as it stands in the boxes, out and in again.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "grid/gridedit.h"
#include "session/files.h"
#include "session/session.h"
#include "tools/hush.h"

namespace
{
// A text box whose text may have more lines than a boring holds. A save is refused then; the copy has the whole text in
// a file of its own.
struct LongBox {
    Memo& box;
    int kind; // of Text2Wrap32
    int most; // stored lines
    const char* ending;
};
} // namespace

static const LongBox longBoxes[] = {{frmBorinput::MemoDes, 1, MaxDes, ".des"},
                                    {frmBorinput::MemoWcon, 2, MaxWellNotes, ".notes"},
                                    {frmBorinput::MemoRemarks, 3, MaxRemarks, ".remarks"},
                                    {frmBorinput::MemoBottNotes, 5, MaxBottNotes, ".bottom"}};

// The boxes with too much text as they would be stored, and their whole texts beside the copy.
static void SetAside(const Text& copy, std::vector<std::unique_ptr<Kept<Text>>>& texts)
{
    for (const LongBox& box : longBoxes) {
        if (int(box.box.DisplayLines().size()) <= box.most)
            continue;
        WriteWholeFile(copy + box.ending, box.box.text);
        texts.push_back(std::make_unique<Kept<Text>>(box.box.text));
        Text2Wrap32(box.kind);
        Text cut = FlowingText(LineBuffer, box.most);
        while (cut.ends_with(CrLf)) // else it would show one line more, an empty one
            cut.resize(cut.size() - CrLf.size());
        box.box.text = cut;
    }
}

void frmBorinput::WriteCopy(const Text& copy)
{
    const Hushed quiet;
    std::vector<std::unique_ptr<Kept<Text>>> texts;
    SetAside(copy, texts);
    BoringFileName = copy;
    SaveBoringFile();
}

void frmBorinput::OpenCopy(const Text& copy, const Text& name)
{
    ClearBoringForm();
    DialogMode = 2; // the current form
    BoringFileName = copy;
    OpenBoringFile2();
    BoringFileName = name;
    FillBoringForm();
    for (const LongBox& box : longBoxes)
        if (FileExists(copy + box.ending))
            box.box.text = ReadWholeFile(copy + box.ending);
    if (name.empty())
        Title = "VeskLog - Boring Log Diagram";
    for (int box = 1; box <= 16; ++box)
        if (Grid* grid = BoxGrid(box))
            ForgetSteps(*grid);
    FileChanged = 1;
}
