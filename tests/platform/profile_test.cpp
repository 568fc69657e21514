#include <gtest/gtest.h>

#include <QString>
#include "platform/core/profile.h"
#include "support/scratch.h"

namespace {
// The value read, as GetIniValue would see it with one buffer of `size`.
QString Read(const QString& section, const QString& key, const QString& def,
             const QString& file, int size = 256, int* count = nullptr) {
    QString buffer;
    const int n = GetPrivateProfileString(section, key, def, buffer, size, file);
    if (count) *count = n;
    return buffer;
}

const QByteArray kSettings =
    "[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=113\r\n\r\n"
    "[VSplitter]\r\nLeft=3190\r\n\r\n"
    "[VSplitter]\r\nLeft=4700\r\n\r\n"
    "[Skin]\r\nSkinFile=Skins\\default.skf\r\n";
}  // namespace

TEST(Profile, FirstSectionOfANameWinsOnReadAndRewrite) {
    ScratchStore store;
    const QString ini = store.appFile("setting.ini");
    store.write(ini, kSettings);
    EXPECT_EQ(Read("VSplitter", "Left", "2000", ini), "3190");

    EXPECT_TRUE(WritePrivateProfileString("VSplitter", "Left", "5120", ini));
    EXPECT_EQ(store.read(ini),
              QByteArray("[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=113\r\n\r\n"
                         "[VSplitter]\r\nLeft=5120\r\n\r\n"
                         "[VSplitter]\r\nLeft=4700\r\n\r\n"
                         "[Skin]\r\nSkinFile=Skins\\default.skf\r\n"));
    EXPECT_EQ(Read("VSplitter", "Left", "2000", ini), "5120");

    // A key only the second section has is not seen, and writing it adds it
    // to the first section.
    store.write(ini, "[A]\r\nx=1\r\n[a]\r\ny=2\r\n");
    EXPECT_EQ(Read("A", "y", "none", ini), "none");
    EXPECT_TRUE(WritePrivateProfileString("a", "y", "3", ini));
    EXPECT_EQ(store.read(ini), QByteArray("[A]\r\nx=1\r\ny=3\r\n[a]\r\ny=2\r\n"));
}

TEST(Profile, RewriteInPlaceKeepsEveryOtherByte) {
    ScratchStore store;
    const QString ini = store.appFile("odd.ini");
    // Lone LF lines, spaces, a comment, a duplicate key, no line end at the end.
    store.write(ini, "; note\n[ Size ]\r\n  Height = 7260  \nHeight=1\r\nWidth=9930\r\n\r\n[Grid]\r\nColWidth0=2");
    EXPECT_TRUE(WritePrivateProfileString("size", "HEIGHT", "8000", ini));
    EXPECT_EQ(store.read(ini), QByteArray("; note\n[ Size ]\r\nHeight=8000\nHeight=1\r\nWidth=9930\r\n\r\n"
                                          "[Grid]\r\nColWidth0=2"));
    EXPECT_TRUE(WritePrivateProfileString("Grid", "ColWidth0", "2070", ini));
    EXPECT_EQ(store.read(ini), QByteArray("; note\n[ Size ]\r\nHeight=8000\nHeight=1\r\nWidth=9930\r\n\r\n"
                                          "[Grid]\r\nColWidth0=2070"));
}

