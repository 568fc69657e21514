#pragma once
// What the fuzz targets share: the entry libFuzzer calls, and a scratch
// application folder and staging area, made once per process and removed
// at its end, into which a target writes the input as the file it reads.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <unistd.h>
#include "platform/core/appfolder.h"
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline QByteArray Input(const uint8_t* data, size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

inline QString FuzzRoot() {
    static const QString root = [] {
        const QString base = qEnvironmentVariable("TMPDIR", "/tmp") + "/tandry-fuzz-" + QString::number(::getpid());
        QDir().mkpath(base + "/app/data");
        QDir().mkpath(base + "/cache/Vellumark/temp");
        SetAppPathForTest(base + "/app");
        SetVellumarkFolderForTest(base + "/cache/Vellumark");
        SetFlushingForBench(false);  // what is read is fuzzed here, not what lasts
        // The folder's name outlives the QString, which is gone by the time
        // a handler registered during its making runs.
        static char removed[4096];
        qstrncpy(removed, base.toLocal8Bit().constData(), sizeof removed);
        std::atexit([] { QDir(QString::fromLocal8Bit(removed)).removeRecursively(); });
        return base;
    }();
    return root;
}

// Writes the bytes as a file of the application folder (or of the staging
// area, for a name beginning "temp/"), and gives its path.
inline QString FuzzFile(const QString& name, const QByteArray& bytes) {
    const QString path = name.startsWith("temp/") ? FuzzRoot() + "/cache/Vellumark/" + name : FuzzRoot() + "/app/" + name;
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
    return path;
}
