#include "support/pulldrive.h"

#include <QDirIterator>
#include <QFile>
#include <vector>

namespace {
QMap<QString, QByteArray> FilesUnder(const QString& folder) {
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        if (f.open(QIODevice::ReadOnly)) files[path] = f.readAll();
    }
    return files;
}

QString FolderOf(const QString& path) { return path.left(path.lastIndexOf(u'/')); }

// A file system of the recorded changes: names lead to files, and a file
// has its data as made and as flushed; the names of a folder as made and as
// flushed.
struct Model {
    struct File {
        QByteArray now, flushed;
    };
    std::vector<File> files;
    QMap<QString, int> names, flushedNames;

    void change(const QString& path, const QByteArray& bytes) {
        if (!names.contains(path)) {
            names[path] = int(files.size());
            files.push_back({bytes, QByteArray()});
        }
        files[size_t(names[path])].now = bytes;
    }
    void flush(const QString& path) {
        if (names.contains(path)) files[size_t(names[path])].flushed = files[size_t(names[path])].now;
    }
    void flushFolder(const QString& folder) {
        for (const QString& path : flushedNames.keys())
            if (FolderOf(path) == folder) flushedNames.remove(path);
        for (auto it = names.cbegin(); it != names.cend(); ++it)
            if (FolderOf(it.key()) == folder) flushedNames[it.key()] = it.value();
    }
};

QByteArray HalfWritten(const QByteArray& bytes) {
    const qsizetype half = bytes.size() / 2;
    return bytes.left(half) + QByteArray(bytes.size() - half, '\0');
}
}  // namespace

PulledDrive::PulledDrive(const QString& drive, const QStringList& others) : drive_(drive + "/") {
    seed_ = FilesUnder(drive);
    for (const QString& other : others) seed_.insert(FilesUnder(other));
    for (const QByteArray& bytes : seed_) know(bytes);
    SetFileEventWatcher([this](FileEvent kind, const QString& path, const QString& target) {
        Event event{kind, path, target, {}};
        if (kind == FileEvent::Changed) {
            QFile f(path);
            if (f.open(QIODevice::ReadOnly)) event.bytes = f.readAll();
            know(event.bytes);
        }
        events_ << event;
    });
}

PulledDrive::~PulledDrive() { SetFileEventWatcher({}); }

void PulledDrive::know(const QByteArray& bytes) {
    for (qsizetype start = 0, end; (end = bytes.indexOf("\r\n", start)) >= 0; start = end + 2)
        lines_.insert(bytes.mid(start, end + 2 - start));
}

QMap<QString, QByteArray> PulledDrive::at(int point, Loss loss) const {
    Model m;
    for (auto it = seed_.cbegin(); it != seed_.cend(); ++it) {
        m.change(it.key(), it.value());
        m.files.back().flushed = it.value();
        m.flushedNames[it.key()] = m.names[it.key()];
    }
    for (int i = 0; i < point; ++i) {
        const Event& e = events_[i];
        switch (e.kind) {
        case FileEvent::Changed: m.change(e.path, e.bytes); break;
        case FileEvent::Synced: m.flush(e.path); break;
        case FileEvent::Renamed: m.names[e.target] = m.names.take(e.path); break;
        case FileEvent::Removed: m.names.remove(e.path); break;
        case FileEvent::FolderSynced: m.flushFolder(e.path); break;
        }
    }
    QMap<QString, QByteArray> files;
    const QMap<QString, int>& names = loss == Loss::Lost ? m.flushedNames : m.names;
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        if (!it.key().startsWith(drive_)) continue;
        const Model::File& f = m.files[size_t(it.value())];
        QByteArray bytes = loss == Loss::Lost ? f.flushed : f.now == f.flushed ? f.now : HalfWritten(f.now);
        files[it.key().mid(drive_.size())] = bytes;
    }
    return files;
}

bool PulledDrive::deletedBefore(int point, const QString& name) const {
    for (int i = 0; i < point; ++i)
        if (events_[i].kind == FileEvent::Removed && events_[i].path == drive_ + name) return true;
    return false;
}

QMap<QString, QByteArray> PulledDrive::now() const {
    QMap<QString, QByteArray> files;
    const QMap<QString, QByteArray> all = FilesUnder(drive_.chopped(1));
    for (auto it = all.cbegin(); it != all.cend(); ++it) files[it.key().mid(drive_.size())] = it.value();
    return files;
}
