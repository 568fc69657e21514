#include "print/core/rtfroute.h"

#include <QStringList>
#include "print/core/mimewords.h"
#include "print/core/printpage.h"
#include "print/core/rtf2html.h"
#include "print/core/widechars.h"

namespace {
const QString kCrLf = QStringLiteral("\r\n");

QString HeadingLine(const QString& text) { return QStringLiteral("ftbold") + text + QStringLiteral(":end ") + kCrLf; }
}  // namespace

QString RtfRoutePlainText(const QString& infoname) {
    return kCrLf.repeated(3) + HeadingLine(infoname) + HeadingLine(QStringLiteral("-------")) +
           HeadingLine(QStringLiteral("1 Sample Street, Sampleton"));
}

QString RtfRouteSample() { return EncodeWide(DecodeMimeWords(QStringLiteral("My content"))); }

QString RtfRouteDocument(const QString& sample) {
    return QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\froman\\fcharset0 Tahoma;}"
                          "{\\f1\\fnil\\fcharset0 Tahoma;}}"
                          "\\viewkind4\\uc1\\pard\\sb100\\sa100\\lang1033\\f0\\fs24\\par ") +
           sample + QStringLiteral("\\par \\pard\\f1\\fs17") + kCrLf + QStringLiteral("\\par }");
}

QString RtfRoutePage(const QString& plainText, QString sample, const QString& readBack) {
    const QStringList lines = readBack.split(kCrLf);
    if (lines.size() > 2) sample = lines[2].mid(5);
    QString body = plainText;
    body.replace(QStringLiteral("ftbold"), QStringLiteral("<font size=4><bold>"))
        .replace(QStringLiteral(":end "), QStringLiteral(": <bold></font>"))
        .replace(kCrLf, QStringLiteral("<BR>"));
    return rtf2html(readBack, QStringLiteral("+H")) + PageHead() + body + sample +
           QStringLiteral("</BODY>\r\n</HTML>");
}
