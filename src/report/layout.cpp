// layout.cpp -- the layout file: 13 lines, the orientation and then the code in each of twelve positions.
#include "report/layout.h"

#include "session/files.h"
#include "session/session.h"
#include "session/shared.h"

LayoutRecord LayoutData;

static const SharedRecord shared[] = {
    {"LayoutData", Kind::Window, LayoutData},
};

void ReadLayoutFile(const Text& name)
{
    LayoutData = LayoutRecord();
    LineReader in(name);
    LayoutData.Orientation = RoundInt16(TextNumber(in.Line()));
    for (int i = 1; i <= 12; ++i)
        LayoutData.Blocks[i] = RoundInt16(TextNumber(in.Line()));
}

void SaveLayoutFile()
try {
    LineWriter out(DialogResult);
    out.Line(IntegerField(LayoutData.Orientation));
    for (int i = 1; i <= 12; ++i)
        out.Line(IntegerField(LayoutData.Blocks[i]));
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}
