// The string libraries: working copies in the staging area, look-up by
// number, and the content the program ships.
#include <gtest/gtest.h>

#include "app/core/globals.h"
#include "app/core/libraries.h"
#include "dialogs/core/phonecodes.h"
#include "platform/core/tempfolder.h"
#include "support/libraryfixture.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(Libraries, WorkingCopiesLiveInTheStagingAreaUntilUnload) {
    ScratchStore store;
    LanguageId = "0409";
    EXPECT_EQ(GetLanguageString(308) + GetCountryString(100), "");  // nothing loaded yet
    EnsureTempArea();
    store.write(store.tempFile("ma_langfile0409.dll"), "stale");  // a leftover of a crash
    LoadAllLibraries(store);
    EXPECT_EQ(store.tempFiles(), (QStringList{"addr_country.dll", "addr_phonecode.dll", "ma_edition_0409.dll",
                                              "ma_langfile0409.dll"}));
    EXPECT_EQ(GetLanguageString(308) + "|" + GetCountryString(100), "Tandry|Afghanistan");
    EXPECT_FALSE(GetEditionString(528).isEmpty());
    UnloadAllLibraries();
    EXPECT_EQ(store.tempFiles(), QStringList());
    EXPECT_EQ(GetLanguageString(308), "");
}

TEST(Libraries, TheShippedCountriesAndPhoneCodesAgree) {
    ScratchStore store;
    LoadAllLibraries(store);
    const QStringList countries = CountryNames();
    EXPECT_GT(countries.size(), 190);
    EXPECT_EQ(GetCountryString(100 + int(countries.size())), "");
    for (const QString& c : countries) EXPECT_FALSE(c.contains(',')) << c.toStdString();  // a comma breaks the index files
    EXPECT_TRUE(std::is_sorted(countries.begin(), countries.end(),
                               [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; }));
    // Every country is found by the phone code look-up's scan, in the same order.
    QStringList phoneNames;
    for (const PhoneCode& entry : ScanPhoneCodes()) phoneNames << entry.name;
    EXPECT_EQ(phoneNames, countries);
    UnloadAllLibraries();
}
