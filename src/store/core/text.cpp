#include "store/core/text.h"

#include "store/core/failure.h"

QString TrimSpaces(const QString& text) {
    qsizetype start = 0, end = text.size();
    while (start < end && text[start] == u' ') ++start;
    while (end > start && text[end - 1] == u' ') --end;
    return text.mid(start, end - start);
}

QString StripEnds(const QString& text) { return text.isEmpty() ? text : StripEndsOfView(text).toString(); }

namespace {
template <typename View>
View StripEndsOf(View text) {
    if (text.isEmpty()) return text;
    if (text.size() == 1) throw RoutineFailure("Invalid procedure call or argument");
    return text.sliced(1, text.size() - 2);
}
}  // namespace

QStringView StripEndsOfView(QStringView text) { return StripEndsOf(text); }
QByteArrayView StripEndsOfView(QByteArrayView bytes) { return StripEndsOf(bytes); }

const QString& Element(const QStringList& parts, int i) {
    if (i < 0 || i >= parts.size()) throw RoutineFailure("Subscript out of range");
    return parts[i];
}
