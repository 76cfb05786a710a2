// gridview.cpp -- a grid record on the screen.
#include "windows/gridview.h"

#include "grid/gridedit.h"
#include "session/session.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QAbstractTableModel>
#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSettings>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

// The record as Qt's tables ask for it. Rows and columns of the record count from 1.
class GridModel : public QAbstractTableModel
{
public:
    GridModel(Grid& shown, QObject* parent)
        : QAbstractTableModel(parent), grid(shown), rows(shown.rows), columns(shown.columns)
    {
    }
    // Tells the view of what differs from what it was last told.
    void Refresh()
    {
        Resize();
        if (cells != grid.cells || fontName != grid.fontName) {
            cells = grid.cells;
            fontName = grid.fontName;
            emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        }
        if (headings != grid.headings) {
            headings = grid.headings;
            emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
        }
        if (rowHeadings != grid.rowHeadings) {
            rowHeadings = grid.rowHeadings;
            emit headerDataChanged(Qt::Vertical, 0, rows - 1);
        }
    }
    // What was typed goes into the record. It waits until the box that it was typed in is closed: a change may bring a
    // message, and the message would take the focus from a box that is still being closed.
    // The cell that it went to.
    QModelIndex TakeTyped()
    {
        if (!typed.isValid())
            return {};
        const QModelIndex at = typed;
        typed = QModelIndex();
        if (at.row() >= grid.rows || at.column() >= grid.columns) // the cell has gone meanwhile
            return {};
        TypeCell(grid, at.row() + 1, at.column() + 1, Typed(typedText));
        return at;
    }
    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : rows;
    }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : columns;
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
        return index.column() < grid.locked ? flags : flags | Qt::ItemIsEditable;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (index.isValid() && role == Qt::FontRole && !grid.fontName.empty()) {
            QFont font = static_cast<QWidget*>(QObject::parent())->font();
            font.setFamily(ToUi(grid.fontName));
            return font;
        }
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::EditRole))
            return {};
        if (index == typed)
            return typedText;
        if (index.row() >= grid.rows || index.column() >= grid.columns) // the record has shrunk, the view not yet
            return {};
        return ToUi(grid.Cell(index.row() + 1, index.column() + 1));
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (!index.isValid() || role != Qt::EditRole)
            return false;
        typed = index;
        typedText = value.toString();
        return true;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignVCenter |
                       (orientation == Qt::Vertical && grid.rowHeadings.size() <= 1 ? Qt::AlignRight : Qt::AlignLeft));
        const size_t column = size_t(section) + 1;
        if (role == Qt::ToolTipRole && orientation == Qt::Horizontal && column < grid.offered.size() &&
            !grid.offered[column].empty())
            return "Alt+Down or a click on the arrow lists what there is.";
        if (role != Qt::DisplayRole)
            return {};
        const std::vector<Text>& names = orientation == Qt::Horizontal ? grid.headings : grid.rowHeadings;
        if (size_t(section) + 1 < names.size())
            return ToUi(names[size_t(section) + 1]);
        return orientation == Qt::Horizontal ? QVariant(QString()) : QVariant(section + 1);
    }

private:
    // Rows and columns come and go at the end; what stands in the others is told as changed cells.
    void Resize()
    {
        const int newRows = grid.rows, newColumns = grid.columns;
        if (newRows > rows) {
            beginInsertRows({}, rows, newRows - 1);
            rows = newRows;
            endInsertRows();
        } else if (newRows < rows) {
            beginRemoveRows({}, newRows, rows - 1);
            rows = newRows;
            endRemoveRows();
        }
        if (newColumns > columns) {
            beginInsertColumns({}, columns, newColumns - 1);
            columns = newColumns;
            endInsertColumns();
        } else if (newColumns < columns) {
            beginRemoveColumns({}, newColumns, columns - 1);
            columns = newColumns;
            endRemoveColumns();
        }
    }

    Grid& grid;
    int rows, columns; // as the view knows them, and so the others
    std::vector<Text> cells, headings, rowHeadings;
    Text fontName;
    QModelIndex typed;
    QString typedText;
};

// Where in a cell the arrow to what is offered stands.
static QRect OfferArrow(const QRect& cell)
{
    const int size = std::min(cell.height(), 16);
    return QRect(cell.right() - size, cell.top() + (cell.height() - size) / 2, size, size);
}

