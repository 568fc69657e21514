// Profile strings with the Windows calls' rules: the first section of a name
// wins, a rewrite changes the value in place and keeps every other byte.
#include <gtest/gtest.h>

#include "platform/core/profile.h"
#include "support/printers.h"
#include "support/scratch.h"

// The value as one call with a buffer of `size` gives it, and the count.
static std::pair<QString, int> Read(const QString& file, const char* section, const char* key, const char* def = "-", int size = 256) {
    QString buffer;
    const int n = GetPrivateProfileString(section, key, def, buffer, size, file);
    return {buffer, n};
}

TEST(Profile, WritesChangeTheFirstSectionInPlaceAndKeepEveryOtherByte) {
    ScratchStore store;
    const QString ini = store.appFile("p.ini");
    // before, section, key, value, after
    const char* const rows[][5] = {
        {"[V]\r\nLeft=3190\r\n\r\n[V]\r\nLeft=4700\r\n", "V", "Left", "5120", "[V]\r\nLeft=5120\r\n\r\n[V]\r\nLeft=4700\r\n"},
        {"; c\n[ Size ]\r\n  Height = 1  \nHeight=2\r\n[G]\r\nW=2", "size", "HEIGHT", "8", "; c\n[ Size ]\r\nHeight=8\nHeight=2\r\n[G]\r\nW=2"},
        {"[A]\r\nx=1\r\n[a]\r\ny=2\r\n", "a", "y", "3", "[A]\r\nx=1\r\ny=3\r\n[a]\r\ny=2\r\n"},
        {"[A]\r\nx=1\r\n\r\n\r\n[B]\r\n", "A", "z", "3", "[A]\r\nx=1\r\nz=3\r\n\r\n\r\n[B]\r\n"},
        {"[A]\r\nx=1", "A", "z", "3", "[A]\r\nx=1\r\nz=3\r\n"},
        {"[A]\r\nx=1", "C", "k", "v", "[A]\r\nx=1\r\n[C]\r\nk=v\r\n"},
        {"", "Setting", "Country", "12", "[Setting]\r\nCountry=12\r\n"},
    };
    for (const auto& row : rows) {
        store.write(ini, row[0]);
        EXPECT_TRUE(WritePrivateProfileString(row[1], row[2], row[3], ini));
        EXPECT_EQ(store.read(ini), QByteArray(row[4])) << row[0];
    }
    // Text goes in the code page: what it lacks becomes "?".
    store.write(ini, "");
    EXPECT_TRUE(WritePrivateProfileString("O", "Name", U("Zoë € Ж"), ini));
    EXPECT_EQ(store.read(ini), QByteArray("[O]\r\nName=Zo\xEB \x80 ?\r\n"));
}

TEST(Profile, ReadsGiveTheFirstSectionsValueOrTheDefault) {
    ScratchStore store;
    const QString ini = store.appFile("q.ini");
    store.write(ini, "[S]\r\nA = \"  Bob  \" \r\nB=\"\r\nC=\"\"\r\nD=\"x\r\nF= a = b \r\nG=\r\nN=" + Cp1252("Strauß") +
                         "\r\n[s]\r\nH=late\r\n");
    // key, default, value
    const char* const rows[][3] = {{"A", "-", "  Bob  "}, {"B", "-", "\""}, {"C", "-", ""},  {"D", "-", "\"x"},
                                   {"f", "-", "a = b"},   {"G", "-", ""},   {"H", "-", "-"}, {"Z", "User  ", "User"}};
    for (const auto& row : rows) EXPECT_EQ(Read(ini, "s", row[0], row[1]).first, U(row[2])) << row[0];
    EXPECT_EQ(Read(ini, "S", "N").first, U("Strauß"));
    EXPECT_EQ(Read(store.appFile("absent.ini"), "O", "Name", "User"), std::make_pair(QString("User"), 4));
    EXPECT_EQ(Read(ini, "Nowhere", "A", ""), std::make_pair(QString(), 0));
}

TEST(Profile, ASectionReadInOnePassAgreesWithKeyByKeyReading) {
    ScratchStore store;
    const QString file = store.appFile("addr00001.b64");
    store.write(file, Cp1252("[setting]\r\nInfoName = \"Åsa\" \r\nmail=a@b\r\nMAIL=second\r\n[Other]\r\ntel1=9\r\n"
                             "[Setting]\r\ntel1=late\r\n"));
    ProfileValues values;
    ASSERT_TRUE(ReadProfileSection("Setting", file, values));
    for (const char* key : {"infoname", "mail", "tel1", "notes"}) EXPECT_EQ(values.value(key), Read(file, "Setting", key, "").first) << key;
    EXPECT_TRUE(values.value("infoname") == U("Åsa") && !values.contains("tel1"));  // tel1 only in later sections
    const QStringList named = ProfileSectionValues("Setting", store.read(file), {QLatin1String("mail"), QLatin1String("infoname"),
                                                                                 QLatin1String("tel1"), QLatin1String("notes")});
    EXPECT_EQ(named, QStringList({values.value("mail"), values.value("infoname"), "", ""}));
    EXPECT_TRUE(!ReadProfileSection("Setting", store.appFile("missing"), values) && values.isEmpty());
}
