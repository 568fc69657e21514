#pragma once
// The local staging area on the fixed disk. It stands where the Windows
// program had C:\Vellumark\temp\: $XDG_CACHE_HOME/Vellumark/temp (default
// ~/.cache/Vellumark/temp), each folder made with mode 0700.
#include <QString>

QString VellumarkFolder();                 // the folder that holds temp/
QString TempArea();                        // VellumarkFolder() + "/temp"
QString TempFile(const QString& name);     // TempArea() + "/" + name

// Creates both folders when missing (mode 0700). False when they can't be
// made, or when one of them is not a real folder of this user. A folder of
// this user that others may enter is closed to them (mode 0700).
bool EnsureTempArea();
// True when one of the two folders is there but is not a real folder of
// this user (a link, a file, another user's folder): the start fails then.
// Tightens this user's own, as above.
bool TempAreaRefused();

// The system's temporary folder (GetTempPath): $TMPDIR, or /tmp.
QString SystemTempPath();
// The same with its trailing separator, as GetTempPath gives it.
QString GetWindowTemp();

void SetVellumarkFolderForTest(const QString& folder);  // empty: default
void SetSystemTempPathForTest(const QString& folder);   // empty: default
