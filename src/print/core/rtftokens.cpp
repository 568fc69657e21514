#include "print/core/rtftokens.h"

#include <algorithm>
#include <optional>
#include "print/core/rtfformats.h"
#include "print/core/rtfstate.h"
#include "store/core/text.h"

namespace {
RtfState& R() { return RtfModule; }

// The number of a control word such as \cf2 or \fs24: digits (a minus sign
// first at most) right behind the word; None when there are none, as in
// \fswiss or \fi-360.
std::optional<qint64> NumberAfter(const QString& token, const char* word) {
    const QLatin1String prefix(word);
    if (!token.startsWith(prefix)) return std::nullopt;
    qsizetype at = prefix.size();
    const bool negative = token.mid(at, 1) == u"-";
    if (negative) ++at;
    if (at >= token.size() || !token[at].isDigit()) return std::nullopt;
    qint64 number = 0;
    for (; at < token.size() && token[at].isDigit(); ++at)
        number = qMin<qint64>(number * 10 + token[at].digitValue(), 1'000'000'000);
    return negative ? -number : number;
}

// Size 2 is the normal size and is never written out.
bool IsNormalSize(const QString& size) { return size.isEmpty() || size == u"2"; }

void MakeFontTag(const QString& colour) {
    QString tag = QStringLiteral("<font");
    if (!R().FontFace.isEmpty()) tag += QStringLiteral(" face=\"") + R().FontFace + u'"';
    if (!colour.isEmpty()) tag += QStringLiteral(" color=\"") + colour + u'"';
    if (!IsNormalSize(R().FontSize)) tag += QStringLiteral(" size=") + R().FontSize;
    R().FontTag = tag + u'>';
}

void ResetFont() {
    R().FontTag.clear();
    R().AlignTag.clear();
    R().FontColor.clear();
    R().FontSize.clear();
}

// A brace ends every format whatever the nesting: there is no group scope.
void EndAll() {
    EndAllFormats();
    ResetFont();
}

// \cf0: the colour goes; a size other than the normal one stays. FontColor
// itself keeps its value.
void ColourOff() {
    EndFormat(kFontClose);
    if (IsNormalSize(R().FontSize)) return;
    MakeFontTag(QString());
    SetFormat(kFontClose, R().FontTag);
}

// A number past the table changes nothing; with no colour at all no tag is made.
void Colour(qint64 number) {
    if (number >= 1 && number <= R().ColorTable.size()) R().FontColor = u'#' + R().ColorTable[number - 1];
    if (R().FontColor.isEmpty() || R().FontColor == u"#") return;
    MakeFontTag(R().FontColor);
    SetFormat(kFontClose, R().FontTag);
}

// Half-points to HTML sizes: divided by 6, rounded down, held to 1 to 8.
void Size(qint64 halfPoints) {
    const qint64 quotient = halfPoints >= 0 ? halfPoints / 6 : -((-halfPoints + 5) / 6);
    R().FontSize = QString::number(std::clamp<qint64>(quotient, 1, 8));
    if (IsNormalSize(R().FontSize)) return;
    MakeFontTag(R().FontColor);
    SetFormat(kFontClose, R().FontTag);
}

// The face comes in with the next \cf or \fs; no tag changes now.
void Face(qint64 number) {
    if (number >= 0 && number < R().FontTable.size()) R().FontFace = R().FontTable[number];
}

// Of two alignments before any text the first stays: while one is queued,
// the tag built before is written back.
void Align(const char* where) {
    if (!R().NextCodes.contains(kAlignClose))
        R().AlignTag = QStringLiteral("<table width=100%><tr><td align=\"") + QLatin1String(where) + u'"' + u'>';
    SetFormat(kAlignClose, R().AlignTag);
}

void Break() {
    R().BreakText += QStringLiteral("<br>") + R().LineEnd;
    R().AtLineStart = true;
}

// Spaces alone go out at once, as hard spaces at a line's start. Other text
// closes everything, reopens what is live and goes out behind the waiting
// breaks.
void Text(const QString& token) {
    if (TrimSpaces(token).isEmpty()) {
        R().Output += R().AtLineStart ? QStringLiteral("&nbsp;").repeated(token.size()) : token;
        return;
    }
    R().BeforeText += AllCloseCodes();
    ShiftNext();
    R().OpenText = AllBegCodes();
    PackCodes();
    R().Output += R().BeforeText + R().BreakText + R().OpenText + token;
    R().BeforeText.clear();
    R().BreakText.clear();
    R().OpenText.clear();
    R().AtLineStart = false;
}

bool IsControl(const QString& token) {
    return token.startsWith(u'\\') || token.startsWith(u'{') || token.startsWith(u'}');
}

void Control(const QString& token) {
    if (token == u"}" || token == u"\\pard" || token == u"\\plain") EndAll();
    else if (token == u"\\b") StartFormat(kBold);
    else if (token == u"\\b0") EndFormat(kBold.close);
    else if (token == u"\\cf0") ColourOff();
    else if (auto number = NumberAfter(token, "\\cf")) Colour(*number);
    else if (auto number = NumberAfter(token, "\\fs")) Size(*number);
    else if (auto number = NumberAfter(token, "\\f")) Face(*number);
    else if (token == u"\\i") StartFormat(kItalic);
    else if (token == u"\\i0") EndFormat(kItalic.close);
    else if (token == u"\\par" || token == u"\\par ") Break();
    else if (token == u"\\pntxta" || token == u"\\pntxtb") R().SkipTokens = 1;  // the list number's text
    else if (token == u"\\qc") Align("center");
    else if (token == u"\\qr") Align("right");
    else if (token == u"\\ul") StartFormat(kUnderline);
    else if (TrimSpaces(token) == u"\\ulnone") EndFormat(kUnderline.close);
}
}  // namespace

bool IsUnicodeToken(const QString& token) {
    return token.startsWith(QStringLiteral("\\u")) && token.size() >= 7 &&
           TrimSpaces(token).toLower() != u"\\ulnone";
}

void ProcessToken(const QString& token) {
    if (R().SkipTokens >= 1) {
        --R().SkipTokens;
        return;
    }
    if (IsControl(token)) Control(token);
    else Text(token);
}
