// fields_test.cpp -- the fields of the log tool's window: their names, their labels, the way of the Tab key, and the
// check list beside them.
#include "windows/driver.h"
#include "windows/hands.h"

#include "boring/boringboxes.h"
#include "editors/checklist.h"
#include "report/prompts.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/checkdock.h"
#include "windows/uitext.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextBlock>
#include <algorithm>
#include <functional>
#include <set>

// What the user can go to by Tab, inside out: the box of a list with free typing belongs to the list.
static std::vector<QWidget*> Fields(QMainWindow* log)
{
    std::vector<QWidget*> fields;
    for (QWidget* widget : log->findChildren<QWidget*>())
        if ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled() &&
            !qobject_cast<QComboBox*>(widget->parentWidget()) && !widget->inherits("QMenuBar") &&
            !widget->inherits("QMenu") && widget->window() == log)
            fields.push_back(widget);
    return fields;
}

TEST_CASE("every field has a name for who cannot see it")
{
    QMainWindow* log = LogWindow();
    for (const char* dock : {"dckPreview", "dckCheck"})
        Find<QWidget>(log, dock)->show();
    Settle();
    const std::vector<QWidget*> fields = Fields(log);
    CHECK(fields.size() > 40);
    for (QWidget* field : fields) {
        CAPTURE(field->objectName().toStdString());
        CAPTURE(field->metaObject()->className());
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(field);
        REQUIRE(spoken);
        const bool tabs = qobject_cast<QTabBar*>(field) != nullptr; // each tab has its own
        CHECK((tabs || !spoken->text(QAccessible::Name).isEmpty()));
    }
}

TEST_CASE("Tab and F6 go through every field of the window, and come round")
{
    QMainWindow* log = LogWindow();
    for (const char* dock : {"dckPreview", "dckCheck"})
        Find<QWidget>(log, dock)->show();
    auto* tabs = Find<QTabWidget>(log, "SSTab1");
    std::set<QWidget*> reached;
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        Settle();
        auto* first = Find<QLineEdit>(log, "Text1");
        first->setFocus();
        for (int step = 0; step < 60; ++step) {
            QWidget* at = QApplication::focusWidget();
            REQUIRE(at);
            reached.insert(qobject_cast<QComboBox*>(at->parentWidget()) ? at->parentWidget() : at);
            // In a grid Tab goes from cell to cell; F6 leaves it.
            const bool grid = qobject_cast<QTableView*>(at) != nullptr;
            QTest::keyClick(at, grid ? Qt::Key_F6 : Qt::Key_Tab);
            Settle();
            if (QApplication::focusWidget() == first)
                break;
        }
        CHECK(QApplication::focusWidget() == first);
    }
    for (QWidget* field : Fields(log)) {
        CAPTURE(field->objectName().toStdString());
        CAPTURE(field->metaObject()->className());
        const bool unused = field->objectName().isEmpty() && !field->isVisible();
        const bool option = field->objectName().startsWith("Option"); // reached with the arrows where one is chosen
        CHECK((unused || option || reached.count(field) == 1));
    }
}

