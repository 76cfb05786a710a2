// folderlist.h -- folders to go to: the drives, and the way down to the folder shown with its own folders below it.
#pragma once

#include "session/text.h"

#include <QComboBox>
#include <QListWidget>
#include <functional>

// The folders from the root down to the one shown, and behind them its own, each a step further in. A double click or
// Enter goes to one.
class FolderList : public QListWidget
{
public:
    explicit FolderList(QWidget* parent);
    void Show(const Text& folder);
    std::function<void(const Text&)> OnFolder; // the user goes to another folder

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class DriveList : public QComboBox
{
public:
    explicit DriveList(QWidget* parent);
    void Show(const Text& folder); // marks the drive that the folder is on
    std::function<void(const Text&)> OnFolder;
};
