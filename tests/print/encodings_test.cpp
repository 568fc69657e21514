// The wide characters of the print page.
#include <gtest/gtest.h>

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
