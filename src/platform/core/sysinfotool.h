#pragma once
// The system information tool: the desktop's program that tells about the
// machine (KDE's Info Center, HardInfo), where one is installed. It stands
// where the registry named the Windows tool.
#include <QString>
#include <QStringList>

// The tool's path, found on the search path; empty when none is installed.
QString SystemInformationTool();
// Starts the program in a window of its own and does not wait for it.
bool StartProgram(const QString& path);

// ---- for tests: the names looked for, in order; empty: back to the desktop's ----
void SetSystemInformationToolsForTest(const QStringList& names);
