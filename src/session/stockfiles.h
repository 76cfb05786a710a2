// stockfiles.h -- where the stock files are (heading words, layouts, prompts, logo, fill patterns, samples), and which
// folder is the working folder.
//
// A portable program has its stock files beside itself, and its folder is the working folder. An installed program
// stands in a folder that its user cannot write, or that holds no stock files: its stock files are in the shared data
// folder of the installation, and the working folder is "Stratavue" in the user's data folder.
#pragma once

#include "session/text.h"

bool Installed();   // Returns whether this is an installed program.
Text StockFolder(); // Returns the folder of its stock files: beside it, or that of its installation.
Text UserFolder();  // Returns "Stratavue" in the user's data folder; it need not be there.
Text HomeFolder();  // Returns the working folder of the desktop program.

// Gives the working folder each stock file that it was never given, and notes it in stock.lst there. So a later version
// adds what is new in it, overwrites nothing of the user's, and brings back nothing that the user has deleted.
void CopyStockFiles();
