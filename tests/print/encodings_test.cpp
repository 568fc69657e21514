// The text encodings of the print page and the mail decoder.
#include <gtest/gtest.h>

#include "print/core/base64.h"
#include "print/core/mimewords.h"
#include "print/core/utf8.h"
#include "print/core/widechars.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(TextEncodings, WideCharactersAreWrittenOutWithUnsignedCodes) {
    const std::pair<QString, const char*> rows[] = {
        {U("aÿ"), "aÿ"},                                 // 255 stays
        {QString(QChar(256)), "\\u256?"},                // 256 is wide
        {U("中x"), "\\u20013?x"},
        {QString(QChar(65000)), "\\u65000?"},            // never a negative number
        {U("😀"), "\\u55357?\\u56832?"},                 // each half of a surrogate pair
        {U("€"), "\\u8364?"},                            // a code page letter can be wide
    };
    for (const auto& [text, encoded] : rows) EXPECT_EQ(EncodeWide(text), U(encoded)) << encoded;
    EXPECT_FALSE(IsWideChar(QChar(255)));
    EXPECT_TRUE(IsWideChar(QChar(256)));
}

TEST(TextEncodings, Base64DecodeAsTheMailDecoderReadsIt) {
    const std::pair<const char*, QByteArray> rows[] = {
        {"QUJD", "ABC"},
        {"QUI=", "AB"},
        {"QQ", "A"},              // the text's end ends the group like a pad
        {"QQ==QUI=", "AAB"},      // a pad ends its group, not the decoding
        {"QUJDAA==", "ABC"},      // one last zero byte is dropped
        {"AAAA", QByteArray(2, '\0')},
        {"QU*D", ""},             // a character outside the alphabet: nothing at all
        {"QUJD\r\n", ""},
    };
    for (const auto& [text, bytes] : rows) EXPECT_EQ(Base64Decode(text), bytes) << text;
}

TEST(TextEncodings, Utf8ToTextStopsAtTheFirstZeroByte) {
    EXPECT_EQ(Utf8ToText("a\xC3\xA9\xE4\xB8\xAD"), U("aé中"));
    EXPECT_EQ(Utf8ToText(QByteArray("ab\0cd", 5)), U("ab"));
    EXPECT_EQ(Utf8ToText("a\xFF"), U("a\uFFFD"));
}

TEST(TextEncodings, DecodeMimeWordsInUtf8AndBEncodingOnly) {
    const std::pair<const char*, const char*> rows[] = {
        {"plain text", "plain text"},
        {"=?UTF-8?B?QUI=?=", "=?UTF-8?B?QUI=?="},             // the mark is found with its case
        {"Name: =?utf-8?B?w6lsw6h2ZQ==?=", "élève"},          // the text in front goes
        {"=?utf-8?B?QUI=?= =?utf-8?B?Q0Q=?=", "ABCD"},        // words join, the space between goes
        {"=?utf-8?B?QUJD=?utf-8?B?REVG?=", "ADEF"},           // a middle word loses two characters
        {"=?utf-8?B?5Lit5paH?=", "中文"},
        {"=?utf-8?B?!!!!?=", "=?utf-8?B?!!!!?="},             // nothing decoded: the input
    };
    for (const auto& [text, decoded] : rows) EXPECT_EQ(DecodeMimeWords(U(text)), U(decoded)) << text;
}
