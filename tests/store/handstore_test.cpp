// The store's routines on a store written by hand, as the Windows program
// writes it: Windows-1252 bytes, CR LF, names with é, ß and a double quote.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/failure.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
class HandStore : public ::testing::Test {
protected:
    ScratchStore store;
    void SetUp() override {
        EnsureTempArea();
        QDir().mkpath(store.appFile("data"));
        ReleaseFileNumbersForTest();
        ResetRandomForTest();
        store.write(store.appFile("category.dat"),
                    Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Café\"\r\n\"00003\",\"North,South\"\r\n"));
        store.write(store.appFile("cat.dat"),
                    Cp1252("\"Deutschland\",\"00002\",\"00011\"\r\n\"France\",\"00001\",\"00012\"\r\n"
                           "\"Deutschland\",\"00001\",\"00013\"\r\n"));
        store.write(store.appFile("cty.dat"),
                    Cp1252("\"Deutschland\",\"00011\"\r\n\"France\",\"00012\"\r\n\"Deutschland\",\"00013\"\r\n"));
        store.write(store.appFile("name.dat"),
                    Cp1252("\"00011\",\"Jürgen Weiß\"\r\n\"00012\",\"Hélène, \"Lili\" Roux\"\r\n"
                           "\"00013\",\"Straße\"\r\n"));
        store.write(store.appFile("data/addr00011.b64"),
                    Cp1252("[Setting]\r\ninfoid=00011\r\ninfoname=Jürgen Weiß\r\ncountry=80\r\n"
                           "category=00002\r\ntel1=+49 30 1\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\n"
                           "fax=\r\ncompany=\"\"Weiß\"\" & Söhne\r\ndesignation=Geschäftsführer\r\n"
                           "addr=Hauptstraße 1<NextLine>10115 Berlin\r\nnotes=\r\nmail=jw@example.de\r\n"));
    }
    void TearDown() override { ReleaseFileNumbersForTest(); }
    void stage() { ASSERT_TRUE(StageIndexFiles()); }
    QByteArray staged(const char* index) const { return store.read(store.tempFile(QString("addr_") + index + ".dat")); }
};
}  // namespace

TEST_F(HandStore, CategoryListIsReadByCommasAndTheWholeFileRule) {
    QList<CategoryLine> lines;
    ASSERT_TRUE(ReadCategoryLines(CategoryFile(), lines));
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[1].name, "Café");
    EXPECT_EQ(lines[2].id, "00003");
    EXPECT_EQ(lines[2].name, "Nort");  // cut at the comma, and one more character off

    // A last line without CR LF is not seen at all.
    store.write(store.appFile("category.dat"), Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Café\""));
    QStringList items;
    ASSERT_TRUE(CategoryComboItems(items));
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].size(), 210);
    EXPECT_EQ(CategoryIdFromItem(items[0]), "00001");
    EXPECT_EQ(FindCategoryIndex(items, "00001"), 0);
    EXPECT_EQ(FindCategoryIndex(items, "00002"), -1);

    // A name of 200 characters puts its last character in front of the id.
    const QString item = CategoryItemText(QString(199, u'a') + "Z", "00004");
    EXPECT_EQ(CategoryIdFromItem(item), "Z00004");
    EXPECT_EQ(FindCategoryIndex({item}, "00004"), -1);

    // A line with one field, or a one-character field, ends the reader.
    store.write(store.appFile("category.dat"), "\"00001\",\"Main\"\r\nbroken\r\n\"00003\",\"X\"\r\n");
    items.clear();
    EXPECT_FALSE(CategoryComboItems(items));
    EXPECT_EQ(items.size(), 1);  // filled so far
    EXPECT_THROW(StripEnds("x"), RoutineFailure);
    EXPECT_EQ(StripEnds(""), "");
}

TEST_F(HandStore, RecordsAreReadAsStoredAndDecodedOnlyWhereAsked) {
    ClearContactBuffer();
    EXPECT_EQ(ContactBuffer.country, -1);
    ASSERT_TRUE(ReadContact("00011"));
    EXPECT_EQ(ContactBuffer.infoid, "00011");
    EXPECT_EQ(ContactBuffer.infoname, "Jürgen Weiß");
    EXPECT_EQ(ContactBuffer.country, 80);
    EXPECT_EQ(ContactBuffer.company, "\"\"Weiß\"\" & Söhne");  // quotes stay doubled
    EXPECT_EQ(ContactBuffer.addr, "Hauptstraße 1<NextLine>10115 Berlin");
    EXPECT_EQ(DecodeNextLine(ContactBuffer.addr), "Hauptstraße 1\r\n10115 Berlin");
    EXPECT_EQ(DecodeNextLine("a<nextline>b"), "a\r\nb");

    // A missing file leaves the buffer as it was.
    EXPECT_FALSE(ReadContact("00099"));
    EXPECT_EQ(ContactBuffer.infoname, "Jürgen Weiß");

    // A damaged country fails the read at that key: the keys before it are
    // read, the rest of the buffer stays.
    store.write(store.appFile("data/addr00012.b64"),
                Cp1252("[Setting]\r\ninfoid=00077\r\ninfoname=Hélène\r\ncategory=00001\r\ncountry=\r\ntel1=99\r\n"));
    EXPECT_FALSE(ReadContactWithId("00012"));
    EXPECT_EQ(ContactBuffer.infoid, "00077");
    EXPECT_EQ(ContactBuffer.infoname, "Hélène");
    EXPECT_EQ(ContactBuffer.tel1, "+49 30 1");

    // The summary reads five keys; a record without notes= reads empty.
    ClearContactBuffer();
    ASSERT_TRUE(ReadContactSummary("00011"));
    EXPECT_EQ(ContactBuffer.designation, "Geschäftsführer");
    EXPECT_EQ(ContactBuffer.tel1, "");
}

