// The RTF to HTML converter's own rules. Only the RTF route, which no
// control starts, calls it.
#include <gtest/gtest.h>

#include "print/core/rtf2html.h"
#include "print/core/rtfstate.h"
#include "store/core/failure.h"
#include "support/printers.h"
#include "support/scratch.h"

// A conversion from a fresh module: the font scalars carry over between
// calls otherwise, and the face never resets.
static QString Fresh(const QString& rtf, const QString& options = QString()) {
    RtfModule = RtfState();
    return rtf2html(rtf, options);
}

// A body of RTF as the rich text box gives it, in its outer group.
static QString Body(const QString& rtf) { return QStringLiteral("{\\rtf1\\ansi ") + rtf + u'}'; }
static QString Body(const char* rtf) { return Body(U(rtf)); }
const QString kColours = U("{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue255;}");
const QString kFonts = U("{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\fnil\\fcharset0 Times New Roman;}}");

TEST(Rtf2Html, FormatsOpenBeforeTextAndCloseAllAtEveryPiece) {
    const std::pair<QString, const char*> rows[] = {
        {U("{\\rtf1 Hello}"), "Hello"},  // the outer group goes, the first control word too
        {Body("\\b bold\\b0 plain"), "<b>bold</b>plain"},
        {Body("\\b one\\i two"), "<b>one</b><b><i>two</i></b>"},
        {Body("\\b\\b0 x"), "x"},                         // ended before any text: out of the queue
        {Body("\\b{\\i x}y"), "<b><i>x</i></b>y"},         // a brace ends every format
        {Body("\\b x}\\i y"), "<b>x</b><b><i>y</i></b>"},   // ... but one before a backslash goes with the text
        {Body("\\b"), "</b>"},                            // queued, never opened, still closed
        // Sizes in half-points: 12 and 17 are the normal size 2; 2 gives 1, which is written.
        {Body("\\fs12 a\\fs17 b\\fs96 c\\fs2 d\\fs24 e"), "ab<font size=8>c</font><font size=1>d</font><font size=4>e</font>"},
        {Body(kColours + U("\\cf1 red\\cf0  plain")), "<font color=\"#FF0000\">red</font> plain"},
        {Body(kColours + U("\\cf2\\fs24 x\\cf0 y")), "<font color=\"#0080FF\" size=4>x</font><font size=4>y</font>"},
        // The face waits for the next \fs or \cf.
        {Body(kFonts + U("\\f1\\fs24 x\\f0 y")),
         "<font face=\"Times New Roman\" size=4>x</font><font face=\"Times New Roman\" size=4>y</font>"},
        // Alignment: of two before any text the first stays; \pard ends it.
        {Body("\\qc\\qr mid\\par\\pard\\qr right"),
         "<table width=100%><tr><td align=\"center\">mid</td></tr></table><br>"
         "<table width=100%><tr><td align=\"right\">right</td></tr></table>"},
        // Paragraph ends and closing tags wait for the next text, spaces don't;
        // breaks still waiting at the end are dropped.
        {Body("a\\par b\\par\\par"), "a<br>b"},
        {Body("a\\par    \\b b\\b0    \\b c"), "a&nbsp;&nbsp;&nbsp;<br><b>b   </b><b>c</b>"},
        // \u characters: a reference, or dropped below 7 characters; text that sticks changes too.
        {Body("\\u20013?\\u65? x\\u66?y"), "&#20013;x"},
        {Body("Strau\\'dfen Walzer"), "StrauWalzer"},  // the escape and what sticks to it go
        {Body("{\\pntext 1)}{\\*\\pn{\\pntxta )}}List"), "1)List"},  // \pntxta drops one token
        {Body("{\\stylesheet{\\s1 Heading;}}{\\info{\\title T}}Text"), "Text"},
    };
    for (const auto& [rtf, html] : rows) EXPECT_EQ(Fresh(rtf), U(html)) << rtf.toStdString();
}

TEST(Rtf2Html, OptionsMakeAPageWithItsTitleAndLineEnds) {
    EXPECT_EQ(Fresh(Body("a\\par b"), "+CR +H +T=\"My Title\""), 
              U("<HTML>\r\n<HEAD>\r\n<TITLE>MyTitle</TITLE>\r\n</HEAD>\r\n<BODY bgcolor=white text=black>\r\n"
                "a<br>\r\nb\r\n</BODY>\r\n</HTML>"));
    EXPECT_EQ(Fresh(Body("a"), "+h +cr +I"), U("a"));  // options keep their case
}

TEST(Rtf2Html, FontScalarsCarryOverToTheNextCall) {
    Fresh(Body("\\fs24 a"));
    EXPECT_EQ(rtf2html(Body("\\cf0 b"), ""), U("<font size=4>b</font>"));
    rtf2html(Body("\\pard"), "");  // \pard resets them
    EXPECT_EQ(rtf2html(Body("\\cf0 b"), ""), U("b"));
}

TEST(Rtf2Html, AGroupCutPastPosition32767Overflows) {
    const QString text = QString(40000, u'x') + "\r\n\r\ny";
    EXPECT_THROW(Fresh(Body(kColours + text)), RoutineFailure);
    EXPECT_NO_THROW(Fresh(Body(text)));  // no group to cut, no replacement
}
