#include "platform/forms/browseforfolder.h"

#include <QDir>
#include <QFileDialog>

namespace {
BrowseForFolderHandler& Handler() {
    static BrowseForFolderHandler handler;
    return handler;
}
}  // namespace

// It opens in the user's home folder; the whole file system can be reached
// from there, as every drive could from "My Computer".
QString BrowseForFolder(QWidget* owner, const QString& title) {
    if (Handler()) return Handler()(title);
    return QFileDialog::getExistingDirectory(owner, title, QDir::homePath(), QFileDialog::ShowDirsOnly);
}

void SetBrowseForFolderHandlerForTest(BrowseForFolderHandler handler) { Handler() = std::move(handler); }
