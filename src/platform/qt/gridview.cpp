// gridview.cpp -- a grid record on the screen.
#include "platform/qt/gridview.h"

#include "platform/qt/uitext.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <algorithm>

// The record as Qt's tables ask for it. Rows and columns of the record count from 1.
class GridModel : public QAbstractTableModel
{
public:
    GridModel(Grid& shown, QObject* parent) : QAbstractTableModel(parent), grid(shown)
    {
    }
    void Reset()
    {
        beginResetModel();
        endResetModel();
    }
    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : grid.rows;
    }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : grid.columns;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return {};
        return ToUi(grid.Cell(index.row() + 1, index.column() + 1));
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignVCenter |
                       (orientation == Qt::Vertical && grid.rowHeadings.size() <= 1 ? Qt::AlignRight : Qt::AlignLeft));
        if (role != Qt::DisplayRole)
            return {};
        const std::vector<Text>& headings = orientation == Qt::Horizontal ? grid.headings : grid.rowHeadings;
        if (size_t(section) + 1 < headings.size())
            return ToUi(headings[size_t(section) + 1]);
        return orientation == Qt::Horizontal ? QVariant(QString()) : QVariant(section + 1);
    }

private:
    Grid& grid;
};

GridView::GridView(const char* name, Grid& shown, QWidget* parent) : QTableView(parent)
{
    setObjectName(name);
    setAccessibleName(ToUi(shown.title));
    model = new GridModel(shown, this);
    setModel(model);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false); // Tab goes to the next box
    setWordWrap(false);
    setShowGrid(true);
    setGridStyle(Qt::SolidLine);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    verticalHeader()->setMinimumSectionSize(10);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(48);
    if (shown.columns == 1)
        horizontalHeader()->hide();
    Refresh();
}

// Each column as wide as its heading and its cells need, within bounds; the last one takes what is left.
void GridView::Refresh()
{
    model->Reset();
    for (int column = 0; column < model->columnCount({}); ++column) {
        const int wanted = std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column)) + 8;
        setColumnWidth(column, std::clamp(wanted, 62, 260));
    }
    horizontalHeader()->setStretchLastSection(model->columnCount({}) <= 5);
}

QSize GridView::sizeHint() const
{
    return QSize(verticalHeader()->sizeHint().width() + std::min(horizontalHeader()->length(), 420) + 24, 180);
}
