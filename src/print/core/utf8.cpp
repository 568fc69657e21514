#include "print/core/utf8.h"

QString Utf8ToText(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\0');
    return QString::fromUtf8(end < 0 ? bytes : bytes.left(end));
}
