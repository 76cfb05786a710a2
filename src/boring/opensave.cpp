// opensave.cpp -- the commands of the file chooser, and the list of layout files that it finds.
#include "boring/opensave.h"

#include "boring/boringboxes.h"
#include "boring/projectlist.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <filesystem>

frmOpenSave::Record frmOpenSave::Dialog;
Grid frmOpenSave::SS(MaxProjects, 2);
Text frmOpenSave::HiddenFolder;
std::vector<Text> frmOpenSave::HiddenFiles;
Text frmCross::Title, frmFence::Title, frmSoil::Title;

static const SharedRecord shared[] = {
    {"frmOpenSave::Dialog", Kind::Window, frmOpenSave::Dialog},
    {"frmOpenSave::SS", Kind::Window, frmOpenSave::SS},
    {"frmOpenSave::HiddenFolder", Kind::Window, frmOpenSave::HiddenFolder},
    {"frmOpenSave::HiddenFiles", Kind::Window, frmOpenSave::HiddenFiles},
    {"frmCross::Title", Kind::Boxes, frmCross::Title},
    {"frmFence::Title", Kind::Boxes, frmFence::Title},
    {"frmSoil::Title", Kind::Boxes, frmSoil::Title},
};

namespace
{
// Where the chooser opens.
enum Start { InProject, InProfiles, InWorkingFolder };

struct Mode {
    const char* title;
    const char* pattern;
    Start start;
};
} // namespace

static const Slots<Mode, 21> modes = {{{
    {"", "", InProject},
    {"Open Boring Diagram File", "*.BOR", InProject},
    {"Save Boring Diagram File", "*.BOR", InProject},
    {"Open Cross Section File", "*.CRO", InProject},
    {"Save Cross Section File", "*.CRO", InProject},
    {"Open Fence Diagram File", "*.FEN", InProject},
    {"Save Fence Diagram File", "*.FEN", InProject},
    {"Open Soil Analysis File", "*.SOI", InProject},
    {"Save Soil Analysis File", "*.SOI", InProject},
    {"Open Heading File", "*.HDG", InWorkingFolder},
    {"Save Heading File", "*.HDG", InWorkingFolder},
    {"Import Description Text", "*.TXT", InProject},
    {"Open Layout File", "*.LAY", InWorkingFolder},
    {"Save Layout File", "*.LAY", InWorkingFolder},
    {"Open Font/Text Profile", "*.PRF", InProfiles},
    {"Save Font/Text Profile", "*.PRF", InProfiles},
    {"Export GIS File", "*.TXT", InProject},
    {"Open GIS File", "*.GIS", InProject},
    {"Save GIS File", "*.GIS", InProject},
    {"Select BOR Merge File", "*.BOR", InProject},
    {"Open GTGS Conversion File", "*.GCV", InProfiles},
    {"Save GTGS Conversion File", "*.GCV", InProfiles},
}}};

static void ListFiles()
{
    frmOpenSave::Dialog.File1 = FilesIn(frmOpenSave::Dialog.Dir1, frmOpenSave::Dialog.Pattern.substr(1));
}

static void FillProjectGrid()
{
    for (int i = 1; i <= ProjectCount; ++i) {
        frmOpenSave::SS.Cell(i, 1) = ProjectList[i].ProjectId;
        frmOpenSave::SS.Cell(i, 2) = ProjectList[i].ProjectFolder;
    }
}

// The folder as this machine writes it: absolute, without a closing separator. One that is not there shows
// the working folder.
static Text ShownFolder(const Text& name)
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    const Text folder = fs::is_directory(NativePath(name), ignored) ? name : WorkingFolder;
    fs::path path = fs::absolute(NativePath(folder), ignored).lexically_normal();
    if (!path.has_filename() && path.has_relative_path())
        path = path.parent_path();
    return FromUtf8(path.make_preferred().string());
}

void frmOpenSave::ChangeFolder(const Text& name)
{
    Dialog.Dir1 = ShownFolder(name);
    ListFiles();
}

