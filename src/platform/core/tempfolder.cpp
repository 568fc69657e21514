#include "platform/core/tempfolder.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
QString g_testFolder;
QString g_testSystemTemp;

enum class Folder { Missing, Ours, NotOurs };

// Looks at a folder without following a link. One of this user's that
// others may enter is closed to them (mode 0700); a link, a file, or a
// folder of another user is not ours.
Folder Inspect(const QString& path) {
    struct stat st;
    if (::lstat(QFile::encodeName(path).constData(), &st) != 0) return Folder::Missing;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return Folder::NotOurs;
    bool ours = ::fstat(fd, &st) == 0 && S_ISDIR(st.st_mode) && st.st_uid == ::getuid();
    if (ours && (st.st_mode & 077) != 0) ours = ::fchmod(fd, 0700) == 0;
    ::close(fd);
    return ours ? Folder::Ours : Folder::NotOurs;
}

// A folder of ours, made when missing.
bool UsableFolder(const QString& path) {
    switch (Inspect(path)) {
    case Folder::Missing: return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0;
    case Folder::Ours: return true;
    case Folder::NotOurs: return false;
    }
    return false;
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

bool TempAreaRefused() {
    return Inspect(VellumarkFolder()) == Folder::NotOurs || Inspect(TempArea()) == Folder::NotOurs;
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
