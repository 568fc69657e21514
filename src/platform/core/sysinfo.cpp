#include "platform/core/sysinfo.h"

#include <QByteArray>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/utsname.h>
#include <unistd.h>
#include "platform/core/tempfolder.h"

namespace {
int g_testMajor = 0;
int g_testMinor = 0;

// The leading decimal digits of `text` from `pos` on; `pos` ends after them.
int LeadingNumber(const char* text, size_t& pos) {
    int value = 0;
    while (text[pos] >= '0' && text[pos] <= '9') {
        if (value < 100000) value = value * 10 + (text[pos] - '0');
        ++pos;
    }
    return value;
}

}  // namespace

int OsVersionCode(int major, int minor, bool ntFamily) {
    switch (major) {
    case 3: return ntFamily ? 5 : 6;
    case 4:
        if (ntFamily) return 1;
        if (minor == 0) return 2;
        if (minor == 10) return 3;
        if (minor == 90) return 4;
        return 7;
    case 5:
        if (minor > 0) return -1;
        if (minor == 0) return 0;
        return 7;
    default: return 7;
    }
}

void SetOsVersionForTest(int major, int minor) {
    g_testMajor = major;
    g_testMinor = minor;
}

bool GetOsVersion(OsVersionInfo& info) {
    if (g_testMajor != 0) {
        info.major = g_testMajor;
        info.minor = g_testMinor;
        info.code = OsVersionCode(info.major, info.minor, false);
        return true;
    }
    struct utsname name;
    if (::uname(&name) != 0) return false;
    // "6.1.0-18-amd64": major 6, minor 1.
    size_t pos = 0;
    info.major = LeadingNumber(name.release, pos);
    info.minor = 0;
    if (name.release[pos] == '.') {
        ++pos;
        info.minor = LeadingNumber(name.release, pos);
    }
    // The running kernel is not of the Windows NT family.
    info.code = OsVersionCode(info.major, info.minor, false);
    return true;
}

bool IsNTAdmin() {
    if (!EnsureTempArea()) return false;
    // A probe file of this process's own name, made and removed at once; an
    // existing entry of that name, a link above all, is not opened.
    const QByteArray probe =
        QFile::encodeName(TempArea() + "/.tandry-probe-" + QString::number(::getpid()));
    const int fd = ::open(probe.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    ::close(fd);
    return ::unlink(probe.constData()) == 0;
}
