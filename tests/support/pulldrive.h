#pragma once
// A pulled drive, simulated, after the crash tests of SQLite: while a road
// runs, every change the file seam makes is recorded; afterwards the drive
// can be rebuilt as it would be found after a pull at any point of the road:
// the changes after the point never made, and what had not been flushed by
// then lost or half written, the two ways a FAT stick loses it.
#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include "platform/core/fileops.h"

enum class Loss {
    Lost,        // names as last flushed, each file's data as last flushed
    HalfWritten  // names as made; data not flushed: its first half, then zeros
};

class PulledDrive {
public:
    // Starts recording. `drive` is the folder the drive holds; the files
    // under it and under `others` (the staging area) are known as flushed.
    PulledDrive(const QString& drive, const QStringList& others);
    ~PulledDrive();
    int points() const { return int(events_.size()); }
    // The drive's files, by name relative to it, after the first `point`
    // changes, as the pull leaves them.
    QMap<QString, QByteArray> at(int point, Loss loss) const;
    // Whether one of the first `point` changes deleted the drive's file.
    bool deletedBefore(int point, const QString& name) const;
    // Every line, CR LF included, that a file held at some time.
    const QSet<QByteArray>& knownLines() const { return lines_; }
    // The drive's files as they are now on disk.
    QMap<QString, QByteArray> now() const;
private:
    struct Event {
        FileEvent kind;
        QString path, target;
        QByteArray bytes;
    };
    void know(const QByteArray& bytes);
    QString drive_;
    QMap<QString, QByteArray> seed_;
    QList<Event> events_;
    QSet<QByteArray> lines_;
};
