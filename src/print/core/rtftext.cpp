#include "print/core/rtftext.h"

#include "store/core/failure.h"
#include "store/core/text.h"

QString TrimCRLF(QString text) {
    text = TrimSpaces(text);
    qsizetype before = 0;
    do {
        before = text.size();
        for (QChar end : {u'\r', u'\n'}) {
            if (text.startsWith(end)) text.remove(0, 1);
            if (text.endsWith(end)) text.chop(1);
        }
    } while (text.size() != before);
    return text;
}

QString GetLine(QString& text) {
    const qsizetype cr = text.indexOf(QStringLiteral("\r\n"));
    QString line = cr < 0 ? text : text.left(cr + 1);
    text = cr < 0 ? QString() : TrimCRLF(text.mid(cr + 1));
    return TrimCRLF(line);
}

namespace {
bool IsDelimiter(QChar c) { return c == u'\\' || c == u'{' || c == u'}'; }
bool IsBrace(QChar c) { return c == u'{' || c == u'}'; }

// How many characters of the line make the next token. The last character
// is never looked at: a walk that reaches it takes the whole line.
qsizetype TokenLength(const QString& line) {
    bool controlWord = false;
    for (qsizetype p = 0; p + 1 < line.size(); ++p) {  // p: characters in front
        const QChar c = line[p];
        if (IsDelimiter(c)) {
            if (p == 0 && c == u'\\') controlWord = true;
            if (p >= 1 && line[p + 1] != u'\\') return p;
        } else if (controlWord && c == u' ') {
            return p;
        }
    }
    return line.size();
}
}  // namespace

QString GetToken(QString& line) {
    if (line.startsWith(u'}')) {
        line.remove(0, 1);
        return QStringLiteral("}");
    }
    const qsizetype length = TokenLength(line);
    QString token = line.left(length);
    while (!token.isEmpty() && IsBrace(token.back())) token.chop(1);
    while (!token.isEmpty() && IsBrace(token.front())) token.remove(0, 1);
    line.remove(0, length);
    if (line.startsWith(u' ')) line.remove(0, 1);
    return token;
}

QString ReplaceAll(const QString& text, const QString& find, const QString& with) {
    QString result;
    qsizetype from = 0;
    for (qsizetype hit = text.indexOf(find); hit >= 0; hit = text.indexOf(find, from)) {
        result += text.mid(from, hit - from);
        if (result.size() + 1 > 32767) throw RoutineFailure("overflow: a position past 32767");
        result += with;
        from = hit + find.size();
    }
    return result + text.mid(from);
}
