#pragma once
// Text helpers of the store. Their failures carry the run time's words,
// which a dialog that shows "Error: " and the description puts in front of
// the user.
#include <QByteArrayView>
#include <QString>
#include <QStringList>

// Trims spaces only (not tabs or line breaks) at both ends.
QString TrimSpaces(const QString& text);

// Takes off the first and the last character, whatever they are. Empty
// text stays empty; one character is a failure (RoutineFailure).
QString StripEnds(const QString& text);
// The same on a view of a line, for the walks of whole index files.
QStringView StripEndsOfView(QStringView text);
// The same on bytes, where each byte is a character of its own.
QByteArrayView StripEndsOfView(QByteArrayView bytes);

// Element i of a split, or a failure when the split is shorter.
const QString& Element(const QStringList& parts, int i);