TEST_CASE("labels outside the grids are those of prompt.txt, from the start and when it is saved anew")
{
    // Every label that the log tool's window has, and where it shows.
    struct Place {
        int slot;
        const char* design;
        std::function<QString(QMainWindow*)> shown;
    };
    const auto labelOf = [](const char* box) {
        return [box](QMainWindow* log) {
            for (QLabel* label : log->findChildren<QLabel*>())
                if (label->buddy() && label->buddy()->objectName() == box)
                    return label->text();
            return QString("no label");
        };
    };
    const auto button = [](const char* name) {
        return [name](QMainWindow* log) { return Find<QAbstractButton>(log, name)->text(); };
    };
    const auto label = [](const char* name) {
        return [name](QMainWindow* log) { return Find<QLabel>(log, name)->text(); };
    };
    const std::vector<Place> places = {
        {1, "General", [](QMainWindow* log) { return Find<QTabWidget>(log, "SSTab1")->tabText(0); }},
        {2, "Client/Project Information", labelOf("txtClient")},
        {3, "Style:", label("lblStyle")},
        {4, "Open", button("Option1")},
        {5, "1 Line A", button("Option2")},
        {6, "1 Line B", button("Option4")},
        {7, "2 Line", button("Option3")},
        {8, "Boring/Title Information", labelOf("SSInfo")},
        {11, "Scale Information", labelOf("SSScale")},
        {19, "Boring Name", labelOf("Text1")},
        {20, "Map File", labelOf("Text2")},
        {21, "Layout File", labelOf("cmbLayFile")},
        {22, "Report Parts", labelOf("SSRepParts")},
        {25, "Total Width:", label("lblWidthtot")},
        {32, "Soil Sample Parameter Set-Up", labelOf("SSP1Setup")},
        {33, "[Text/Sm. Graph Column Headings]", label("lblPrompt33")},
        {43, "General Parameter Set-Up", labelOf("SSP2Setup")},
        {44, "[Text/Sm. Graph Column Headings]", label("lblPrompt44")},
        {58, "Soil Sample Data", labelOf("SSSamp")},
        {64, "General Parameter Data", labelOf("SSPar")},
        {67, "Lithology", labelOf("SSLith")},
        {72, "Descriptions", labelOf("MemoDes")},
        {76, "General Well Information", labelOf("SSGenWellInfo")},
        {96, "Outer Layers", labelOf("SSOuterLay")},
        {102, "Inner Layers", labelOf("SSInnerLay")},
        {109, "Well Construction Information", labelOf("SSW")},
        {112, "Well Construction Notes", labelOf("MemoWcon")},
        {113, "General Notes:", labelOf("MemoBottNotes")},
        {115, "Formation Information", labelOf("SSFormations")},
        {118, "Cutting Information", labelOf("SSCuttings")},
        {124, "Intro Page Legend", labelOf("SSLegend")},
        {127, "Remarks", labelOf("MemoRemarks")},
    };
    QMainWindow* log = LogWindow();
    for (const Place& place : places) {
        CAPTURE(place.slot);
        CHECK(place.shown(log).startsWith(place.design));
    }
    // Saved in the prompt editor with other words; a "&" is no sign of a key.
    Then("frmPrompt", [&places](QWidget* window) {
        for (const Place& place : places)
            frmPrompt::SS1.Cell(place.slot, NewText) = "Q&A " + PlainNumber(place.slot);
        ClickMenu(window, "mnuFile", "mnuSave");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuEdit", "mnuEditPromptFile");
    CheckAllDone();
    for (const Place& place : places) {
        CAPTURE(place.slot);
        QString shown = place.shown(log);
        if (shown.contains("&&"))
            shown.replace("&&", "&");
        CHECK(shown.startsWith(QString("Q&A %1").arg(place.slot)));
    }
    CHECK(Find<QWidget>(log, "MemoDes")->accessibleName() == "Q&A 72");
    CHECK(Find<QWidget>(log, "SSLith")->accessibleName() == "Q&A 67");
    CHECK(Find<QWidget>(log, "Text1")->accessibleName() == "Q&A 19");
    // An empty one is empty.
    Then("frmPrompt", [&places](QWidget* window) {
        for (const Place& place : places)
            frmPrompt::SS1.Cell(place.slot, NewText) = "";
        ClickMenu(window, "mnuFile", "mnuSave");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuEdit", "mnuEditPromptFile");
    CheckAllDone();
    CHECK(labelOf("MemoDes")(log).isEmpty());
    CHECK(Find<QTabWidget>(log, "SSTab1")->tabText(0).isEmpty());
}

static QStringList Checks(QMainWindow* log)
{
    auto* list = Find<QListWidget>(log, "lstCheck");
    QStringList words;
    for (int row = 0; row < list->count(); ++row)
        words << list->item(row)->text();
    return words;
}

static void ClickCheck(QMainWindow* log, const QString& words)
{
    auto* list = Find<QListWidget>(log, "lstCheck");
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->text().contains(words)) {
            list->scrollToItem(list->item(row));
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
            return;
        }
    FAIL("not in the list: " << words.toStdString());
}

TEST_CASE("the check list follows what is typed, and each entry leads to its cell")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    auto* dock = Find<QWidget>(log, "dckCheck");
    CHECK_FALSE(dock->isVisible());
    Press(Qt::Key_F7, Qt::ControlModifier);
    Settle(300);
    CHECK(dock->isVisible());
    const QStringList before = Checks(log);
    const std::string file = ReadScratch("samples/TC-103.BOR");

    ClickCell(log, "SSLith", 2, 1);
    TypeText("0.1\n");
    Settle(300);
    CHECK(Checks(log) != before);
    ClickCell(log, "SSScale", 2, 1);
    ClickCheck(log, "Contact 2 at 0.1 does not lie below contact 1");
    CHECK(QApplication::focusWidget() == Find<QWidget>(log, "SSLith"));
    CHECK(frmBorinput::SSLith.row == 2);
    CHECK(frmBorinput::SSLith.column == 1);
    CHECK(Find<QTabWidget>(log, "SSTab1")->currentIndex() == 1);

    // A place in a text, by the keyboard.
    auto* des = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    des->setFocus();
    Press(Qt::Key_End, Qt::ControlModifier);
    TypeText("\n-999\n");
    Settle(300);
    auto* list = Find<QListWidget>(log, "lstCheck");
    Bring(log, "SSSamp");
    list->setFocus();
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->text().contains("Descriptions, line"))
            list->setCurrentRow(row);
    Press(Qt::Key_Return);
    CHECK(QApplication::focusWidget() == des);
    CHECK(des->textCursor().block().text() == "-999");
    CHECK(des->textCursor().positionInBlock() == 0);

    CHECK(ReadScratch("samples/TC-103.BOR") == file);
    Press(Qt::Key_F7, Qt::ControlModifier);
    CHECK_FALSE(dock->isVisible());
    FileChanged = 0;
}

TEST_CASE("an entry of the check list tells its weight by word and by sign, and a line above counts them")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Press(Qt::Key_F7, Qt::ControlModifier);
    ClickCell(log, "SSLith", 2, 1);
    TypeText("0.1\n");
    Settle(300);
    auto* list = Find<QListWidget>(log, "lstCheck");
    REQUIRE(list->count() >= 1);
    int weight = 0;
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem* item = list->item(row);
        const QStringList words = {"Error: ", "Warning: ", "Remark: "};
        int told = -1;
        for (int i = 0; i < words.size(); ++i)
            if (item->text().startsWith(words[i]))
                told = i;
        CHECK_MESSAGE(told >= weight, item->text().toStdString()); // the gravest first
        weight = told;
        CHECK_FALSE(item->icon().isNull());
        CHECK(item->data(Qt::AccessibleTextRole).toString() == item->text());
    }
    CHECK(Find<QLabel>(log, "lblCheckHead")->text() == QString::fromStdString(CountsInWords(CheckBoring())));
    // The three signs differ by their outline, in black and white too.
    for (const QColor base : {QColor(Qt::white), QColor(30, 30, 30)}) {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        QList<QImage> shapes;
        for (const CheckWeight one : {CheckWeight::Error, CheckWeight::Warning, CheckWeight::Remark})
            shapes << WeightSign(one, palette).pixmap(16).toImage().createAlphaMask();
        CHECK(shapes[0] != shapes[1]);
        CHECK(shapes[1] != shapes[2]);
        CHECK(shapes[0] != shapes[2]);
    }
    FileChanged = 0;
}

