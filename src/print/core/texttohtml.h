#pragma once
// Plain text of the print page to an HTML fragment. The composer works in
// plain text; what must survive the escaping travels as marker tokens, which
// become markup last.
#include <QString>

inline const QString kHeadingStart = QStringLiteral("ftbold23298746io");  // -> "<font size=5><bold>"
inline const QString kHeadingEnd = QStringLiteral(":end23298746io");      // -> "<bold></font>"
inline const QString kHardSpace = QStringLiteral("1978nbsp;");            // -> "&nbsp;"
inline const QString kFieldBreak = QStringLiteral("283746vbcrlf36473");   // -> "<BR>&nbsp;"

// Escapes the text, turns "\u<code>" runs (ended by "?") into numeric
// references, then the markers and CR LF into markup. Every search is
// case-sensitive.
QString TextToHtml(const QString& text);
