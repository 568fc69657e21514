// Plain text of the print page to HTML, with its kept quirks: the double cut
// in front of a backslash and the stray "?".
#include <gtest/gtest.h>

#include "print/core/texttohtml.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(TextToHtml, EscapesReferencesMarkersAndLineBreaks) {
    const std::pair<const char*, const char*> rows[] = {
        {"ß&<>\"", "&szlig;&amp;&lt;&gt;&quot;"},            // the ampersand first: no double escape
        {"a1978nbsp;b 1978NBSP;", "a&nbsp;b 1978NBSP;"},     // the typed token is a hard space
        {"\\u20013?\\u20014?", "&#20013;&#20014;?"},         // wide characters, then one stray "?"
        {" : \\u20013?\\u20014?", "0013;&#20014;?"},         // p = 4: " : &#2" is cut away
        {"ab\\u20013?x", "20013;x"},                         // p = 3: the double cut, kept
        {"Acme?", "Acme??"},                                 // a real "?" prints two
        {"Why?\\u20013?", "Why?&#20013;?"},                  // a real "?" in front still separates
        {"\\x u?", "\\x u??"},                               // a backslash not before "u" stays
        {"\\u20013", "&#20013"},                             // no "?": the last character goes
        {"ftbold23298746ioAnn:end23298746io\r\n", "<font size=5><bold>Ann<bold></font><BR>"},
        {"a283746vbcrlf36473b", "a<BR>&nbsp;b"}, {"", ""},
    };
    for (const auto& [text, html] : rows) EXPECT_EQ(TextToHtml(U(text)), U(html)) << text;
}
