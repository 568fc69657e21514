#include "print/core/mimewords.h"

#include <QStringList>
#include "print/core/base64.h"
#include "print/core/utf8.h"

namespace {
// The base-64 text of the part behind one mark.
QString WordPayload(QString part) {
    // The closing "?=" of a last word; a word in the middle loses two
    // characters whatever they are.
    part.chop(2);
    const qsizetype question = part.indexOf(u'?');
    if (question >= 0) part.truncate(question);
    if (part.endsWith(u'?')) part.chop(1);
    for (int k = 0; k < 2 && part.endsWith(u'='); ++k) part.chop(1);
    return part;
}
}  // namespace

QString DecodeMimeWords(const QString& text) {
    const QStringList parts = text.split(QStringLiteral("=?utf-8?B?"), Qt::KeepEmptyParts, Qt::CaseSensitive);
    if (parts.size() < 2) return text;
    QString decoded;
    for (qsizetype i = 1; i < parts.size(); ++i) decoded += Utf8ToText(Base64Decode(WordPayload(parts[i])));
    return decoded.isEmpty() ? text : decoded;
}
