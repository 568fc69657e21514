#include "platform/forms/shell.h"

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

QString ShellFailureDescription(long code) {
    switch (code) {
    case 0: return QStringLiteral("The operating system is out of memory or resources.");
    case 2: return QStringLiteral("The system cannot find the file specified.");
    case 3: return QStringLiteral("The system cannot find the path specified.");
    case 5: return QStringLiteral("Access is denied.");
    case 8: return QStringLiteral("Not enough memory resources are available to process this command.");
    case 11: return QStringLiteral("An attempt was made to load a program with an incorrect format.");
    case 26: return QStringLiteral("A sharing violation occurred.");
    case 27: return QStringLiteral("The file name association is incomplete or invalid.");
    case 28: return QStringLiteral("The request timed out.");
    case 29: return QStringLiteral("The request failed.");
    case 30: return QStringLiteral("The request could not be handled because other requests were being processed.");
    case 31: return QStringLiteral("No application is associated with the specified file for this operation.");
    case 32: return QStringLiteral("The specified library was not found.");
    default: return QStringLiteral("Unknown error.");
    }
}
