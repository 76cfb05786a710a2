// projectlist.cpp -- the project list, its file and its editor.
//
//     count                                   " 2 "
//     ProjectId,HeadingFile,LogoFile          a line without a comma is a ProjectId alone
//     ProjectFolder
#include "boring/projectlist.h"

#include "grid/gridedit.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/shared.h"

#include <algorithm>

Slots<ProjectRecord, MaxProjects> ProjectList;
int16_t ProjectCount = 0;
Grid frmProjEdit::SS(MaxProjects, 4);

static const SharedRecord shared[] = {
    {"ProjectList", Kind::Session, ProjectList},
    {"ProjectCount", Kind::Session, ProjectCount},
    {"frmProjEdit::SS", Kind::Window, frmProjEdit::SS},
};

static const Text& ListFile()
{
    return DeviceConfig.SystemFiles[ProjectListFile];
}

// Kept: a comma in the heading file's path shifts the rest, and the logo takes all that is left.
static void SplitProject(const Text& line, ProjectRecord& project)
{
    project.ProjectId = Before(line, ',');
    const Text rest(Behind(line, ','));
    project.HeadingFile = Before(rest, ',');
    project.LogoFile = Behind(rest, ',');
}

void LoadProjectList()
{
    ProjectCount = 0;
    if (!FileExists(ListFile()))
        return;
    LineReader in(ListFile());
    const int told = in.Count();
    ProjectCount = int16_t(std::min(told, MaxProjects));
    for (int i = 1; i <= ProjectCount; ++i)
        ProjectList[i] = ProjectRecord();
    for (int i = 1; i <= told; ++i) {
        SplitProject(in.Line(), ProjectList[i]);
        ProjectList[i].ProjectFolder = in.Line();
    }
}

void SaveProjectList()
try {
    if (ListFile().empty()) {
        MsgBox("The filename for Project File/Path is invalid.  Select Utilities:Graphics/System Set-Up.");
        return;
    }
    LineWriter out(ListFile());
    out.Line(IntegerField(ProjectCount));
    for (int i = 1; i <= ProjectCount; ++i) {
        const ProjectRecord& project = ProjectList[i];
        out.Line(project.ProjectId + "," + project.HeadingFile + "," + project.LogoFile);
        out.Line(project.ProjectFolder);
    }
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}

void frmProjEdit::Load()
{
    SS.title = "Project List";
    SS.headings = {"", "Project ID", "Project Path", "Heading File", "Logo File"};
    SS.Clear();
    ForgetSteps(SS);
    SS.row = SS.column = 1;
    SS.selected = Block();
    for (int i = 1; i <= ProjectCount; ++i) {
        SS.Cell(i, 1) = ProjectList[i].ProjectId;
        SS.Cell(i, 2) = ProjectList[i].ProjectFolder;
        SS.Cell(i, 3) = ProjectList[i].HeadingFile;
        SS.Cell(i, 4) = ProjectList[i].LogoFile;
    }
}

bool frmProjEdit::Command1()
{
    const int count = SS.DataRowCount();
    // Kept: the last project cannot be deleted.
    if (count < 1)
        return false;
    for (int i = 1; i <= count; ++i)
        if (!FolderWritable(SS.Cell(i, 2)))
            MsgBox("Warning:  " + SS.Cell(i, 2) + " path does not exist.", OkOnly, Exclamation);
    for (int i = 1; i <= count; ++i)
        ProjectList[i] = {SS.Cell(i, 1), SS.Cell(i, 2), SS.Cell(i, 3), SS.Cell(i, 4)};
    ProjectCount = int16_t(count);
    SaveProjectList();
    return true;
}