namespace
{
// The current row is tinted, and its number is bold. An edit ends at Shift+Enter and the arrows up and down too.
class CellDelegate : public QStyledItemDelegate
{
public:
    CellDelegate(const Grid& shown, EditEnd& end, QObject* parent)
        : QStyledItemDelegate(parent), grid(shown), ended(end)
    {
    }
    std::function<bool()> offer; // the list of what the cell offers, also while it is edited; false: it has none
    // A column with choices has a list to pick from.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const size_t column = size_t(index.column()) + 1;
        if (column >= grid.choices.size() || grid.choices[column].empty()) {
            QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
            if (auto* line = qobject_cast<QLineEdit*>(editor))
                CleanAsTyped(line);
            return editor;
        }
        auto* list = new QComboBox(parent);
        for (const Text& choice : grid.choices[column])
            list->addItem(ToUi(choice));
        return list;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        if (auto* list = qobject_cast<QComboBox*>(editor))
            list->setCurrentText(index.data(Qt::EditRole).toString());
        else
            QStyledItemDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        if (const auto* list = qobject_cast<QComboBox*>(editor))
            model->setData(index, list->currentText());
        else
            QStyledItemDelegate::setModelData(editor, model, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto* view = qobject_cast<const QAbstractItemView*>(option->widget);
        if (view && view->currentIndex().row() == index.row())
            option->backgroundBrush = QColor(0xe4, 0xee, 0xf8);
        if (view && !view->hasFocus()) { // the block of a grid that is not typed in stands back
            option->palette.setColor(QPalette::Highlight, QColor(0xcf, 0xdc, 0xe8));
            option->palette.setColor(QPalette::HighlightedText, option->palette.color(QPalette::Text));
        }
    }
    // The current cell of a column with something to offer has an arrow to it at its right.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
        const size_t column = size_t(index.column()) + 1;
        if (!view || !view->hasFocus() || view->currentIndex() != index || column >= grid.offered.size() ||
            grid.offered[column].empty())
            return;
        QStyleOption arrow(option);
        arrow.rect = OfferArrow(option.rect);
        for (const QPalette::ColorRole role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            arrow.palette.setColor(role, option.palette.color(QPalette::HighlightedText));
        view->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, view);
    }
    bool eventFilter(QObject* editor, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            const bool list = qobject_cast<QComboBox*>(editor); // they move in it
            if (key == Qt::Key_Down && static_cast<QKeyEvent*>(event)->modifiers() == Qt::AltModifier && offer())
                return true;
            const bool arrow = !list && (key == Qt::Key_Up || key == Qt::Key_Down);
            const bool back = (key == Qt::Key_Return || key == Qt::Key_Enter) &&
                              static_cast<QKeyEvent*>(event)->modifiers().testFlag(Qt::ShiftModifier);
            if (arrow || back) {
                auto* box = static_cast<QWidget*>(editor);
                ended = back ? EditEnd::ShiftEnter : key == Qt::Key_Up ? EditEnd::ArrowUp : EditEnd::ArrowDown;
                emit commitData(box);
                emit closeEditor(box, SubmitModelCache);
                return true;
            }
        }
        return QStyledItemDelegate::eventFilter(editor, event);
    }

private:
    const Grid& grid;
    EditEnd& ended;
};
} // namespace

namespace
{
// A heading's size depends on its words and its font alone. A table asks for that of each heading and row number many
// times while it is built, and the log window builds a dozen tables.
class Headings : public QHeaderView
{
public:
    Headings(Qt::Orientation side, QWidget* parent) : QHeaderView(side, parent)
    {
        setSectionsClickable(true);
    }

protected:
    QSize sectionSizeFromContents(int section) const override
    {
        static QFont known;
        static QHash<QString, QSize> sizes;
        ensurePolished(); // from here on the font is the one that is painted with
        if (known != font()) {
            known = font();
            sizes.clear();
        }
        QSize& size = sizes[model()->headerData(section, orientation()).toString()];
        if (!size.isValid())
            size = QHeaderView::sectionSizeFromContents(section);
        return size;
    }
};
} // namespace

