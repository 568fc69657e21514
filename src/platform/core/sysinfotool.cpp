#include "platform/core/sysinfotool.h"

#include <QProcess>
#include <QStandardPaths>

namespace {
QStringList g_testNames;

QStringList ToolNames() {
    if (!g_testNames.isEmpty()) return g_testNames;
    return {QStringLiteral("kinfocenter"), QStringLiteral("hardinfo2"), QStringLiteral("hardinfo")};
}
}  // namespace

QString SystemInformationTool() {
    for (const QString& name : ToolNames()) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty()) return path;
    }
    return QString();
}

bool StartProgram(const QString& path) { return QProcess::startDetached(path, {}); }

void SetSystemInformationToolsForTest(const QStringList& names) { g_testNames = names; }
