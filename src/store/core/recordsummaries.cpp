#include "store/core/recordsummaries.h"

#include <QHash>
#include <algorithm>
#include "platform/core/codepage.h"

namespace {
// FAT keeps modification times to two seconds: two writes closer than that
// may leave the same stamp. A file read that young is not trusted later.
constexpr qint64 kTimeStepNs = 2'000'000'000;

struct Kept {
    KeptRecordSummary read;
    bool settled = false;  // the file was older than the time step when read
};

struct Keeper {
    QHash<QString, Kept> byPath;
    int codePage = 0;  // the code page the texts were decoded in
};

void Forget(const QString& path);

Keeper& TheKeeper() {
    // Made once and never destroyed: files may still change at exit.
    static Keeper* keeper = [] {
        SetFileChangeListener(&Forget);
        return new Keeper;
    }();
    if (keeper->codePage != AnsiCodePage()) {
        keeper->byPath.clear();
        keeper->codePage = AnsiCodePage();
    }
    return *keeper;
}

void Forget(const QString& path) { TheKeeper().byPath.remove(path); }
}  // namespace

const KeptRecordSummary* KeptSummary(const QString& path) {
    const auto found = TheKeeper().byPath.constFind(path);
    return found != TheKeeper().byPath.constEnd() && found->settled ? &found->read : nullptr;
}

void ReserveKeptSummaries(qsizetype more) { TheKeeper().byPath.reserve(TheKeeper().byPath.size() + more); }

void KeepSummary(const QString& path, const FileStamp& stamp, qint64 readAtNs, const RecordSummary& summary) {
    const qint64 newest = std::max(stamp.modifiedNs, stamp.changedNs);
    TheKeeper().byPath.insert(path, {{stamp, summary}, readAtNs - newest > kTimeStepNs});
}