TEST_CASE("clicks down a landscape page lead from layer to layer, each to its row")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-102.BOR");
    Find<QWidget>(log, "dckPreview")->show();
    Settle(400);
    auto* pane = Find<QWidget>(log, "LivePage");
    auto* grid = Find<QTableView>(log, "SSLith");
    REQUIRE(Find<QLabel>(log, "lblLivePage")->text() == "Page 1 of 2");
    std::set<int> rows;
    int before = 0;
    Focus();
    for (int y = 0; y < pane->height(); ++y) {
        grid->setCurrentIndex(grid->model()->index(99, 0));
        QTest::mouseClick(pane, Qt::LeftButton, {}, QPoint(pane->width() / 2, y));
        if (frmBorinput::SSLith.row == 100) // beside the layers
            continue;
        CHECK(frmBorinput::SSLith.row >= before);
        before = frmBorinput::SSLith.row;
        rows.insert(before);
    }
    // All layers of the first 20 feet, and no other.
    std::set<int> expected;
    double top = 0;
    for (int row = 1; row <= frmBorinput::SSLith.DataRowCount() && top < 20; ++row) {
        expected.insert(row);
        top = TextNumber(frmBorinput::SSLith.Cell(row, 1));
    }
    std::string found, wanted;
    for (const int row : rows)
        found += std::to_string(row) + " ";
    for (const int row : expected)
        wanted += std::to_string(row) + " ";
    CHECK(found == wanted);
    CHECK(QApplication::focusWidget() == Find<QWidget>(log, "SSLith"));
    CHECK(Find<QTabWidget>(log, "SSTab1")->currentIndex() == 1);
}

