// frmLayout.cpp -- the layout editor: the picture of a page, and a tile for each title block to drag onto it.
#include "report/layout.h"
#include "report/layoutedit.h"
#include "windows/editorwindow.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>

static constexpr int twipsPerPixel = 10;
static constexpr int rowGap = 60; // between the head rows of a page and its columns, in twips

static int Pixels(int twips)
{
    return twips / twipsPerPixel;
}

static QRect PlaceRect(int x, int y)
{
    return QRect(Pixels(x), Pixels(y), Pixels(frmLayout::TileWidth), Pixels(frmLayout::TileHeight));
}

namespace
{
// The page: its sheet, the places of the title blocks, and the room of the log.
class PagePicture : public QWidget
{
public:
    explicit PagePicture(QWidget* parent) : QWidget(parent)
    {
        setObjectName("Picture1");
        setAccessibleName("Page with the places of the title blocks");
        setFixedSize(Pixels(frmLayout::PictureWidth), Pixels(frmLayout::PictureHeight));
    }

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A title block. It follows the mouse while it is dragged, and the record when it is let go.
class TileLabel : public QLabel
{
public:
    TileLabel(int tileCode, QWidget* picture, std::function<void()> changed);
    void Show();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int code;
    bool dragged = false;
    QPoint grip; // where in the tile the mouse holds it
    std::function<void()> Changed;
};
} // namespace

void PagePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const std::vector<int>& columns = frmLayout::ColumnsOf(LayoutData.Orientation);
    const std::vector<int>& rows = frmLayout::RowsOf(LayoutData.Orientation);
    const bool portrait = LayoutData.Orientation == 0;
    const int right = columns.back() + frmLayout::TileWidth;
    const int logTop = rows[1] + frmLayout::TileHeight;
    const int logBottom = portrait ? rows[2] : LayoutData.Orientation == 1 ? logTop + 2100 : logTop + 2300;
    const int bottom = portrait ? rows[2] + frmLayout::TileHeight : logBottom;
    const QRect frame(QPoint(Pixels(columns[0]), Pixels(rows[0])), QPoint(Pixels(right), Pixels(bottom)));
    painter.fillRect(rect(), QColor(0xe6, 0xe8, 0xea));
    painter.setPen(QColor(0x90, 0x90, 0x90));
    painter.setBrush(Qt::white);
    painter.drawRect(frame.adjusted(-28, -28, 28, 28));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 1, Qt::DotLine));
    for (const int x : columns)
        for (const int y : rows)
            painter.drawRect(PlaceRect(x, y));
    painter.setPen(QPen(QColor(0x30, 0x30, 0x30), 1));
    painter.drawRect(frame);
    const QRect log(QPoint(Pixels(columns[0]), Pixels(logTop + rowGap)), QPoint(Pixels(right), Pixels(logBottom)));
    painter.drawLine(log.topLeft(), log.topRight());
    painter.setPen(QColor(0x60, 0x60, 0x60));
    painter.drawText(log, Qt::AlignCenter, "Boring Log");
    painter.drawText(QRect(Pixels(300), 0, 130, 20), Qt::AlignVCenter, "Title blocks:");
}

TileLabel::TileLabel(int tileCode, QWidget* picture, std::function<void()> changed)
    : QLabel(picture), code(tileCode), Changed(std::move(changed))
{
    setObjectName(QString("Tile%1").arg(code));
    setText(frmLayout::TileName(code));
    setFixedSize(PlaceRect(0, 0).size());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
}

void TileLabel::Show()
{
    const bool placed = frmLayout::InLayout(code);
    const QString name = frmLayout::TileName(code);
    setAccessibleName(name);
    setAccessibleDescription(placed ? "in the layout" : "not in the layout");
    setToolTip(name + (placed ? ": in the layout" : ": not in the layout"));
    move(Pixels(frmLayout::Tile[code].x), Pixels(frmLayout::Tile[code].y));
    update();
}

