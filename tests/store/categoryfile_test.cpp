// category.dat changed by the category dialogs' chains, on a list written by
// hand in Windows-1252: names with é, a comma, a "(", and two that differ
// only in case. Byte for byte after each change, and with a fault at every
// file operation of an add, a rename and a deletion.
#include <gtest/gtest.h>

#include <QFile>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
const char* const kList = "\"00001\",\"Main\"\r\n\"00004\",\"North,South\"\r\n\"00009\",\"Work (old)\"\r\n"
                          "\"00012\",\"Privé\"\r\n\"00020\",\"PRIVÉ\"\r\n";
// A rewrite reads every line by comma reading: North,South comes back cut.
const char* const kRewritten = "\"00001\",\"Main\"\r\n\"00004\",\"Nort\"\r\n";

// The chain and the dialog's clean-up; category.dat after it, where %1 is
// the list as laid and %2 its rewritten first lines. 23118 and 17479 are the
// first two ids the unseeded generator draws.
struct Change {
    const char* name;
    void (*run)();
    const char* expected;
};
const Change kChanges[] = {
    {"add", [] { AddCategoryLine(U("Ny é")), CategoryCleanup(); }, "%1\"23118\",\"Ny é\"\r\n"},
    {"rename", [] { RenameCategoryLine("00009", "Hjem"), CategoryCleanup(); },
     "%2\"00009\",\"Hjem\"\r\n\"00012\",\"Privé\"\r\n\"00020\",\"PRIVÉ\"\r\n"},
    {"delete", [] { RemoveCategoryLine("00012"), CategoryCleanup(); }, "%2\"00009\",\"Work (old)\"\r\n\"00020\",\"PRIVÉ\"\r\n"},
    // privé stands already; the element after the last CR LF is visited too
    // and adds a category without a name.
    {"AddCatMSO", [] { AddCategories(U("privé\r\n Nord \r\n")); }, "%1\"23118\",\"Nord\"\r\n\"17479\",\"\"\r\n"},
};

class CategoryChange : public ::testing::TestWithParam<Change> {
protected:
    ScratchStore store;
    const QString live = store.appFile("category.dat"), staged = store.tempFile("addr_addcategory.dat"),
                  backup = store.tempFile("addr_category.tmp");
    void lay() const {
        EnsureTempArea();
        for (const QString& name : store.tempFiles()) QFile::remove(store.tempFile(name));
        store.put("category.dat", Cp1252(kList));
        store.write(store.tempFile("addr_category.dat"), Cp1252(kList));  // the window's snapshot
        ResetRandomForTest();
    }
    QByteArray expected() const {
        return Cp1252(qPrintable(U(GetParam().expected).replace("%1", U(kList)).replace("%2", U(kRewritten))));
    }
};
}  // namespace

// category.dat is the old list or the new one, never half written. It is
// missing only where the order of the change puts a gap: after its delete, when the
// rename onto it fails; EnsureStoreFiles then makes it anew with "Main". A
// staged addr_addcategory.dat stays after a failure between its making and
// the install, which deletes it on its own failure; the backup stays only
// when the clean-up's own test or delete fails (the dialog runs it twice).
// AddCatMSO, several adds in a row, runs without faults.
TEST_P(CategoryChange, ByteForByteAndUnderAFaultAtEveryFileOperation) {
    lay();
    SetFileOperationLogging(true);
    ClearFileOperationLog();
    GetParam().run();
    const QStringList trace = FileOperationTrace();
    SetFileOperationLogging(false);
    EXPECT_EQ(store.file("category.dat"), expected());
    // A deletion writes into the snapshot and renames it onto category.dat.
    EXPECT_EQ(store.tempFiles(), QString(GetParam().name) == "delete" ? QStringList() : QStringList{"addr_category.dat"});
    if (QString(GetParam().name) == "AddCatMSO") return;
    const qsizetype install = trace.indexOf("kill " + live), cleanup = trace.lastIndexOf("exists " + backup);
    int olds = 0, news = 0;
    for (int k = 1; k <= trace.size(); ++k) {
        lay();
        FailFileOperationAt(k);
        GetParam().run();
        FailFileOperationAt(0);
        const QString failed = trace[k - 1];
        SCOPED_TRACE(failed.toStdString());
        const bool missing = !store.exists(live), old = store.file("category.dat") == Cp1252(kList);
        EXPECT_EQ(missing, failed == "move " + live);
        EXPECT_TRUE(missing || old || store.file("category.dat") == expected());
        olds += old;
        news += !old && !missing;
        const QStringList before = trace.mid(0, k - 1);
        EXPECT_EQ(store.exists(staged), (before.contains("output " + staged) || before.contains("move " + staged)) && k - 1 < install);
        EXPECT_EQ(store.exists(backup), trace.last() == "kill " + backup && k - 1 >= cleanup);
    }
    EXPECT_GT(olds, 2);
    EXPECT_GT(news, 2);
}

INSTANTIATE_TEST_SUITE_P(Changes, CategoryChange, ::testing::ValuesIn(kChanges),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(CategoryNames, CompareWithoutCaseOnTheLinesTheWholeFileRuleSees) {
    ScratchStore store;
    store.put("category.dat", Cp1252("\"00004\",\"North,South\"\r\n\"00012\",\"Privé\"\r\n\"00020\",\"Last\""));
    // The name as read is cut at its comma; a last line without CR LF isn't seen.
    EXPECT_EQ(QList<bool>({CategoryNameExists(U("PRIVÉ")), CategoryNameExists("nort"), CategoryNameExists("North,South"),
                           CategoryNameExists("Last"), CategoryIdExists("00012"), CategoryIdExists("12")}),
              QList<bool>({true, true, false, false, true, false}));
    ResetRandomForTest();  // the first draw's id in use: the next one is taken
    store.put("category.dat", "\"23118\",\"A\"\r\n");
    EXPECT_EQ(NewCategoryId(), 17479);
}
