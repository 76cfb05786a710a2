// gridview.h -- a grid record on the screen, to look at.
#pragma once

#include "session/controls.h"

#include <QTableView>

class GridModel;

class GridView : public QTableView
{
public:
    GridView(const char* name, Grid& shown, QWidget* parent);
    void Refresh(); // the record has changed: cells, headings

protected:
    QSize sizeHint() const override;

private:
    GridModel* model;
};
