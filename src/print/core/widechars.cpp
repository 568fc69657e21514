#include "print/core/widechars.h"

bool IsWideChar(QChar c) { return c.unicode() > 255; }

QString EncodeWide(const QString& text) {
    QString result;
    for (QChar c : text) {
        if (!IsWideChar(c)) {
            result += c;
            continue;
        }
        // The code read as a signed 16-bit number is made positive again, so
        // that codes from 32768 up are never written with a minus sign.
        qint32 code = qint16(c.unicode());
        if (code < 0) code += 65536;
        result += QStringLiteral("\\u") + QString::number(code) + u'?';
    }
    return result;
}
