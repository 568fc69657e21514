// Text crosses the store as bytes in a Windows code page.
#include <gtest/gtest.h>

#include "platform/core/codepage.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(CodePage, CharsetNumbersNameWindowsCodePagesAndTheRestIs1252) {
    const std::pair<const char*, int> rows[] = {{"0", 1252}, {" 204 ", 1251}, {"128", 932}, {"2", 1252}, {"abc", 1252}};
    for (const auto& [charset, codePage] : rows) EXPECT_EQ(CodePageForCharset(charset), codePage) << charset;
}

TEST(CodePage, Windows1252KeepsEveryByteAndWritesAQuestionMarkPerMissingCharacter) {
    QByteArray all;
    for (int b = 0; b < 256; ++b) all.append(char(b));
    const QString text = FromCodePage(all, 1252);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(ToCodePage(text, 1252), all);  // the five undefined bytes too
    EXPECT_EQ(text.mid(0x80, 2), QString::fromUtf16(u"€\u0081"));
    EXPECT_EQ(ToCodePage(U("aЖ€😀b"), 1252), QByteArray("a?\x80?b"));
    EXPECT_EQ(ToCodePage(U("Жé"), 1251), QByteArray("\xC6?"));
}

TEST(CodePage, DoubleByteAndComposingCodePages) {
    EXPECT_EQ(ToCodePage(U("a日本"), 932), QByteArray("a\x93\xFA\x96\x7B"));
    // A lead byte without its trail byte, at the end or before a byte that can't follow it.
    EXPECT_EQ(FromCodePage(QByteArray("a\x93"), 932), QString::fromUtf16(u"a\uFFFD"));
    EXPECT_EQ(FromCodePage(QByteArray("\x93\x0Ax"), 932), QString::fromUtf16(u"\uFFFD\nx"));
    // A converter that composes must still give up the last character.
    EXPECT_EQ(FromCodePage(QByteArray("ab\xE0"), 1255), U("abא"));
}

TEST(CodePage, AnsiFollowsTheProcessCodePage) {
    SetAnsiCodePage(1251);
    EXPECT_EQ(ToAnsi(U("Жи")), QByteArray("\xC6\xE8"));
    EXPECT_EQ(FromAnsi(QByteArray("\xC6\xE8")), U("Жи"));
    SetAnsiCodePage(1252);
    EXPECT_EQ(FromAnsi(QByteArray("\xC6")), U("Æ"));
}
