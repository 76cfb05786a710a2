// editor_test.cpp -- the log tool's window, typed in by real keys and clicks.
#include "windows/driver.h"
#include "windows/hands.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "canvas/pageobjects.h"
#include "editors/borinput.h"
#include "session/linebreaks.h"
#include "session/session.h"
#include "windows/gridview.h"
#include "windows/livepane.h"
#include "windows/memoview.h"
#include "windows/uitext.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMimeData>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <fstream>

TEST_CASE("each heading and each row number has room for its words")
{
    QMainWindow* log = LogWindow();
    OpenSample("MW-109.BOR");
    for (QTableView* grid : log->findChildren<QTableView*>()) {
        CAPTURE(grid->objectName().toStdString());
        for (QHeaderView* header : {grid->horizontalHeader(), grid->verticalHeader()}) {
            QFont bold = header->font();
            bold.setBold(true);
            const bool across = header == grid->horizontalHeader();
            CHECK(header->sizeHint().height() >= (across ? QFontMetrics(bold).height() : 0));
            CHECK(header->sizeHint().width() >= (across ? 0 : QFontMetrics(bold).horizontalAdvance("8")));
            for (int section = 0; section < header->count(); ++section) {
                const QString words = grid->model()->headerData(section, header->orientation()).toString();
                CAPTURE(words.toStdString());
                const int wanted = std::min(QFontMetrics(bold).horizontalAdvance(words), 260);
                CHECK((across ? header->sectionSize(section) : header->sizeHint().width()) >= wanted);
            }
        }
    }
}

TEST_CASE("typing starts an edit, Tab goes right, Enter goes down, and the title marks the change")
{
    QMainWindow* log = LogWindow();
    CHECK_FALSE(log->isWindowModified());
    ClickCell(log, "SSLith", 1, 1);
    CHECK(ActiveBox == 8);
    TypeText("5.5\tcl\n");
    CHECK(frmBorinput::SSLith.Cell(1, 1) == "5.5");
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl");
    CHECK(frmBorinput::SSLith.row == 2);
    CHECK(frmBorinput::SSLith.column == 1); // where the Tab was pressed
    CHECK(FileChanged == 1);
    CHECK(log->isWindowModified());
    Press(Qt::Key_Up);
    Press(Qt::Key_Right);
    Press(Qt::Key_F2);
    TypeText("x");
    Press(Qt::Key_Escape);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl");
    Press(Qt::Key_F2);
    Press(Qt::Key_End);
    TypeText("-x\n");
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl-x");
    Press(Qt::Key_Up);
    Press(Qt::Key_Delete);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "");
    Press(Qt::Key_Z, Qt::ControlModifier);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl-x");
    Press(Qt::Key_Z, Qt::ControlModifier);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl");
    Press(Qt::Key_Y, Qt::ControlModifier);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "cl-x");
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "");
}

TEST_CASE("a width of 5 for the descriptions is told at each change, and the cell keeps it")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSRepParts", 1, 1);
    TypeText("descriptions\t");
    CHECK(frmBorinput::SSRepParts.Cell(1, 2) == "3");
    ThenAnswer("The width of the description box must not exceed 3.6 inches.", "OK");
    TypeText("5\n");
    CheckAllDone();
    CHECK(frmBorinput::SSRepParts.Cell(1, 2) == "5");
    CHECK(frmBorinput::MemoDes.widthTwips == 5680);
    CHECK(Find<QLabel>(log, "lblWidthtot")->text() == "Total Width: 5/6.8");
    ThenAnswer("The width of the description box must not exceed 3.6 inches.", "OK");
    TypeText("x\n");
    CheckAllDone();
}

TEST_CASE("what is being typed in a cell is saved, though the edit was not ended")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    ClickCell(log, "SSScale", 7, 1);
    TypeText("77.25");
    CHECK(frmBorinput::SSScale.Cell(7, 1) != "77.25");
    Press(Qt::Key_S, Qt::ControlModifier);
    CHECK(frmBorinput::SSScale.Cell(7, 1) == "77.25");
    CHECK(ReadScratch("samples/TC-103.BOR").find("\r\n77.25\r\n") != std::string::npos);
    CHECK(FileChanged == 0);
    CHECK_FALSE(log->isWindowModified());
}

TEST_CASE("the set-up of parameters names the columns of the data while it is typed")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSP1Setup", 2, 1);
    TypeText("PID\n");
    const auto* samples = static_cast<QTableView*>(Bring(log, "SSSamp"));
    CHECK(samples->model()->headerData(6, Qt::Horizontal).toString() == "PID");
    CHECK(BoringData.SampleParamSetup[2][1] == "PID");
}

TEST_CASE("a block goes over the clipboard by keys, and a paste is one step")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSLegend", 1, 1);
    QApplication::clipboard()->setText("CL\tclay\nSM\tsilty sand\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    CHECK(frmBorinput::SSLegend.Cell(2, 2) == "silty sand");
    CHECK(frmBorinput::SSLegend.selected == Block{1, 1, 2, 2});
    Press(Qt::Key_C, Qt::ControlModifier);
    CHECK(QApplication::clipboard()->text() == "CL\tclay\r\nSM\tsilty sand\r\n");
    Press(Qt::Key_Z, Qt::ControlModifier);
    CHECK(frmBorinput::SSLegend.DataRowCount() == 0);
    ClickMenu(log, "mnuEdit", "mnuPaste");
    CHECK(frmBorinput::SSLegend.Cell(1, 2) == "clay");
    Press(Qt::Key_Down, Qt::ShiftModifier);
    CHECK(frmBorinput::SSLegend.selected.bottom == 2);
}

