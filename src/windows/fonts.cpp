// fonts.cpp -- the fonts that a page can be printed in: pages go out as shapes, so any font of this machine is one of
// every printer's.
#include "windows/fonts.h"

#include "windows/uitext.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontDialog>

// Arial is always there: where it is not installed, its metric twin draws it.
bool PrinterHasFont(const Text& name)
{
    return name == "Arial" || QFontDatabase::families().contains(ToUi(name));
}

Text ShowFontDialog(const Text& font)
{
    QFontDialog dialog(QFont(ToUi(font)), QApplication::activeWindow());
    dialog.setObjectName("FontDialog");
    dialog.setWindowTitle("Choose Font");
    if (dialog.exec() != QDialog::Accepted)
        return "";
    return FromUi(dialog.selectedFont().family());
}
