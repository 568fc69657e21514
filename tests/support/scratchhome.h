#pragma once
// A scratch home folder: HOME points at it while it lives, for the readers
// of the desktop's address books.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

struct ScratchHome {
    QTemporaryDir dir;
    QByteArray oldHome = qgetenv("HOME");
    ScratchHome() { qputenv("HOME", dir.path().toUtf8()); }
    ~ScratchHome() { qputenv("HOME", oldHome); }
    // Writes a file under the home, its folders made.
    void put(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(dir.filePath(name)).path());
        QFile f(dir.filePath(name));
        if (f.open(QIODevice::WriteOnly)) f.write(bytes);
    }
};
