#include "platform/core/appfolder.h"

#include <QDir>
#include <QFileInfo>
#include <unistd.h>

namespace {
QString g_testFolder;

QString ExecutableFolder() {
    char buffer[4096];
    ssize_t n = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (n <= 0) return QDir::currentPath();
    buffer[n] = '\0';
    return QFileInfo(QString::fromLocal8Bit(buffer)).absolutePath();
}
}  // namespace

QString AppPath() {
    if (!g_testFolder.isEmpty()) return g_testFolder;
    static const QString folder = ExecutableFolder();
    return folder;
}

// A drive written on Windows may spell a name in another case: the folder
// is searched without regard to case when the exact name isn't there.
QString AppFile(const QString& name) {
    const QString exact = AppPath() + "/" + name;
    if (QFileInfo::exists(exact)) return exact;
    const QStringList entries = QDir(AppPath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return AppPath() + "/" + entry;
    return exact;
}

void SetAppPathForTest(const QString& folder) { g_testFolder = folder; }