// In the layout with a whole frame, out of it with a broken one.
void TileLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool placed = frmLayout::InLayout(code) && !dragged;
    painter.fillRect(rect(), placed ? QColor(0xcf, 0xe2, 0xf3) : QColor(0xff, 0xf4, 0xd6));
    painter.setPen(QPen(QColor(0x35, 0x35, 0x35), 1, placed ? Qt::SolidLine : Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(2, 2, -2, -2));
    }
    painter.setPen(Qt::black);
    painter.drawText(rect().adjusted(3, 0, -3, 0), Qt::AlignCenter | Qt::TextWordWrap, text());
}

void TileLabel::focusInEvent(QFocusEvent*)
{
    raise();
    update();
}

void TileLabel::focusOutEvent(QFocusEvent*)
{
    update();
}

void TileLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    grip = event->position().toPoint();
    raise();
    setCursor(Qt::ClosedHandCursor);
}

void TileLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    dragged = true;
    const QPoint to = mapToParent(event->position().toPoint() - grip);
    const QSize room = parentWidget()->size() - size();
    move(std::clamp(to.x(), 0, room.width()), std::clamp(to.y(), 0, room.height()));
}

// A click without a move is no drop.
void TileLabel::mouseReleaseEvent(QMouseEvent* event)
{
    setCursor(Qt::OpenHandCursor);
    if (event->button() != Qt::LeftButton || !dragged)
        return;
    dragged = false;
    frmLayout::DropTile(code, x() * twipsPerPixel, y() * twipsPerPixel);
    Changed();
}

void TileLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        frmLayout::StepTile(code, -1, 0);
        break;
    case Qt::Key_Right:
        frmLayout::StepTile(code, 1, 0);
        break;
    case Qt::Key_Up:
        frmLayout::StepTile(code, 0, -1);
        break;
    case Qt::Key_Down:
        frmLayout::StepTile(code, 0, 1);
        break;
    case Qt::Key_Delete:
        frmLayout::TakeOutTile(code);
        break;
    default:
        return QLabel::keyPressEvent(event);
    }
    Changed();
}

void ShowLayoutWindow()
{
    frmLayout::Load();
    EditorWindow window("frmLayout");
    auto* picture = new PagePicture(&window);
    std::vector<TileLabel*> tiles;
    const char* const names[] = {"&Portrait", "&Landscape", "&Tabloid (11x17)"};
    QRadioButton* options[3] = {};
    auto* kinds = new QHBoxLayout;
    kinds->setSpacing(16);
    for (int i = 0; i < 3; ++i) {
        options[i] = new QRadioButton(names[i], &window);
        options[i]->setObjectName(QString("Option%1").arg(i + 1));
        kinds->addWidget(options[i]);
    }
    kinds->addStretch();
    const auto show = [&] {
        window.setWindowTitle(ToUi(frmLayout::Title));
        options[LayoutData.Orientation == 0 || LayoutData.Orientation == 1 ? LayoutData.Orientation : 2]->setChecked(
            true);
        for (TileLabel* tile : tiles)
            tile->Show();
        picture->update();
    };
    for (int i = 0; i < 3; ++i)
        QObject::connect(options[i], &QRadioButton::clicked, &window, [i, &show] {
            frmLayout::ChooseOrientation(i);
            show();
        });
    for (int code = 1; code <= 12; ++code)
        tiles.push_back(new TileLabel(code, picture, show));
    window.refresh = show;

    QMenu* file = window.Part("mnuFile", "&File");
    window.Entry(file, "mnuNew", "&New", QKeySequence::New, frmLayout::mnuNew);
    window.Entry(file, "mnuOpen", "&Open...", QKeySequence::Open, frmLayout::mnuOpen);
    window.Entry(file, "mnuSave", "&Save", QKeySequence::Save, frmLayout::mnuSave);
    window.Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), frmLayout::mnuSaveAs);
    file->addSeparator();
    window.Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [&window] { window.close(); });
    window.content->addLayout(kinds);
    window.content->addWidget(picture);
    window.content->addWidget(new QLabel("Drag a title block to its place on the page, or move it by the arrow keys. "
                                         "Dragged off its place, or by Delete, it leaves the layout.",
                                         &window));
    window.content->setSizeConstraint(QLayout::SetFixedSize);
    show();
    options[0]->setFocus();
    window.exec();
    frmLayout::mnuExit();
}
