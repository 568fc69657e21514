// The store's routines on a store written by hand, as the Windows program
// writes it: Windows-1252 bytes, CR LF, names with é, ß, a comma and a
// double quote.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/failure.h"
#include "store/core/formatted.h"
#include "store/core/paths.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
class HandStore : public ::testing::Test {
protected:
    ScratchStore store;
    void SetUp() override {
        store.readyForWrites();
        store.put("category.dat", Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Café\"\r\n\"00003\",\"North,South\"\r\n"));
        store.put("cat.dat", Cp1252("\"Deutschland\",\"00002\",\"00011\"\r\n\"France\",\"00001\",\"00012\"\r\n"
                                    "\"Deutschland\",\"00001\",\"00013\"\r\n"));
        store.put("cty.dat", Cp1252("\"Deutschland\",\"00011\"\r\n\"France\",\"00012\"\r\n\"Deutschland\",\"00013\"\r\n"));
        store.put("name.dat", Cp1252("\"00011\",\"Jürgen Weiß\"\r\n\"00012\",\"Hélène, \"Lili\" Roux\"\r\n"
                                     "\"00013\",\"Straße\"\r\n"));
        store.putRecord({"00011", "Jürgen Weiß", "80", "00002", "+49 30 1", "", "", "", "", "", "\"\"Weiß\"\" & Söhne",
                         "Geschäftsführer", "Hauptstraße 1<NextLine>10115 Berlin", "", "jw@example.de"});
    }
    void TearDown() override { ReleaseFileNumbersForTest(); }
    QByteArray staged(const char* index) const { return store.read(store.tempFile(QString("addr_") + index + ".dat")); }
    static ContactForm Form(const char* name, const char* country, int index, const char* category) {
        ContactForm form;
        form.name = U(name), form.countryText = U(country), form.countryIndex = index, form.categoryId = category;
        return form;
    }
};
}  // namespace

TEST_F(HandStore, CategoryListIsReadByCommasAndTheWholeFileRule) {
    QList<CategoryLine> lines;
    ASSERT_TRUE(ReadCategoryLines(CategoryFile(), lines));
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[1].name + "|" + lines[2].name, U("Café|Nort"));  // cut at the comma, and one more character off

    // A last line without CR LF is not seen at all.
    store.put("category.dat", Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Café\""));
    QStringList items;
    ASSERT_TRUE(CategoryComboItems(items));
    ASSERT_EQ(items, QStringList{QString("Main").leftJustified(200) + "00001     "});
    // A name of 200 characters puts its last character in front of the id.
    EXPECT_EQ(CategoryIdFromItem(CategoryItemText(QString(199, 'a') + "Z", "00004")), "Z00004");

    // A line with one field ends the reader with the items read so far.
    store.put("category.dat", "\"00001\",\"Main\"\r\nbroken\r\n\"00003\",\"X\"\r\n");
    items.clear();
    EXPECT_TRUE(!CategoryComboItems(items) && items.size() == 1);
}

TEST_F(HandStore, RecordsAreReadAsStoredAndDecodedOnlyWhereAsked) {
    ClearContactBuffer();
    ASSERT_TRUE(ReadContact("00011"));
    EXPECT_EQ(ContactBuffer.infoname, U("Jürgen Weiß"));
    EXPECT_EQ(ContactBuffer.country, 80);
    EXPECT_EQ(ContactBuffer.company, U("\"\"Weiß\"\" & Söhne"));  // quotes stay doubled
    EXPECT_EQ(DecodeNextLine(ContactBuffer.addr), U("Hauptstraße 1\r\n10115 Berlin"));
    EXPECT_FALSE(ReadContact("00099"));  // a missing file leaves the buffer as it was
    EXPECT_EQ(ContactBuffer.infoname, U("Jürgen Weiß"));

    // A damaged country fails the read at that key: the keys before it are
    // read, the rest of the buffer stays.
    store.put("data/addr00012.b64", Cp1252("[Setting]\r\ninfoid=00077\r\ninfoname=Hélène\r\ncountry=\r\ntel1=99\r\n"));
    EXPECT_FALSE(ReadContactWithId("00012"));
    EXPECT_EQ(ContactBuffer.infoid + "|" + ContactBuffer.infoname + "|" + ContactBuffer.tel1, U("00077|Hélène|+49 30 1"));

    ClearContactBuffer();  // the summary reads its five keys only
    ASSERT_TRUE(ReadContactSummary(DataFolder(), "00011"));
    EXPECT_EQ(ContactBuffer.designation + "|" + ContactBuffer.tel1, U("Geschäftsführer|"));
}