TEST_CASE("the items of report parts are offered by an arrow, Alt+Down and the context menu, beside free typing")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QTableView*>(Bring(log, "SSRepParts"));
    const auto choose = [log, view](const char* item) {
        auto* menu = view->findChild<QMenu*>("mnuOffered");
        REQUIRE(menu);
        CHECK(menu->actions().size() == 27);
        CHECK(menu->actions().first()->text() == "blow count");
        CHECK(menu->actions().last()->text() == "well diagram-small");
        for (QAction* action : menu->actions())
            if (action->text() == item) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                break;
            }
        log->activateWindow(); // this screen has no window manager that would give the focus back
        Settle();
        CHECK_FALSE(view->findChild<QMenu*>("mnuOffered"));
    };
    ClickCell(log, "SSRepParts", 1, 1);
    Press(Qt::Key_Down, Qt::AltModifier);
    choose("depth scale");
    CHECK(frmBorinput::SSRepParts.Cell(1, 1) == "depth scale");
    CHECK(FileChanged == 1);
    Press(Qt::Key_Z, Qt::ControlModifier);
    CHECK(frmBorinput::SSRepParts.Cell(1, 1) == "");

    const QRect cell = view->visualRect(view->model()->index(0, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(cell.right() - 6, cell.center().y()));
    choose("GPGn");
    CHECK(frmBorinput::SSRepParts.Cell(1, 1) == "GPGn");

    ClickCell(log, "SSRepParts", 2, 1);
    QContextMenuEvent context(QContextMenuEvent::Keyboard, cell.center(), view->mapToGlobal(cell.center()));
    QApplication::sendEvent(view->viewport(), &context);
    choose("USCS");
    CHECK(frmBorinput::SSRepParts.Cell(2, 1) == "USCS");

    // A right press beside the arrow is the context menu alone, and a press that is to extend the block does only that.
    const auto lists = [view] { return view->findChildren<QMenu*>("mnuOffered").size(); };
    ClickCell(log, "SSRepParts", 1, 1);
    const QPoint arrow(cell.right() - 6, cell.center().y());
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, arrow);
    CHECK(lists() == 0);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, arrow);
    CHECK(lists() == 0);
    // Without the focus there is no arrow.
    Click(Find<QLineEdit>(log, "Text1"));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, arrow);
    CHECK(lists() == 0);
    // While a cell is edited what was typed is taken, and the list comes for that cell.
    ClickCell(log, "SSRepParts", 4, 1);
    TypeText("g");
    Press(Qt::Key_Down, Qt::AltModifier);
    CHECK(frmBorinput::SSRepParts.Cell(4, 1) == "g");
    choose("graphic");
    CHECK(frmBorinput::SSRepParts.Cell(4, 1) == "graphic");
    // Below the last cell nothing is offered.
    QContextMenuEvent below(QContextMenuEvent::Mouse, QPoint(5, 5000), view->mapToGlobal(QPoint(5, 5000)));
    QApplication::sendEvent(view->viewport(), &below);
    CHECK(lists() == 0);
    // A width has nothing to offer.
    ClickCell(log, "SSRepParts", 2, 2);
    Press(Qt::Key_Down, Qt::AltModifier);
    CHECK_FALSE(view->findChild<QMenu*>("mnuOffered"));
    ClickCell(log, "SSRepParts", 3, 1);
    TypeText("well\n");
    CHECK(frmBorinput::SSRepParts.Cell(3, 1) == "well");
}
