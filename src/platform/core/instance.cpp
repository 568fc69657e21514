#include "platform/core/instance.h"

#include <QByteArray>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

int g_claim = -1;
QString g_testName;

QByteArray ClaimName() {
    if (!g_testName.isEmpty()) return g_testName.toUtf8();
    return "Tandry-instance-" + QByteArray::number(static_cast<qulonglong>(::getuid()));
}

}  // namespace

bool PrevInstance() {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) return false;  // no means to tell: let this one run

    // An abstract address: a NUL, then the name, no file behind it.
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = ClaimName().left(static_cast<qsizetype>(sizeof address.sun_path) - 1);
    std::memcpy(address.sun_path + 1, name.constData(), static_cast<size_t>(name.size()));
    const socklen_t length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(name.size()));

    if (::bind(fd, reinterpret_cast<const sockaddr*>(&address), length) == 0) {
        if (g_claim >= 0) ::close(g_claim);
        g_claim = fd;
        return false;
    }
    const int err = errno;
    ::close(fd);
    return err == EADDRINUSE;
}

void ReleaseInstanceClaim() {
    if (g_claim >= 0) ::close(g_claim);
    g_claim = -1;
}

void SetInstanceNameForTest(const QString& name) { g_testName = name; }
