#pragma once
// SHBrowseForFolder: the desktop's folder chooser, folders of the file
// system only. It gives the chosen folder's path, or empty text when the
// user cancels.
#include <QString>
#include <functional>

class QWidget;

QString BrowseForFolder(QWidget* owner, const QString& title);

// ---- for tests: the handler answers in place of the desktop ----
using BrowseForFolderHandler = std::function<QString(const QString& title)>;
void SetBrowseForFolderHandlerForTest(BrowseForFolderHandler handler);