TEST_CASE("a click in each box makes its number the active one")
{
    QMainWindow* log = LogWindow();
    const std::pair<const char*, int> grids[] = {
        {"SSInfo", 1},      {"SSScale", 2}, {"SSRepParts", 3},  {"SSP1Setup", 4},      {"SSP2Setup", 5},
        {"SSPar", 6},       {"SSSamp", 7},  {"SSLith", 8},      {"SSGenWellInfo", 10}, {"SSOuterLay", 11},
        {"SSInnerLay", 12}, {"SSW", 13},    {"SSCuttings", 14}, {"SSFormations", 15},  {"SSLegend", 16}};
    for (const auto& [name, number] : grids) {
        ClickCell(log, name, 2, 1);
        CHECK(ActiveBox == number);
    }
    for (const char* name : {"MemoDes", "MemoWcon", "MemoRemarks", "MemoBottNotes", "txtClient"}) {
        ActiveBox = 0;
        Click(static_cast<QPlainTextEdit*>(Bring(log, name))->viewport());
        CHECK(ActiveBox == 9);
    }
    ThenAnswer("This function does not apply to text boxes.", "OK");
    ClickMenu(log, "mnuEdit", "mnuInsertRow");
    CheckAllDone();
}

// What the box shows, line by line, against the breaker's lines.
static void CheckLines(const QPlainTextEdit* view, const Memo& memo)
{
    std::vector<Text> shown;
    for (QTextBlock block = view->document()->begin(); block.isValid(); block = block.next()) {
        const QTextLayout* lines = block.layout();
        QString text = block.text();
        for (QChar& letter : text)
            if (letter.unicode() >= 0x2400 && letter.unicode() < 0x2420) // the signs of control characters
                letter = QChar(ushort(letter.unicode() - 0x2400));
        for (int i = 0; i < lines->lineCount(); ++i)
            shown.push_back(FromUi(text.mid(lines->lineAt(i).textStart(), lines->lineAt(i).textLength())));
    }
    if (shown.back().empty()) // the empty line behind the last line end is none of the breaker's
        shown.pop_back();
    const std::vector<Text> wanted = memo.DisplayLines();
    REQUIRE(shown.size() == wanted.size());
    for (size_t i = 0; i < wanted.size(); ++i)
        CHECK(shown[i] == wanted[i]);
}

TEST_CASE("a text box shows exactly the lines of the breaker, typed, wrapped, broken and taken back")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    Click(view->viewport());
    TypeText("Brown silty CLAY, fi fl ffi, stiff to very stiff,  with some fine gravel and   roots"
             "\n\nAWAY Tomorrow VAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVA end\n");
    CHECK(FileChanged == 1);
    CHECK(frmBorinput::MemoDes.text ==
          "Brown silty CLAY, fi fl ffi, stiff to very stiff,  with some fine gravel and   roots"
          "\r\n\r\nAWAY Tomorrow VAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVA end\r\n");
    CheckLines(view, frmBorinput::MemoDes);
    Press(Qt::Key_Home, Qt::ControlModifier);
    TypeText("@1 ");
    CheckLines(view, frmBorinput::MemoDes);
    Press(Qt::Key_Z, Qt::ControlModifier);
    CheckLines(view, frmBorinput::MemoDes);
    ClickButton(log, "cmdAdj1");
    CheckLines(view, frmBorinput::MemoDes);
    for (int i = 0; i < 4; ++i)
        ClickButton(log, "cmdAdj2");
    CheckLines(view, frmBorinput::MemoDes);
    log->resize(log->width() - 100, log->height());
    Settle();
    CheckLines(view, frmBorinput::MemoDes);
    LookAt(log, "memo");
}

TEST_CASE("every letter of the code page, in any mixture, stands on the breaker's line and comes back as it was")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<MemoView*>(Bring(log, "MemoDes"));
    unsigned seed = 7;
    const auto random = [&seed](unsigned below) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % below;
    };
    for (int round = 0; round < 60; ++round) {
        Text text;
        for (int i = 0; i < 400; ++i) {
            const unsigned kind = random(10);
            text += kind < 3 ? " " : kind == 3 && random(4) == 0 ? "\r\n" : Text(1, char(1 + random(255)));
        }
        frmBorinput::MemoDes.text = FromUi(ToUi(text)); // the five letters that the page lacks are no letters
        view->Refresh();
        CheckLines(view, frmBorinput::MemoDes);
        const Text before = frmBorinput::MemoDes.text;
        QTest::keyClick(view, 'x');
        CHECK(frmBorinput::MemoDes.text == "x" + before);
        CheckLines(view, frmBorinput::MemoDes);
    }
}

TEST_CASE("Tab leaves a text box, and a click on a description item writes it at the caret")
{
    QMainWindow* log = LogWindow();
    frmBorinput::List[2] = {"moist", "very dense"};
    OpenSample("TC-103.BOR");
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    Click(view->viewport());
    Press(Qt::Key_Home, Qt::ControlModifier);
    const Text before = frmBorinput::MemoDes.text;
    auto* list = Find<QListWidget>(log, "List2");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
    CHECK(frmBorinput::MemoDes.text == "very dense" + before);
    CHECK(view->hasFocus());
    CHECK(FileChanged == 1);
    Press(Qt::Key_Tab);
    CHECK_FALSE(view->hasFocus());
    CHECK(frmBorinput::MemoDes.text == "very dense" + before);
}

