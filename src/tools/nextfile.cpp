// nextfile.cpp -- which tool opens a file, by its ending.
#include "tools/nextfile.h"
#include "session/shared.h"

#include <utility>

Text NextFile;

static const SharedRecord shared[] = {
    {"NextFile", Kind::Window, NextFile},
};

namespace
{
struct Ending {
    const char* ending;
    Tool tool;
};
} // namespace

static const Ending endings[] = {{".BOR", Tool::Log},   {".SV3", Tool::Log},   {".SV4", Tool::Log},
                                 {".CRO", Tool::Cross}, {".FEN", Tool::Fence}, {".SOI", Tool::Soil},
                                 {".GIS", Tool::GIS}};

static const Ending* EndingOf(const Text& name)
{
    for (const Ending& ending : endings)
        if (UpperCase(name).ends_with(ending.ending))
            return &ending;
    return nullptr;
}

Text TakeNextFile()
{
    return std::exchange(NextFile, "");
}

bool IsConversionMap(const Text& name)
{
    return UpperCase(name).ends_with(".GCV");
}

bool OpensFile(const Text& name)
{
    return EndingOf(name) || IsConversionMap(name);
}

Tool ToolOfFile(const Text& name)
{
    const Ending* ending = EndingOf(name);
    return ending ? ending->tool : Tool::Log;
}
