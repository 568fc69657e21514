#include "platform/core/numbers.h"

#include <cmath>
#include <cstdio>

namespace {
bool TextToDouble(const QString& text, double& value) {
    bool ok = false;
    value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value);
}
}  // namespace

bool TextToLong(const QString& text, long& value) {
    double number = 0;
    if (!TextToDouble(text, number)) return false;
    number = std::nearbyint(number);  // half to even, as the run time rounds
    if (number < -2147483648.0 || number > 2147483647.0) return false;
    value = long(number);
    return true;
}

bool TextToInt16(const QString& text, qint16& value) {
    long number = 0;
    if (!TextToLong(text, number) || number < -32768 || number > 32767) return false;
    value = qint16(number);
    return true;
}

QString SingleToText(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.7G", double(float(value)));
    return QString::fromLatin1(buffer);
}