TEST_CASE("letters that the code page lacks are typed and pasted as their nearest, a line sign as a line end")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoRemarks"));
    Click(view->viewport());
    QApplication::clipboard()->setText(QString::fromUtf8("π≈3\u2028\U0001F600é\u00a0\tz"));
    Press(Qt::Key_V, Qt::ControlModifier);
    CHECK(frmBorinput::MemoRemarks.text == "pi~3\r\n?\xE9\xA0\tz");
    QKeyEvent pi(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromUtf8("π"));
    QApplication::sendEvent(view, &pi);
    CHECK(frmBorinput::MemoRemarks.text == "pi~3\r\n?\xE9\xA0\tzpi");
}

TEST_CASE("typing into a description of 1000 lines puts each letter at the caret, and the figures say what it costs")
{
    QMainWindow* log = LogWindow();
    for (int i = 0; i < 250; ++i)
        frmBorinput::MemoDes.text += "Brown silty CLAY, stiff to very stiff, with some fine gravel and roots, moist to "
                                     "wet; occasional thin lenses of fine sand and many small cobbles of limestone\r\n";
    CHECK(frmBorinput::MemoDes.DisplayLines().size() >= 1000);
    auto* view = static_cast<MemoView*>(Bring(log, "MemoDes"));
    view->Refresh();
    Click(view->viewport());
    Settle(50);
    for (int i = 0; i < 5; ++i)
        TypeText("x");
    std::vector<qint64> times;
    for (int i = 0; i < 41; ++i) {
        QElapsedTimer clock;
        clock.start();
        TypeText("y");
        times.push_back(clock.nsecsElapsed());
    }
    std::sort(times.begin(), times.end());
    MESSAGE("a keystroke: " << double(times[20]) / 1e6 << " ms");
    CHECK(frmBorinput::MemoDes.text.find("xxxxxyyyyy") != Text::npos);
    CHECK(frmBorinput::MemoDes.DisplayLines().size() >= 1000);
}

// Rows of cells, typed from the first cell on: Tab between cells, and a click to begin each row.
static void TypeRows(QMainWindow* log, const char* name, const std::vector<std::vector<const char*>>& rows)
{
    for (size_t row = 0; row < rows.size(); ++row) {
        ClickCell(log, name, int(row) + 1, 1);
        for (size_t column = 0; column < rows[row].size(); ++column) {
            TypeText(rows[row][column]);
            Press(column + 1 < rows[row].size() ? Qt::Key_Tab : Qt::Key_Return);
        }
    }
}

static void TypeInto(QMainWindow* log, const char* name, const char* text)
{
    auto* box = static_cast<QPlainTextEdit*>(Bring(log, name));
    Click(box->viewport());
    TypeText(text);
}

static void TypeLine(QWidget* line, const char* text)
{
    Click(line);
    TypeText(text);
}

static void SaveAs(QMainWindow* log, const char* name, const char* button = nullptr)
{
    Then("frmOpenSave", [name](QWidget* window) {
        auto* box = window->findChild<QLineEdit*>("fileText");
        REQUIRE(box);
        box->clear();
        QTest::keyClicks(box, name);
        QTest::keyClick(box, Qt::Key_Return);
    });
    if (button)
        ThenAnswer(
            ("The file, " + Scratch("samples/") + name + " already exists.  Do you wish to overwrite it?").c_str(),
            button);
    ClickMenu(log, "mnuFile", "mnuSaveAs");
    CheckAllDone();
}

