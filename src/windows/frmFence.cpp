// frmFence.cpp -- the fence tool's window: where its boxes are.
#include "sections/fencetool.h"
#include "windows/showwindows.h"
#include "windows/toolwindow.h"

#include <QSplitter>

void ShowFenceWindow()
{
    using namespace frmFence;
    ToolWindow window(FenceForm);
    QWidget* borings = window.GridBox("SS1", SS1);
    QWidget* panels = window.GridBox("SS5", SS5);
    QWidget* legend = window.GridBox("SS4", SS4);
    QWidget* scale = window.GridBox("SS2", SS2);
    QWidget* report = window.GridBox("SS3", SS3);
    window.Blocking(Split(Qt::Horizontal,
                          {Split(Qt::Vertical, {borings, Split(Qt::Horizontal, {panels, legend}, {1, 2})}, {5, 4}),
                           Split(Qt::Vertical, {scale, report}, {2, 3})},
                          {3, 2}));
}
