// The RTF to HTML converter: its own rules, then the real files of WordPad
// and RichEdit.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
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
        {Body("\\b one\\b two\\bullet three"), "<b>one</b><b>two</b><b>three</b>"},  // no merging, no second <b>
        {Body("\\ul under\\ulnone  plain"), "<u>under</u> plain"},
        {Body("\\b\\b0 x"), "x"},                         // ended before any text: out of the queue
        {Body("\\b{\\i x}y"), "<b><i>x</i></b>y"},         // a brace ends every format
        {Body("\\b x}\\i y"), "<b>x</b><b><i>y</i></b>"},   // ... but one before a backslash goes with the text
        {Body("\\b"), "</b>"},                            // queued, never opened, still closed
        // Sizes in half-points: 12 and 17 are the normal size 2; 2 gives 1, which is written.
        {Body("\\fs12 a\\fs17 b\\fs96 c\\fs2 d\\fs24 e"), "ab<font size=8>c</font><font size=1>d</font><font size=4>e</font>"},
        {Body(kColours + U("\\cf1 red\\cf0  plain")), "<font color=\"#FF0000\">red</font> plain"},
        {Body(kColours + U("\\cf2\\fs24 x\\cf0 y")), "<font color=\"#0080FF\" size=4>x</font><font size=4>y</font>"},
        {Body("\\cf7 x"), "x"},                             // past the table, no colour: no tag
        // The face waits for the next \fs or \cf.
        {Body(kFonts + U("\\f1\\fs24 x\\f0 y")),
         "<font face=\"Times New Roman\" size=4>x</font><font face=\"Times New Roman\" size=4>y</font>"},
        {Body("\\fi-360\\fswiss x"), "x"},                   // no number right behind: dropped
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
        {Body("\\u20013?up?"), "&#20013;#p;"},
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

// The text a browser shows of a page: tags gone, "<br>" a line break, a run
// of white space one space, "&nbsp;" a space, "&#n;" its character (a
// negative number is no reference and shows as written).
static QString PageText(QString html) {
    html.replace(QStringLiteral("<br>"), QStringLiteral("\x01"));
    html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    html.replace(QRegularExpression(QStringLiteral("[ \t\r\n]+")), QStringLiteral(" "));
    html.replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
    const QRegularExpression reference(QStringLiteral("&#(\\d+);"));
    for (QRegularExpressionMatch m; (m = reference.match(html)).hasMatch();) {
        const char32_t code = m.captured(1).toUInt();
        html.replace(m.capturedStart(), m.capturedLength(), QString::fromUcs4(&code, 1));
    }
    return html.replace(u'\x01', u'\n').trimmed();
}

// Each real file, and the text of its page. Written from the text WordPad
// shows (in the comment), less what the converter drops: \'hh escapes and
// whatever sticks to them, every control word it doesn't know (\tab, \line,
// \emdash, ...), the bullets and list marks of \pntext escapes. It keeps the
// text of the \* groups, which WordPad hides (the generator's name, a field's
// instruction). In files with LF line ends "\par" and the LF make one word
// that the converter doesn't know, so those paragraphs run together.
// "&#n;" for each n from `first` to `last`.
static std::string References(int first, int last) {
    std::string text;
    for (int n = first; n <= last; ++n) text += "&#" + std::to_string(n) + ";";
    return text;
}

