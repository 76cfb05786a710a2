// printers.cpp -- where a print goes.
#include "windows/printers.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "painter/pagepainter.h"
#include "painter/pdfrun.h"
#include "run/outputmark.h"
#include "run/screenview.h"
#include "session/failure.h"
#include "session/files.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

const char* const PrintToPdfName = "Print to PDF";

// ---- The choice

// The printer chosen, and what its own dialog set of it; none: a PDF.
static std::unique_ptr<QPrinter> chosen;
static bool asked = false;  // the system's default printer has been looked for
static bool forced = false; // an export is under way

static void Choose(const QPrinterInfo& info)
{
    chosen.reset();
    if (!info.isNull())
        chosen = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    asked = true;
}

static QPrinter* Printer()
{
    if (!asked)
        Choose(QPrinterInfo::defaultPrinter());
    return forced ? nullptr : chosen.get();
}

QStringList PrinterNames()
{
    return QStringList(PrintToPdfName) + QPrinterInfo::availablePrinterNames();
}

QString ChosenPrinter()
{
    Printer();
    return chosen ? chosen->printerName() : QString(PrintToPdfName);
}

void ChoosePrinter(const QString& name)
{
    Choose(name == PrintToPdfName ? QPrinterInfo() : QPrinterInfo::printerInfo(name));
}

void ForcePdf(bool on)
{
    forced = on;
}

// ---- The sheet

// The paper that a page of this mode wants, with no margins but those that the printer cannot do without.
static void SetPaper(QPrinter& printer, char mode)
{
    const bool letter = mode == 'P' || mode == 'L';
    QPageLayout layout = printer.pageLayout();
    layout.setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::Tabloid));
    layout.setOrientation(mode == 'P' ? QPageLayout::Portrait : QPageLayout::Landscape);
    printer.setPageLayout(layout);
    printer.setFullPage(false);
    layout = printer.pageLayout();
    layout.setMargins(layout.minimumMargins());
    printer.setPageLayout(layout);
}

Sheet SheetOf(char mode)
{
    QPrinter* printer = Printer();
    if (!printer)
        return DefaultSheet(mode);
    SetPaper(*printer, mode);
    const QRectF inches = printer->pageRect(QPrinter::Inch);
    const QRectF dots = printer->pageRect(QPrinter::DevicePixel);
    return {float(inches.width()), float(inches.height()), float(dots.width()), float(dots.height())};
}

// ---- Printing

static std::unique_ptr<PdfRun> pdf;
static Text pdfName;

static void PageIntoPdf()
{
    const bool first = !pdf;
    if (first) {
        const Text mark = PdfMark(forced);
        pdfName = PdfBeside(RunPages.pageFile, mark);
        pdf = std::make_unique<PdfRun>(pdfName, BaseName(RunPages.pageFile), mark);
    }
    try {
        pdf->AddPage();
    } catch (...) {
        if (first) // nothing whole is in it
            pdf.reset();
        throw;
    }
}

void PrintPageObjects()
{
    LoadPagePictures(PatternForm::Print);
    QPrinter* printer = Printer();
    if (!printer)
        return PageIntoPdf();
    SetPaper(*printer, PageCanvas.paper);
    printer->setDocName(ToUi(BaseName(RunPages.pageFile)));
    QPainter painter;
    if (!painter.begin(printer))
        throw RunTimeError{PrinterError};
    // Page coordinates are dots of this printer; a page started for another is fitted to its width.
    const double dots = printer->pageRect(QPrinter::DevicePixel).width();
    PaintPage(painter, PageList.ExtentWidth > 0 ? dots / PageList.ExtentWidth : 1, PatternForm::Print);
    if (!painter.end() || printer->printerState() == QPrinter::Error)
        throw RunTimeError{PrinterError};
}

void EndPdfRun()
{
    if (!pdf)
        return;
    const std::unique_ptr<PdfRun> run = std::move(pdf);
    run->Close();
    MsgBox("FILE CREATED:  " + pdfName, OkOnly, Announcement);
}

// ---- The set-up

static QString SheetWords()
{
    const Sheet letter = SheetOf('P'), wide = SheetOf('T');
    return QString("Letter: %1 x %2 inches\n11 x 17: %3 x %4 inches")
        .arg(letter.WidthInches, 0, 'f', 2)
        .arg(letter.HeightInches, 0, 'f', 2)
        .arg(wide.WidthInches, 0, 'f', 2)
        .arg(wide.HeightInches, 0, 'f', 2);
}

void ShowPrinterSetupBox()
{
    const QString before = ChosenPrinter();
    QDialog box(QApplication::activeWindow());
    box.setObjectName("PrintSetup");
    box.setWindowTitle("Print Setup");
    auto* names = new QComboBox(&box);
    names->setObjectName("cmbPrinter");
    names->setAccessibleName("Printer");
    names->addItems(PrinterNames());
    names->setMinimumWidth(280);
    auto* properties = new QPushButton("Properties...", &box);
    properties->setObjectName("cmdProperties");
    auto* sheet = new QLabel(&box);
    sheet->setObjectName("lblSheet");
    auto* note = new QLabel(&box);
    note->setObjectName("lblNote");
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);

    const auto show = [&] {
        properties->setEnabled(names->currentText() != PrintToPdfName);
        sheet->setText(SheetWords());
        note->setText(names->currentText() == PrintToPdfName
                          ? "A print run becomes one PDF beside the file of its first page."
                          : "Each page is a print job of its own. Paper and orientation follow the page.");
    };
    names->setCurrentText(before);
    show();
    QObject::connect(names, &QComboBox::currentTextChanged, &box, [&](const QString& name) {
        ChoosePrinter(name);
        show();
    });
    QObject::connect(properties, &QPushButton::clicked, &box, [&] {
        QPrintDialog dialog(Printer(), &box);
        dialog.setWindowTitle("Print Setup");
        if (dialog.exec() == QDialog::Accepted)
            names->setCurrentText(ChosenPrinter());
        show();
    });

    auto* row = new QHBoxLayout;
    row->addWidget(names, 1);
    row->addWidget(properties);
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->addRow("Printer:", row);
    form->addRow("Printable:", sheet);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto* layout = new QVBoxLayout(&box);
    layout->setContentsMargins(20, 18, 20, 16);
    layout->setSpacing(14);
    layout->addLayout(form);
    layout->addWidget(note);
    layout->addStretch();
    layout->addWidget(buttons);
    if (box.exec() != QDialog::Accepted)
        ChoosePrinter(before);
}
