// exportdxf.cpp -- the screen view's export: the page as a DXF file beside its source.
#include "canvas/dxf.h"
#include "canvas/screenview.h"
#include "session/files.h"
#include "session/platform.h"

void ExportDxf()
{
    // An older file of the name is replaced without a question.
    const Text name = DxfName();
    WriteWholeFile(name, PageDxf());
    MsgBox("FILE CREATED:  " + name, OkOnly, Announcement);
}
