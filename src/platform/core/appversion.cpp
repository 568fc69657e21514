#include "platform/core/appversion.h"

#include <optional>

namespace {
std::optional<ProgramVersion> g_testVersion;
}

QString AppTitle() { return QStringLiteral(TANDRY_TITLE); }

ProgramVersion AppVersion() {
    if (g_testVersion) return *g_testVersion;
    return {TANDRY_VERSION_MAJOR, TANDRY_VERSION_MINOR, TANDRY_VERSION_PATCH};
}

void SetAppVersionForTest(const ProgramVersion& version) {
    if (version.major || version.minor || version.revision) g_testVersion = version;
    else g_testVersion.reset();
}
