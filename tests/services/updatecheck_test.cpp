// The update check's texts: the address split, the reply read.
#include <gtest/gtest.h>

#include "services/core/httpaddress.h"
#include "services/core/updatecheck.h"
#include "support/printers.h"

TEST(UpdateCheck, EveryHttpSchemeGoesFromTheAddressAndALoneHostHasNoPath) {
    const HttpAddress a = SplitHttpAddress("Host/dl/HTTP://Mirror/x"), b = SplitHttpAddress("http://host");
    EXPECT_EQ(a.host + "|" + a.path + "|" + b.host + "|" + b.path, "host|dl/mirror/x|host|");
}

TEST(UpdateCheck, EachEntryOverwritesWhatItHoldsAndOnlyEntriesCount) {
    // reply; outputs as "code|version|url", starting from "c|v|u"
    const struct { const char *reply, *outputs; } rows[] = {
        {"<update><code>1</code><version>1.2</version><url>http://a</url></update>", "1|1.2|http://a"},
        {"<code>1</code><version>1.2</version>", "c|v|u"},                             // no "</update>": no entry
        {"<update><code>0</code></update><code>1</code>", "0|v|u"},                    // after the last one: not read
        {"<update><code>0</code><url>http://a</url></update><update><code>2</code></update>", "2|v|http://a"},
        {"</code>1<code></update>", "c|v|u"},                                          // marks out of order
        {"<code></code><url>x</update>", "|v|u"},                                      // empty code; url unclosed
        {"<CODE>1</CODE></update>", "c|v|u"}, {"   ", "c|v|u"},                        // the marks are case-sensitive
    };
    for (const auto& row : rows) {
        QString code = "c", version = "v", url = "u";
        ParseUpdate(row.reply, code, version, url);
        EXPECT_EQ(code + "|" + version + "|" + url, row.outputs) << row.reply;
    }
}