TEST_F(HandStore, EncodingTrimsJoinsLinesAndDoublesQuotes) {
    EXPECT_EQ(EncodeFieldText("  Line 1\r\nLine \"2\"  "), "Line 1<NextLine>Line \"\"2\"\"");
    EXPECT_EQ(EncodeFieldText("\ttab\t"), "\ttab\t");  // only spaces are trimmed
    EXPECT_EQ(EncodeFieldText("a\nb"), "a\nb");       // a lone LF stays
    ContactForm form;
    form.name = " O'Neil \"Jr\" ";
    form.countryIndex = -1;
    form.categoryId = "00001";
    const QByteArray text = RecordTextFromForm("00042", form);
    EXPECT_EQ(text, "[Setting]\r\ninfoid=00042\r\ninfoname=O'Neil \"\"Jr\"\"\r\ncountry=-1\r\n"
                    "category=00001\r\ntel1=\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\nfax=\r\n"
                    "company=\r\ndesignation=\r\naddr=\r\nnotes=\r\nmail=\r\n");
}

TEST_F(HandStore, NameLinesSplitAtQuoteCommaQuote) {
    NameLine a = SplitNameLine(Cp1252ToText("\"00012\",\"Hélène, \"Lili\" Roux\""));
    EXPECT_EQ(a.id, "00012");
    EXPECT_EQ(a.name, "Hélène, Lili Roux");
    NameLine b = SplitNameLine("\"00013\",\"A\",\"B\"");
    EXPECT_EQ(b.id, "00013");
    EXPECT_EQ(b.name, "");
}

TEST_F(HandStore, StreamingRoutinesKeepOtherLinesAsTheyRead) {
    stage();
    // The name with a double quote is cut short by formatted reading.
    ASSERT_TRUE(ReplaceNameLine("00013", "Straße 2", NameReplace::OnlyReplace));
    EXPECT_EQ(staged("name"), Cp1252("\"00011\",\"Jürgen Weiß\"\r\n\"00012\",\"Hélène, \"\r\n"
                                     "\"00013\",\"Straße 2\"\r\n"));
    ASSERT_TRUE(ReplaceCatLine("00012", "Österreich", "00002"));
    EXPECT_EQ(staged("cat"), Cp1252("\"Deutschland\",\"00002\",\"00011\"\r\n\"Österreich\",\"00002\",\"00012\"\r\n"
                                    "\"Deutschland\",\"00001\",\"00013\"\r\n"));
    // The edit dialog's copy writes the category id where the contact id stood.
    ASSERT_TRUE(ReplaceCtyLine("00012", "Österreich", "00002", CtyReplace::CategoryIdInPlaceOfContact));
    EXPECT_EQ(staged("cty"), Cp1252("\"Deutschland\",\"00011\"\r\n\"Österreich\",\"00002\"\r\n\"Deutschland\",\"00013\"\r\n"));
    ASSERT_TRUE(ReplaceCtyLine("00012", "Österreich", "00002", CtyReplace::KeepContactId));
    EXPECT_EQ(staged("cty"), Cp1252("\"Deutschland\",\"00011\"\r\n\"Österreich\",\"00012\"\r\n\"Deutschland\",\"00013\"\r\n"));
    // Only the edit dialog appends a missing name line.
    ASSERT_TRUE(ReplaceNameLine("00099", "Neu", NameReplace::OnlyReplace));
    EXPECT_FALSE(staged("name").contains("00099"));
    ASSERT_TRUE(ReplaceNameLine("00099", "Neu", NameReplace::AppendWhenMissing));
    EXPECT_TRUE(staged("name").endsWith("\"00099\",\"Neu\"\r\n"));
    ASSERT_TRUE(RemoveCatLine("00011"));
    EXPECT_EQ(staged("cat"), Cp1252("\"France\",\"00001\",\"00012\"\r\n\"Deutschland\",\"00001\",\"00013\"\r\n"));
}

