#include "store/core/wholefile.h"

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"

QStringList WholeFileLines(const QString& text) {
    if (text.isEmpty()) return {};
    QStringList lines = text.split(QStringLiteral("\r\n"));
    lines.removeLast();
    return lines;
}

bool ReadWholeFileLines(const QString& path, QStringList& lines) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    lines = WholeFileLines(FromAnsi(bytes));
    return true;
}
