#include <gtest/gtest.h>

#include <QString>
#include "platform/core/codepage.h"

namespace {
QString U(const char* utf8) { return QString::fromUtf8(utf8); }
}  // namespace

TEST(CodePage, CharsetNumbersGiveWindowsCodePages) {
    const struct { const char* charset; int codePage; } rows[] = {
        {"0", 1252},   {"238", 1250}, {"204", 1251}, {"161", 1253}, {"162", 1254},
        {"177", 1255}, {"178", 1256}, {"186", 1257}, {"163", 1258}, {"222", 874},
        {"128", 932},  {"134", 936},  {"129", 949},  {"136", 950},  {"", 1252},
        {"1", 1252},   {"2", 1252},   {"77", 1252},  {"abc", 1252}, {" 204 ", 1251},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CodePageForCharset(QString::fromLatin1(row.charset)), row.codePage) << row.charset;
}

TEST(CodePage, Windows1252RoundTripsEveryByte) {
    EXPECT_EQ(ToCodePage(U("€ é ß Œ ™"), 1252), QByteArray("\x80 \xE9 \xDF \x8C \x99"));
    EXPECT_EQ(FromCodePage(QByteArray("\x80 \xE9 \xDF \x9F"), 1252), U("€ é ß Ÿ"));

    // The five bytes Windows leaves undefined come back as the C1 control of
    // the same number, and go back to the same byte.
    EXPECT_EQ(FromCodePage(QByteArray("a\x81z\x9D"), 1252), QString::fromUtf16(u"a\u0081z\u009D"));
    EXPECT_EQ(ToCodePage(QString::fromUtf16(u"\u0081\u008D\u008F\u0090\u009D"), 1252),
              QByteArray("\x81\x8D\x8F\x90\x9D"));

    QByteArray all;
    for (int b = 0; b < 256; ++b) all.append(static_cast<char>(b));
    const QString text = FromCodePage(all, 1252);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(ToCodePage(text, 1252), all);
}

TEST(CodePage, MissingCharactersBecomeOneQuestionMarkEach) {
    EXPECT_EQ(ToCodePage(U("aЖ€b"), 1252), QByteArray("a?\x80" "b"));
    EXPECT_EQ(ToCodePage(U("x😀y"), 1252), QByteArray("x?y"));  // one '?' for a surrogate pair
    EXPECT_EQ(ToCodePage(U("Жé"), 1251), QByteArray("\xC6?"));
    EXPECT_EQ(ToCodePage(U("日本"), 1252), QByteArray("??"));
}

TEST(CodePage, DoubleByteCodePagesAndBadInput) {
    EXPECT_EQ(ToCodePage(U("a日本"), 932), QByteArray("a\x93\xFA\x96\x7B"));
    EXPECT_EQ(FromCodePage(QByteArray("a\x93\xFA\x96\x7B"), 932), U("a日本"));
    EXPECT_EQ(ToCodePage(U("中文"), 936), QByteArray("\xD6\xD0\xCE\xC4"));
    EXPECT_EQ(ToCodePage(U("한"), 949), QByteArray("\xC7\xD1"));
    EXPECT_EQ(ToCodePage(U("中"), 950), QByteArray("\xA4\xA4"));
    // A lead byte without its trail byte, at the end or before a byte that
    // can't follow it.
    EXPECT_EQ(FromCodePage(QByteArray("a\x93"), 932), QString::fromUtf16(u"a\uFFFD"));
    EXPECT_EQ(FromCodePage(QByteArray("\x93\x0Ax"), 932), QString::fromUtf16(u"\uFFFD\nx"));
}

TEST(CodePage, ComposingCodePagesKeepTheLastCharacter) {
    EXPECT_EQ(FromCodePage(QByteArray("\xE0"), 1258), U("à"));
    EXPECT_EQ(FromCodePage(QByteArray("ab\xE0"), 1255), U("abא"));
    EXPECT_EQ(ToCodePage(U("à"), 1258), QByteArray("\xE0"));
}

TEST(CodePage, AnsiFollowsTheProcessCodePage) {
    const int before = AnsiCodePage();
    SetAnsiCodePage(1251);
    EXPECT_EQ(ToAnsi(U("Жи")), QByteArray("\xC6\xE8"));
    EXPECT_EQ(FromAnsi(QByteArray("\xC6\xE8")), U("Жи"));
    SetAnsiCodePage(1252);
    EXPECT_EQ(ToAnsi(U("Жé")), QByteArray("?\xE9"));
    EXPECT_EQ(FromAnsi(QByteArray("\xC6")), U("Æ"));
    SetAnsiCodePage(before);
}
