#pragma once
// The formats of the converter and their two pairs of lists: what is open
// now (Codes, BegCodes) and what opens at the next text (NextCodes,
// NextBegCodes). Each piece of text closes every format and reopens the live
// ones in the same order, so the HTML is always balanced; adjacent pieces of
// one format are not merged.
#include <QString>

struct RtfFormat {
    QString close, open;
};
inline const RtfFormat kBold{QStringLiteral("</b>"), QStringLiteral("<b>")};
inline const RtfFormat kItalic{QStringLiteral("</i>"), QStringLiteral("<i>")};
inline const RtfFormat kUnderline{QStringLiteral("</u>"), QStringLiteral("<u>")};
inline const QString kFontClose = QStringLiteral("</font>");
inline const QString kAlignClose = QStringLiteral("</td></tr></table>");

// Queued for the next text, unless it is the newest format and still live.
void StartFormat(const RtfFormat& format);
// Closed where it is live, or taken out of the queue.
void EndFormat(const QString& close);
// The font or the alignment with a new opening tag: a queued one is
// rewritten, a live one closed and queued again, any other queued.
void SetFormat(const QString& close, const QString& open);
// Ends the newest format with that closing tag, and with it every format
// opened after it, which are queued to open again.
void CloseFrom(const QString& close);
// Ends every current format (a brace, \pard, \plain); the queue stays.
void EndAllFormats();

void ShiftNext();           // the queue joins the current formats
void PackCodes();           // the ended formats go
QString AllCloseCodes();    // every closing tag, newest first, ended ones too
QString AllBegCodes();      // every opening tag, oldest first