void frmOpenSave::Load()
{
    const Mode& mode = modes[DialogMode];
    DialogResult = "";
    Dialog = Record();
    Dialog.Title = mode.title;
    Dialog.Pattern = mode.pattern;
    Dialog.Projects = mode.start == InProject;
    Dialog.Version = DialogMode == 1 ? 2 : -1;
    SS.title = "Projects";
    SS.headings = {"", "Project ID", "Project Path"};
    SS.Clear();
    FillProjectGrid();
    ChangeFolder(mode.start == InProject    ? ProjectPath
                 : mode.start == InProfiles ? DeviceConfig.SystemFiles[ProfileFolder]
                                            : WorkingFolder);
}

void frmOpenSave::ChangeVersion(int index)
{
    Dialog.Version = index;
    Dialog.Pattern = index == 0 ? "*.SV3" : index == 1 ? "*.SV4" : "*.BOR";
    ListFiles();
}

void frmOpenSave::Command1()
{
    const Text& typed = Dialog.fileText;
    const bool wholePath = typed.find_first_of("\\:") != Text::npos || Holds(typed, Machine::Separator());
    if (wholePath && BaseName(typed).empty())
        DialogResult = ""; // a folder alone names no file
    else if (typed.empty() || wholePath)
        DialogResult = typed;
    // Kept: the one root that gets no second separator is that of this drive.
    else if (Dialog.Dir1.starts_with("a:\\"))
        DialogResult = Dialog.Dir1 + typed;
    else
        DialogResult = Dialog.Dir1 + Machine::Separator() + typed;
    DialogMode = int16_t(Dialog.Version);
}

void frmOpenSave::Command2()
{
    DialogResult = "";
}

void frmOpenSave::Command4()
{
    const int before = ProjectCount;
    Platform.ShowProjEdit();
    FillProjectGrid();
    SS.ClearRows(ProjectCount + 1, before);
}

// logo.txt with another logo file: its line 5. Lines that are missing are empty, and six are written.
static void ChangeLogoFile(const Text& logo)
{
    const Text name = JoinPath(WorkingFolder, "logo.txt");
    Slots<Text, 6> lines;
    LineReader in(name);
    for (int i = 1; i <= 6 && !in.AtEnd(); ++i)
        lines[i] = in.Line();
    lines[5] = logo;
    LineWriter out(name);
    for (int i = 1; i <= 6; ++i)
        out.Line(lines[i]);
    out.Close();
}

void frmOpenSave::SelectProject(int row)
try {
    const ProjectRecord project = row <= ProjectCount ? ProjectList[row] : ProjectRecord();
    if (!project.HeadingFile.empty()) {
        DeviceConfig.SystemFiles[HeadingFile] = project.HeadingFile;
        SaveDevice();
    }
    if (!project.LogoFile.empty())
        ChangeLogoFile(project.LogoFile);
    if (!FolderWritable(project.ProjectFolder)) {
        MsgBox("Warning:  " + project.ProjectFolder + " path does not exist.", OkOnly, Exclamation);
        return;
    }
    ChangeFolder(project.ProjectFolder);
    ProjectPath = Dialog.Dir1;
    frmBorinput::Title = ProjectPath + " - VeskLog - Boring Log Diagram";
    frmCross::Title = ProjectPath + " - VeskCross - Cross Section Diagram";
    frmFence::Title = ProjectPath + " - VeskFence - Fence Diagram";
    frmSoil::Title = ProjectPath + " - VeskSoil - Soil Analysis Table";
    SaveDevice();
} catch (...) {
    ReportFailure("Open/Save");
}

void getfilelist(int mode)
try {
    if (ProjectPath.empty())
        return;
    const Text& layouts = DeviceConfig.SystemFiles[LayoutFolder];
    frmOpenSave::HiddenFolder = FolderWritable(layouts) ? layouts : WorkingFolder;
    frmOpenSave::HiddenFiles = FilesIn(frmOpenSave::HiddenFolder, ".LAY");
    if (mode != 1)
        return;
    frmBorinput::LayFiles = frmOpenSave::HiddenFiles;
    frmOpenSave::HiddenFolder.clear();
    frmOpenSave::HiddenFiles.clear();
} catch (...) {
    ReportFailure(__func__);
}