TEST_F(HandStore, EncodingTrimsSpacesJoinsLinesAndDoublesQuotes) {
    EXPECT_EQ(EncodeFieldText("  Line 1\r\nLine \"2\"  "), "Line 1<NextLine>Line \"\"2\"\"");
    EXPECT_EQ(EncodeFieldText("\ttab\ta\nb"), "\ttab\ta\nb");  // only spaces, only CR LF
    EXPECT_EQ(RecordTextFromForm("00042", Form(" O'Neil \"Jr\" ", "Norway", 7, "00001")),
              RecordBytes({"00042", "O'Neil \"\"Jr\"\"", "7", "00001"}));
}

TEST_F(HandStore, NameLinesSplitAtQuoteCommaQuote) {
    const NameLine a = SplitNameLine(U("\"00012\",\"Hélène, \"Lili\" Roux\""));
    EXPECT_EQ(a.id + "|" + a.name, U("00012|Hélène, Lili Roux"));
    const NameLine b = SplitNameLine("\"00013\",\"A\",\"B\"");
    EXPECT_EQ(b.id + "|" + b.name, "00013|");
}

TEST_F(HandStore, StreamingRoutinesKeepOtherLinesAsTheyRead) {
    ASSERT_TRUE(StageIndexFiles());
    // The name with a double quote is cut short by formatted reading.
    ASSERT_TRUE(ReplaceNameLine("00013", U("Straße 2"), NameReplace::OnlyReplace));
    EXPECT_EQ(staged("name"), Cp1252("\"00011\",\"Jürgen Weiß\"\r\n\"00012\",\"Hélène, \"\r\n\"00013\",\"Straße 2\"\r\n"));
    ASSERT_TRUE(ReplaceCatLine("00012", U("Österreich"), "00002"));
    EXPECT_EQ(staged("cat"), Cp1252("\"Deutschland\",\"00002\",\"00011\"\r\n\"Österreich\",\"00002\",\"00012\"\r\n"
                                    "\"Deutschland\",\"00001\",\"00013\"\r\n"));
    // The edit dialog's copy writes the category id where the contact id stood.
    ASSERT_TRUE(ReplaceCtyLine("00012", U("Österreich"), "00002", CtyReplace::CategoryIdInPlaceOfContact));
    EXPECT_EQ(staged("cty"), Cp1252("\"Deutschland\",\"00011\"\r\n\"Österreich\",\"00002\"\r\n\"Deutschland\",\"00013\"\r\n"));
    ASSERT_TRUE(ReplaceNameLine("00099", "Neu", NameReplace::AppendWhenMissing));
    EXPECT_TRUE(staged("name").endsWith("\"00099\",\"Neu\"\r\n"));
    ASSERT_TRUE(RemoveCatLine("00011"));
    EXPECT_EQ(staged("cat"), Cp1252("\"France\",\"00001\",\"00012\"\r\n\"Deutschland\",\"00001\",\"00013\"\r\n"));

    for (const char* index : {"cat.dat", "cty.dat", "name.dat"}) store.put(index, "");
    ASSERT_TRUE(StageIndexFiles());
    EXPECT_TRUE(RemoveCatLine("00011") && staged("cat").isEmpty() && store.exists(store.tempFile("addr_cat.dat")));
}

// Wherever its quotes fall, a plain line is read whole and one that lacks
// its closing quote or its line end is not.
TEST(FormattedReading, APlainLineIsReadWholeWhateverItsFieldsLengths) {
    for (int n = 0; n < 40; ++n) {
        const QByteArray field(n, 'x'), line = "\"" + field + "\",\"00001\",\"" + QByteArray::number(n) + "\"\r\n";
        const QByteArray rows[] = {line + line, line.chopped(2) + "\n" + line, line.chopped(3) + line};
        for (int r = 0; r < 3; ++r) {
            FieldReader reader(rows[r]);
            QByteArrayView fields[3];
            const bool plain = reader.readPlainLine(fields, 3);
            EXPECT_EQ(plain, r == 0) << n << " " << r;
            if (plain) EXPECT_TRUE(fields[0] == field && fields[2] == QByteArray::number(n) && reader.position() == line.size()) << n;
            else EXPECT_EQ(reader.position(), 0) << n;
        }
    }
}

