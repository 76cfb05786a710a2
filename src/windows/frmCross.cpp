// frmCross.cpp -- the cross section tool's window: where its boxes are.
#include "sections/crosstool.h"
#include "windows/showwindows.h"
#include "windows/toolwindow.h"

#include <QSplitter>

void ShowCrossWindow()
{
    using namespace frmCross;
    ToolWindow window(CrossForm);
    QWidget* borings = window.GridBox("SS1", SS1);
    QWidget* legend = window.GridBox("SS4", SS4);
    QWidget* scale = window.GridBox("SS2", SS2);
    QWidget* report = window.GridBox("SS3", SS3);
    window.Blocking(
        Split(Qt::Horizontal,
              {Split(Qt::Vertical, {borings, legend}, {5, 3}), Split(Qt::Vertical, {scale, report}, {1, 2})}, {5, 4}));
}
