// sheetrun.h -- what the runs of cross sections, fences and soil tables have in common: a page for each file of
// log.mas.
#pragma once

namespace VCROSS
{
// Reads, draws and shows or prints each file in turn, RunPages.pageFile being its name. words tells which heading words
// the pages print (getclientlogo). read returns false for a file that is not there; it has no page, and the run goes
// on.
void RunSheets(int words, bool (*read)(), void (*draw)());

// Returns whether RunPages.pageFile is there; else its box is shown.
bool DefinitionThere();
} // namespace VCROSS