TEST_CASE("a whole boring is typed, saved as the kept file, previewed, printed and closed")
{
    QMainWindow* log = LogWindow();
    frmBorinput::List[1] = {"brown, moist"};
    frmBorinput::LayFiles = {"PORTRAIT.LAY", "TABLOID.LAY"};
    ClickMenu(log, "mnuFile", "mnuNew");
    TypeLine(Find<QWidget>(log, "Text1"), "B-7 typed");
    TypeLine(Find<QWidget>(log, "Text2"), "SITEMAP.BMP");
    TypeLine(Find<QComboBox>(log, "cmbLayFile")->lineEdit(), "PORTRAIT");
    Click(Find<QWidget>(log, "Check1"));
    TypeInto(log, "txtClient", "Ellersby County\nMarl Ferry\nProject 7");
    Click(Find<QWidget>(log, "Option3"));
    TypeRows(log, "SSInfo", {{"Drilled By", "Brandt"}, {"Method", "HSA"}});
    TypeRows(log, "SSScale", {{"20"}, {"5,5"}, {"10"}, {"Feet"}, {"100.5"}, {"80"}, {"2410,1180"}});
    TypeRows(log, "SSRepParts",
             {{"depth scale"}, {"blow count"}, {"P1"}, {"USCS"}, {"graphic"}, {"descriptions", "2.4"}, {"remarks"}});
    TypeRows(log, "SSLith", {{"4.5", "fill", "D", "RED"}, {"12", "cl"}, {"20", "sm", "N"}});
    TypeRows(log, "SSFormations", {{"12", "Till,Qt"}});
    TypeInto(log, "MemoDes", "@1\nFILL, sandy gravel with crushed stone and a few brick fragments, ");
    auto* list = Find<QListWidget>(log, "List1");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    TypeText(".\n@2\nLean CLAY\n\n@3\nSilty SAND, fine grained\n");
    ClickButton(log, "cmdAdj2");
    ClickButton(log, "cmdAdj2");
    ClickButton(log, "cmdAdj1");
    TypeRows(log, "SSSamp", {{"0", "1.5", "", "4-6-9", "S-1", "12"}, {"5", "6.5", "", "7-7-8", "S-2", "15"}});
    TypeRows(log, "SSP1Setup", {{"Moist.", "Moisture %", "0,50,10"}});
    TypeRows(log, "SSPar", {{"1", "2.5"}, {"2", "3.5"}});
    TypeRows(log, "SSP2Setup", {{"PID", "PID ppm", "0,10,2"}});
    TypeRows(log, "SSGenWellInfo", {{"MW-7"}, {""}, {""}, {""}, {"100.5"}, {"2"}});
    TypeRows(log, "SSOuterLay", {{"0", "20", "grout", "", "F3"}});
    TypeRows(log, "SSInnerLay", {{"0", "10", "riser", "", "2"}, {"10", "20", "screen"}});
    TypeRows(log, "SSW", {{"Casing", "2 in. PVC"}});
    TypeInto(log, "MemoWcon", "Well developed by surging.");
    TypeInto(log, "MemoRemarks", "Water at 8 ft.\nBoring grouted at the end of the day by the driller.");
    TypeInto(log, "MemoBottNotes", "NOTES: first\nsecond");
    TypeRows(log, "SSCuttings", {{"5", "40", "40", "20"}});
    TypeRows(log, "SSLegend", {{"CL", "lean clay"}, {"SM", "silty sand"}});
    CHECK(log->isWindowModified());
    CHECK(Find<QLabel>(log, "lblState")->text() == "no page");
    CHECK(Find<QLabel>(log, "lblWidthtot")->text() == "Total Width: " + ToUi(frmBorinput::lblWidthtot));
    SaveAs(log, "TYPED");
    CHECK(Find<QLabel>(log, "lblState")->text() == "2 pages");
    CHECK_FALSE(log->isWindowModified());
    CHECK(log->windowTitle().toStdString() == Scratch("samples/TYPED.BOR") + " - VeskLog - Boring Log Diagram[*]");
    if (std::getenv("STRATAVUE_ACCEPT"))
        std::filesystem::copy_file(Scratch("samples/TYPED.BOR"), TestData("boring/typed.BOR"),
                                   std::filesystem::copy_options::overwrite_existing);
    std::ifstream kept(TestData("boring/typed.BOR"), std::ios::binary);
    CHECK(ReadScratch("samples/TYPED.BOR") == std::string(std::istreambuf_iterator<char>(kept), {}));
    for (const char* tab : {"SSInfo", "SSLith", "SSSamp", "SSPar", "SSW", "MemoRemarks", "SSLegend"}) {
        Bring(log, tab);
        LookAt(log, std::string("typed-") + tab);
    }

    Then("DrawArea", [](QWidget* window) {
        CHECK(PageList.Objects.size() > 50);
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();

    // The same name again asks first, and No writes nothing.
    TypeLine(Find<QWidget>(log, "Text2"), "x");
    const std::string before = ReadScratch("samples/TYPED.BOR");
    SaveAs(log, "TYPED.BOR", "No");
    CHECK(ReadScratch("samples/TYPED.BOR") == before);
    CHECK(FileChanged == 1);
    SaveAs(log, "TYPED.BOR", "Yes");
    CHECK(ReadScratch("samples/TYPED.BOR") != before);
    TypeLine(Find<QWidget>(log, "Text2"), "y");
    ThenAnswer("Would you like to save the current file before quitting?", "Cancel");
    log->close();
    CheckAllDone();
    CHECK(log->isVisible());
    ThenAnswer("Would you like to save the current file before quitting?", "Yes");
    log->close();
    CheckAllDone();
    CHECK_FALSE(log->isVisible());
    CHECK(frmBorinput::Text2.size() == 13);
    CHECK(ReadScratch("samples/TYPED.BOR").find(frmBorinput::Text2 + "\r\n") != std::string::npos);
}

TEST_CASE("New asks in its words: Cancel keeps the boring, No empties every box and leaves no path in the title")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    TypeLine(Find<QWidget>(log, "Text2"), "x");
    ThenAnswer("Would you like to save the current file before starting a new file?", "Cancel");
    Focus();
    Press(Qt::Key_N, Qt::ControlModifier);
    CheckAllDone();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-101");
    ThenAnswer("Would you like to save the current file before starting a new file?", "No");
    Press(Qt::Key_N, Qt::ControlModifier);
    CheckAllDone();
    CHECK(log->windowTitle() == "VeskLog - Boring Log Diagram[*]");
    CHECK_FALSE(log->isWindowModified());
    for (QLineEdit* line : log->findChildren<QLineEdit*>())
        CHECK(line->text().isEmpty());
    for (QPlainTextEdit* box : log->findChildren<QPlainTextEdit*>())
        CHECK(box->toPlainText().isEmpty());
    for (QTableView* grid : log->findChildren<QTableView*>())
        for (int row = 0; row < grid->model()->rowCount(); ++row)
            for (int column = 0; column < grid->model()->columnCount(); ++column)
                CHECK(grid->model()->index(row, column).data().toString().isEmpty());
    CHECK(Find<QLabel>(log, "lblWidthtot")->text() == "Total Width:        ");
}

TEST_CASE("a typed change after Open: No asks again in New's words, and a Cancel there skips the clearing only")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    ClickCell(log, "SSLegend", 30, 2);
    TypeText("stays\n");
    ThenAnswer("Would you like to save the current file before opening another file?", "No");
    Then("frmOpenSave", [](QWidget* window) {
        auto* box = window->findChild<QLineEdit*>("fileText");
        box->setText("TC-103.BOR");
        Key(box, Qt::Key_Return);
    });
    ThenAnswer("Would you like to save the current file before starting a new file?", "Cancel");
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
    CHECK(frmBorinput::SSLegend.Cell(30, 2) == "stays");
    CHECK(FileChanged == 0);
}

