#include "store/core/wholefile.h"

#include <QStringTokenizer>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"

QStringList WholeFileLines(const QString& text) {
    QStringList lines;
    for (QStringView line : WholeFileLineViews(text)) lines.append(line.toString());
    return lines;
}

QList<QStringView> WholeFileLineViews(const QString& text) {
    QList<QStringView> lines;
    if (text.isEmpty()) return lines;
    for (QStringView line : QStringTokenizer(text, u"\r\n")) lines.append(line);
    lines.removeLast();
    return lines;
}

bool ReadWholeFileLineViews(const QString& path, QString& text, QList<QStringView>& lines) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    text = FromAnsi(bytes);
    lines = WholeFileLineViews(text);
    return true;
}

bool ReadWholeFileLines(const QString& path, QStringList& lines) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    lines = WholeFileLines(FromAnsi(bytes));
    return true;
}
