// irpims.h -- borings as the three tables of the IRPIMS data exchange.
#pragma once

// Exports runFiles 1 to runFileCount into timbore.txt, timlith.txt and timcons.txt of the folder lastDir.
void Export2IRPIMS();

namespace frmBorinput
{
void mnuExp2IRPIMS(); // the batch dialog for it
}
