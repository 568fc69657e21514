#pragma once
// How long a road keeps the window from repainting. The road runs from
// inside the event loop (a single-shot timer), as a command does; a timer
// asks the window to repaint every 5 ms, and each paint asks for the next;
// each paint the window receives is timestamped. The longest gap is the longest of: the road's start to the
// first paint, one paint to the next, the last paint to the road's end.
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>
#include "benchtable.h"

class PaintClock : public QObject {
public:
    // With `paints` false, the repaint timer's own firings are counted
    // instead: the window system then delivers no paints to measure.
    PaintClock(QWidget* window, bool paints) : window_(window), paints_(paints) {
        window->installEventFilter(this);
        ticker_.setInterval(5);
        QObject::connect(&ticker_, &QTimer::timeout, [this] {
            window_->update();
            if (!paints_) stamps_.push_back(BenchClock::now());
        });
        ticker_.start();
    }
    ~PaintClock() override { window_->removeEventFilter(this); }
    std::vector<BenchClock::time_point> stamps_;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (paints_ && watched == window_ && event->type() == QEvent::Paint) {
            stamps_.push_back(BenchClock::now());
            // The next paint is asked for at once, not by the timer: a road
            // may let the window repaint without running timers.
            QMetaObject::invokeMethod(window_, [w = window_] { w->update(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    QWidget* window_;
    bool paints_;
    QTimer ticker_;
};

// Waits `ms` in the event loop.
inline void Idle(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Whether the window system delivers the window's paints here (under
// QT_QPA_PLATFORM=offscreen it should): 100 ms idle, a repaint asked for
// every 5 ms, at least ten paints.
inline bool PaintsArrive(QWidget* window) {
    PaintClock clock(window, true);
    Idle(100);
    return clock.stamps_.size() >= 10;
}

// The longest gap, in ms, while `road` runs.
inline double LongestPaintGap(QWidget* window, bool paints, const std::function<void()>& road) {
    PaintClock clock(window, paints);
    BenchClock::time_point start, end;
    QEventLoop loop;
    QTimer::singleShot(20, &loop, [&] {
        clock.stamps_.clear();
        start = BenchClock::now();
        road();
        end = BenchClock::now();
        loop.quit();
    });
    loop.exec();
    std::vector<BenchClock::time_point> marks{start};
    for (const auto& stamp : clock.stamps_)
        if (stamp <= end) marks.push_back(stamp);
    marks.push_back(end);
    double longest = 0;
    for (size_t i = 1; i < marks.size(); ++i)
        longest = std::max(longest, std::chrono::duration<double, std::milli>(marks[i] - marks[i - 1]).count());
    return longest;
}
