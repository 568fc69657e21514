#include "store/core/genid.h"

#include <cmath>
#include "platform/core/fileops.h"
#include "store/core/ids.h"
#include "store/core/paths.h"

namespace {
// A 24-bit linear congruential generator with the classic BASIC constants
// and its fixed starting state.
constexpr quint32 kStartState = 0x50000;
quint32 g_state = kStartState;

int Draw() { return int(std::floor(NextRandom() * 32766.0f + 1.0f)); }
}  // namespace

float NextRandom() {
    g_state = (g_state * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return float(g_state) / 16777216.0f;
}

void ResetRandomForTest() { g_state = kStartState; }

int DrawUnused(const std::function<bool(int)>& inUse) {
    int attempts = 1;
    bool searching = true;
    int candidate = Draw();
    while (attempts < 32766 && searching) {
        if (!inUse(candidate)) {
            searching = false;
        } else {
            candidate = Draw();
            ++attempts;
        }
    }
    // After 32765 fruitless draws the last candidate stands, though taken.
    return candidate;
}

int GenID() {
    if (DataFolder().isEmpty()) return 0;
    // Normal files only: a hidden or read-only record isn't seen here.
    return DrawUnused([](int candidate) { return NormalFileExists(RecordPath(IdText(candidate))); });
}
