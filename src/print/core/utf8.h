#pragma once
// UTF-8 bytes to the program's 16-bit text.
#include <QByteArray>
#include <QString>

// Decodes up to the first zero byte; a malformed sequence becomes U+FFFD.
QString Utf8ToText(const QByteArray& bytes);
