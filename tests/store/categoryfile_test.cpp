// category.dat changed by the category dialogs' chains, on a list written by
// hand in Windows-1252: names with é, a comma, a "(", and two that differ
// only in case. Byte for byte after each change, and with a fault at every
// file operation of an add, a rename and a deletion.
#include <gtest/gtest.h>

#include <QFile>
#include <functional>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
const char* const kList = "\"00001\",\"Main\"\r\n\"00004\",\"North,South\"\r\n\"00009\",\"Work (old)\"\r\n"
                          "\"00012\",\"Privé\"\r\n\"00020\",\"PRIVÉ\"\r\n";
// Each rewrite reads every line by comma reading: North,South comes back cut.
const char* const kRewritten = "\"00001\",\"Main\"\r\n\"00004\",\"Nort\"\r\n";

struct Change {
    const char* name;
    std::function<void()> run;  // the chain and the dialog's clean-up
    const char* expected;       // category.dat after it, UTF-8
};

// The first two ids the unseeded generator draws.
const Change kChanges[] = {
    {"add", [] { AddCategoryLine(U("Ny é")), CategoryCleanup(); },
     "%1\"23118\",\"Ny é\"\r\n"},
    {"rename", [] { RenameCategoryLine("00009", "Hjem"), CategoryCleanup(); },
     "%2\"00009\",\"Hjem\"\r\n\"00012\",\"Privé\"\r\n\"00020\",\"PRIVÉ\"\r\n"},
    {"delete", [] { RemoveCategoryLine("00012"), CategoryCleanup(); },
     "%2\"00009\",\"Work (old)\"\r\n\"00020\",\"PRIVÉ\"\r\n"},
    // privé stands already; the element after the last CR LF is visited too
    // and adds a category without a name.
    {"AddCatMSO", [] { AddCategories(U("privé\r\n Nord \r\n")); },
     "%1\"23118\",\"Nord\"\r\n\"17479\",\"\"\r\n"},
};

class CategoryChange : public ::testing::TestWithParam<Change> {
protected:
    ScratchStore store;
    void lay() const {
        EnsureTempArea();
        for (const QString& name : store.tempFiles()) QFile::remove(store.tempFile(name));
        store.put("category.dat", Cp1252(kList));
        store.put("cat.dat", "");
        store.write(store.tempFile("addr_category.dat"), Cp1252(kList));  // the window's snapshot
        ResetRandomForTest();
    }
    QByteArray expected() const {
        return Cp1252(qPrintable(U(GetParam().expected).replace("%1", U(kList)).replace("%2", U(kRewritten))));
    }
};
}  // namespace

TEST_P(CategoryChange, ChangedByteForByteWithTheStagingAreaLeftEmpty) {
    lay();
    GetParam().run();
    EXPECT_EQ(store.file("category.dat"), expected());
    // A deletion writes into the snapshot and renames it onto category.dat.
    EXPECT_EQ(store.tempFiles(), QString(GetParam().name) == "delete" ? QStringList() : QStringList{"addr_category.dat"});
}

// category.dat is the old list or the new one, never half written. It is
// missing only where the Part's order puts a gap: after its delete, when the
// rename onto it fails; EnsureStoreFiles then makes it anew with "Main". A
// staged addr_addcategory.dat stays after a failure between its making and
// the install, which deletes it on its own failure; the backup stays only
// when the clean-up's own test or delete fails (the dialog runs it twice).
// The fault sweep runs on the add, the rename and the deletion.
class CategoryFault : public CategoryChange {};

TEST_P(CategoryFault, AFaultAtEveryFileOperationLeavesTheOldListOrTheNew) {
    lay();
    SetFileOperationLogging(true);
    ClearFileOperationLog();
    FailFileOperationAt(0);
    GetParam().run();
    const QStringList trace = FileOperationTrace();
    SetFileOperationLogging(false);
    ASSERT_GT(trace.size(), 8);
    const QString live = store.appFile("category.dat"), staged = store.tempFile("addr_addcategory.dat");
    const QString backup = store.tempFile("addr_category.tmp");
    const qsizetype install = trace.indexOf("kill " + live), cleanup = trace.lastIndexOf("exists " + backup);
    const bool backupToClean = trace.last() == "kill " + backup;
    int olds = 0, news = 0;
    for (int k = 1; k <= trace.size(); ++k) {
        lay();
        FailFileOperationAt(k);
        GetParam().run();
        FailFileOperationAt(0);
        const QString failed = trace[k - 1];
        SCOPED_TRACE(failed.toStdString());
        const bool missing = !store.exists(live);
        EXPECT_EQ(missing, failed == "move " + live);
        const bool old = store.file("category.dat") == Cp1252(kList);
        EXPECT_TRUE(missing || old || store.file("category.dat") == expected());
        olds += old;
        news += !old && !missing;
        const bool made = trace.mid(0, k - 1).contains("output " + staged) || trace.mid(0, k - 1).contains("move " + staged);
        EXPECT_EQ(store.exists(staged), made && k - 1 < install);
        EXPECT_EQ(store.exists(backup), backupToClean && k - 1 >= cleanup);
    }
    EXPECT_GT(olds, 2);
    EXPECT_GT(news, 2);
}

INSTANTIATE_TEST_SUITE_P(Changes, CategoryChange, ::testing::ValuesIn(kChanges),
                         [](const auto& info) { return std::string(info.param.name); });
INSTANTIATE_TEST_SUITE_P(Changes, CategoryFault, ::testing::ValuesIn(kChanges, kChanges + 3),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(CategoryNames, CompareWithoutCaseOnTheLinesTheWholeFileRuleSees) {
    ScratchStore store;
    store.put("category.dat", Cp1252("\"00004\",\"North,South\"\r\n\"00012\",\"Privé\"\r\n\"00020\",\"Last\""));
    EXPECT_TRUE(CategoryNameExists(U("PRIVÉ")));
    EXPECT_TRUE(CategoryNameExists("nort"));  // the name as read, cut at its comma
    EXPECT_FALSE(CategoryNameExists("North,South"));
    EXPECT_FALSE(CategoryNameExists("Last"));  // no CR LF: not seen
    EXPECT_TRUE(CategoryIdExists("00012"));
    EXPECT_FALSE(CategoryIdExists("12"));
    // The first draw's id in use: the next one is taken.
    ResetRandomForTest();
    store.put("category.dat", "\"23118\",\"A\"\r\n");
    EXPECT_EQ(NewCategoryId(), 17479);
}
