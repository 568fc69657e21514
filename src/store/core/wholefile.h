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
