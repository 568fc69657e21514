#include "services/core/updatecheck.h"

#include <QStringList>
#include "store/core/text.h"

QString UpdateRequestBody(const QString& appId, int major, int minor, int revision) {
    return QStringLiteral("appid=%1&major=%2&minor=%3&rev=%4").arg(appId).arg(major).arg(minor).arg(revision);
}

namespace {
// The text between the first `open` of the entry and the first `close`,
// when that close stands behind the open; otherwise `output` stays.
void TakeTag(const QString& entry, const QString& tag, QString& output) {
    const QString open = "<" + tag + ">";
    const QString close = "</" + tag + ">";
    const qsizetype start = entry.indexOf(open);  // case-sensitive, as the marks are literal
    const qsizetype end = entry.indexOf(close);
    if (start < 0 || end <= start) return;
    const qsizetype from = start + open.size();
    output = entry.mid(from, qMax<qsizetype>(0, end - from));
}
}  // namespace

// The reply is not read as XML: only the literal marks count, and the
// opening <update> is never looked for.
void ParseUpdate(const QString& response, QString& code, QString& version, QString& url) {
    if (TrimSpaces(response).isEmpty()) return;
    const QStringList parts = response.split(QStringLiteral("</update>"));
    // What follows the last "</update>" is no entry.
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        TakeTag(parts[i], QStringLiteral("code"), code);
        TakeTag(parts[i], QStringLiteral("version"), version);
        TakeTag(parts[i], QStringLiteral("url"), url);
    }
}
