#pragma once
// The application folder: the folder of the running executable. Everything
// that must survive lies there.
#include <QString>

QString AppPath();                        // without a trailing separator
QString AppFile(const QString& name);     // AppPath() + "/" + name, case resolved
void SetAppPathForTest(const QString& folder);  // empty: back to the executable's folder