TEST_CASE("borings opened lately stand in the File menu, the last one first, and open from there")
{
    QMainWindow* log = LogWindow();
    CHECK_FALSE(Find<QAction>(log, "mnuRecent")->isEnabled());
    OpenSample("TC-103.BOR");
    OpenSample("TC-101.BOR");
    CHECK(Find<QAction>(log, "mnuRecent1")->text() == "&1 " + ToUi(Scratch("samples/TC-101.BOR")));
    Find<QAction>(log, "mnuRecent2")->trigger();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
    CHECK(Find<QAction>(log, "mnuRecent1")->text() == "&1 " + ToUi(Scratch("samples/TC-103.BOR")));
    CHECK(log->findChild<QAction*>("mnuRecent3") == nullptr);
}

TEST_CASE("a boring dropped on the window opens, on a text box too; other files are not taken")
{
    QMainWindow* log = LogWindow();
    CHECK_FALSE(Drop(log, Scratch("us.hdg")));
    CHECK(Drop(log, Scratch("samples/TC-103.BOR")));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
    CHECK(Drop(static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"))->viewport(), Scratch("samples/TC-101.BOR")));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-101");
}

TEST_CASE("every entry of the menu is there; those that need a tool which is not there are disabled")
{
    QMainWindow* log = LogWindow();
    const auto& commands = frmBorinput::Commands;
    const std::pair<const char*, bool> entries[] = {
        {"mnuNew", true},
        {"mnuOpen", true},
        {"mnuSave", true},
        {"mnuSaveAs", true},
        {"mnuImport", true},
        {"mnuPreview", true},
        {"mnuBatchDraw", true},
        {"mnuPrint", true},
        {"mnuPrintSetup", true},
        {"mnuExit", true},
        {"mnuUndo", true},
        {"mnuRedo", true},
        {"mnuCut", true},
        {"mnuCopy", true},
        {"mnuPaste", true},
        {"mnuFillDown", true},
        {"mnuInsertRow", true},
        {"mnuDeleteRow", true},
        {"mnuFillPatt", true},
        {"mnuHelp", true},
        {"mnuEditDesItems", commands.mnuEditDesItems != nullptr},
        {"mnuEditHeading", commands.mnuEditHeading != nullptr},
        {"mnuEditLayout", commands.mnuEditLayout != nullptr},
        {"mnuEditPromptFile", commands.mnuEditPromptFile != nullptr},
        {"mnuGraphicSetup", commands.mnuGraphicSetup != nullptr},
        {"mnuCreateLogo", commands.mnuCreateLogo != nullptr},
        {"mnuConvertFeetMeters", commands.mnuConvertFeetMeters != nullptr},
        {"mnuExp2IRPIMS", true},
        {"mnuGTGS", true},
        {"mnuConvertGTGStxt", true},
        {"mnuConvertGTGSgeneral", true},
        {"mnuConvertWinLog", true},
        {"mnuvcross", true},
        {"mnuvfence", true},
        {"mnuvsoil", true},
        {"mnuvGIS", true},
    };
    for (const auto& [name, enabled] : entries) {
        const auto entry = name;
        CAPTURE(entry);
        CHECK(Find<QAction>(log, name)->isEnabled() == enabled);
    }
}

TEST_CASE("Tab goes through the cells and out behind the last one, F6 out at once")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSFormations", 1, 1);
    Press(Qt::Key_Tab);
    CHECK(frmBorinput::SSFormations.column == 2);
    Press(Qt::Key_Tab);
    CHECK(frmBorinput::SSFormations.row == 2);
    CHECK(frmBorinput::SSFormations.column == 1);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    CHECK(frmBorinput::SSFormations.row == 1);
    ClickCell(log, "SSFormations", 80, 2);
    CHECK(QApplication::focusWidget()->objectName() == "SSFormations");
    Press(Qt::Key_Tab);
    CHECK(QApplication::focusWidget()->objectName() != "SSFormations");
    ClickCell(log, "SSLith", 1, 1);
    Press(Qt::Key_F6);
    CHECK(QApplication::focusWidget()->objectName() == "MemoDes");
}

