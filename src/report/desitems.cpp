// desitems.cpp -- the description item file, and its editor.
#include "report/desitems.h"

#include "boring/boringboxes.h"
#include "boring/textlines.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

using ItemLists = Slots<std::vector<Text>, 4>;

static ItemLists ReadItems(const Text& name)
{
    ItemLists lists;
    LineReader in(name);
    for (int list = 1; list <= 4; ++list) {
        const int count = in.Count();
        for (int item = 1; item <= count; ++item) {
            if (item > MaxDesItems)
                throw RunTimeError{SubscriptOutOfRange};
            lists[list].push_back(in.Line());
        }
    }
    return lists;
}

void loaddeslists()
try {
    Text name = DeviceConfig.SystemFiles[DescItemFile];
    if (!FileExists(name))
        name = "desitem.txt";
    if (!FileExists(name))
        return;
    frmBorinput::List = ReadItems(name);
} catch (...) {
    ReportFailure(__func__);
}

// ----------------------------------------------------------------------------------------------------- the editor

Slots<Text, 4> frmDesItems::Box;

static const SharedRecord shared[] = {
    {"frmDesItems::Box", Kind::Window, frmDesItems::Box},
};

void frmDesItems::Load()
{
    for (int list = 1; list <= 4; ++list) {
        Box[list].clear();
        for (const Text& item : frmBorinput::List[list])
            Box[list] += item + CrLf;
    }
}

static std::vector<Text> ItemsOf(const Text& box)
{
    Text2Array(box);
    if (LineCount > MaxDesItems)
        MsgBox("There is a limit of 50 items per box.");
    std::vector<Text> items;
    for (int i = 1; i <= std::min<int>(LineCount, MaxDesItems); ++i)
        items.push_back(LineBuffer[i]);
    return items;
}

bool frmDesItems::Command1()
try {
    ItemLists lists;
    for (int list = 1; list <= 4; ++list)
        lists[list] = ItemsOf(Box[list]);
    LineWriter out(DeviceConfig.SystemFiles[DescItemFile]);
    for (int list = 1; list <= 4; ++list) {
        out.Line(IntegerField(int(lists[list].size())));
        for (const Text& item : lists[list])
            out.Line(item);
    }
    out.Close();
    frmBorinput::List = lists;
    return true;
} catch (...) {
    ReportFailure("DesItems Command 1");
    return false;
}