TEST(Profile, NewKeysAndSectionsAndFiles) {
    ScratchStore store;
    const QString ini = store.appFile("new.ini");

    store.write(ini, "[A]\r\nx=1\r\n\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_TRUE(WritePrivateProfileString("A", "z", "3", ini));
    EXPECT_EQ(store.read(ini), QByteArray("[A]\r\nx=1\r\nz=3\r\n\r\n\r\n[B]\r\ny=2\r\n"));

    store.write(ini, "[A]\r\n\r\n[B]\r\n");
    EXPECT_TRUE(WritePrivateProfileString("A", "z", "3", ini));
    EXPECT_EQ(store.read(ini), QByteArray("[A]\r\nz=3\r\n\r\n[B]\r\n"));

    store.write(ini, "[A]\r\nx=1");
    EXPECT_TRUE(WritePrivateProfileString("A", "z", "3", ini));
    EXPECT_EQ(store.read(ini), QByteArray("[A]\r\nx=1\r\nz=3\r\n"));

    store.write(ini, "[A]\r\nx=1");
    EXPECT_TRUE(WritePrivateProfileString("C", "k", "v", ini));
    EXPECT_EQ(store.read(ini), QByteArray("[A]\r\nx=1\r\n[C]\r\nk=v\r\n"));

    const QString fresh = store.appFile("fresh.ini");
    EXPECT_TRUE(WritePrivateProfileString("Setting", "Country", "12", fresh));
    EXPECT_EQ(store.read(fresh), QByteArray("[Setting]\r\nCountry=12\r\n"));

    EXPECT_FALSE(WritePrivateProfileString("S", "k", "v", store.appFile("no/such/folder.ini")));
}

TEST(Profile, MissingFileOrKeyGivesTheDefault) {
    ScratchStore store;
    const QString ini = store.appFile("setting.ini");
    int count = -1;
    EXPECT_EQ(Read("OwnerInfo", "Name", "User", store.appFile("absent.ini"), 256, &count), "User");
    EXPECT_EQ(count, 4);

    store.write(ini, kSettings);
    EXPECT_EQ(Read("Setting", "Missing", "dflt", ini), "dflt");
    EXPECT_EQ(Read("Nowhere", "Language", "", ini, 256, &count), "");
    EXPECT_EQ(count, 0);
    EXPECT_EQ(Read("Setting", "Missing", "User  ", ini), "User");  // trailing blanks of a default go
    EXPECT_EQ(Read("setting", "LANGUAGE", "", ini), "0409");
}

TEST(Profile, SpacesAndSurroundingQuotesAreDropped) {
    ScratchStore store;
    const QString ini = store.appFile("q.ini");
    store.write(ini, "[S]\r\nA = \"  Bob  \" \r\nB=\"\r\nC=\"\"\r\nD=\"x\r\nE=x\"\r\nF= a = b \r\nG=\r\n");
    EXPECT_EQ(Read("S", "A", "-", ini), "  Bob  ");
    EXPECT_EQ(Read("S", "B", "-", ini), "\"");
    EXPECT_EQ(Read("S", "C", "-", ini), "");
    EXPECT_EQ(Read("S", "D", "-", ini), "\"x");
    EXPECT_EQ(Read("S", "E", "-", ini), "x\"");
    EXPECT_EQ(Read("S", "F", "-", ini), "a = b");
    EXPECT_EQ(Read("S", "G", "-", ini), "");
}

TEST(Profile, LongValuesAreCutToSizeMinusOne) {
    ScratchStore store;
    const QString ini = store.appFile("long.ini");
    const QString v300(300, QLatin1Char('v'));
    const QString v254 = QString(253, QLatin1Char('w')) + "z";
    store.write(ini, "[S]\r\nlong=" + v300.toLatin1() + "\r\nmid=" + v254.toLatin1() + "\r\n");

    const long callsBefore = ProfileReadCallCount();
    int count = 0;
    EXPECT_EQ(Read("S", "long", "", ini, 256, &count), v300.left(255));
    EXPECT_EQ(count, 255);
    EXPECT_EQ(Read("S", "long", "", ini, 512, &count), v300);
    EXPECT_EQ(count, 300);
    EXPECT_EQ(Read("S", "mid", "", ini, 256, &count), v254);
    EXPECT_EQ(count, 254);
    EXPECT_EQ(Read("S", "mid", "", ini, 254, &count), v254.left(253));
    EXPECT_EQ(count, 253);
    EXPECT_EQ(ProfileReadCallCount() - callsBefore, 4);
}

TEST(Profile, TextIsInTheAnsiCodePage) {
    ScratchStore store;
    const QString ini = store.appFile("owner.ini");
    store.write(ini, "[OwnerInfo]\r\nName=" + Cp1252("Jérôme Strauß") + "\r\n");
    EXPECT_EQ(Read("OwnerInfo", "Name", "User", ini), QString::fromUtf8("Jérôme Strauß"));

    EXPECT_TRUE(WritePrivateProfileString("OwnerInfo", "Name", QString::fromUtf8("Zoë € Ж"), ini));
    EXPECT_EQ(store.read(ini), QByteArray("[OwnerInfo]\r\nName=Zo\xEB \x80 ?\r\n"));
}

TEST(Profile, ASectionReadInOnePassAgreesWithKeyByKeyReading) {
    ScratchStore store;
    const QString file = store.appFile("addr00001.b64");
    store.write(file, Cp1252("[setting]\r\nInfoName = \"Åsa\" \r\nmail=a@b\r\nMAIL=second\r\n"
                             "[Other]\r\ntel1=9\r\n[Setting]\r\ntel1=late\r\n"));
    ProfileValues values;
    ASSERT_TRUE(ReadProfileSection("Setting", file, values));
    for (const char* key : {"infoname", "mail", "tel1", "notes"}) {
        QString one;
        GetPrivateProfileString("Setting", key, "", one, 4096, file);
        EXPECT_EQ(values.value(key), one) << key;
    }
    EXPECT_EQ(values.value("infoname"), QString::fromUtf8("Åsa"));
    EXPECT_EQ(values.value("mail"), "a@b");
    EXPECT_FALSE(values.contains("tel1"));  // only in later sections
    EXPECT_FALSE(ReadProfileSection("Setting", store.appFile("missing"), values));
    EXPECT_TRUE(values.isEmpty());
}
