#pragma once
// The pieces of the print page's tables, each escaped on its own.
#include <QString>

// A label from the string library: TextToHtml of EncodeWide of message m.
QString PrintLabel(int message);
// A value cell's text: TextToHtml of " : " and EncodeWide of the field.
QString PrintValue(const QString& field);
// "<tr><td>" (with vAlign=top when `top`), the label, "</td><td>", the
// cells, "</td></tr>".
QString PrintRow(int label, const QString& cells, bool top = false);
