// helpwindow.cpp -- the help, where the system has no viewer for the help file: what the program does, on one page.
#include "platform/qt/helpwindow.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

static const char* const HelpText = R"(
## Looking at a boring

**File, Open** shows a boring file (.BOR) in the tabs of the log window. **Preview** (F5) draws its log and shows it,
page by page, in the screen view.

## Many borings at once

**Batch Draw** and **Batch Print** ask for a folder and the files in it. Several files are marked with Ctrl or Shift, or
all with *Select All*; a double click on a file is OK. *Page #* draws or prints that page of each boring only.

## The screen view

| To | |
|---|---|
| go to the next or previous page | *Next*, *Previous*; Page Down, Page Up |
| go to a page by its number | *GoTo*; Ctrl+G |
| zoom at the pointer | the mouse wheel; + and - zoom at the middle |
| zoom to a part of the page | *Zoom Window*, then draw a rectangle; Ctrl+W |
| see the whole width, or the whole page | Ctrl+1, Ctrl+0 |
| move the page | drag it; or the arrow keys |
| write the page as a drawing | *Export to DXF*: beside the boring file |
| write all pages of the run as a PDF | *Export to PDF*: beside the boring file |
| print the page | *Print*; Ctrl+P |
| end the run | *Exit*, or close the window |

## Printing

**Print Setup** chooses the printer. With *Print to PDF*, which is also what a computer without printers has, a print
run becomes one PDF beside the file of its first page. A PDF that another program has written there is left alone; a
number is then added to the name.

## If a message comes again and again

A file that cannot be read is tried again after its message. Escape on the message ends the run.
)";

void ShowHelpWindow()
{
    QDialog window(QApplication::activeWindow());
    window.setObjectName("Help");
    window.setWindowTitle("Stratavue Help");
    auto* text = new QTextBrowser(&window);
    text->setObjectName("HelpText");
    text->setMarkdown(HelpText);
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(16);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &window);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(16, 8, 16, 14);
    foot->addWidget(buttons);
    layout->addLayout(foot);
    window.resize(640, 560);
    window.exec();
}
