#include "print/core/base64.h"

namespace {
// The alphabet with the pad at its end: the pad is position 65 (index 64).
const QString kAlphabet =
    QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=");
constexpr int kPad = 64;
}  // namespace

QByteArray Base64Decode(const QString& text) {
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); at += 4) {
        quint32 bits = 0;
        int filled = 0;  // characters of the group before its pad or the text's end
        for (int k = 0; k < 4; ++k) {
            const qsizetype index = at + k < text.size() ? kAlphabet.indexOf(text[at + k]) : kPad;
            if (index < 0) return QByteArray();
            if (index == kPad) break;
            bits |= quint32(index) << (18 - 6 * k);
            ++filled;
        }
        // n characters carry 6n bits: whole bytes only.
        for (int b = 0; b < filled - 1; ++b) bytes.append(char((bits >> (16 - 8 * b)) & 0xFF));
    }
    if (bytes.endsWith('\0')) bytes.chop(1);
    return bytes;
}
