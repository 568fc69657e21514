#pragma once
// The whole-file rule of every list reader: read the file whole, split it at
// CR LF, and walk all elements but the last. The element after the last
// CR LF is skipped, so a last line without CR LF is not seen at all.
#include <QString>
#include <QStringList>

// False when the file can't be read.
bool ReadWholeFileLines(const QString& path, QStringList& lines);
// The same rule on text already read.
QStringList WholeFileLines(const QString& text);
// The same lines as views into `text`, for readers of files of tens of
// thousands of lines that keep few of them.
QList<QStringView> WholeFileLineViews(const QString& text);
// The file read whole and decoded into `text`, and its lines as views into it.
bool ReadWholeFileLineViews(const QString& path, QString& text, QList<QStringView>& lines);
