// printers.h -- where a print goes: a printer of the system, or a PDF beside the source file.
#pragma once

#include "session/platform.h"

#include <QString>
#include <QStringList>

// The choice stands in the printer set-up: "Print to PDF", which is also what a system without printers has, or the
// name of a printer. It holds for the session.
extern const char* const PrintToPdfName;
QStringList PrinterNames(); // "Print to PDF" first
QString ChosenPrinter();
void ChoosePrinter(const QString& name);

Sheet SheetOf(char mode); // of the chosen printer: what it can print on, in inches and in its dots
// The page in hand; one job a page, or one page of the run's PDF. Failures by number; nothing of the page goes out
// where one of its pictures cannot be had.
void PrintPageObjects();
void EndPdfRun();           // after the last page of a run: the PDF is closed, if one was begun, and its name shown
void ForcePdf(bool on);     // while on, runs go to a PDF whatever is chosen
void ShowPrinterSetupBox(); // blocking
