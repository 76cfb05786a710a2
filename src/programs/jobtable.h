// jobtable.h -- which procedure each job of the batch dialog starts, for both programs.
#pragma once

// Fills JobTable and IntroPages of run/batchrun.h, whose folder is below those of the jobs. At the start of a program.
void FillJobTable();
