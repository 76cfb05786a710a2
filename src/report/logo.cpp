// logo.cpp -- logo.txt, edited.
//
//     three lines of text; "1" a picture logo or "0" a text logo; the picture's file name; its resolution
#include "report/logo.h"

#include "boring/textlines.h"
#include "session/files.h"
#include "session/session.h"
#include "session/shared.h"

frmLogo::Record frmLogo::Dialog;

static const SharedRecord shared[] = {
    {"frmLogo::Dialog", Kind::Window, frmLogo::Dialog},
};

static Text LogoFileName()
{
    return JoinPath(WorkingFolder, "logo.txt");
}

void frmLogo::Load()
{
    Slots<Text, 6> lines;
    LineReader in(LogoFileName());
    for (int i = 1; i <= 6 && !in.AtEnd(); ++i)
        lines[i] = in.Line();
    Dialog = {lines[1] + CrLf + lines[2] + CrLf + lines[3], TextNumber(lines[4]) == 1, lines[5], lines[6]};
}

void frmLogo::Command1()
{
    Text2Array(Dialog.Text1);
    LineWriter out(LogoFileName());
    for (int i = 1; i <= 3; ++i)
        out.Line(LineBuffer[i]);
    out.Line(Dialog.graphic ? "1" : "0");
    out.Line(Dialog.fileText);
    out.Line(Dialog.resolutionText);
    out.Close();
}
