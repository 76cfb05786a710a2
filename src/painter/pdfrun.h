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
    // Begins a PDF; mark is what it says of itself, "" for nothing. Failures by number.
    PdfRun(const Text& file, const Text& title, const Text& mark = "");
    ~PdfRun();      // A run that was not closed leaves nothing.
    void AddPage(); // Adds the page in hand. Failures by number; the page is there even so.
    void Close();   // Lets the whole PDF take its place; failures by number.

private:
    struct Body;
    std::unique_ptr<Body> body;
};

// Returns whether the file is a PDF whose producer entry names this program.
bool WrittenByUs(const Text& file);

// Returns where a PDF with that mark goes whose first page comes from source: beside it, with the ending ".pdf". Only a
// PDF of this program with the very mark is replaced. What another program or another command wrote there, or the same
// command from another file, is left alone; then a number is added, "B-1-2.pdf".
Text PdfBeside(const Text& source, const Text& mark);
