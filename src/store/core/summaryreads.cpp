#include "store/core/summaryreads.h"

#include <QThread>
#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include "platform/core/fileops.h"
#include "platform/core/keeppainting.h"
#include "platform/core/profile.h"

namespace {
// Fewer files than this are read by the caller alone: a thread costs more to
// start than a few dozen reads.
constexpr size_t kShareFrom = 128;
constexpr int kMostReaders = 4;

// One record file as read by a reader.
struct Fresh {
    size_t row = 0;  // its place among the paths asked for
    QString path;
    qint64 readAt = 0;
    StampedRead read = StampedRead::Missing;
    FileStamp stamp;
    RecordSummary summary;  // empty unless read
};

void ReadOne(Fresh& r) {
    QByteArray bytes;
    r.readAt = FileClockNowNs();
    r.read = ReadFileWithStamp(r.path, bytes, r.stamp);
    if (r.read != StampedRead::Read) return;
    const QStringList v = ProfileSectionValues("Setting", bytes,
                                               {QLatin1String("infoname"), QLatin1String("mail"), QLatin1String("category"),
                                                QLatin1String("company"), QLatin1String("designation")});
    r.summary = {v[0], v[1], v[2], v[3], v[4]};
}

int Readers(size_t files) {
    if (files < kShareFrom) return 1;
    return std::clamp(QThread::idealThreadCount(), 1, kMostReaders);
}

// Each reader takes the next file not yet taken; the caller's thread is one
// of them. The helpers are joined when they go out of scope. What a helper
// throws (no memory for a file's bytes) stops the reading and is thrown on
// in the caller's thread, as a walk one by one would have thrown it.
void ReadAll(std::vector<Fresh>& fresh) {
    std::atomic<size_t> next = 0;
    std::exception_ptr thrown;
    std::mutex thrownLock;
    const auto readOn = [&](bool caller) {
        try {
            for (size_t i; (i = next.fetch_add(1, std::memory_order_relaxed)) < fresh.size();) {
                if (caller) KeepWindowPainting();
                ReadOne(fresh[i]);
            }
        } catch (...) {
            next = fresh.size();
            const std::lock_guard lock(thrownLock);
            if (!thrown) thrown = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> helpers;
        try {
            for (int k = 1; k < Readers(fresh.size()); ++k) helpers.emplace_back(readOn, false);
        } catch (const std::system_error&) {
            // No thread to be had: the readers there are do the work.
        }
        readOn(true);
    }
    if (thrown) std::rethrow_exception(thrown);
}
}  // namespace

std::vector<std::optional<RecordSummary>> ReadRecordSummaries(const QStringList& paths) {
    std::vector<std::optional<RecordSummary>> summaries(size_t(paths.size()));
    std::vector<Fresh> fresh;
    const auto take = [&](size_t k) {
        const Fresh& r = fresh[k];
        if (r.read == StampedRead::Missing) return;
        if (r.read == StampedRead::Read) KeepSummary(r.path, r.stamp, r.readAt, r.summary);
        summaries[r.row] = r.summary;
    };
    // A test that fails, traces or watches the file steps gets them one
    // after another, in the records' order, each record read and kept
    // before the next is looked at.
    const bool oneByOne = FileStepsWatched();
    for (size_t i = 0; i < summaries.size(); ++i) {
        KeepWindowPainting();
        const QString& path = paths[qsizetype(i)];
        if (const KeptRecordSummary* kept = KeptSummary(path)) {
            FileStamp stamp;
            if (!FileExistsWithStamp(path, stamp)) continue;
            if (stamp == kept->stamp) {
                summaries[i] = kept->summary;
                continue;
            }
        }
        Fresh& r = fresh.emplace_back();
        r.row = i;
        r.path = path;
        if (oneByOne) {
            ReadOne(fresh.back());
            take(fresh.size() - 1);
        }
    }
    if (oneByOne) return summaries;
    ReadAll(fresh);
    ReserveKeptSummaries(qsizetype(fresh.size()));
    for (size_t k = 0; k < fresh.size(); ++k) take(k);
    return summaries;
}
