// checkdock.cpp -- the list of what a reviewer would flag: its counts, its entries with their signs, and what the
// project does not wish to see.
#include "windows/checkdock.h"

#include "windows/itemlist.h"
#include "windows/uitext.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>
#include <QVBoxLayout>

static constexpr int pauseMs = 120;
static const char* const nothing = "Nothing to remark";

// ---- Signs

static void PaintDisc(QPainter& painter, const QColor& color, const QColor& mark)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setPen(QPen(mark, 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(5.3, 5.3), QPointF(10.7, 10.7));
    painter.drawLine(QPointF(10.7, 5.3), QPointF(5.3, 10.7));
}

static void PaintTriangle(QPainter& painter, const QColor& color, const QColor& mark)
{
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({{8, 2}, {14.6, 14}, {1.4, 14}}));
    painter.setPen(QPen(mark, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 6.2), QPointF(8, 9.8));
    painter.drawPoint(QPointF(8, 12.8));
}

static void PaintRing(QPainter& painter, const QColor& color)
{
    painter.setPen(QPen(color, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(1.6, 1.6, 12.8, 12.8));
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(8, 4.9));
    painter.drawLine(QPointF(8, 7.8), QPointF(8, 11.4));
}

// The colours only go along with the shapes; each stands out on light and on dark ground.
QIcon WeightSign(CheckWeight weight, const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    constexpr int side = 16, sharp = 3; // painted larger, for screens with more dots to the inch
    QPixmap sign(side * sharp, side * sharp);
    sign.setDevicePixelRatio(sharp);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    switch (weight) {
    case CheckWeight::Error:
        PaintDisc(painter, dark ? QColor(0xF2, 0x6D, 0x6D) : QColor(0xB4, 0x1E, 0x1E), palette.color(QPalette::Base));
        break;
    case CheckWeight::Warning:
        PaintTriangle(painter, dark ? QColor(0xF0, 0xB4, 0x3C) : QColor(0xA8, 0x62, 0x00),
                      palette.color(QPalette::Base));
        break;
    case CheckWeight::Remark:
        PaintRing(painter, dark ? QColor(0x7A, 0xB4, 0xF0) : QColor(0x1E, 0x5A, 0xA8));
        break;
    }
    return QIcon(sign);
}

// ---- The dock

CheckDock::CheckDock(QMainWindow* window, QMenu* menu) : QDockWidget("Check List", window)
{
    setObjectName("dckCheck");
    setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    setWidget(MakeContent());
    window->addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
    soon.setSingleShot(true);
    soon.setInterval(pauseMs);
    connect(&soon, &QTimer::timeout, this, &CheckDock::Look);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible)
            soon.start();
    });
    QAction* toggle = toggleViewAction();
    toggle->setObjectName("mnuCheckList");
    toggle->setText("&Check List");
    toggle->setShortcut(QKeySequence("Ctrl+F7"));
    menu->addAction(toggle);
}

QWidget* CheckDock::MakeContent()
{
    auto* content = new QWidget(this);
    head = new QLabel(content);
    head->setObjectName("lblCheckHead");
    head->setContentsMargins(6, 4, 6, 2);
    entries = new ItemList(content);
    entries->setObjectName("lstCheck");
    entries->setAccessibleName("Check list");
    entries->setWordWrap(true);
    entries->setTextElideMode(Qt::ElideNone);
    entries->setStyleSheet("QListView::item { padding: 3px; }"); // a spacing would be dead strips between the entries
    entries->setIconSize(QSize(16, 16));
    entries->setMinimumSize(200, 60);
    entries->setContextMenuPolicy(Qt::CustomContextMenu);
    entries->OnChoice = [this](const QListWidgetItem& item) { Choose(item); };
    connect(entries, &QWidget::customContextMenuRequested, this, &CheckDock::ListMenu);
    foot = new QLabel(content);
    foot->setObjectName("lblCheckFoot");
    foot->setWordWrap(true);
    kinds = new QToolButton(content);
    kinds->setObjectName("cmdCheckKinds");
    kinds->setText("&Kinds");
    kinds->setToolTip("Which kinds of entries this project shows");
    kinds->setPopupMode(QToolButton::InstantPopup);
    kinds->setFocusPolicy(Qt::StrongFocus);
    kindsMenu = new QMenu(kinds);
    kindsMenu->setObjectName("mnuCheckKinds");
    kinds->setMenu(kindsMenu);
    connect(kindsMenu, &QMenu::aboutToShow, this, &CheckDock::FillKinds);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(6, 0, 4, 4);
    line->addWidget(foot, 1);
    line->addWidget(kinds);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(head);
    layout->addWidget(entries, 1);
    layout->addLayout(line);
    return content;
}

