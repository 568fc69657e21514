#pragma once
// Base-64 (the alphabet of RFC 4648, "=" as the pad) as the mail decoder
// reads it.
#include <QByteArray>
#include <QString>

// Four characters at a time. A pad, or the end of the text, ends its group
// with the bytes the characters before it fill; a character outside the
// alphabet ends the whole decoding with an empty result; one last byte of
// value 0 is dropped at the end.
QByteArray Base64Decode(const QString& text);
