// folderlist.cpp -- folders to go to.
#include "windows/folderlist.h"

#include "session/files.h"
#include "windows/uitext.h"

#include <QDir>
#include <QKeyEvent>
#include <QStorageInfo>
#include <QStyle>

static QString PathOf(const Text& folder)
{
    return QDir(QString::fromStdString(NativePath(folder))).absolutePath();
}

FolderList::FolderList(QWidget* parent) : QListWidget(parent)
{
    setObjectName("Dir1");
    setAccessibleName("Directories");
    setIconSize(QSize(16, 16));
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        if (OnFolder)
            OnFolder(FromUi(item->data(Qt::UserRole).toString()));
    });
}

void FolderList::Show(const Text& shown)
{
    clear();
    const QDir folder(PathOf(shown));
    QStringList above;
    for (QDir up = folder; !up.isRoot() && up.exists() && up.cdUp();)
        above.prepend(up.absolutePath());
    const auto add = [this](const QString& path, const QString& name, int depth, QStyle::StandardPixmap icon) {
        auto* item = new QListWidgetItem(style()->standardIcon(icon), QString(depth * 3, ' ') + name, this);
        item->setData(Qt::UserRole, path);
        return item;
    };
    int depth = 0;
    for (const QString& path : above)
        add(path, QDir(path).isRoot() ? QDir::toNativeSeparators(path) : QDir(path).dirName(), depth++,
            QStyle::SP_DirOpenIcon);
    QListWidgetItem* here =
        add(folder.absolutePath(), folder.isRoot() ? QDir::toNativeSeparators(folder.path()) : folder.dirName(),
            depth++, QStyle::SP_DirOpenIcon);
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase))
        add(folder.absoluteFilePath(name), name, depth, QStyle::SP_DirIcon);
    setCurrentItem(here);
    scrollToItem(here, QAbstractItemView::PositionAtCenter);
}

// Enter goes to the folder and stays in the list; it is not the dialog's OK.
void FolderList::keyPressEvent(QKeyEvent* event)
{
    QListWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

DriveList::DriveList(QWidget* parent) : QComboBox(parent)
{
    setObjectName("Drive1");
    setAccessibleName("Drives");
    for (const QStorageInfo& drive : QStorageInfo::mountedVolumes())
        if (drive.isValid() && drive.isReady() &&
            (drive.isRoot() || drive.rootPath().startsWith("/media") || drive.rootPath().startsWith("/mnt") ||
             drive.rootPath()[0] != '/'))
            addItem(QDir::toNativeSeparators(drive.rootPath()));
    if (QDir::homePath() != "/")
        addItem(QDir::toNativeSeparators(QDir::homePath()));
    connect(this, &QComboBox::activated, this, [this](int i) {
        if (OnFolder)
            OnFolder(FromUi(itemText(i)));
    });
}

// The longest root that the path begins with.
void DriveList::Show(const Text& folder)
{
    const QString path = PathOf(folder);
    int best = -1;
    for (int i = 0; i < count(); ++i)
        if (path.startsWith(itemText(i)) && (best < 0 || itemText(i).size() > itemText(best).size()))
            best = i;
    setCurrentIndex(best);
}
