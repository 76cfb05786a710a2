// projectfiles.cpp -- where a page looks for the layout and the maps that its boring names.
#include "report/projectfiles.h"

#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "session/shared.h"

Text SourceFolder;

static const SharedRecord shared[] = {
    {"SourceFolder", Kind::Run, SourceFolder},
};

// In the project folder or beside the boring; "" where it is in neither.
static Text OwnFile(const Text& name, const Text& boring)
{
    for (const Text& folder : {ProjectPath, SourceFolder.empty() ? FolderName(boring) : SourceFolder})
        if (!folder.empty() && FileExists(JoinPath(folder, name)))
            return JoinPath(folder, name);
    return "";
}

Text LayoutPath(const Text& name, const Text& boring)
{
    const Text& layouts = DeviceConfig.SystemFiles[LayoutFolder];
    const Text own = layouts == WorkingFolder ? OwnFile(name, boring) : Text();
    return own.empty() ? JoinPath(layouts, name) : own;
}

Text MapPath(const Text& name, const Text& boring)
{
    const Text own = OwnFile(name, boring);
    return own.empty() ? JoinPath(ProjectPath, name) : own;
}
