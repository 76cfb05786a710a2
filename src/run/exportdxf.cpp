// exportdxf.cpp -- the screen view's export: the page as a DXF file beside its source.
#include "dxf/dxf.h"
#include "dxf/dxfdrawing.h"
#include "run/outputmark.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/platform.h"

// Whether the name is free, or what has it is a drawing of the same file and job. A drawing that does not say what it
// is of counts as one too where unknown is set.
static bool MayTake(const Text& name, bool unknown)
{
    if (!FileExists(name))
        return true;
    const Text mark = MarkOfDxf(ReadWholeFile(name));
    return mark.empty() ? unknown : mark == DxfString(DrawingMark());
}

// DxfName, or where that is a drawing of another file or by another job, as a section's is beside the log of its name,
// the job's word behind it, and a number where that is taken too.
static Text DxfPlace()
{
    const Text plain = DxfName();
    if (MayTake(plain, true))
        return plain;
    const Text stem = plain.substr(0, plain.size() - 4) + "-" + JobWord();
    for (int number = 1;; ++number) {
        const Text name = stem + (number == 1 ? "" : "-" + PlainNumber(number)) + ".dxf";
        if (MayTake(name, false))
            return name;
    }
}

void ExportDxf()
{
    // Kept: an older export of the file is replaced without a question, also that of another page of it.
    const Text name = DxfPlace();
    WriteWholeFile(name, PageDxf(DrawingMark()));
    MsgBox("FILE CREATED:  " + name, OkOnly, Announcement);
}
