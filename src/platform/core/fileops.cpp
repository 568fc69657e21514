#include "platform/core/fileops.h"

#include <QFile>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include "platform/core/tempfolder.h"

namespace {

long g_failAt = 0;
QString g_failOn;
// Atomic: records are read by more than one thread (never while a test watches).
std::atomic<long> g_count = 0;
QString g_failed;
bool g_logging = false;
QStringList g_log;
QStringList g_trace;
bool g_flush = true;
int g_openDelay = 0;  // microseconds
FileEventWatcher g_watcher;
FileChangeListener g_changeListener = nullptr;

void Tell(FileEvent event, const QString& path, const QString& target = QString()) {
    if (g_changeListener && event != FileEvent::FolderSynced) {
        g_changeListener(path);
        if (!target.isEmpty()) g_changeListener(target);
    }
    if (g_watcher) g_watcher(event, path, target);
}

// Counts one operation; false when it is the one a test made fail.
bool Step(const char* kind, const QString& path) {
    const long count = ++g_count;
    const bool failHere = g_failAt != 0 && count == g_failAt;
    if (!failHere && !g_logging && g_failOn.isEmpty()) return true;
    const QString operation = QString::fromLatin1(kind) + " " + path;
    if (g_logging) g_trace << operation;
    if (failHere || operation == g_failOn) {
        g_failed = operation;
        g_failOn.clear();
        return false;
    }
    return true;
}

void Log(const char* kind, const QString& path) {
    if (g_logging) g_log << QString::fromLatin1(kind) + " " + path;
}

QByteArray Native(const QString& path) { return QFile::encodeName(path); }

// Every open of a file passes here, so that a bench can make each one slow.
int OpenPath(const QString& path, int flags, mode_t mode = 0) {
    if (g_openDelay > 0) ::usleep(useconds_t(g_openDelay));
    return ::open(Native(path).constData(), flags, mode);
}

// What is written in the staging area is scratch: it has to reach the device
// only when it leaves the staging area. Everything else (the drive's store,
// setting.ini, an exported file) reaches the device before the call that
// wrote it returns.
bool Lasting(const QString& path) { return !path.startsWith(TempArea() + u'/'); }

QString FolderOf(const QString& path) {
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? QStringLiteral(".") : slash == 0 ? QStringLiteral("/") : path.left(slash);
}

// A file system that has no such flush (EINVAL) has nothing to flush.
bool Flushed(int result) { return result == 0 || errno == EINVAL; }

bool SyncData(int fd, const QString& path) {
    if (g_flush && !Flushed(::fdatasync(fd))) return false;
    Tell(FileEvent::Synced, path);
    return true;
}

bool SyncFile(const QString& path) {
    const int fd = OpenPath(path, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return false;
    const bool ok = SyncData(fd, path);
    return ::close(fd) == 0 && ok;
}

// Makes the names of a folder (a new file, a rename, a delete) last.
bool SyncFolder(const QString& folder) {
    const int fd = ::open(Native(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool ok = !g_flush || Flushed(::fsync(fd));
    ::close(fd);
    if (ok) Tell(FileEvent::FolderSynced, folder);
    return ok;
}

bool Unlink(const QString& path) {
    if (::unlink(Native(path).constData()) != 0) return false;
    Tell(FileEvent::Removed, path);
    return true;
}

bool Rename(const QString& source, const QString& target) {
    if (::rename(Native(source).constData(), Native(target).constData()) != 0) return false;
    Tell(FileEvent::Renamed, source, target);
    return true;
}

bool StatRegular(const QString& path, struct stat& st) {
    return ::stat(Native(path).constData(), &st) == 0 && S_ISREG(st.st_mode);
}

// Writes every piece, going on where a write stopped short.
bool WriteAllVectored(int fd, std::vector<iovec>& pieces) {
    size_t at = 0;
    while (at < pieces.size()) {
        if (pieces[at].iov_len == 0) {
            ++at;
            continue;
        }
        const size_t count = std::min<size_t>(pieces.size() - at, IOV_MAX);
        const ssize_t n = ::writev(fd, pieces.data() + at, int(count));
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        for (size_t left = size_t(n); left > 0 && at < pieces.size();) {
            const size_t taken = std::min(left, pieces[at].iov_len);
            pieces[at].iov_base = static_cast<char*>(pieces[at].iov_base) + taken;
            pieces[at].iov_len -= taken;
            left -= taken;
            if (pieces[at].iov_len == 0) ++at;
        }
    }
    return true;
}

bool WriteAll(int fd, const char* data, qint64 size) {
    std::vector<iovec> whole{{const_cast<char*>(data), size_t(size)}};
    return WriteAllVectored(fd, whole);
}

int OpenForWriting(const QString& path, int extraFlags) {
    return OpenPath(path, O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | extraFlags, 0644);
}

// Reads into room for the whole file as its size stands (`status`, taken
// by the caller, or none), in as few calls as the system allows; a file
// that grows meanwhile is read to its end. A plain file that gives its
// whole size and no more in one read has ended; anything else (a file of
// the system's own, whose size says nothing) is read until it gives nothing.
bool ReadFd(int fd, QByteArray& bytes, const struct stat* status) {
    const bool plain = status && S_ISREG(status->st_mode);
    const qsizetype expected = status && status->st_size > 0 ? qsizetype(status->st_size) : 0;
    bytes.resize(expected + 1);  // one more, to see the end in the same pass
    qsizetype used = 0;
    for (;;) {
        if (used == bytes.size()) bytes.resize(bytes.size() * 2 + 65536);
        const size_t room = size_t(bytes.size() - used);
        const ssize_t n = ::read(fd, bytes.data() + used, room);
        if (n < 0) {
            if (errno == EINTR) continue;
            bytes.clear();
            return false;
        }
        if (n == 0) break;
        used += n;
        // All the size said, and less than asked: the end of a plain file.
        if (plain && used == expected && size_t(n) < room) break;
    }
    bytes.truncate(used);
    return true;
}

// The same, the status taken here.
bool ReadFd(int fd, QByteArray& bytes) {
    struct stat st;
    return ReadFd(fd, bytes, ::fstat(fd, &st) == 0 ? &st : nullptr);
}

bool RawRead(const QString& path, QByteArray& bytes) {
    int fd = OpenPath(path, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return false;
    bool ok = ReadFd(fd, bytes);
    ::close(fd);
    return ok;
}

// Creates or empties the file and writes the bytes; with `flush`, the data
// reach the device before it returns.
bool WriteData(const QString& path, const QByteArray& bytes, bool flush) {
    const int fd = OpenForWriting(path, O_TRUNC);
    if (fd < 0) return false;
    Tell(FileEvent::Changed, path);
    bool ok = WriteAll(fd, bytes.constData(), bytes.size());
    Tell(FileEvent::Changed, path);
    if (ok && flush) ok = SyncData(fd, path);
    return ::close(fd) == 0 && ok;
}

// With `lasting`, the data and the file's name reach the device.
bool RawWrite(const QString& path, const QByteArray& bytes, bool lasting) {
    return WriteData(path, bytes, lasting) && (!lasting || SyncFolder(FolderOf(path)));
}

// Writes the rest of `in` into `out`: from file to file inside the system
// where it can send between the two, else through a buffer of ours.
bool PourInto(int in, int out) {
    for (bool sentAny = false;;) {
        const ssize_t n = ::sendfile(out, in, nullptr, size_t(1) << 30);
        if (n > 0) {
            sentAny = true;
            continue;
        }
        if (n == 0) return true;
        if (errno == EINTR) continue;
        if (sentAny || (errno != EINVAL && errno != ENOSYS)) return false;
        QByteArray bytes;
        return ReadFd(in, bytes) && WriteAll(out, bytes.constData(), bytes.size());
    }
}

// Creates or empties `target` and writes the bytes of `source` into it; with
// `flush`, the data reach the device before it returns. A source that can't
// be opened, or isn't a plain file, leaves the target alone; a copy cut short
// leaves no target.
bool CopyData(const QString& source, const QString& target, bool flush) {
    const int in = OpenPath(source, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (in < 0) return false;
    struct stat from, to;
    if (::fstat(in, &from) != 0 || !S_ISREG(from.st_mode) ||
        (::stat(Native(target).constData(), &to) == 0 && from.st_dev == to.st_dev && from.st_ino == to.st_ino)) {
        // Read first: onto itself, emptying the target would lose what is to
        // be copied, and a folder fails before the target is touched.
        QByteArray bytes;
        const bool read = ReadFd(in, bytes);
        ::close(in);
        return read && WriteData(target, bytes, flush);
    }
    const int out = OpenForWriting(target, O_TRUNC);
    bool ok = out >= 0;
    if (ok) {
        Tell(FileEvent::Changed, target);
        const bool poured = PourInto(in, out);
        Tell(FileEvent::Changed, target);
        ok = poured && (!flush || SyncData(out, target));
        ok = ::close(out) == 0 && ok;
        if (!poured) Unlink(target);
    }
    ::close(in);
    return ok;
}

bool RawCopy(const QString& source, const QString& target) {
    const bool lasting = Lasting(target);
    return CopyData(source, target, lasting) && (!lasting || SyncFolder(FolderOf(target)));
}

bool SameFileSystem(const QString& source, const QString& target) {
    struct stat a, b;
    return ::stat(Native(source).constData(), &a) == 0 && ::stat(Native(FolderOf(target)).constData(), &b) == 0 &&
           a.st_dev == b.st_dev;
}

// A move onto another file system: a copy under a side name beside the
// target, flushed, renamed into place, the folder flushed; only then does
// the source go, so that a pulled drive never costs the only copy.
bool MoveAcross(const QString& source, const QString& target, bool lasting) {
    const QString side = target + ".new";
    Unlink(side);
    if (!CopyData(source, side, lasting) || !Rename(side, target)) {
        Unlink(side);
        return false;
    }
    if (lasting && !SyncFolder(FolderOf(target))) return false;
    return Unlink(source);
}

// The FAT hidden attribute, where the drive has one.
bool FatHidden(const QString& path) {
    int fd = OpenPath(path, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return false;
    __u32 attributes = 0;
    bool hidden = ::ioctl(fd, FAT_IOCTL_GET_ATTRIBUTES, &attributes) == 0 &&
                  (attributes & (ATTR_HIDDEN | ATTR_SYS)) != 0;
    ::close(fd);
    return hidden;
}

// The look-up of an empty name lists the working folder: it finds a file
// when that folder holds one.
bool WorkingFolderHoldsAFile() {
    DIR* folder = ::opendir(".");
    if (!folder) return false;
    bool found = false;
    struct stat st;
    while (const dirent* entry = ::readdir(folder))
        if ((found = ::fstatat(::dirfd(folder), entry->d_name, &st, 0) == 0 && S_ISREG(st.st_mode))) break;
    ::closedir(folder);
    return found;
}

}  // namespace

bool FileExists(const QString& path) {
    if (path.isEmpty()) return Step("exists", path) && WorkingFolderHoldsAFile();
    FileStamp unused;
    return FileExistsWithStamp(path, unused);
}

namespace {
qint64 Nanoseconds(const timespec& time) { return qint64(time.tv_sec) * 1000000000 + time.tv_nsec; }

FileStamp StampOf(const struct stat& st) {
    return {st.st_size, Nanoseconds(st.st_mtim), Nanoseconds(st.st_ctim), st.st_dev, st.st_ino};
}
}  // namespace

bool FileExistsWithStamp(const QString& path, FileStamp& stamp) {
    if (!Step("exists", path)) return false;
    struct stat st;
    if (path.isEmpty() || !StatRegular(path, st)) return false;
    stamp = StampOf(st);
    return true;
}

StampedRead ReadFileWithStamp(const QString& path, QByteArray& bytes, FileStamp& stamp) {
    if (!Step("exists", path) || path.isEmpty()) return StampedRead::Missing;
    // Not blocking, so that a pipe planted under the name is passed over
    // rather than waited on.
    const int fd = OpenPath(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat st;
    if (fd < 0) {
        // Not opened: the existence test still finds a regular file behind a link.
        if (errno == ENOENT || !StatRegular(path, st)) return StampedRead::Missing;
        Step("read", path);
        return StampedRead::Unreadable;
    }
    StampedRead result = StampedRead::Unreadable;
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        result = StampedRead::Missing;
    else if (Step("read", path) && ReadFd(fd, bytes, &st))
        result = StampedRead::Read;
    ::close(fd);
    if (result == StampedRead::Read) stamp = StampOf(st);
    return result;
}

qint64 FileClockNowNs() {
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now);
}

bool NormalFileExists(const QString& path) {
    if (!Step("exists", path)) return false;
    struct stat st;
    if (!StatRegular(path, st)) return false;
    if ((st.st_mode & S_IWUSR) == 0) return false;  // read-only
    return !FatHidden(path);
}

bool FolderExists(const QString& path) {
    if (!Step("folder", path)) return false;
    struct stat st;
    return ::stat(Native(path).constData(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool MakeFolder(const QString& path) {
    if (!Step("mkdir", path)) return false;
    Log("mkdir", path);
    if (::mkdir(Native(path).constData(), 0755) != 0) return false;
    return !Lasting(path) || SyncFolder(FolderOf(path));
}

bool CopyFile(const QString& source, const QString& target) {
    if (!Step("copy", target)) return false;
    Log("copy", source + " -> " + target);
    return RawCopy(source, target);
}

bool Kill(const QString& path) {
    if (!Step("kill", path)) return false;
    Log("kill", path);
    return Unlink(path) && (!Lasting(path) || SyncFolder(FolderOf(path)));
}

bool KillIfExists(const QString& path) { return !FileExists(path) || Kill(path); }

bool MoveFile(const QString& source, const QString& target) {
    if (!Step("move", target)) return false;
    Log("move", source + " -> " + target);
    struct stat st;
    if (::lstat(Native(target).constData(), &st) == 0) return false;  // target exists
    const bool lasting = Lasting(target);
    if (!SameFileSystem(source, target)) return MoveAcross(source, target, lasting);
    // The data before the name: a rename must never put in place a file
    // whose content is still in memory only.
    if (lasting && !SyncFile(source)) return false;
    return Rename(source, target) && (!lasting || SyncFolder(FolderOf(target)));
}

bool ReadWholeFile(const QString& path, QByteArray& bytes) {
    if (!Step("read", path)) return false;
    return RawRead(path, bytes);
}

bool WriteWholeFile(const QString& path, const QByteArray& bytes) {
    if (!Step("write", path)) return false;
    Log("write", path);
    return RawWrite(path, bytes, Lasting(path));
}

bool ReplaceFileContent(const QString& path, const QByteArray& bytes) {
    if (!Step("replace", path)) return false;
    Log("replace", path);
    const QString fresh = path + ".new";
    const bool lasting = Lasting(path);
    Unlink(fresh);
    // The new content is flushed before the rename, the folder after it.
    if (!WriteData(fresh, bytes, lasting) || !Rename(fresh, path)) {
        Unlink(fresh);
        return false;
    }
    return !lasting || SyncFolder(FolderOf(path));
}

bool WritePrivateFile(const QString& path, const QByteArray& bytes) {
    if (!Step("private", path)) return false;
    Log("private", path);
    // Not truncated at open: a file that fails the test below stays as it
    // was. O_NONBLOCK keeps a planted FIFO from holding the program.
    const int fd = OpenPath(path, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    struct stat st;
    const bool own = ::fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_uid == ::getuid() && st.st_nlink == 1;
    bool ok = own && ::fchmod(fd, 0600) == 0 && ::ftruncate(fd, 0) == 0 && WriteAll(fd, bytes.constData(), bytes.size());
    ok = ::close(fd) == 0 && ok;
    return ok;
}

OutputFile::~OutputFile() {
    if (fd_ >= 0) ::close(fd_);
}

bool OutputFile::open(const QString& path, const char* kind, int flags) {
    if (fd_ >= 0) return false;
    if (!Step(kind, path)) return false;
    Log(kind, path);
    fd_ = OpenForWriting(path, flags);
    path_ = path;
    if (fd_ < 0) return false;
    Tell(FileEvent::Changed, path);
    return true;
}

bool OutputFile::openForOutput(const QString& path) { return open(path, "output", O_TRUNC); }
bool OutputFile::openForAppend(const QString& path) { return open(path, "append", O_APPEND); }
bool OutputFile::openForBinary(const QString& path) { return open(path, "binary", 0); }

bool OutputFile::write(const QByteArray& bytes) { return write(std::vector<QByteArrayView>{bytes}); }

bool OutputFile::write(const std::vector<QByteArrayView>& pieces) {
    if (fd_ < 0) return false;
    if (!Step("put", path_)) return false;
    std::vector<iovec> vectors;
    vectors.reserve(pieces.size());
    for (QByteArrayView piece : pieces) vectors.push_back({const_cast<char*>(piece.data()), size_t(piece.size())});
    const bool ok = WriteAllVectored(fd_, vectors);
    Tell(FileEvent::Changed, path_);
    return ok;
}

bool OutputFile::close() {
    if (fd_ < 0) return false;
    int fd = fd_;
    fd_ = -1;
    if (!Step("close", path_)) {
        ::close(fd);
        return false;
    }
    const bool lasting = Lasting(path_);
    bool ok = !lasting || SyncData(fd, path_);
    ok = ::close(fd) == 0 && ok;
    return ok && (!lasting || SyncFolder(FolderOf(path_)));
}

void FailFileOperationAt(long k) {
    g_failAt = k;
    g_failOn.clear();
    g_count = 0;
    g_failed.clear();
}
void FailFileOperationOn(const QString& operation) {
    FailFileOperationAt(0);
    g_failOn = operation;
}
long FileOperationCount() { return g_count; }

bool FileStepsWatched() { return g_failAt != 0 || !g_failOn.isEmpty() || g_logging || g_watcher; }
QString FailedFileOperation() { return g_failed; }
void SetFileOperationLogging(bool on) { g_logging = on; }
QStringList FileOperationLog() { return g_log; }
void ClearFileOperationLog() {
    g_log.clear();
    g_trace.clear();
}
QStringList FileOperationTrace() { return g_trace; }
void SetFileEventWatcher(FileEventWatcher watcher) { g_watcher = std::move(watcher); }
void SetFlushingForBench(bool on) { g_flush = on; }
void SetFileChangeListener(FileChangeListener listener) { g_changeListener = listener; }
void SetOpenDelayForBench(int microseconds) { g_openDelay = microseconds; }
