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
        {U("aÿ"), "aÿ"}, {QString(QChar(256)), "\\u256?"},  // 255 stays, 256 is wide
        {QString(QChar(65000)), "\\u65000?"},               // never a negative number
        {U("😀"), "\\u55357?\\u56832?"},                    // each half of a surrogate pair
        {U("€x"), "\\u8364?x"},                             // a letter of the code page can be wide
    };
    for (const auto& [text, encoded] : rows) EXPECT_EQ(EncodeWide(text), U(encoded)) << encoded;
}

TEST(TextEncodings, Base64DecodeAsTheMailDecoderReadsIt) {
    const std::pair<const char*, QByteArray> rows[] = {
        {"QUJD", "ABC"}, {"QUI=", "AB"}, {"QQ", "A"},  // the text's end ends the group like a pad
        {"QQ==QUI=", "AAB"},                           // a pad ends its group, not the decoding
        {"QUJDAA==", "ABC"}, {"AAAA", QByteArray(2, '\0')},  // one last zero byte is dropped
        {"QU*D", ""},                                  // a character outside the alphabet: nothing
    };
    for (const auto& [text, bytes] : rows) EXPECT_EQ(Base64Decode(text), bytes) << text;
    EXPECT_EQ(Utf8ToText(QByteArray("a\xC3\xA9\0cd", 5)), U("aé"));  // UTF-8 up to the first zero byte
}

TEST(TextEncodings, DecodeMimeWordsInUtf8AndBEncodingOnly) {
    const std::pair<const char*, const char*> rows[] = {
        {"plain text", "plain text"}, {"=?UTF-8?B?QUI=?=", "=?UTF-8?B?QUI=?="},  // the mark is found with its case
        {"Name: =?utf-8?B?w6lsw6h2ZQ==?=", "élève"},          // the text in front goes
        {"=?utf-8?B?QUI=?= =?utf-8?B?Q0Q=?=", "ABCD"},        // words join, the space between goes
        {"=?utf-8?B?QUJD=?utf-8?B?REVG?=", "ADEF"},           // a middle word loses two characters
        {"=?utf-8?B?!!!!?=", "=?utf-8?B?!!!!?="},             // nothing decoded: the input
    };
    for (const auto& [text, decoded] : rows) EXPECT_EQ(DecodeMimeWords(U(text)), U(decoded)) << text;
}