GridView::GridView(const char* name, Grid& shown, QWidget* parent, const QString& keptAs)
    : QTableView(parent), grid(shown), widthsKept("columns/" + (keptAs.isEmpty() ? QString(name) : keptAs))
{
    setObjectName(name);
    setAccessibleName(ToUi(shown.title));
    model = new GridModel(shown, this);
    setHorizontalHeader(new Headings(Qt::Horizontal, this));
    setVerticalHeader(new Headings(Qt::Vertical, this));
    setModel(model);
    auto* delegate = new CellDelegate(grid, ended, this);
    delegate->offer = [this] {
        if (!Offered())
            return false;
        FinishEdit();
        Offer();
        return true;
    };
    setItemDelegate(delegate);
    setAlternatingRowColors(true);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setWordWrap(false);
    setShowGrid(true);
    setGridStyle(Qt::SolidLine);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    verticalHeader()->setMinimumSectionSize(10);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(30);
    if (shown.columns == 1 && shown.headings[1].empty())
        horizontalHeader()->hide();
    keepSoon.setSingleShot(true);
    keepSoon.setInterval(300);
    connect(&keepSoon, &QTimer::timeout, this, &GridView::KeepWidths);
    Refresh();
    // Widths that the user has set in an earlier session.
    const QVariantList kept = QSettings("Stratavue", "Stratavue").value(widthsKept).toList();
    for (int column = 0; column < model->columnCount({}) && column < kept.size(); ++column)
        if (const int width = kept[column].toInt(); width > 0) {
            setColumnWidth(column, width);
            widthSet[size_t(column)] = true;
        }
    Fit();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int) {
        const bool stretched = horizontalHeader()->stretchLastSection() && column == model->columnCount({}) - 1;
        if (fitting || stretched || size_t(column) >= widthSet.size())
            return;
        widthSet[size_t(column)] = true;
        keepSoon.start();
    });
}

// A column that the user has not set shows the whole of what was put into one of its cells, within the bounds of Fit.
void GridView::Widen(const QModelIndex& at)
{
    const bool last = horizontalHeader()->stretchLastSection() && at.column() == model->columnCount({}) - 1;
    if (!at.isValid() || last || widthSet[size_t(at.column())])
        return;
    const int wanted = std::min(sizeHintForIndex(at).width() + 8, 260);
    if (wanted <= columnWidth(at.column()))
        return;
    fitting = true;
    setColumnWidth(at.column(), wanted);
    fitting = false;
}

void GridView::Grow()
{
    for (int column = grid.selected.left; column <= grid.selected.right; ++column)
        for (int row = grid.selected.top; row <= grid.selected.bottom; ++row)
            Widen(model->index(row - 1, column - 1));
}

// A grid of few columns has the last one as wide as what the others leave.
void GridView::Stretch()
{
    const int columns = model->columnCount({});
    widthSet.resize(size_t(columns), false);
    if (horizontalHeader()->stretchLastSection() != (columns <= 5))
        horizontalHeader()->setStretchLastSection(columns <= 5);
}

void GridView::Refresh()
{
    showing = true;
    const bool was = fitting;
    fitting = true; // a width that changes with the number of columns is not the user's
    model->Refresh();
    Stretch();
    fitting = was;
    const QModelIndex current = model->index(grid.row - 1, grid.column - 1);
    if (current != currentIndex())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    const QItemSelection block(model->index(grid.selected.top - 1, grid.selected.left - 1),
                               model->index(grid.selected.bottom - 1, grid.selected.right - 1));
    if (selectionModel()->selection() != block)
        selectionModel()->select(block, QItemSelectionModel::ClearAndSelect);
    showing = false;
}

// Each column as wide as its heading and its cells need, within bounds; the last one takes what is left.
void GridView::Fit()
{
    fitting = true;
    const int rows = grid.DataRowCount(); // asking for the width of each empty cell made the start slow
    for (int column = 0; column < model->columnCount({}); ++column) {
        if (widthSet[size_t(column)])
            continue;
        const int cells = rows > 0 ? sizeHintForColumn(column) : 0;
        const int wanted = std::max(cells, horizontalHeader()->sectionSizeHint(column)) + 8;
        setColumnWidth(column, std::clamp(wanted, 62, 260));
    }
    fitting = false;
}

void GridView::Home()
{
    if (!grid.done.empty() || !grid.undone.empty())
        return; // the same document under another name: the user stays where the work is
    setCurrentIndex(model->index(0, 0));
    scrollToTop();
    horizontalScrollBar()->setValue(0);
}

// The widths that are the user's own, for the next session; 0 for the others.
void GridView::KeepWidths() const
{
    QVariantList widths;
    for (int column = 0; column < model->columnCount({}); ++column)
        widths << (widthSet[size_t(column)] ? columnWidth(column) : 0);
    QSettings("Stratavue", "Stratavue").setValue(widthsKept, widths);
}

QSize GridView::sizeHint() const
{
    return QSize(verticalHeader()->sizeHint().width() + std::min(horizontalHeader()->length(), 420) + 24, 180);
}

