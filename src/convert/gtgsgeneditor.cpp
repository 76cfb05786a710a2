// gtgsgeneditor.cpp -- the commands of the editor of the general GTGS conversion.
#include "convert/gtgsgeneditor.h"

#include "convert/gtgsgeneral.h"
#include "editors/borinput.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

static const char* const caption = "GTGS General Conversion Editor";

frmGTGSGenEditor::Record frmGTGSGenEditor::Dialog;
Grid frmGTGSGenEditor::SS1(MaxMapRows, 2);
Grid frmGTGSGenEditor::SS2(MaxMapRows, 2);

static const SharedRecord shared[] = {
    {"frmGTGSGenEditor::Dialog", Kind::Window, frmGTGSGenEditor::Dialog},
    {"frmGTGSGenEditor::SS1", Kind::Window, frmGTGSGenEditor::SS1},
    {"frmGTGSGenEditor::SS2", Kind::Window, frmGTGSGenEditor::SS2},
};

// By FieldKind.
static const std::vector<Text>& KindNames()
{
    static const std::vector<Text> names{"",          "Boring Name",     "Client Info", "Boring Info",
                                         "Well Info", "Well Const. Info"};
    return names;
}

static int16_t KindOf(const Text& cell)
{
    const std::vector<Text>& names = KindNames();
    const auto found =
        std::find_if(names.begin(), names.end(), [&cell](const Text& name) { return SameText(Trim(cell), name); });
    return found == names.end() ? int16_t(NotUsed) : int16_t(found - names.begin());
}

static int16_t Integer(const Text& text)
{
    return RoundInt16(TextNumber(text));
}

// The separator of the combination box for a mapping's, and back: comma, blank, tab.
static int SeparatorShown(int16_t fieldSpec)
{
    return fieldSpec == 1 ? 0 : fieldSpec == 2 ? 1 : 2;
}

static int16_t SeparatorChosen(int index)
{
    return index == 0 ? int16_t(1) : index == 1 ? int16_t(2) : int16_t(0);
}

static void ShowMapping()
{
    using namespace frmGTGSGenEditor;
    Dialog.Text1 = GtgsMapping.templateFile;
    Dialog.Text2 = GtgsMapping.textPath;
    Dialog.Option2 = GtgsMapping.fixedFields != 0;
    Dialog.Combo1 = SeparatorShown(Dialog.Option2 ? int16_t(0) : GtgsMapping.fieldSpec);
    Dialog.Text3 = Dialog.Option2 ? PlainNumber(int(GtgsMapping.fieldSpec)) : "";
    for (int row = 1; row <= MaxMapRows; ++row) {
        const GtgsMappingRecord::Field& field = GtgsMapping.fieldMap[row];
        const bool known = field.kind >= 0 && size_t(field.kind) < KindNames().size();
        SS1.Cell(row, 1) = known ? KindNames()[size_t(field.kind)] : "";
        SS1.Cell(row, 2) = field.number == 0 ? "" : PlainNumber(int(field.number));
        SS2.Cell(row, 1) = GtgsMapping.fillMap[row].gtgs;
        SS2.Cell(row, 2) = GtgsMapping.fillMap[row].uscs;
    }
    for (Grid* grid : {&SS1, &SS2}) {
        grid->done.clear();
        grid->undone.clear();
    }
}

// The boxes into GtgsMapping: all of them or, where a number does not fit (failure 6), none.
static void TakeMapping()
{
    using namespace frmGTGSGenEditor;
    const GtgsMappingRecord& before = GtgsMapping;
    GtgsMappingRecord taken = before;
    taken.templateFile = Dialog.Text1;
    taken.textPath = Dialog.Text2;
    // What the boxes show in one way and the file tells in several stays as the file had it.
    if (!Dialog.Option2)
        taken.fixedFields = 0;
    else if (before.fixedFields == 0)
        taken.fixedFields = 2;
    if (Dialog.Option2)
        taken.fieldSpec = Integer(Dialog.Text3);
    else if (before.fixedFields != 0 || SeparatorShown(before.fieldSpec) != Dialog.Combo1)
        taken.fieldSpec = SeparatorChosen(Dialog.Combo1);
    for (int row = 1; row <= MaxMapRows; ++row) {
        taken.fieldMap[row] = {KindOf(SS1.Cell(row, 1)), Integer(SS1.Cell(row, 2))};
        taken.fillMap[row] = {SS2.Cell(row, 1), SS2.Cell(row, 2)};
    }
    GtgsMapping = taken;
}

