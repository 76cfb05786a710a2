// gridview.h -- a grid record on the screen, to type in as in a spreadsheet. What is done to the record is told in
// grid/gridedit.h; here is which key and which click asks for it.
#pragma once

#include "grid/controls.h"

#include <QTableView>
#include <QTimer>
#include <functional>
#include <vector>

class GridModel;

// The key that has ended an edit.
enum class EditEnd { Enter, ShiftEnter, ArrowUp, ArrowDown };

class GridView : public QTableView
{
public:
    // keptAs: what the widths that the user sets are kept under; where grids of two windows bear one name, they differ.
    GridView(const char* name, Grid& shown, QWidget* parent, const QString& keptAs = QString());
    void Refresh();                 // shows what the record holds: cells, headings, current cell, selected block
    void Fit();                     // makes columns as wide as what they hold, but for those that the user has set
    void Home();                    // goes to the first row, for another document
    void FinishEdit();              // takes in what is being typed
    void AsTyped(void (*work)());   // lets work see what is being typed as if it had been taken in; it has not
    std::function<void()> OnChange; // called after every change by the user

protected:
    QSize sizeHint() const override;
    void keyPressEvent(QKeyEvent* event) override;
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void Done(); // shows what a procedure has done to the record
    void Step(int rows, int columns);
    void Tab(int columns);
    void Enter(int rows);
    void TakeSelection();
    void KeepWidths() const;
    void Stretch();
    void Widen(const QModelIndex& at);
    void Grow();                              // widens the columns of the selected block for what was pasted into it
    const std::vector<Text>* Offered() const; // returns what the current cell may be picked from; null: nothing
    void Offer();                             // shows that list below the cell

    Grid& grid;
    GridModel* model;
    QString widthsKept;
    bool showing = false; // the view follows the record, not the user
    bool fitting = false;
    EditEnd ended = EditEnd::Enter;
    int tabbedFrom = -1;        // the first column of a run of Tabs, which Enter goes back to; -1: there is no run
    bool inRun = false;         // the step under way belongs to it
    bool entered = false;       // by a press that is still to come
    QTimer keepSoon;            // while a column is dragged its width changes at every step
    std::vector<bool> widthSet; // columns whose width is the user's own
};
