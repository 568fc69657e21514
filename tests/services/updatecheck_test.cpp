// The update check's texts: the body sent, the address split, the reply read.
#include <gtest/gtest.h>

#include "services/core/httpaddress.h"
#include "services/core/updatecheck.h"
#include "support/printers.h"

TEST(UpdateCheck, TheBodyNamesTheProgramAndItsVersionInOrder) {
    EXPECT_EQ(UpdateRequestBody("TA", 12, 3, 45), "appid=TA&major=12&minor=3&rev=45");
}

TEST(UpdateCheck, TheAddressIsSplitAtItsFirstSlashAndLowerCasedWhenItHasOne) {
    const struct { const char *address, *split; } rows[] = {
        {"Tandry.Example.ORG", "Tandry.Example.ORG|"},  // no slash: all host, case kept
        {"HTTP://Tandry.Example.ORG/Support/CheckUpdates.PHP", "tandry.example.org|support/checkupdates.php"},
        {"https://host/a/b?X=1", "host|a/b?x=1"},
        {"host/dl/http://mirror/x", "host|dl/mirror/x"},  // every "http://" goes
        {"http://host", "host|"},
    };
    for (const auto& row : rows) {
        const HttpAddress a = SplitHttpAddress(row.address);
        EXPECT_EQ(a.host + "|" + a.path, row.split) << row.address;
    }
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
        {"<CODE>1</CODE></update>", "c|v|u"},                                          // the marks are case-sensitive
        {"<code>0</code> </update>text<url>lost</url>", "0|v|u"},
        {"   ", "c|v|u"},
    };
    for (const auto& row : rows) {
        QString code = "c", version = "v", url = "u";
        ParseUpdate(row.reply, code, version, url);
        EXPECT_EQ(code + "|" + version + "|" + url, row.outputs) << row.reply;
    }
}