TEST_CASE("the page beside the boxes follows what is typed, and a click on a layer leads to its row")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    ClickMenu(log, "mnuView", "mnuLivePreview");
    auto* pane = static_cast<LivePane*>(Find<QWidget>(log, "LivePage"));
    Settle(300);
    REQUIRE(pane->Shown().List.Objects.size() > 100);
    CHECK(Find<QLabel>(log, "lblLivePage")->text() == "Page 1 of 3");
    CHECK(PageList.Objects.empty());
    CHECK(FileChanged == 0);
    const std::string onDisk = ReadScratch("samples/TC-101.BOR");
    const auto holds = [pane](const char* words) {
        for (const PageObject& object : pane->Shown().List.Objects)
            if (object.String.find(words) != Text::npos)
                return true;
        return false;
    };
    CHECK_FALSE(holds("purple"));
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    Click(view->viewport());
    Press(Qt::Key_Home, Qt::ControlModifier);
    Press(Qt::Key_Down);
    TypeText("purple ");
    Settle(300);
    CHECK(holds("purple"));
    CHECK(ReadScratch("samples/TC-101.BOR") == onDisk);
    CHECK(BoringFileName == Scratch("samples/TC-101.BOR"));
    CHECK(FileChanged == 1);
    LookAt(log, "live");
    // Layer 3 ends at 11.5 feet, layer 2 at 7: a point between them.
    const LivePage& page = pane->Shown();
    const double y = page.Top + 9 * page.UnitsPerDepth;
    Bring(log, "SSLegend");
    QTest::mouseClick(
        pane, Qt::LeftButton, {},
        QPointF(pane->Sheet().center().x(), pane->Sheet().top() + y * pane->Sheet().height() / page.List.ExtentHeight)
            .toPoint());
    CHECK(frmBorinput::SSLith.row == 3);
    CHECK(Find<QTabWidget>(log, "SSTab1")->currentIndex() == 1);
    ClickButton(log, "cmdLiveNext");
    CHECK(Find<QLabel>(log, "lblLivePage")->text() == "Page 2 of 3");
    ClickMenu(log, "mnuView", "mnuLivePreview");
    CHECK_FALSE(pane->isVisible());
}

TEST_CASE("a column that the user has made wider keeps its width over Open and over a new start")
{
    QMainWindow* log = LogWindow();
    auto* grid = static_cast<QTableView*>(Bring(log, "SSSamp"));
    const int x = grid->horizontalHeader()->sectionViewportPosition(1) - 1;
    QWidget* header = grid->horizontalHeader()->viewport();
    QTest::mousePress(header, Qt::LeftButton, {}, QPoint(x, 8));
    QTest::mouseMove(header, QPoint(x + 30, 8));
    QTest::mouseMove(header, QPoint(x + 83, 8));
    QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(x + 83, 8));
    const int width = grid->columnWidth(0);
    CHECK(width > 120);
    OpenSample("TC-103.BOR");
    CHECK(grid->columnWidth(0) == width);
    Settle(400);
    for (const auto& file : std::filesystem::directory_iterator(ScratchFolder())) // the next start brings its own
        if (file.path().filename() != "Stratavue")
            std::filesystem::remove_all(file.path());
    log = LogWindow();
    CHECK(Find<QTableView>(log, "SSSamp")->columnWidth(0) == width);
}

TEST_CASE("a boring of 100 layers, 80 samples and 1000 lines opens whole, and the figure says how long it took")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    for (int row = 1; row <= 100; ++row) {
        frmBorinput::SSLith.Cell(row, 1) = PlainNumber(row);
        frmBorinput::SSLith.Cell(row, 2) = "CL";
    }
    for (int row = 1; row <= 80; ++row)
        for (int column = 1; column <= 21; ++column)
            frmBorinput::SSSamp.Cell(row, column) = PlainNumber(row + column);
    frmBorinput::MemoDes.text.clear();
    for (int i = 0; i < 1000; ++i)
        frmBorinput::MemoDes.text += "Brown silty CLAY, stiff, with gravel\r\n";
    BoringFileName = Scratch("LARGE.BOR");
    SaveBoringFile();
    OpenSample("TC-103.BOR");
    CHECK(frmBorinput::MemoDes.text.size() < 5000);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToUi(Scratch("LARGE.BOR")))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(log, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(log, &drop);
    QElapsedTimer clock;
    clock.start();
    QApplication::processEvents();
    const double ms = double(clock.nsecsElapsed()) / 1e6;
    CHECK(frmBorinput::SSLith.Cell(100, 1) == "100");
    CHECK(BoringData.DesCount == 1000);
    MESSAGE("opened in " << ms << " ms");
}

TEST_CASE("the Tab key's way goes from field to field as a boring is typed in, and every field has a name")
{
    QMainWindow* log = LogWindow();
    QStringList way;
    auto* first = Find<QWidget>(log, "Text1");
    QWidget* at = first;
    do {
        const QString name = at->objectName();
        const bool field = name.startsWith("SS") || name.startsWith("Memo") || name.startsWith("Text") ||
                           name.startsWith("List") || name.startsWith("txt") || name.startsWith("cmdAdj") ||
                           name.startsWith("cmb");
        if (field && name != "SSTab1" && at->focusPolicy() & Qt::TabFocus) {
            way << name;
            CAPTURE(name.toStdString());
            CHECK_FALSE(at->accessibleName().isEmpty());
        }
        at = at->nextInFocusChain();
    } while (at != first);
    CHECK(
        way.join(' ').toStdString() ==
        "Text1 Text2 cmbLayFile txtClient SSInfo SSScale SSRepParts SSLith MemoDes cmdAdj1 cmdAdj2 List1 List2 List3 "
        "List4 SSFormations SSSamp SSP1Setup SSPar SSP2Setup SSGenWellInfo SSOuterLay SSInnerLay SSW MemoWcon cmdAdj3 "
        "cmdAdj4 MemoRemarks cmdAdj5 cmdAdj6 MemoBottNotes cmdAdj7 cmdAdj8 SSCuttings SSLegend");
}