// What the boxes hold of the map, in one list. The name of the new boring is for one run and no part of it.
static std::vector<Text> MapBoxes()
{
    using namespace frmGTGSGenEditor;
    std::vector<Text> held{Dialog.Text1, Dialog.Text2, PlainNumber(int(Dialog.Option2)), PlainNumber(Dialog.Combo1),
                           Dialog.Text3};
    for (const Grid* grid : {&SS1, &SS2})
        held.insert(held.end(), grid->cells.begin(), grid->cells.end());
    return held;
}

// The boxes into the file. False: it was not written, which has been told; then they count as changed still.
static bool WriteMap(const Text& name)
{
    using frmGTGSGenEditor::Dialog;
    TakeMapping();
    const int failures = FailuresReported;
    SaveGTGSConversionFile(name);
    if (FailuresReported != failures)
        return false;
    Dialog.Settled = MapBoxes();
    return true;
}

// The question before a changed map would be dropped. False: the user has thought better of it, or wished to save and
// nothing was saved.
static bool SaveFirst(const char* question)
{
    using namespace frmGTGSGenEditor;
    if (MapBoxes() == Dialog.Settled)
        return true;
    const int answer = MsgBox(question, YesNoCancel, Question);
    return answer == Yes ? mnuSaveGTGSConvFile() : answer == No;
}

static void TitleByFile()
{
    using frmGTGSGenEditor::Dialog;
    Dialog.Title = Text(caption) + " - " + Dialog.File;
}

void frmGTGSGenEditor::Load()
{
    Dialog = Record();
    Dialog.Title = caption;
    SS1.title = "Fields of HEADERS.TXT";
    SS1.headings = {"", "Maps to Vesklog", "Number"};
    SS1.choices = {{}, KindNames()};
    SS2.title = "Fills";
    SS2.headings = {"", "GTGS Fill #", "VeskLog USCS"};
    for (Grid* grid : {&SS1, &SS2}) {
        grid->fontName = DeviceConfig.FontName;
        grid->row = grid->column = 1;
        grid->selected = {};
    }
    GtgsMapping = GtgsMappingRecord();
    ShowMapping();
    Dialog.Settled = MapBoxes();
}

static const char* const opening = "Would you like to save the current file before opening another file?";

// False: the file was not read whole, which was told.
static bool Open(const Text& name)
{
    using frmGTGSGenEditor::Dialog;
    const int failures = FailuresReported;
    Dialog.File = name;
    OpenGTGSConversionFile(name);
    ShowMapping();
    Dialog.Settled = MapBoxes();
    TitleByFile();
    return FailuresReported == failures;
}

void frmGTGSGenEditor::OpenNamed(const Text& name)
{
    if (!SaveFirst(opening) || Open(name))
        return;
    Dialog.File = "";
    Dialog.Title = caption;
}

void frmGTGSGenEditor::mnuOpenGTGSConvFile()
{
    if (!SaveFirst(opening))
        return;
    DialogMode = 20;
    Platform.ShowChooser();
    if (!DialogResult.empty())
        Open(DialogResult);
}

bool frmGTGSGenEditor::mnuSaveGTGSConvFile()
{
    return Dialog.File.empty() ? mnuSaveAs() : WriteMap(Dialog.File);
}

bool frmGTGSGenEditor::mnuSaveAs()
{
    DialogMode = 21;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return false;
    const Text name = WithEnding(DialogResult, ".GCV");
    if (!MayReplace(name) || !WriteMap(name))
        return false;
    Dialog.File = name;
    TitleByFile();
    return true;
}

bool frmGTGSGenEditor::mnuExit()
{
    return SaveFirst("Would you like to save the current file before quitting?");
}

void frmGTGSGenEditor::Command1()
{
    TakeMapping();
    Text name = NameFromHeaders;
    if (!Dialog.Option3) {
        name = NewBoringFile(Dialog.Text4);
        if (Dialog.Text4.empty()) {
            MsgBox("Since you have left the New Boring File text box blank, the new boring file will be saved as "
                   "GTGS1.BOR",
                   OkOnly, Exclamation);
            name = JoinPath(ProjectPath, "GTGS1.BOR");
        }
    }
    const int failures = FailuresReported;
    const Text made = ConvertGTGSGeneral(name);
    // A write that fails is reported, and the conversion ends as it would with one that has not.
    if (!made.empty() && FailuresReported == failures)
        frmBorinput::OpenNamed(made);
}
