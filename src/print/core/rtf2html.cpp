#include "print/core/rtf2html.h"

#include "print/core/rtfformats.h"
#include "print/core/rtfstate.h"
#include "print/core/rtftables.h"
#include "print/core/rtftext.h"
#include "print/core/rtftokens.h"

RtfState RtfModule;

namespace {
const QString kCrLf = QStringLiteral("\r\n");

// What each call starts from; the font scalars and the skip count carry over.
void Reset(const QString& options) {
    RtfState& r = RtfModule;
    r.Codes.clear();
    r.BegCodes.clear();
    r.NextCodes.clear();
    r.NextBegCodes.clear();
    r.ColorTable.clear();
    r.FontTable.clear();
    r.Output.clear();
    r.AtLineStart = true;
    r.LineEnd = options.contains(QStringLiteral("+CR")) ? kCrLf : QString();
}

QString Title(const QString& options) {
    const qsizetype at = options.indexOf(QStringLiteral("+T="));
    if (at < 0) return QString();
    QString title = options.mid(at + 3);
    if (title.startsWith(u'"')) title.remove(0, 1);
    if (title.endsWith(u'"')) title.chop(1);
    return title.remove(u' ');
}

// The tables are read, and the groups that hold no text are dropped, before
// any token is.
void CutGroups(QString& text) {
    if (const qsizetype at = text.indexOf(QStringLiteral("\\colortbl")); at >= 0) ReadColorTable(CutGroup(text, at));
    if (const qsizetype at = text.indexOf(QStringLiteral("\\fonttbl")); at >= 0) ReadFontTable(CutGroup(text, at));
    for (const char* word : {"\\stylesheet", "\\info", "\\listtable", "\\listoverridetable"})
        if (const qsizetype at = text.indexOf(QLatin1String(word)); at >= 0) CutGroup(text, at);
}

// Breaks still waiting at the end are dropped; formats still queued are
// opened by nothing but closed all the same.
void Finish() {
    RtfState& r = RtfModule;
    ShiftNext();
    const QString closing = AllCloseCodes();
    r.BreakText.remove(QStringLiteral("<br>")).remove(kCrLf);
    r.Output += r.BeforeText + r.BreakText + closing;
    r.BeforeText.clear();
    r.BreakText.clear();
    r.OpenText.clear();
}

QString Page(const QString& title) {
    const QString& e = RtfModule.LineEnd;
    return QStringLiteral("<HTML>") + e + QStringLiteral("<HEAD>") + e + QStringLiteral("<TITLE>") + title +
           QStringLiteral("</TITLE>") + e + QStringLiteral("</HEAD>") + e +
           QStringLiteral("<BODY bgcolor=white text=black>") + e + RtfModule.Output + e +
           QStringLiteral("</BODY>") + e + QStringLiteral("</HTML>");
}
}  // namespace

QString rtf2html(const QString& rtf, const QString& options) {
    Reset(options);
    QString text = TrimCRLF(rtf);
    if (text.startsWith(u'{') && text.endsWith(u'}')) text = text.mid(1, text.size() - 2);
    CutGroups(text);
    while (!text.isEmpty()) {
        QString line = GetLine(text);
        while (!line.isEmpty()) {
            QString token = GetToken(line);
            if (token.isEmpty()) continue;
            if (IsUnicodeToken(token)) token.replace(u'\\', u'&').replace(u'u', u'#').replace(u'?', u';');
            ProcessToken(token);
        }
    }
    Finish();
    return options.contains(QStringLiteral("+H")) ? Page(Title(options)) : RtfModule.Output;
}
