#include "platform/core/pause.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include "platform/core/keeppainting.h"

namespace {
bool g_disabled = false;
// The windows stay painted through a pause; no input is taken during it.
constexpr auto kSlice = std::chrono::milliseconds(10);
}

void Sleep(int milliseconds) {
    if (g_disabled || milliseconds <= 0) return;
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        PaintWindowsNow();
        std::this_thread::sleep_for(std::min<Clock::duration>(kSlice, end - now));
    }
}

void SetSleepDisabledForTest(bool disabled) { g_disabled = disabled; }
