// screenview.cpp -- RunPages and the steering of a run.
#include "canvas/screenview.h"

RunPagesRecord RunPages;

bool NextPage()
{
    ++RunPages.pageIndex;
    return true;
}
