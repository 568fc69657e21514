#include "print/core/printrows.h"

#include "app/core/libraries.h"
#include "print/core/texttohtml.h"
#include "print/core/widechars.h"

QString PrintLabel(int message) { return TextToHtml(EncodeWide(GetLanguageString(message))); }

QString PrintValue(const QString& field) { return TextToHtml(QStringLiteral(" : ") + EncodeWide(field)); }

// `top` aligns the label with the first line of a field of many lines.
QString PrintRow(int label, const QString& cells, bool top) {
    return (top ? QStringLiteral("<tr><td vAlign=top>") : QStringLiteral("<tr><td>")) + PrintLabel(label) +
           QStringLiteral("</td><td>") + cells + QStringLiteral("</td></tr>");
}