void CheckDock::Soon()
{
    if (entries->isVisible())
        soon.start();
}

QListWidget* CheckDock::List() const
{
    return entries;
}

QWidget* CheckDock::Kinds() const
{
    return kinds;
}

// The signs are painted for the palette.
void CheckDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        entries->clear();
        Soon();
    }
}

// ---- The entries

void CheckDock::Look()
{
    if (entries->isVisible())
        Show(ListForProject(Check()));
}

void CheckDock::Show(const CheckList& list)
{
    head->setText(ToUi(CountsInWords(list.Entries)));
    head->setVisible(!list.Entries.empty());
    foot->setText(ToUi(HiddenInWords(list.Hidden)));
    QStringList words;
    for (const CheckEntry& entry : list.Entries)
        words << ToUi(EntryInWords(entry));
    if (words.isEmpty())
        words << nothing;
    QStringList shown;
    for (int row = 0; row < entries->count(); ++row)
        shown << entries->item(row)->text();
    if (shown == words)
        return;
    const int current = entries->currentRow();
    entries->clear();
    entries->addItems(words);
    for (size_t i = 0; i < list.Entries.size(); ++i) {
        QListWidgetItem* item = entries->item(int(i));
        item->setIcon(WeightSign(WeightOf(list.Entries[i]), palette()));
        item->setData(Qt::AccessibleTextRole, words[int(i)]);
        item->setData(Qt::UserRole, QString(list.Entries[i].Kind));
    }
    if (current >= 0) // so that the keyboard goes on where it was
        entries->setCurrentRow(std::min(current, entries->count() - 1));
}

void CheckDock::Choose(const QListWidgetItem& item)
{
    const Text words = FromUi(item.text());
    for (const CheckEntry& entry : Check()) // where it stands by now
        if (EntryInWords(entry) == words)
            return GoTo(entry);
}

// ---- Kinds

void CheckDock::Switch(const Text& key, bool off)
{
    SwitchKind(key, off);
    Look();
}

// All kinds, those of a weight together; what is checked is shown.
void CheckDock::FillKinds()
{
    kindsMenu->clear();
    for (const CheckWeight weight : {CheckWeight::Error, CheckWeight::Warning, CheckWeight::Remark}) {
        QMenu* menu = kindsMenu->addMenu(WeightSign(weight, palette()), QString("%1s").arg(WeightWord(weight)));
        for (const CheckKind& kind : CheckKinds()) {
            if (kind.weight != weight)
                continue;
            QAction* entry = menu->addAction(QString(kind.words).replace("&", "&&"));
            entry->setObjectName(QString("kind.") + kind.key);
            entry->setCheckable(true);
            entry->setChecked(!KindIsOff(kind.key));
            connect(entry, &QAction::triggered, this,
                    [this, key = Text(kind.key)](bool shown) { Switch(key, !shown); });
        }
    }
}

// The entry under the pointer; asked for by the keyboard, the current one.
void CheckDock::ListMenu(const QPoint& place)
{
    const QListWidgetItem* item = entries->itemAt(place) ? entries->itemAt(place) : entries->currentItem();
    const Text key = item ? FromUi(item->data(Qt::UserRole).toString()) : Text();
    CheckEntry entry;
    entry.Kind = key.c_str();
    const Text words = KindInWords(entry);
    if (words.empty())
        return;
    auto* menu = new QMenu(this);
    menu->setObjectName("mnuCheckEntry");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* hide = menu->addAction("Do not show: " + ToUi(words).replace("&", "&&"));
    hide->setObjectName("mnuHideKind");
    connect(hide, &QAction::triggered, this, [this, key] { Switch(key, true); });
    menu->popup(entries->viewport()->mapToGlobal(place));
}
