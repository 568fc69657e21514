#include "platform/core/keeppainting.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>

namespace {
constexpr qint64 kEveryMs = 50;

// The time since the queue last ran, by anyone.
QElapsedTimer& SinceQueueRan() {
    static QElapsedTimer since;
    static bool watching = false;
    if (!watching) {
        if (auto* dispatcher = QAbstractEventDispatcher::instance()) {
            QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, [] { since.start(); });
            watching = true;
        }
        since.start();
    }
    return since;
}
}  // namespace

void KeepWindowPainting() {
    if (SinceQueueRan().elapsed() >= kEveryMs) PaintWindowsNow();
}

void PaintWindowsNow() {
    if (!QCoreApplication::instance()) return;
    // Neither input nor timers nor sockets: the window system's other
    // events and what is posted, the paints among them.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers |
                                    QEventLoop::X11ExcludeTimers);
    SinceQueueRan().start();
}
