// printers.h -- where a print goes: a printer of the system, or a PDF beside the source file.
#pragma once

#include "session/platform.h"

#include <QString>
#include <QStringList>

// The choice stands in the printer set-up: "Print to PDF", which is also what a system without printers has, or the
// name of a printer. It holds for the session.
extern const char* const PrintToPdfName;
QStringList PrinterNames(); // Returns the names to choose from, "Print to PDF" first.
QString ChosenPrinter();
void ChoosePrinter(const QString& name);

// Returns what the chosen printer can print on, in inches and in its dots.
Sheet SheetOf(char mode);
// Prints the page in hand: one job a page, or one page of the run's PDF. Failures by number; nothing of the page goes
// out where one of its pictures cannot be had.
void PrintPageObjects();
void EndPdfRun();           // Closes the PDF after the last page of a run, if one was begun, and shows its name.
void ForcePdf(bool on);     // Lets runs go to a PDF whatever is chosen, while it is on.
void ShowPrinterSetupBox(); // Shows the box until it is closed.