// ---- The user

void GridView::Done()
{
    Refresh();
    scrollTo(currentIndex());
    if (OnChange)
        OnChange();
}

void GridView::FinishEdit()
{
    if (QWidget* box = indexWidget(currentIndex())) {
        commitData(box);
        closeEditor(box, QAbstractItemDelegate::NoHint);
    }
    Widen(model->TakeTyped());
    Done();
}

void GridView::AsTyped(void (*work)())
{
    const auto* box = qobject_cast<QLineEdit*>(indexWidget(currentIndex()));
    if (!box)
        return work();
    const int row = currentIndex().row() + 1, column = currentIndex().column() + 1;
    const Text before = grid.Cell(row, column);
    const int16_t flag = FileChanged;
    grid.Cell(row, column) = LineFromUi(box->text());
    if (grid.Cell(row, column) != before)
        FileChanged = 1;
    work();
    grid.Cell(row, column) = before;
    FileChanged = flag;
}

// Enter, Tab and the arrows take what was typed and go on.
void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    switch (hint) {
    case QAbstractItemDelegate::EditNextItem:
        Tab(1);
        break;
    case QAbstractItemDelegate::EditPreviousItem:
        Tab(-1);
        break;
    case QAbstractItemDelegate::SubmitModelCache:
        switch (std::exchange(ended, EditEnd::Enter)) {
        case EditEnd::Enter:
            Enter(1);
            break;
        case EditEnd::ShiftEnter:
            Enter(-1);
            break;
        case EditEnd::ArrowUp:
            Step(-1, 0);
            break;
        case EditEnd::ArrowDown:
            Step(1, 0);
            break;
        }
        break;
    case QAbstractItemDelegate::RevertModelCache: // Escape: nothing was typed
        break;
    case QAbstractItemDelegate::NoHint:
        // The focus has gone elsewhere; who asked for it comes first.
        QTimer::singleShot(0, this, [this] {
            Widen(model->TakeTyped());
            Done();
        });
        return;
    }
    Widen(model->TakeTyped());
    Done();
}

// To the neighbouring cell; at the end of a row to the next row, and at the edges nowhere.
void GridView::Step(int rows, int columns)
{
    const int lastRow = model->rowCount({}) - 1, lastColumn = model->columnCount({}) - 1;
    int row = currentIndex().row() + rows, column = currentIndex().column() + columns;
    if (column > lastColumn && row < lastRow) {
        column = 0;
        ++row;
    } else if (column < 0 && row > 0) {
        column = lastColumn;
        --row;
    }
    setCurrentIndex(model->index(std::clamp(row, 0, lastRow), std::clamp(column, 0, lastColumn)));
}

// A run of Tabs begins where the first one is pressed; going back beyond that takes its beginning along.
void GridView::Tab(int columns)
{
    if (columns > 0 && tabbedFrom < 0)
        tabbedFrom = currentIndex().column();
    inRun = true;
    Step(0, columns);
    inRun = false;
    if (columns < 0 && tabbedFrom >= 0)
        tabbedFrom = std::min(tabbedFrom, currentIndex().column());
}

// Down a row, or up; behind a run of Tabs in the column where it began, so that row after row is typed in.
void GridView::Enter(int rows)
{
    const int row = currentIndex().row() + rows;
    const int column = std::exchange(tabbedFrom, -1);
    if (row >= 0 && row < model->rowCount({}))
        setCurrentIndex(model->index(row, column < 0 ? currentIndex().column() : column));
}

// To change what is there, the caret stands behind it; what is typed over a cell begins anew.
bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool begun = QTableView::edit(index, trigger, event);
    auto* box = begun ? qobject_cast<QLineEdit*>(indexWidget(index)) : nullptr;
    if (box && (trigger == EditKeyPressed || trigger == DoubleClicked))
        box->end(false);
    return begun;
}

