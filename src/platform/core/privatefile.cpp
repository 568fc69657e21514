#include "platform/core/privatefile.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
bool IsOwnSingleFile(int fd) {
    struct stat st;
    return ::fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_uid == ::getuid() && st.st_nlink == 1;
}

bool WriteAll(int fd, const QByteArray& bytes) {
    const char* data = bytes.constData();
    qint64 left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, static_cast<size_t>(left));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        data += n;
        left -= n;
    }
    return true;
}
}  // namespace

bool WritePrivateFile(const QString& path, const QByteArray& bytes) {
    // Not truncated at open: a file that fails the test below stays as it was.
    // O_NONBLOCK keeps a planted FIFO from holding the program.
    const int fd = ::open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    bool ok = IsOwnSingleFile(fd) && ::fchmod(fd, 0600) == 0 && ::ftruncate(fd, 0) == 0 && WriteAll(fd, bytes);
    ok = ::close(fd) == 0 && ok;
    return ok;
}
