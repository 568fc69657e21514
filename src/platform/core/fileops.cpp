#include "platform/core/fileops.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

long g_failAt = 0;
QString g_failOn;
long g_count = 0;
QString g_failed;
bool g_logging = false;
QStringList g_log;
QStringList g_trace;

// Counts one operation; false when it is the one a test made fail.
bool Step(const char* kind, const QString& path) {
    ++g_count;
    const bool failHere = g_failAt != 0 && g_count == g_failAt;
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

bool StatRegular(const QString& path, struct stat& st) {
    return ::stat(Native(path).constData(), &st) == 0 && S_ISREG(st.st_mode);
}

bool WriteAll(int fd, const char* data, qint64 size) {
    while (size > 0) {
        ssize_t n = ::write(fd, data, static_cast<size_t>(size));
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        data += n;
        size -= n;
    }
    return true;
}

int OpenForWriting(const QString& path, int extraFlags) {
    return ::open(Native(path).constData(),
                  O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | extraFlags, 0644);
}

bool ReadFd(int fd, QByteArray& bytes) {
    bytes.clear();
    char buffer[65536];
    for (;;) {
        ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        if (n == 0) return true;
        bytes.append(buffer, static_cast<qsizetype>(n));
    }
}

bool RawRead(const QString& path, QByteArray& bytes) {
    int fd = ::open(Native(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return false;
    bool ok = ReadFd(fd, bytes);
    ::close(fd);
    return ok;
}

bool RawWrite(const QString& path, const QByteArray& bytes) {
    int fd = OpenForWriting(path, O_TRUNC);
    if (fd < 0) return false;
    bool ok = WriteAll(fd, bytes.constData(), bytes.size());
    ok = (::close(fd) == 0) && ok;
    return ok;
}

bool RawCopy(const QString& source, const QString& target) {
    QByteArray bytes;
    return RawRead(source, bytes) && RawWrite(target, bytes);
}

// The FAT hidden attribute, where the drive has one.
bool FatHidden(const QString& path) {
    int fd = ::open(Native(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
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
    if (!Step("exists", path)) return false;
    struct stat st;
    return path.isEmpty() ? WorkingFolderHoldsAFile() : StatRegular(path, st);
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
    return ::mkdir(Native(path).constData(), 0755) == 0;
}

bool CopyFile(const QString& source, const QString& target) {
    if (!Step("copy", target)) return false;
    Log("copy", source + " -> " + target);
    return RawCopy(source, target);
}

bool Kill(const QString& path) {
    if (!Step("kill", path)) return false;
    Log("kill", path);
    return ::unlink(Native(path).constData()) == 0;
}

bool KillIfExists(const QString& path) { return !FileExists(path) || Kill(path); }

bool MoveFile(const QString& source, const QString& target) {
    if (!Step("move", target)) return false;
    Log("move", source + " -> " + target);
    struct stat st;
    if (::lstat(Native(target).constData(), &st) == 0) return false;  // target exists
    if (::rename(Native(source).constData(), Native(target).constData()) == 0) return true;
    if (errno != EXDEV) return false;
    // Another file system: the drive. Copy, then delete the source.
    if (!RawCopy(source, target)) {
        ::unlink(Native(target).constData());
        return false;
    }
    return ::unlink(Native(source).constData()) == 0;
}

bool ReadWholeFile(const QString& path, QByteArray& bytes) {
    if (!Step("read", path)) return false;
    return RawRead(path, bytes);
}

bool WriteWholeFile(const QString& path, const QByteArray& bytes) {
    if (!Step("write", path)) return false;
    Log("write", path);
    return RawWrite(path, bytes);
}

bool ReplaceFileContent(const QString& path, const QByteArray& bytes) {
    if (!Step("replace", path)) return false;
    Log("replace", path);
    const QString fresh = path + ".new";
    ::unlink(Native(fresh).constData());
    if (!RawWrite(fresh, bytes)) {
        ::unlink(Native(fresh).constData());
        return false;
    }
    if (::rename(Native(fresh).constData(), Native(path).constData()) != 0) {
        ::unlink(Native(fresh).constData());
        return false;
    }
    return true;
}

bool WritePrivateFile(const QString& path, const QByteArray& bytes) {
    if (!Step("private", path)) return false;
    Log("private", path);
    // Not truncated at open: a file that fails the test below stays as it
    // was. O_NONBLOCK keeps a planted FIFO from holding the program.
    const int fd = ::open(Native(path).constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
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
    return fd_ >= 0;
}

bool OutputFile::openForOutput(const QString& path) { return open(path, "output", O_TRUNC); }
bool OutputFile::openForAppend(const QString& path) { return open(path, "append", O_APPEND); }
bool OutputFile::openForBinary(const QString& path) { return open(path, "binary", 0); }

bool OutputFile::write(const QByteArray& bytes) {
    if (fd_ < 0) return false;
    if (!Step("put", path_)) return false;
    return WriteAll(fd_, bytes.constData(), bytes.size());
}

bool OutputFile::close() {
    if (fd_ < 0) return false;
    int fd = fd_;
    fd_ = -1;
    if (!Step("close", path_)) {
        ::close(fd);
        return false;
    }
    return ::close(fd) == 0;
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
QString FailedFileOperation() { return g_failed; }
void SetFileOperationLogging(bool on) { g_logging = on; }
QStringList FileOperationLog() { return g_log; }
void ClearFileOperationLog() {
    g_log.clear();
    g_trace.clear();
}
QStringList FileOperationTrace() { return g_trace; }
