// helpwindow.cpp -- the help, where the system has no viewer for the help file: what the program does, on one page.
#include "windows/helpwindow.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

static const char* const HelpText = R"(
## Typing a boring

**File, New** begins a boring, **Open** shows a boring file (.BOR) in the tabs of the log window. A grid is typed in as
in a spreadsheet:

| To | |
|---|---|
| write into a cell | type, or F2 to change what is there |
| go on | Enter, Tab, the arrows; Enter behind a run of Tabs goes back to its beginning; F6 leaves the grid |
| mark a block | Shift with the arrows, or drag |
| cut, copy, paste, empty | Ctrl+X, Ctrl+C, Ctrl+V, Delete; tables go to and from spreadsheets |
| fill a block with its first row | Ctrl+D |
| put in or take out a row | Ctrl++, Ctrl+- |
| take back, do again | Ctrl+Z, Ctrl+Y |
| choose a column of the log | Alt+Down in *Report Parts*, or the arrow in its cell |

Text boxes break their lines exactly as they are printed; *less* and *more* beneath them set how much goes on a line. A
description that belongs to a contact begins with a line **@** and the number of the contact, one that belongs to a
depth with **-** and the depth. Rows that are put in, taken out or pasted in *Lithology* take the texts of their contacts
along. Characters that the files cannot hold become the nearest ones, which the status line tells.

**View** has two helpers: *Page beside the Boxes* (Ctrl+F5) draws the page while you type, and a click on a layer leads
to its row; the *Check List* (Ctrl+F7) points at what a reviewer would flag.

A star in the title tells of changes that are not saved. They are copied each minute, and offered again after a crash.

## The check list

Every tool has one in its **View** menu. It follows what is typed; a click on an entry, or Enter, leads to its cell. An
entry is an **error** (a page would be wrong or incomplete, or data lost), a **warning** (most likely a slip) or a
**remark** (worth a look); the gravest come first, and the line above the list counts them.

What a project does on purpose need not be told again and again: *Do not show* in the context menu of an entry, or
*Kinds* below the list, switches a kind off for the project, and on again. The line below the list tells how many entries
are hidden so. The choice stands in the file *project.cfg* of the project folder, in the line *check.off*.

The command `stratavue-batch check FILE...` prints the same lists for any number of files.

## The log

**Preview** (F5) saves the boring, draws its log and shows it page by page in the screen view. The *Layout File* tells
how the page is arranged, the *Report Parts* are its columns from left to right with their widths in inches, the *Scale*
its end depth, increment and page length. **Edit** has the editors of headings, layouts, description items and of the
words on the boxes; **Utilities** the set-up, the logo, the *Fill Pattern Guide* with the numbers and codes of all
patterns, and the conversions of foreign data.

## Projects

The file window shows the projects of the office beside the folders. A click on one goes to its folder and takes its
heading file and logo; *Edit Project List* adds others.

## Sections, fences, tables

The **Tools** menu leads to the cross section, the fence diagram, the soil table and the GIS workbench. They work as the
log window does, and take their borings from the project folder. The workbench keeps the layers of all borings of a site
in one table: *Add to GIS* reads borings into it, and sections and fences draw their layers by it where they name it.

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
