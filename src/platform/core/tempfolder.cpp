#include "platform/core/tempfolder.h"

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace {
QString g_testFolder;
QString g_testSystemTemp;

// A folder of ours: a real folder (not a link), owned by this user.
bool UsableFolder(const QString& path) {
    struct stat st;
    if (::lstat(QFile::encodeName(path).constData(), &st) != 0) {
        if (::mkdir(QFile::encodeName(path).constData(), 0700) != 0) return false;
        return true;
    }
    return S_ISDIR(st.st_mode) && st.st_uid == ::getuid();
}
}  // namespace

QString VellumarkFolder() {
    if (!g_testFolder.isEmpty()) return g_testFolder;
    QString cache = qEnvironmentVariable("XDG_CACHE_HOME");
    if (cache.isEmpty() || !QDir::isAbsolutePath(cache)) cache = QDir::homePath() + "/.cache";
    return cache + "/Vellumark";
}

QString TempArea() { return VellumarkFolder() + "/temp"; }
QString TempFile(const QString& name) { return TempArea() + "/" + name; }

bool EnsureTempArea() {
    const QString root = VellumarkFolder();
    QDir().mkpath(QFileInfo(root).absolutePath());  // the cache folder itself
    return UsableFolder(root) && UsableFolder(TempArea());
}

QString SystemTempPath() {
    if (!g_testSystemTemp.isEmpty()) return g_testSystemTemp;
    QString tmp = qEnvironmentVariable("TMPDIR");
    if (tmp.isEmpty()) tmp = "/tmp";
    return tmp;
}

QString GetWindowTemp() { return SystemTempPath() + u'/'; }

void SetVellumarkFolderForTest(const QString& folder) { g_testFolder = folder; }
void SetSystemTempPathForTest(const QString& folder) { g_testSystemTemp = folder; }
