// frmRunMessages.cpp -- the list of what a run of several files has told: file, page and words. A double click or Enter
// on an entry opens its file.
#include "run/runmessages.h"
#include "tools/nextfile.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

static void AddCell(QTableWidget* table, int row, int column, const Text& words)
{
    auto* cell = new QTableWidgetItem(ToUi(words));
    cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    cell->setToolTip(ToUi(words));
    table->setItem(row, column, cell);
}

static QTableWidget* MessageTable(QWidget* window)
{
    const int rows = int(RunMessages.List.size());
    auto* table = new QTableWidget(rows, 3, window);
    table->setObjectName("Messages");
    table->setAccessibleName("Messages of the run");
    table->setHorizontalHeaderLabels({"File", "Page", "Message"});
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setTabKeyNavigation(false);
    table->setWordWrap(true);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int row = 0; row < rows; ++row) {
        const RunMessage& message = RunMessages.List[size_t(row)];
        AddCell(table, row, 0, message.File);
        AddCell(table, row, 1, message.Page > 0 ? PlainNumber(message.Page) : "");
        AddCell(table, row, 2, message.Words);
    }
    table->setColumnWidth(0, 300);
    table->setColumnWidth(1, 60);
    table->resizeRowsToContents();
    return table;
}

void ShowRunMessagesWindow()
{
    QDialog window(QApplication::activeWindow());
    window.setObjectName("frmRunMessages");
    window.setWindowTitle("Messages of the Run");
    auto* table = MessageTable(&window);
    auto* label = new QLabel("A double click on an entry opens its file.", &window);
    label->setBuddy(table);
    auto* copy = new QPushButton("&Copy", &window);
    copy->setObjectName("Command1");
    copy->setAutoDefault(false);
    auto* close = new QPushButton("Close", &window);
    close->setObjectName("Command2");
    close->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(label, 1);
    buttons->addWidget(copy);
    buttons->addWidget(close);
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(18, 16, 18, 18);
    all->setSpacing(12);
    all->addWidget(table, 1);
    all->addLayout(buttons);
    window.resize(860, 420);
    QObject::connect(copy, &QPushButton::clicked, &window, [] { Platform.SetClipboardText(RunMessagesText()); });
    QObject::connect(close, &QPushButton::clicked, &window, &QDialog::accept);
    QObject::connect(table, &QTableWidget::cellActivated, &window, [&window](int row, int) {
        const Text& file = RunMessages.List[size_t(row)].File;
        if (OpensFile(file))
            NextFile = file; // the window behind opens it
        window.accept();
    });
    table->setFocus();
    window.exec();
}
