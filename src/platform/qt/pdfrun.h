// pdfrun.h -- the pages of one run as one PDF.
#pragma once

#include "session/text.h"

#include <memory>

// A PDF under way. It grows in a temporary file beside its place, which takes the place when it is whole: a crash or
// a full disk leaves an older one as it was. The paper is the page's sheet with the margin of a quarter inch that a
// printer cannot reach; a dot is a device unit.
class PdfRun
{
public:
    PdfRun(const Text& file, const Text& title); // failures by number
    ~PdfRun();                                   // a run that was not closed leaves nothing
    void AddPage();                              // the page in hand. Failures by number; the page is there even so
    void Close();                                // failures by number

private:
    struct Body;
    std::unique_ptr<Body> body;
};

// The file is a PDF whose producer entry names this program.
bool WrittenByUs(const Text& file);

// Where a print run goes whose first page comes from source: beside it, with the ending ".pdf". What another program
// wrote there is left alone; then a number is added, "B-1-2.pdf".
Text PdfBeside(const Text& source);
