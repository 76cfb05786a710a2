// logdata.h -- the readers that fill LogPage, LogBoring and LogGeometry for a page of a log.
#pragma once

#include "logrender/logrecord.h"

namespace VLOG
{
// Reads the axis of a set-up from its cell: a sample parameter's, or a general one's.
void readaxis(LogParamSetup& setup, bool sample);
// Reads the count and the first entry of log.mas, and sets pageIndex to 0.
void getvlogfilecounter();
// Reads the entry of log.mas at pageIndex into LogPage.
void getvlogfiles();
// Reads the boring and its layout file into LogBoring and LogGeometry; RepPartCount is -1 after a failure.
void getvlogdata();
// Reads what an intro page needs of the boring into LogBoring; RepPartCount is -1 where the file is refused.
void getintrodata();
// Sets the first and the last index of samples, contacts and formations on the page, and cuts them at the page's ends.
void process_sam_con_form();
} // namespace VLOG