TEST_F(HandStore, ADamagedLastLineEndsOnlyTheNameRemoval) {
    store.write(store.appFile("name.dat"), "\"00011\",\"A\"\r\n\"00012\"\r\n");
    store.write(store.appFile("cat.dat"), "\"X\",\"00001\",\"00011\"\r\n\"X\",\"00001\"\r\n");
    stage();
    EXPECT_TRUE(RemoveNameLine("00011"));
    EXPECT_EQ(staged("name"), "");
    EXPECT_FALSE(FileNumberInUse(1));
    // The other routines fail on it and keep their file numbers taken: every
    // later routine that opens them fails too.
    EXPECT_FALSE(RemoveCatLine("00011"));
    EXPECT_TRUE(FileNumberInUse(1));
    EXPECT_FALSE(RemoveCtyLine("00011"));
    EXPECT_FALSE(AppendCtyLine("00050", "X"));
    ReleaseFileNumbersForTest();
    EXPECT_TRUE(RemoveCtyLine("00011"));
}

TEST_F(HandStore, EmptyIndexesStreamToEmptyFiles) {
    for (const char* index : {"cat.dat", "cty.dat", "name.dat"}) store.write(store.appFile(index), "");
    stage();
    EXPECT_TRUE(RemoveCatLine("00011"));
    EXPECT_TRUE(store.exists(store.tempFile("addr_cat.dat")));
    EXPECT_EQ(staged("cat"), "");
}

TEST_F(HandStore, AnEditThenARemovalLeavesCtyDatOneLineLonger) {
    ContactForm form;
    form.name = "Jürgen Weiß";
    form.countryIndex = 80;
    form.countryText = "Deutschland";
    form.categoryId = "00001";
    ASSERT_TRUE(SaveEditedContact(form, "00011", true));
    EXPECT_EQ(store.read(store.appFile("cty.dat")),
              Cp1252("\"Deutschland\",\"00001\"\r\n\"France\",\"00012\"\r\n\"Deutschland\",\"00013\"\r\n"));
    for (const char* leftover : {"addr_cat.tmp", "addr_cty.tmp", "addr_name.tmp", "addr_cat.dat",
                                 "addr_cty.dat", "addr_name.dat", "addr00011.b64"})
        EXPECT_FALSE(store.exists(store.tempFile(leftover))) << leftover;
    ASSERT_TRUE(RemoveContactFiles("00011"));
    DiscardStagedFiles("00011");
    EXPECT_EQ(store.read(store.appFile("cat.dat")).count("\r\n"), 2);
    EXPECT_EQ(store.read(store.appFile("name.dat")).count("\r\n"), 2);
    EXPECT_EQ(store.read(store.appFile("cty.dat")).count("\r\n"), 3);
    EXPECT_FALSE(store.exists(store.appFile("data/addr00011.b64")));
}

TEST_F(HandStore, IdsComeUnseededAndSkipTakenNumbers) {
    const int first = GenID();
    ResetRandomForTest();
    EXPECT_EQ(GenID(), first);  // the same sequence at every start
    EXPECT_GE(first, 1);
    EXPECT_LE(first, 32766);
    // A taken number costs one more draw.
    store.write(store.appFile("data/addr" + IdText(first) + ".b64"), "[Setting]\r\n");
    ResetRandomForTest();
    const int second = GenID();
    EXPECT_NE(second, first);
    // A read-only record isn't seen by the test, so its number comes again.
    ::chmod(QFile::encodeName(store.appFile("data/addr" + IdText(first) + ".b64")).constData(), 0444);
    ResetRandomForTest();
    EXPECT_EQ(GenID(), first);
    EXPECT_EQ(IdText(42), "00042");
    EXPECT_EQ(IdText(32766), "32766");
}

TEST_F(HandStore, TwoContactsSavedInOneRunGetTwoIds) {
    ContactForm form;
    form.name = "  Zoë  ";
    form.countryText = "France";
    form.countryIndex = 3;
    form.categoryId = "00001";
    QString a, b;
    ASSERT_TRUE(SaveNewContact(form, {}, &a));
    QList<int> bar;
    ASSERT_TRUE(SaveNewContact(form, [&](int v) { bar << v; }, &b));
    EXPECT_NE(a, b);
    EXPECT_EQ(bar, (QList<int>{2, 3, 4, 5, 6}));
    EXPECT_TRUE(store.read(store.appFile("name.dat")).endsWith(Cp1252("\"" ) + b.toLatin1() + Cp1252("\",\"Zoë\"\r\n")));
    EXPECT_EQ(store.tempFiles(), QStringList());  // nothing stays behind a new contact
    EXPECT_TRUE(store.read(store.appFile("data/addr" + b + ".b64")).contains(Cp1252("infoname=Zoë\r\n")));
}