TEST_CASE("pictures of the tabs")
{
    QMainWindow* log = LogWindow();
    frmBorinput::List[1] = {"brown", "gray"};
    OpenSample("TC-101.BOR");
    auto* tabs = Find<QTabWidget>(log, "SSTab1");
    CHECK(tabs->count() == 7);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        LookAt(log, "tab" + std::to_string(i));
    }
}

// ---- Enter behind Tabs

static void CheckAt(const Grid& grid, int row, int column)
{
    CHECK(grid.row == row);
    CHECK(grid.column == column);
}

TEST_CASE("Enter behind a run of Tabs goes to the column where the run began, one row down, and Shift+Enter one row up")
{
    QMainWindow* log = LogWindow();
    const Grid& lith = frmBorinput::SSLith;
    ClickCell(log, "SSLith", 2, 2);
    TypeText("cl\ts\tbrown\n");
    CheckAt(lith, 3, 2);
    CHECK(lith.Cell(2, 4) == "brown");
    TypeText("sm\t\t\n"); // Tabs with nothing typed
    CheckAt(lith, 4, 2);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    CheckAt(lith, 3, 2);
    TypeText("x\ty"); // and from the box of a cell
    Press(Qt::Key_Return, Qt::ShiftModifier);
    CheckAt(lith, 2, 2);
    CHECK(lith.Cell(3, 2) == "x");
    CHECK(lith.Cell(3, 3) == "y");
    TypeText("\n");
    CheckAt(lith, 3, 2);
    TypeText("a\n"); // Enter alone stays in its column
    CheckAt(lith, 4, 2);
    ClickCell(log, "SSLith", 3, 3);
    TypeText("\t\t5\t\n"); // over the end of the row
    CheckAt(lith, 5, 3);
    CHECK(lith.Cell(4, 1) == "5");
}

TEST_CASE("a click, an arrow and leaving the grid end a run of Tabs, and going back takes its beginning along")
{
    QMainWindow* log = LogWindow();
    const Grid& lith = frmBorinput::SSLith;
    ClickCell(log, "SSLith", 1, 1);
    TypeText("\t\t");
    Press(Qt::Key_Right);
    TypeText("\n");
    CheckAt(lith, 2, 4);
    ClickCell(log, "SSLith", 1, 1);
    TypeText("\t\t");
    ClickCell(log, "SSLith", 1, 3); // where it is
    TypeText("\n");
    CheckAt(lith, 2, 3);
    ClickCell(log, "SSLith", 1, 1);
    TypeText("\t\tx");
    Press(Qt::Key_Down); // ends the edit
    TypeText("\n");
    CheckAt(lith, 3, 3);
    ClickCell(log, "SSLith", 1, 3);
    TypeText("\t");
    for (int i = 0; i < 2; ++i)
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
    CheckAt(lith, 1, 2);
    TypeText("\t\t\n");
    CheckAt(lith, 2, 2);
    ClickCell(log, "SSLith", 1, 2);
    TypeText("\t");
    Press(Qt::Key_F6);
    Find<QWidget>(log, "SSLith")->setFocus(Qt::TabFocusReason);
    TypeText("\n");
    CheckAt(lith, 2, 3);
    // Below the last row there is nowhere to go.
    ClickCell(log, "SSLith", 100, 2);
    TypeText("\t\n");
    CheckAt(lith, 100, 3);
}

// ---- Markers

static Text StatusWords(QMainWindow* log)
{
    return FromUi(log->statusBar()->currentMessage());
}

TEST_CASE("a row put in takes the markers along: the status line says so, the caret stays, and each box's Undo works")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSLith", 1, 1);
    TypeText("5\n10\n15\n");
    auto* box = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    box->setFocus();
    TypeText("@1\nsand\n@2\nclay\n@3\ntill");
    for (int i = 0; i < 2; ++i)
        Press(Qt::Key_Left); // inside the word
    ClickCell(log, "SSLith", 2, 1);
    ClickMenu(log, "mnuEdit", "mnuInsertRow");
    CHECK(frmBorinput::MemoDes.text == "@1\r\nsand\r\n@2\r\n@3\r\nclay\r\n@4\r\ntill");
    CHECK(box->toPlainText() == "@1\nsand\n@2\n@3\nclay\n@4\ntill");
    CHECK(StatusWords(log) == "Markers @2 to @3 are now @3 to @4. @2 is new, and empty.");
    CHECK(box->textCursor().position() == box->toPlainText().size() - 2);
    LookAt(log, "markers-moved");
    Settle();
    Press(Qt::Key_Z, Qt::ControlModifier); // in the grid
    CHECK(frmBorinput::SSLith.Cell(2, 1) == "10");
    CHECK(box->toPlainText() == "@1\nsand\n@2\nclay\n@3\ntill");
    CHECK(StatusWords(log) == "Taken back: Markers @2 to @3 are now @3 to @4. @2 is new, and empty.");
    Press(Qt::Key_Y, Qt::ControlModifier);
    CHECK(box->toPlainText() == "@1\nsand\n@2\n@3\nclay\n@4\ntill");
    // In the box the move is a step as well, and what was typed before it is not lost.
    box->setFocus();
    box->undo();
    CHECK(frmBorinput::MemoDes.text == "@1\r\nsand\r\n@2\r\nclay\r\n@3\r\ntill");
    CHECK(frmBorinput::SSLith.Cell(3, 1) == "10");
    CHECK(box->document()->isUndoAvailable());
    FileChanged = 0;
    // Another boring takes nothing back.
    ClickMenu(log, "mnuFile", "mnuNew");
    CHECK(box->toPlainText() == "");
    CHECK_FALSE(box->document()->isUndoAvailable());
}

