#include "platform/shell.h"

#include <QDesktopServices>
#include <QUrl>

namespace {
ShellHandler g_handler;
}

long ShellExecute(QWidget*, const QString& verb, const QString& file, int) {
    if (g_handler) return g_handler(verb, file);
    if (verb.compare("open", Qt::CaseInsensitive) != 0) return 2;
    QUrl url = QUrl::fromUserInput(file);
    if (file.startsWith("mailto:", Qt::CaseInsensitive)) url = QUrl(file, QUrl::TolerantMode);
    return QDesktopServices::openUrl(url) ? 42 : 2;
}

void SetShellHandlerForTest(ShellHandler handler) { g_handler = std::move(handler); }
