#include "platform/core/pause.h"

#include <chrono>
#include <thread>

namespace {
bool g_disabled = false;
}

void Sleep(int milliseconds) {
    if (g_disabled || milliseconds <= 0) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void SetSleepDisabledForTest(bool disabled) { g_disabled = disabled; }
