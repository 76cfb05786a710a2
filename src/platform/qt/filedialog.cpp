// filedialog.cpp -- the file chooser, as the system's own dialog.
#include "platform/qt/filedialog.h"

#include "platform/qt/uitext.h"
#include "session/files.h"
#include "session/session.h"

#include <QApplication>
#include <QFileDialog>

// Modes 1 and 2 of the chooser, opening and saving a boring. Answering, the mode becomes the version of the file form:
// 2 for the current one where a file is opened, -1 where it is saved.
void ShowFileDialog()
{
    const bool opening = DialogMode == 1;
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setObjectName("frmOpenSave");
    dialog.setWindowTitle(opening ? "Open Boring Diagram File" : "Save Boring Diagram File");
    dialog.setDirectory(QString::fromStdString(NativePath(ProjectPath)));
    dialog.setNameFilters({"Boring files (*.BOR *.bor)", "All files (*)"});
    dialog.setAcceptMode(opening ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(opening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // What happens to an existing file is asked by who saves, in its own words.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    DialogResult = "";
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    DialogResult = FromUi(QDir::toNativeSeparators(dialog.selectedFiles().first()));
    DialogMode = opening ? 2 : -1;
}
