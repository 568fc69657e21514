#include "platform/core/instance.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// Names squatted by other users are passed over; this many are tried.
constexpr int kNames = 8;

int g_claim = -1;
std::unique_ptr<QSocketNotifier> g_drain;
QString g_testName;

struct Address {
    sockaddr_un address{};
    socklen_t length = 0;
};

// An abstract address: a NUL, then the name, no file behind it.
Address AddressOf(const QByteArray& name) {
    Address a;
    a.address.sun_family = AF_UNIX;
    const QByteArray cut = name.left(static_cast<qsizetype>(sizeof a.address.sun_path) - 1);
    std::memcpy(a.address.sun_path + 1, cut.constData(), static_cast<size_t>(cut.size()));
    a.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(cut.size()));
    return a;
}

const sockaddr* Raw(const Address& a) { return reinterpret_cast<const sockaddr*>(&a.address); }

// Whether the name is held by a listening process of this user, told by
// the credentials the system gives for it, not by anything it could forge.
bool HeldByThisUser(const QByteArray& name) {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0) return false;
    const Address a = AddressOf(name);
    ucred peer{};
    socklen_t size = sizeof peer;
    const bool ours = ::connect(fd, Raw(a), a.length) == 0 &&
                      ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::getuid();
    ::close(fd);
    return ours;
}

// The holder answers each test by taking the connection and closing it,
// so that its queue never fills.
void Drain() {
    for (int fd; (fd = ::accept4(g_claim, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK)) >= 0;) ::close(fd);
}

}  // namespace

QByteArray InstanceClaimName(int n) {
    QByteArray base = g_testName.isEmpty() ? "Tandry-instance-" + QByteArray::number(static_cast<qulonglong>(::getuid()))
                                           : g_testName.toUtf8();
    return n == 0 ? base : base + "-" + QByteArray::number(n);
}

bool PrevInstance() {
    int claim = -1;
    // Every name is looked at: a holder of this user on a later name counts
    // as much as one on the first.
    for (int n = 0; n < kNames; ++n) {
        const QByteArray name = InstanceClaimName(n);
        const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        if (fd < 0) break;  // no means to tell: let this one run
        const Address a = AddressOf(name);
        if (::bind(fd, Raw(a), a.length) == 0) {
            if (claim < 0 && ::listen(fd, SOMAXCONN) == 0) claim = fd;
            else ::close(fd);
            continue;
        }
        const int err = errno;
        ::close(fd);
        if (err == EADDRINUSE && HeldByThisUser(name)) {
            if (claim >= 0) ::close(claim);
            return true;
        }
    }
    if (claim < 0) return false;  // every name taken by others: let this one run
    ReleaseInstanceClaim();
    g_claim = claim;
    if (QCoreApplication::instance()) {
        g_drain = std::make_unique<QSocketNotifier>(g_claim, QSocketNotifier::Read);
        QObject::connect(g_drain.get(), &QSocketNotifier::activated, [] { Drain(); });
    }
    return false;
}

void ReleaseInstanceClaim() {
    g_drain.reset();
    if (g_claim >= 0) ::close(g_claim);
    g_claim = -1;
}

void SetInstanceNameForTest(const QString& name) { g_testName = name; }
