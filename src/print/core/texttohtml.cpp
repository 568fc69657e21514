#include "print/core/texttohtml.h"

#include <QStringList>

namespace {
// One part between two "?" of the escaped text, with the separator it gets.
// A part whose first backslash is followed by "u" becomes a reference. The
// cut at the backslash is made twice, the second time in the already shorter
// text: with the backslash first (the wide characters that EncodeWide writes)
// that is harmless, with p - 1 characters in front of it those characters go,
// and with them the first p - 1 characters behind them, "&" and "u" included.
// The page has always printed so.
QString RebuildPart(const QString& part) {
    const qsizetype p = part.indexOf(u'\\');  // 0-based: p characters stand in front
    if (p < 0 || !part.contains(u'u') || part.mid(p + 1, 1) != u"u") return part + u'?';
    QString reference = part.mid(p).replace(u'\\', u'&');
    reference = reference.mid(p).replace(u'u', u'#');
    return reference + u';';
}
}  // namespace

QString TextToHtml(const QString& text) {
    QString escaped = text;
    escaped.replace(u'&', QStringLiteral("&amp;"))
        .replace(u'<', QStringLiteral("&lt;"))
        .replace(u'>', QStringLiteral("&gt;"))
        .replace(u'"', QStringLiteral("&quot;"))
        .replace(QChar(0xDF), QStringLiteral("&szlig;"))  // ß
        .replace(kHardSpace, QStringLiteral("&nbsp;"));

    QString html;
    for (const QString& part : escaped.split(u'?')) html += RebuildPart(part);
    // The last part's separator goes, unless the text itself ended in "?":
    // then it stays, so a field ending in a wide character prints a stray
    // "?" and one ending in a real "?" prints two.
    if (!escaped.endsWith(u'?')) html.chop(1);

    html.replace(kHeadingStart, QStringLiteral("<font size=5><bold>"))
        .replace(kHeadingEnd, QStringLiteral("<bold></font>"))
        .replace(kFieldBreak, QStringLiteral("<BR>&nbsp;"))
        .replace(QStringLiteral("\r\n"), QStringLiteral("<BR>"));
    return html;
}
