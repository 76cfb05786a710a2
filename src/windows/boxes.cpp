// boxes.cpp -- message boxes and the input box.
#include "windows/boxes.h"

#include "grid/gridedit.h"
#include "run/batchrun.h"
#include "run/runmessages.h"
#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QCheckBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

namespace
{
// While a run is under way Escape on a box is Escape on the run: a file that cannot be read brings its message round
// after round, and this is the way out.
class Box : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape && RunUnderWay())
            stopRequested = -1;
        QMessageBox::keyPressEvent(event);
    }
};
} // namespace

static QMessageBox::StandardButtons Offered(Buttons buttons)
{
    switch (buttons) {
    case OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

int ShowMessageBox(const Text& words, Buttons buttons, Icon icon)
{
    if (CollectMessage(words, buttons, icon))
        return Ok;
    Box box(QApplication::activeWindow());
    box.setObjectName("MsgBox");
    box.setWindowTitle("Stratavue");
    box.setTextFormat(Qt::PlainText);
    box.setText(ToUi(words));
    box.setIcon(icon == Question      ? QMessageBox::Question
                : icon == Exclamation ? QMessageBox::Warning
                                      : QMessageBox::NoIcon);
    box.setStandardButtons(Offered(buttons));
    auto* collect = OffersList(buttons, icon) ? new QCheckBox("Collect further messages in a list", &box) : nullptr;
    box.setCheckBox(collect);
    const int chosen = box.exec();
    if (collect && collect->isChecked())
        RunMessages.Collecting = true;
    RunPaused();
    switch (chosen) {
    case QMessageBox::Ok:
        return Ok;
    case QMessageBox::Yes:
        return Yes;
    case QMessageBox::No:
        return No;
    default: // closed without a button: the answer that loses nothing
        return buttons == OkOnly ? Ok : buttons == YesNo ? No : Cancel;
    }
}

Text ShowInputBox(const Text& prompt, const Text& title, const Text& answer)
{
    QInputDialog box(QApplication::activeWindow());
    box.setObjectName("InputBox");
    box.setWindowTitle(ToUi(title));
    box.setLabelText(ToUi(prompt));
    box.setTextValue(ToUi(answer));
    return box.exec() == QDialog::Accepted ? OneLine(Typed(box.textValue())) : Text();
}
