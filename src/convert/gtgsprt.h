// gtgsprt.h -- GTGS print files: the listing of a boring, page by page, into a boring file beside it.
#pragma once

void ConvertGTGS2BOR(); // Converts runFiles 1 to runFileCount.

namespace frmBorinput
{
void mnuGTGS(); // Shows the batch dialog for them.
}
