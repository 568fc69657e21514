#include "print/core/contactblock.h"

#include <QStringList>
#include "app/core/libraries.h"
#include "print/core/printrows.h"
#include "print/core/texttohtml.h"
#include "print/core/widechars.h"
#include "store/core/record.h"

namespace {
const QString kCrLf = QStringLiteral("\r\n");

// The gap between a number and its extension: five hard spaces with a space
// between each two, then "Ext.".
QString Gap() {
    return TextToHtml(QStringList(5, kHardSpace).join(u' ') + EncodeWide(GetLanguageString(505)));
}

// The line breaks of the address and the notes, carried through the
// escaping as a marker.
QString WithFieldBreaks(QString field) {
    return field.replace(QStringLiteral("<NextLine>"), kFieldBreak, Qt::CaseInsensitive);
}
}  // namespace

QString BuildContactBlock() {
    const ContactRecord& c = ContactBuffer;
    return TextToHtml(kCrLf + kCrLf + kHeadingStart + EncodeWide(c.infoname) + kHeadingEnd + kCrLf) +
           QStringLiteral("<table border=0>") + PrintRow(532, PrintValue(c.mail)) +
           PrintRow(503, PrintValue(c.tel1) + Gap() + PrintValue(c.ext1)) +
           PrintRow(504, PrintValue(c.tel2) + Gap() + PrintValue(c.ext2)) +
           PrintRow(518, PrintValue(c.mobile)) + PrintRow(519, PrintValue(c.fax)) +
           PrintRow(562, PrintValue(c.company)) + PrintRow(563, PrintValue(c.designation)) +
           PrintRow(520, PrintValue(WithFieldBreaks(c.addr)), true) +
           PrintRow(564, PrintValue(WithFieldBreaks(c.notes)), true) + QStringLiteral("</table>");
}
