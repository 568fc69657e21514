#pragma once
// System queries: the version of the running system and the administrator
// test.
struct OsVersionInfo {
    int code = 7;
    int major = 0;
    int minor = 0;
};

// Fills the record from the running kernel's version through the table of
// codes; true when the version could be read.
bool GetOsVersion(OsVersionInfo& info);
int OsVersionCode(int major, int minor, bool ntFamily);
// ---- for tests: the version GetOsVersion reports until reset with 0, 0 ----
void SetOsVersionForTest(int major, int minor);

// True when the staging area can be created and written.
bool IsNTAdmin();
