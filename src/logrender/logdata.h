// logdata.h -- the readers that fill LogPage, LogBoring and LogGeometry for a page of a log.
#pragma once

#include "logrender/logrecord.h"

namespace VLOG
{
// The axis of a set-up by its cell: a sample parameter's, or a general one's.
void readaxis(LogParamSetup& setup, bool sample);
void getvlogfilecounter(); // log.mas: the count and the first entry; pageIndex to 0
void getvlogfiles();       // log.mas: the entry at pageIndex into LogPage
void getvlogdata();        // the boring and its layout file into LogBoring and LogGeometry; RepPartCount -1 on failure
void getintrodata();       // what an intro page needs of the boring into LogBoring; RepPartCount -1 when refused
void process_sam_con_form(); // first and last indices, and the cuts at the page's ends
} // namespace VLOG
