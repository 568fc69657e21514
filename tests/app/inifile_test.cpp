// setting.ini and the store's base files.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include "app/core/inifile.h"
#include "platform/core/numbers.h"
#include "platform/core/fileops.h"
#include "platform/core/profile.h"
#include "platform/core/tempfolder.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(StoreFiles, FirstStartInAnEmptyFolderMakesExactlyTheFirstRunFiles) {
    ScratchStore store;
    EnsureTempArea();
    for (const char* name : {"addr_category.tmp", "addr_cty.tmp", "addr_name.tmp", "addr_cat.tmp"})
        store.write(store.tempFile(name), "leftover");
    ASSERT_TRUE(EnsureStoreFiles());

    const QByteArray setting = store.read(store.appFile("setting.ini"));
    EXPECT_EQ(setting,
              "[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=113\r\n\r\n"
              "[Size]\r\nHeight=7260\r\nWidth=9930\r\n\r\n"
              "[Grid]\r\nColWidth0=2069.858\r\nColWidth1=3569.953\r\nColWidth2=1395.213\r\n"
              "ColWidth3=1619.717\r\nColWidth4=14.74016\r\nColWidth5=0\r\n\r\n"
              "[VSplitter]\r\nLeft=3190\r\n\r\n[VSplitter]\r\nLeft=4700\r\n\r\n"
              "[Skin]\r\nSkinFile=Skins\\default.skf\r\n");
    EXPECT_EQ(setting.count("\r\n"), 25);
    EXPECT_EQ(store.read(store.appFile("category.dat")), "\"00001\",\"Main\"\r\n");
    for (const char* index : {"cat.dat", "cty.dat", "name.dat"}) {
        EXPECT_TRUE(store.exists(store.appFile(index))) << index;
        EXPECT_EQ(store.read(store.appFile(index)).size(), 0) << index;
    }
    EXPECT_FALSE(QDir(store.appFile("data")).exists());  // the main window makes it
    // Three work copies are cleared; addr_cat.tmp waits for the next staging.
    EXPECT_EQ(store.tempFiles(), QStringList{"addr_cat.tmp"});

    // The values in force: the first [VSplitter] wins.
    EXPECT_EQ(ReadLanguageId(), "0409");
    EXPECT_EQ(ReadCharsetId(), "0");
    EXPECT_EQ(GetIniValue("VSplitter", "Left", "2000", SettingFile()), "3190");

    // A second run changes nothing that exists, and a lost index comes back
    // empty while the others keep their lines.
    store.write(store.appFile("cat.dat"), "\"Norway\",\"00001\",\"00010\"\r\n");
    QFile::remove(store.appFile("cty.dat"));
    ASSERT_TRUE(EnsureStoreFiles());
    EXPECT_EQ(store.read(store.appFile("setting.ini")), setting);
    EXPECT_EQ(store.read(store.appFile("cat.dat")), "\"Norway\",\"00001\",\"00010\"\r\n");
    EXPECT_TRUE(store.exists(store.appFile("cty.dat")));
    EXPECT_EQ(store.read(store.appFile("cty.dat")).size(), 0);
}

TEST(StoreFiles, ARemovedLanguageKeyIsNotRepaired) {
    ScratchStore store;
    ASSERT_TRUE(EnsureStoreFiles());
    QByteArray text = store.read(store.appFile("setting.ini"));
    text.replace("Language=0409\r\n", "Language=\r\n");
    store.write(store.appFile("setting.ini"), text);
    ASSERT_TRUE(EnsureStoreFiles());
    EXPECT_EQ(ReadLanguageId(), "");
    EXPECT_EQ(store.read(store.appFile("setting.ini")), text);

}

TEST(StoreFiles, AFirstStartOnADriveThatRefusesWritesFailsQuietly) {
    ScratchStore store;
    // The first write (setting.ini) fails, as on a write-protected drive.
    FailFileOperationAt(2);
    EXPECT_FALSE(EnsureStoreFiles());
    EXPECT_EQ(FailedFileOperation(), "write " + store.appFile("setting.ini"));
    FailFileOperationAt(0);
    EXPECT_FALSE(store.exists(store.appFile("setting.ini")));
    EXPECT_FALSE(store.exists(store.appFile("category.dat")));
    EXPECT_EQ(ReadLanguageId(), "");  // so the start ends in the language message
}

TEST(Settings, LongValuesGrowTheBufferAndLayoutKeysRewriteTheFirstSection) {
    ScratchStore store;
    ASSERT_TRUE(EnsureStoreFiles());
    const QString file = SettingFile();
    // 254 characters fill a buffer of 256 up to size - 2: a second call with
    // 512 characters brings the value whole.
    const QString value(254, u'x');
    ASSERT_TRUE(PutIniValue("Skin", "SkinFile", value, file));
    long calls = ProfileReadCallCount();
    EXPECT_EQ(GetIniValue("Skin", "SkinFile", "", file), value);
    EXPECT_EQ(ProfileReadCallCount() - calls, 2);
    calls = ProfileReadCallCount();
    EXPECT_EQ(GetIniValue("Skin", "SkinFile", "", store.appFile("missing.ini")), "");
    EXPECT_EQ(GetIniValue("Setting", "Country", "0", file), "113");
    EXPECT_EQ(ProfileReadCallCount() - calls, 2);
    const QString longer(3000, u'y');
    ASSERT_TRUE(PutIniValue("Setting", "Long", longer, file));
    EXPECT_EQ(GetIniValue("Setting", "Long", "", file), longer);

    ASSERT_TRUE(PutIniValue("VSplitter", "Left", SingleToText(2475), file));
    const QByteArray text = store.read(file);
    EXPECT_TRUE(text.contains("[VSplitter]\r\nLeft=2475\r\n\r\n[VSplitter]\r\nLeft=4700\r\n"));
}

TEST(Settings, NumbersAreRoundedOnReadingAndWrittenAsSinglePrecisionText) {
    long value = 0;
    ASSERT_TRUE(TextToLong("2069.858", value));
    EXPECT_EQ(value, 2070);
    ASSERT_TRUE(TextToLong("14.74016", value));
    EXPECT_EQ(value, 15);
    ASSERT_TRUE(TextToLong("2.5", value));
    EXPECT_EQ(value, 2);  // half to even
    EXPECT_FALSE(TextToLong("", value));
    EXPECT_FALSE(TextToLong("12abc", value));
    qint16 small = 0;
    EXPECT_FALSE(TextToInt16("40000", small));
    ASSERT_TRUE(TextToInt16("-1", small));
    EXPECT_EQ(small, -1);
    EXPECT_EQ(SingleToText(7260), "7260");
    EXPECT_EQ(SingleToText(2069.858), "2069.858");
    EXPECT_EQ(SingleToText(14.74016), "14.74016");
    EXPECT_EQ(SingleToText(12345678), "1.234568E+07");
}