TEST_F(HandStore, ADamagedLastLineEndsOnlyTheNameRemoval) {
    store.put("name.dat", "\"00011\",\"A\"\r\n\"00012\"\r\n");
    store.put("cat.dat", "\"X\",\"00001\",\"00011\"\r\n\"X\",\"00001\"\r\n");
    ASSERT_TRUE(StageIndexFiles());
    EXPECT_TRUE(RemoveNameLine("00011"));
    EXPECT_EQ(staged("name"), "");
    // The other routines fail on it and keep their file numbers taken: every
    // later routine that opens them fails too.
    EXPECT_FALSE(RemoveCatLine("00011"));
    EXPECT_TRUE(FileNumberInUse(1));
    EXPECT_FALSE(AppendCtyLine("00050", "X"));
    ReleaseFileNumbersForTest();
    EXPECT_TRUE(RemoveCtyLine("00011"));
}

TEST_F(HandStore, AnEditRepairsAMissingNameLineAndLeavesCtyDatOneLineLongerAfterARemoval) {
    store.put("name.dat", Cp1252("\"00012\",\"Hélène\"\r\n\"00013\",\"Straße\"\r\n"));
    ASSERT_TRUE(SaveEditedContact(Form(" Jürgen Weiß ", "Deutschland", 80, "00001"), "00011", true));
    EXPECT_EQ(store.file("name.dat"), Cp1252("\"00012\",\"Hélène\"\r\n\"00013\",\"Straße\"\r\n\"00011\",\"Jürgen Weiß\"\r\n"));
    EXPECT_EQ(store.file("cty.dat"), Cp1252("\"Deutschland\",\"00001\"\r\n\"France\",\"00012\"\r\n\"Deutschland\",\"00013\"\r\n"));
    ASSERT_TRUE(RemoveContactFiles("00011"));
    DiscardStagedFiles("00011");
    EXPECT_EQ(QList<qsizetype>({store.file("cat.dat").count("\r\n"), store.file("name.dat").count("\r\n"),
                                store.file("cty.dat").count("\r\n")}), QList<qsizetype>({2, 2, 3}));
}

TEST_F(HandStore, IdsComeUnseededAndSkipTakenNumbers) {
    const int first = GenID();  // the same sequence at every start
    const QString taken = "data/addr" + IdText(first) + ".b64";
    store.put(taken, "[Setting]\r\n");
    ResetRandomForTest();
    EXPECT_NE(GenID(), first);  // a taken number costs one more draw
    EXPECT_EQ(IdText(42) + IdText(32766), "0004232766");
}

TEST_F(HandStore, TheBatchWritesOfTheMainWindow) {
    // The delete walk's step: the record rewritten, then removed; nothing of
    // the contact stays in the staging area once the walk clears it.
    ASSERT_TRUE(DeleteContactFiles("00011"));
    DiscardStagedFiles("00011");
    EXPECT_EQ(store.file("cat.dat"), Cp1252("\"France\",\"00001\",\"00012\"\r\n\"Deutschland\",\"00001\",\"00013\"\r\n"));
    EXPECT_FALSE(store.exists(store.appFile("data/addr00011.b64")));
    EXPECT_EQ(store.tempFiles(), QStringList());
    // A record that can't be deleted carries the run time's "File not found".
    FailFileOperationOn("kill " + store.appFile("data/addr00012.b64"));
    const StoreResult failed = DeleteContactFiles("00012");
    EXPECT_EQ(failed.error() == StoreError::Failed && !failed ? failed.runtimeError() : -1, 53);

    // A copy keeps the filter's country index in its record; its index lines
    // take the country picked, and name.dat the name as the record holds it.
    store.putRecord({"00013", "Straße \"\"S\"\"", "80", "00001"});
    ContactId copy;
    ASSERT_TRUE(CopyContactFiles("00013", "00002", U("Österreich"), 12, &copy));
    DiscardStagedFiles(copy);
    EXPECT_EQ(store.file("data/addr" + copy + ".b64"), RecordBytes({copy, "Straße \"\"S\"\"", "12", "00002"}));
    EXPECT_TRUE(store.file("cat.dat").endsWith(Cp1252("\"Österreich\",\"00002\",\"") + copy.toLatin1() + "\"\r\n"));
    EXPECT_TRUE(store.file("name.dat").endsWith("\"" + copy.toLatin1() + Cp1252("\",\"Straße \"\"S\"\"\"\r\n")));

    // A move keeps the id, rewrites the country and the category, and only
    // replaces a name line that is there.
    ASSERT_TRUE(MoveContactFiles("00013", "00002", "Norge", 7));
    DiscardStagedFiles("00013");
    EXPECT_EQ(store.file("data/addr00013.b64"), RecordBytes({"00013", "Straße \"\"S\"\"", "7", "00002"}));
    EXPECT_TRUE(store.file("cat.dat").contains("\"Norge\",\"00002\",\"00013\"\r\n"));
}
