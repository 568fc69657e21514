#pragma once
// The second page composer of frmprint, which no control starts: it drives
// the RTF converter end to end on fixed sample text and makes the page
// Temp2.html.
#include <QString>

// Three CR LF, then three heading lines: the contact's name, a rule, a fixed
// sample address; each "ftbold" ... ":end ".
QString RtfRoutePlainText(const QString& infoname);
// "My content", decoded as a mail text and with its wide characters written
// as "\u<code>?".
QString RtfRouteSample();
// The RTF document around the sample, as a rich text box would be given it.
QString RtfRouteDocument(const QString& sample);
// The page: rtf2html of the document as the rich text box gives it back,
// with "+H", followed by a whole page of the plain text and the sample (the
// third line of the document given back, less its first five characters,
// where it has one).
QString RtfRoutePage(const QString& plainText, QString sample, const QString& readBack);