// Tab goes on to the next cell, and out of the grid behind the last one.
bool GridView::focusNextPrevChild(bool next)
{
    const QModelIndex at = currentIndex();
    const bool edge = next ? at.row() == model->rowCount({}) - 1 && at.column() == model->columnCount({}) - 1
                           : at.row() == 0 && at.column() == 0;
    if (edge || !at.isValid())
        return QAbstractScrollArea::focusNextPrevChild(next);
    Tab(next ? 1 : -1);
    return true;
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    if (state() == EditingState) // a key that the box of the edit has let through
        return QTableView::keyPressEvent(event);
    Widen(model->TakeTyped());
    const auto is = [event](QKeySequence::StandardKey key) { return event->matches(key); };
    const bool control = event->modifiers() == Qt::ControlModifier;
    bool pasted = false;
    if (is(QKeySequence::Copy))
        CopySelected(grid);
    else if (is(QKeySequence::Cut))
        CutSelected(grid);
    else if (is(QKeySequence::Paste))
        PasteSelected(grid), pasted = true;
    else if (is(QKeySequence::Undo))
        UndoGrid(grid);
    else if (is(QKeySequence::Redo) || (control && event->key() == Qt::Key_Y))
        RedoGrid(grid);
    else if (control && event->key() == Qt::Key_D)
        FillDown(grid);
    else if (event->modifiers() == Qt::NoModifier &&
             (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace))
        ClearSelected(grid);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Enter(event->modifiers() & Qt::ShiftModifier ? -1 : 1);
    else if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier)
        Offer();
    else if (event->key() == Qt::Key_F6) // out of the grid, to the next box or the one before
        QAbstractScrollArea::focusNextPrevChild(!(event->modifiers() & Qt::ShiftModifier));
    else {
        if (event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown) // at an edge they move nowhere
            tabbedFrom = -1;
        return QTableView::keyPressEvent(event);
    }
    event->accept();
    Done();
    if (pasted)
        Grow();
}

// ---- What a column offers

const std::vector<Text>* GridView::Offered() const
{
    const size_t column = size_t(currentIndex().column()) + 1;
    const bool offers = currentIndex().isValid() && column < grid.offered.size() && !grid.offered[column].empty();
    return offers ? &grid.offered[column] : nullptr;
}

// A choice is typed for the user, a step like any other. One with letters that stand for numbers is opened for them.
void GridView::Offer()
{
    const std::vector<Text>* offered = Offered();
    if (!offered)
        return;
    auto* menu = new QMenu(this);
    menu->setObjectName("mnuOffered");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Text& words : *offered)
        connect(menu->addAction(ToUi(words)), &QAction::triggered, this, [this, words] {
            FinishEdit();
            TypeCell(grid, grid.row, grid.column, words);
            Done();
            Widen(currentIndex());
            if (words.find("Pn") != Text::npos || words.find("Gn") != Text::npos)
                QTimer::singleShot(0, this, [this] { // when the menu has given the focus back
                    edit(currentIndex());
                    if (auto* box = qobject_cast<QLineEdit*>(indexWidget(currentIndex())))
                        box->setSelection(int(box->text().indexOf('n')), 1);
                });
        });
    menu->popup(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
    for (QAction* action : menu->actions())
        if (SameText(FromUi(action->text()), Trim(grid.Cell(grid.row, grid.column))))
            menu->setActiveAction(action); // from what the cell has, up or down
}

void GridView::focusInEvent(QFocusEvent* event)
{
    entered = event->reason() == Qt::MouseFocusReason;
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        tabbedFrom = -1;
    QTableView::focusInEvent(event);
}

// The press that enters the grid has seen no arrow.
void GridView::mousePressEvent(QMouseEvent* event)
{
    const bool onArrow = !std::exchange(entered, false) && event->button() == Qt::LeftButton &&
                         event->modifiers() == Qt::NoModifier && Offered() &&
                         OfferArrow(visualRect(currentIndex())).contains(event->pos());
    tabbedFrom = -1;
    QTableView::mousePressEvent(event);
    if (onArrow)
        Offer();
}

void GridView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool here = event->reason() == QContextMenuEvent::Keyboard || indexAt(event->pos()) == currentIndex();
    if (here && Offered())
        Offer();
    else
        QTableView::contextMenuEvent(event);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!inRun)
        tabbedFrom = -1;
    viewport()->update(); // the tint of the row
    TakeSelection();
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    TakeSelection();
}

// The record learns where the user is.
void GridView::TakeSelection()
{
    if (showing || !currentIndex().isValid())
        return;
    grid.row = currentIndex().row() + 1;
    grid.column = currentIndex().column() + 1;
    grid.selected = {grid.row, grid.column, grid.row, grid.column};
    const QItemSelection selection = selectionModel()->selection();
    if (selection.size() != 1 || !selection.contains(currentIndex()))
        return;
    const QItemSelectionRange& range = selection.first();
    grid.selected = {range.top() + 1, range.left() + 1, range.bottom() + 1, range.right() + 1};
}
