#pragma once
// What the executable tells of itself: its title and its version, as the
// build stamps them (the project's name and version in CMakeLists.txt).
#include <QString>

struct ProgramVersion {
    qint16 major = 0;
    qint16 minor = 0;
    qint16 revision = 0;
};

QString AppTitle();
ProgramVersion AppVersion();

// ---- for tests: another version until reset with {} ----
void SetAppVersionForTest(const ProgramVersion& version);
