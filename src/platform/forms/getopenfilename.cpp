#include "platform/forms/getopenfilename.h"

#include <QDir>
#include <QFileDialog>

namespace {
OpenFileNameHandler& Handler() {
    static OpenFileNameHandler handler;
    return handler;
}
}  // namespace

// It opens in the user's home folder, the whole file system within reach,
// and takes only a file that exists. The pattern is matched without regard
// to letter case, as the Windows dialog matched it.
QString GetOpenFileName(QWidget* owner, const QString& title, const QString& filter) {
    if (Handler()) return Handler()(title, filter);
    QFileDialog dialog(owner, title, QDir::homePath(), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setFilter(dialog.filter() & ~QDir::CaseSensitive);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
    return dialog.selectedFiles().first();
}

void SetOpenFileNameHandlerForTest(OpenFileNameHandler handler) { Handler() = std::move(handler); }
