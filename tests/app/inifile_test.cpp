// setting.ini, the store's base files and the number conversions.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include "app/core/inifile.h"
#include "platform/core/fileops.h"
#include "platform/core/numbers.h"
#include "platform/core/profile.h"
#include "platform/core/tempfolder.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(StoreFiles, AFirstStartMakesExactlyTheFirstRunFilesAndALaterOneOnlyWhatIsMissing) {
    ScratchStore store;
    EnsureTempArea();
    for (const char* name : {"addr_category.tmp", "addr_cty.tmp", "addr_name.tmp", "addr_cat.tmp"})
        store.write(store.tempFile(name), "leftover");
    ASSERT_TRUE(EnsureStoreFiles());
    const QByteArray setting = store.file("setting.ini");
    EXPECT_EQ(setting, "[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=113\r\n\r\n[Size]\r\nHeight=7260\r\nWidth=9930\r\n\r\n"
                       "[Grid]\r\nColWidth0=2069.858\r\nColWidth1=3569.953\r\nColWidth2=1395.213\r\nColWidth3=1619.717\r\n"
                       "ColWidth4=14.74016\r\nColWidth5=0\r\n\r\n[VSplitter]\r\nLeft=3190\r\n\r\n[VSplitter]\r\nLeft=4700\r\n\r\n"
                       "[Skin]\r\nSkinFile=Skins\\default.skf\r\n");
    EXPECT_EQ(store.file("category.dat"), "\"00001\",\"Main\"\r\n");
    for (const char* index : {"cat.dat", "cty.dat", "name.dat"}) EXPECT_TRUE(store.exists(store.appFile(index))) << index;
    EXPECT_FALSE(QDir(store.appFile("data")).exists());  // the main window makes it
    // Three work copies are cleared; addr_cat.tmp waits for the next staging.
    EXPECT_EQ(store.tempFiles(), QStringList{"addr_cat.tmp"});

    // A lost index comes back empty, the others keep their lines, and a
    // removed Language= is not repaired.
    store.put("cat.dat", "\"Norway\",\"00001\",\"00010\"\r\n");
    QFile::remove(store.appFile("cty.dat"));
    QByteArray withoutLanguage = setting;
    store.put("setting.ini", withoutLanguage.replace("Language=0409", "Language="));
    ASSERT_TRUE(EnsureStoreFiles());
    EXPECT_EQ(store.file("setting.ini"), withoutLanguage);
    EXPECT_EQ(ReadLanguageId(), "");
    EXPECT_EQ(store.file("cat.dat"), "\"Norway\",\"00001\",\"00010\"\r\n");
    EXPECT_TRUE(store.exists(store.appFile("cty.dat")) && store.file("cty.dat").isEmpty());
}

TEST(StoreFiles, AFirstStartOnADriveThatRefusesWritesFailsQuietly) {
    ScratchStore store;
    FailFileOperationOn("write " + store.appFile("setting.ini"));
    EXPECT_FALSE(EnsureStoreFiles());
    EXPECT_EQ(QDir(store.app()).entryList(QDir::Files), QStringList());  // not even category.dat
    EXPECT_EQ(ReadLanguageId(), "");  // so the start ends in the language message
}

TEST(Settings, LongValuesGrowTheBuffer) {
    ScratchStore store;
    ASSERT_TRUE(EnsureStoreFiles());
    // 254 characters fill a buffer of 256 up to size - 2: a second call brings the value whole.
    ASSERT_TRUE(PutIniValue("Skin", "SkinFile", QString(254, 'x'), SettingFile()));
    EXPECT_EQ(GetIniValue("Skin", "SkinFile", "", SettingFile()), QString(254, 'x'));
    ASSERT_TRUE(PutIniValue("Setting", "Long", QString(3000, 'y'), SettingFile()));
    EXPECT_EQ(GetIniValue("Setting", "Long", "", SettingFile()), QString(3000, 'y'));
}

TEST(Numbers, RoundedHalfToEvenOnReadingAndWrittenAsSinglePrecisionText) {
    long value = 0;
    const std::pair<const char*, long> rows[] = {{"2069.858", 2070}, {"14.74016", 15}, {"2.5", 2}, {" -1 ", -1}};
    for (const auto& [text, number] : rows)
        EXPECT_TRUE(TextToLong(text, value) && value == number) << text;
    qint16 small = 0;
    EXPECT_FALSE(TextToLong("", value) || TextToLong("12abc", value) || TextToInt16("40000", small));
    EXPECT_TRUE(TextToInt16("-32768", small));
    EXPECT_EQ(SingleToText(7260) + " " + SingleToText(2069.858) + " " + SingleToText(12345678), "7260 2069.858 1.234568E+07");
}
