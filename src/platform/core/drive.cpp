#include "platform/core/drive.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <climits>
#include <cstdlib>
#include <sys/stat.h>

namespace {

// The real path of `path`, links resolved. A path that isn't there yet
// stands on the file system of its nearest existing parent.
QByteArray RealPath(const QString& path) {
    QString current = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (;;) {
        char resolved[PATH_MAX];
        if (::realpath(QFile::encodeName(current).constData(), resolved)) return QByteArray(resolved);
        if (current == QLatin1String("/") || current.isEmpty()) return QByteArray("/");
        current = QFileInfo(current).path();
    }
}

// A field of /proc/self/mountinfo: blanks and the like are written as a
// backslash and three octal digits.
QByteArray UnescapeMountField(const QByteArray& field) {
    QByteArray out;
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            bool ok = false;
            const int value = field.mid(i + 1, 3).toInt(&ok, 8);
            if (ok) {
                out += static_cast<char>(value);
                i += 3;
                continue;
            }
        }
        out += field[i];
    }
    return out;
}

bool IsUnder(const QByteArray& path, const QByteArray& mountPoint) {
    if (mountPoint == "/") return true;
    return path == mountPoint || (path.startsWith(mountPoint) && path[mountPoint.size()] == '/');
}

// The longest mount point that holds the path, from the mount table.
QByteArray FromMountTable(const QByteArray& real) {
    QFile table(QStringLiteral("/proc/self/mountinfo"));
    if (!table.open(QIODevice::ReadOnly)) return QByteArray();
    QByteArray best;
    for (const QByteArray& line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 5) continue;
        const QByteArray mountPoint = UnescapeMountField(fields[4]);
        if (mountPoint.startsWith('/') && IsUnder(real, mountPoint) && mountPoint.size() > best.size())
            best = mountPoint;
    }
    return best;
}

// Without a mount table: walk up while the parent lies on the same device.
QByteArray FromDevices(const QByteArray& real) {
    QByteArray current = real;
    struct stat st;
    if (::stat(current.constData(), &st) != 0) return QByteArray("/");
    while (current != "/") {
        qsizetype slash = current.lastIndexOf('/');
        const QByteArray parent = slash <= 0 ? QByteArray("/") : current.left(slash);
        struct stat up;
        if (::stat(parent.constData(), &up) != 0 || up.st_dev != st.st_dev) break;
        current = parent;
    }
    return current;
}

}  // namespace

QString MountPointOf(const QString& path) {
    if (path.isEmpty()) return QString();
    const QByteArray real = RealPath(path);
    QByteArray mountPoint = FromMountTable(real);
    if (mountPoint.isEmpty()) mountPoint = FromDevices(real);
    return QFile::decodeName(mountPoint);
}

QString OwnerInfoPath(const QString& appFolder) {
    QString mountPoint = MountPointOf(appFolder);
    if (!mountPoint.endsWith(QLatin1Char('/'))) mountPoint += QLatin1Char('/');
    return mountPoint + QStringLiteral("Program/Bin/OwnerInfo.ini");
}