// ---- The entries of the Edit menu in texts

TEST_CASE("Edit > Cut, Copy and Paste act on the text that is typed in, and on no grid's block")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSInfo", 1, 1);
    TypeText("keep\n");
    ClickCell(log, "SSInfo", 1, 1);
    auto* line = Find<QLineEdit>(log, "Text1");
    auto* layout = Find<QComboBox>(log, "cmbLayFile");
    line->setFocus();
    TypeText("MW-1");
    line->selectAll();
    ClickMenu(log, "mnuEdit", "mnuCut");
    CHECK(frmBorinput::Text1 == "");
    CHECK(QApplication::clipboard()->text() == "MW-1");
    CHECK(frmBorinput::SSInfo.Cell(1, 1) == "keep");
    ClickMenu(log, "mnuEdit", "mnuPaste");
    CHECK(frmBorinput::Text1 == "MW-1");
    line->setSelection(0, 2);
    ClickMenu(log, "mnuEdit", "mnuCopy");
    CHECK(QApplication::clipboard()->text() == "MW");
    layout->setFocus();
    ClickMenu(log, "mnuEdit", "mnuPaste");
    CHECK(frmBorinput::cmbLayFile == "MW");
    ClickMenu(log, "mnuEdit", "mnuUndo");
    CHECK(frmBorinput::cmbLayFile == "");
    for (const char* name : {"MemoDes", "txtClient"}) {
        auto* box = static_cast<QPlainTextEdit*>(Bring(log, name));
        box->setFocus();
        TypeText("word");
        box->selectAll();
        ClickMenu(log, "mnuEdit", "mnuCut"); // no message
        CHECK(box->toPlainText() == "");
        ClickMenu(log, "mnuEdit", "mnuPaste");
        CHECK(box->toPlainText() == "word");
    }
    CHECK(frmBorinput::MemoDes.text == "word");
    // In the box of a cell too: the cell's letters, not the cell.
    log->activateWindow();
    Settle();
    ClickCell(log, "SSInfo", 1, 1);
    Press(Qt::Key_F2);
    auto* cell = qobject_cast<QLineEdit*>(Focus());
    REQUIRE(cell);
    cell->setSelection(0, 2);
    ClickMenu(log, "mnuEdit", "mnuCut");
    Press(Qt::Key_Return);
    CHECK(frmBorinput::SSInfo.Cell(1, 1) == "ep");
    FileChanged = 0;
}

// ---- Titles and lists

TEST_CASE("a name with the sign of unsaved changes in it stands in the title as it is")
{
    QMainWindow* log = LogWindow();
    for (const char* name : {"a[*]b", "c[*][*]"}) {
        frmBorinput::Title = name;
        FileChanged = 0;
        ClickMenu(log, "mnuEdit", "mnuFillDown"); // any command shows the title
        CHECK(log->windowHandle()->title() == name);
        FileChanged = 1;
        ClickMenu(log, "mnuEdit", "mnuFillDown");
        CHECK(log->windowHandle()->title().toStdString() == std::string(name) + "*");
    }
    FileChanged = 0;
}

TEST_CASE("at the start and after New the Layout File list begins at its first layout")
{
    QMainWindow* log = LogWindow();
    auto* box = Find<QComboBox>(log, "cmbLayFile");
    REQUIRE(box->count() > 2);
    CHECK(box->currentIndex() == -1);
    CHECK(box->currentText() == "");
    OpenSample("MW-109.BOR");
    box->setCurrentIndex(2);
    emit box->textActivated(box->itemText(2));
    CHECK(FromUi(box->itemText(2)) == frmBorinput::cmbLayFile);
    FileChanged = 0;
    ClickMenu(log, "mnuFile", "mnuNew");
    CHECK(box->currentIndex() == -1);
    CHECK(box->currentText() == "");
    CHECK(frmBorinput::cmbLayFile == "");
    box->setFocus();
    Press(Qt::Key_Down);
    CHECK(box->currentIndex() == 0);
    CHECK(frmBorinput::cmbLayFile == FromUi(box->itemText(0)));
    // Typing in the middle of a name keeps the caret there.
    box->lineEdit()->setCursorPosition(1);
    TypeText("xy");
    CHECK(box->lineEdit()->cursorPosition() == 3);
    CHECK(frmBorinput::cmbLayFile == FromUi(box->currentText()));
    CHECK(box->currentIndex() == -1);
    FileChanged = 0;
}
