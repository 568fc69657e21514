// The string libraries: working copies in the staging area, look-up by
// number, placeholders, and the content the program ships.
#include <gtest/gtest.h>

#include "app/core/globals.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "platform/core/tempfolder.h"
#include "support/libraryfixture.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(Libraries, WorkingCopiesLiveInTheStagingAreaUntilUnload) {
    ScratchStore store;
    LanguageId = "0409";
    EXPECT_EQ(GetLanguageString(308), "");  // nothing loaded yet
    InstallLibraries(store);
    EnsureTempArea();
    store.write(store.tempFile("ma_langfile0409.dll"), "stale");  // a leftover of a crash
    LoadEditionLibrary();
    LoadLanguageLibrary();
    CopyCountryLibraries();
    LoadPhoneCodeLibrary();
    LoadCountryLibrary();
    EXPECT_EQ(store.tempFiles(), (QStringList{"addr_country.dll", "addr_phonecode.dll",
                                              "ma_edition_0409.dll", "ma_langfile0409.dll"}));
    EXPECT_EQ(store.read(store.tempFile("ma_langfile0409.dll")), store.read(store.appFile("langfile0409.dll")));
    EXPECT_EQ(GetLanguageString(308), "Tandry");
    EXPECT_EQ(GetLanguageString(0), "");
    EXPECT_EQ(GetLanguageString(99999), "");
    EXPECT_EQ(GetCountryString(100), "Afghanistan");
    EXPECT_FALSE(GetEditionString(528).isEmpty());

    UnloadEditionLibrary();
    UnloadLanguageLibrary();
    UnloadPhoneCodeLibrary();
    UnloadCountryLibrary();
    EXPECT_EQ(store.tempFiles(), QStringList());
    EXPECT_EQ(GetLanguageString(308), "");
    EXPECT_EQ(GetCountryString(100), "");
}

TEST(Libraries, AMissingLibraryGivesEmptyStringsAndNoFailure) {
    ScratchStore store;
    LanguageId = "0409";
    LoadLanguageLibrary();
    LoadCountryLibrary();
    EXPECT_EQ(GetLanguageString(308), "");
    EXPECT_EQ(GetCountryString(100), "");
    UnloadLanguageLibrary();
    UnloadCountryLibrary();
}

TEST(Libraries, PlaceholdersAreReplacedWithoutRegardToCase) {
    OwnerName = "Ingrid";
    EXPECT_EQ(WithOwnerName("Hello %username, bye %USERNAME."), "Hello Ingrid, bye Ingrid.");
    EXPECT_EQ(ReplaceText("About %S", "%s", "Tandry"), "About Tandry");
    EXPECT_EQ(WithOwnerName("no placeholder"), "no placeholder");
}

TEST(Libraries, ShippedCountryAndPhoneCodeListsAgree) {
    ScratchStore store;
    LoadAllLibraries(store);
    const QStringList countries = CountryNames();
    EXPECT_GT(countries.size(), 190);
    EXPECT_EQ(countries.first(), GetCountryString(100));
    EXPECT_EQ(countries.last(), GetCountryString(99 + int(countries.size())));
    EXPECT_EQ(GetCountryString(100 + int(countries.size())), "");
    for (const QString& c : countries)
        EXPECT_FALSE(c.contains(',')) << c.toStdString();  // a comma breaks the index files
    EXPECT_TRUE(std::is_sorted(countries.begin(), countries.end(),
                               [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; }));
    // The phone code dialog's scan: runs per hundred, a gap jumps to X01.
    QStringList names;
    int n = 200;
    while (n < 900) {
        const QString entry = GetPhoneCodeString(n);
        if (entry.isEmpty()) n = (QString::number(n).left(1).toInt() + 1) * 100;
        else if (entry.indexOf("/=") >= 0) names << entry.left(entry.indexOf("/="));
        ++n;
    }
    EXPECT_EQ(names, countries);
    UnloadAllLibraries();
}