const std::pair<const char*, std::string> kRealFiles[] = {
    // お元気ですか？ (Shift-JIS escapes, all dropped)
    {"rtfparserkit_testMultiByteHex_riched20-5.50.rtf", "Riched20 5.50.99.2014;"},
    // From: http://unicode-table.com/en/#private-use-area / F700 and 16 private-use characters / F710 ... / F720 ...
    // (\u with a negative number: written as a negative reference, which no browser reads)
    {"rtfparserkit_testNegativeUnicode.rtf",
     "Msftedit 5.41.21.2510;From: HYPERLINK \"http://unicode-table.com/en/#private-use-area\"http://unicode-table.com/en/"
     "#private-use-area\nF700" + References(-2304, -2289) + "\nF710" + References(-2288, -2273) + "\nF720" + References(-2272, -2266)},
    // Tab A<tab>B / Tab A<tab>B / CR A / B / LF A / B / This is a line break. / Here is the new line. /
    // Emdash: — / Endash: – / Emspace / Enspace / Qmspace / Bullet: • / Lquote: ‘ / Rquote: ’ / “ / ”
    // (a backslash before CR or LF takes the "B" behind it into an unknown word)
    {"rtfparserkit_testSpecialChars.rtf",
     "Msftedit 5.41.21.2510;Tab AB\nTab A B\nCR A\nLF A\nThis is a line break.Here is the new line.\n"
     "Emdash: \nEndash: \nEmspace: \nEnspace: \nQmspace: \nBullet: \nLquote: \nRquote: \nLdblquote: \nRdblquote:"},
    // Test 1 - normal. / Test 2 - italic. / ... / Test 7 - Calibri 11. (nothing dropped)
    {"rtfparserkit_testStyles.rtf",
     "Msftedit 5.41.21.2510;Test 1 - normal.\nTest 2 - italic.\nTest 3 - bold.\nTest 4 -normal.\n"
     "Test 5 - Calibri 11.\nTest 6 - Arial 11.\nTest 7 - Calibri 11.\nTest 6 - Arial 12.\nTest 7 - Calibri 11."},
    // Turkish Encoding.
    {"rtfparserkit_testTurkishEncoding_riched20-15.rtf", "Riched20 15.0.4567Turkish Encoding."},
    // Արամ / Johann Strauß / België<tab>René Magritte / বাংলা / ་ཡུལ། / ប្រទេសកម្ពុជា / ᓄᓇᕗᒻᒥᐅᑦ / 中国 / Česká republika
    {"rtfparserkit_testUnicode.rtf", "Msftedit 5.41.21.2510;Արամ\nJohann Strau\nBelgiRenMagritte\nবাংলা\n་ཡུལ།\n"
     "ប្រទេស\u200B\u200B\u200Bកម្ពុជា\nᓄᓇᕗᒻᒥᐅᑦ\n\nrepublika"},
    // Overview of Policy/Claims, then an underlined run of spaces
    {"rtfpipe_Issue42_colour_bold.rtf", "Msftedit 5.41.21.2510;Overview of Policy/Claims"},
    // • A / • B / • C / 1) D (LF line ends)
    {"rtfpipe_Issue53_win10_wordpad.rtf", "Riched20 10.0.19041 ABC 1) D"},
    // Paragraph / • Bullet / • Bullet 2 / Paragraph 2 / 1. List 1 / 2. List 2
    {"rtfpipe_List_win10_wordpad.rtf", "Riched20 10.0.15063Paragraph\nBullet\nBullet 2\nParagraph 2\n1.List 1\n2.List 2"},
    // バージョンアップ注文書（銀行振込） (Shift-JIS escapes, all dropped)
    {"rtfpipe_RtfParserTest_4_xp_japanese.rtf", "Msftedit 5.41.15.1507;"},
    // Übersicht (the escape takes the whole word)
    {"tika_testRTFUmlautSpaces.rtf", "Msftedit 5.41.21.2509;"},
    // 𐌲𐌿𐍄𐌹𐍃𐌺 (surrogate pairs as negative \u numbers)
    {"tika_testRTFUnicodeGothic.rtf",
     "Msftedit 5.41.21.2509;&#-10240;&#-8398;&#-10240;&#-8385;&#-10240;&#-8380;&#-10240;&#-8391;&#-10240;&#-8381;&#-10240;&#-8390;"},
    // zażółć gęślą jaźń / ZAŻÓŁĆ GĘŚLĄ JAŹŃ (LF line ends)
    {"tika_testRTFWindowsCodepage1250.rtf", "Msftedit 5.41.15.1515;zagjaGJA"},
    // Článek týdne / Část svitku s textem Knihy Izajáš / Svitky od Mrtvého moře jsou starověké ... letopočtu.
    // (LF line ends: "Svitky" sticks to the "\par" in front of it)
    {"tika_testRTFWordPadCzechCharacters.rtf",
     "Msftedit 5.41.21.2509;tsvitku s textem Knihy Izajod Mrtvmojsou starovntexty, nalezenpoblMrtvmozejmv KumrPse, "
     "pvlastnknihovny a autory textbyli esejci, asketickapokalypticka mesianistickhnutv rjudaismu, kterpravdvzniklo "
     "v polovin2. stol. p\u2009n.\u2009l.a zaniklo nprvnvkoncem 60. let prvnstoletnaletopo"},
};

TEST(Rtf2Html, RealFilesGiveTheTextTheConverterKeeps) {
    const QDir folder(QStringLiteral(TANDRY_FIXTURES_DIR "/rtf"));
    if (!folder.exists()) GTEST_SKIP() << "no real RTF files at " << folder.path().toStdString();
    QStringList expected;
    for (const auto& [name, text] : kRealFiles) {
        expected << name;
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        // The text a rich text box gives ends before the NUL some writers put last.
        const QString rtf = QString::fromLatin1(file.readAll().constData());
        EXPECT_EQ(PageText(Fresh(rtf, "+H")), QString::fromStdString(text)) << name;
    }
    EXPECT_EQ(folder.entryList(QDir::Files, QDir::Name), expected);  // every real file has its text here
}
