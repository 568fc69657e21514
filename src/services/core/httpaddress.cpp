#include "services/core/httpaddress.h"

HttpAddress SplitHttpAddress(const QString& address) {
    if (!address.contains(QLatin1Char('/'))) return {address, QString()};
    QString rest = address.toLower();
    rest.remove(QStringLiteral("http://"));
    rest.remove(QStringLiteral("https://"));
    const qsizetype slash = rest.indexOf(QLatin1Char('/'));
    // "http://host" has lost its only slash: all of it is the host.
    if (slash < 0) return {rest, QString()};
    return {rest.left(slash), rest.mid(slash + 1)};
}
