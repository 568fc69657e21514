// The file seam: the staging area's folders, links, moves across file
// systems, and the k-th operation made to fail.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(FileOps, TheStagingAreaIsPrivateAndNoLinkIsFollowed) {
    ScratchStore store;
    ASSERT_TRUE(EnsureTempArea());
    for (const QString& folder : {VellumarkFolder(), TempArea()}) {
        struct stat st;
        ASSERT_EQ(::stat(QFile::encodeName(folder).constData(), &st), 0);
        EXPECT_EQ(st.st_mode & 0777, 0700u);
    }
    // A link planted under a staging name: no copy, append or read goes
    // through it, and the file it points to is untouched.
    store.put("victim.txt", "keep me");
    ASSERT_TRUE(QFile::link(store.appFile("victim.txt"), TempFile("addr_cat.tmp")));
    EXPECT_FALSE(CopyFile(store.appFile("victim.txt"), TempFile("addr_cat.tmp")));
    OutputFile out;
    QByteArray bytes;
    EXPECT_FALSE(out.openForAppend(TempFile("addr_cat.tmp")) || ReadWholeFile(TempFile("addr_cat.tmp"), bytes));
    EXPECT_EQ(store.file("victim.txt"), "keep me");

    // A staging folder that is a link is not used.
    ScratchStore other;
    QDir().mkpath(other.appFile("elsewhere"));
    QDir().mkpath(QFileInfo(other.temp()).absolutePath());
    ASSERT_TRUE(QFile::link(other.appFile("elsewhere"), other.temp()));
    EXPECT_FALSE(EnsureTempArea());
}

TEST(FileOps, AStagingFolderOpenToOthersIsClosedAndOneOfAnotherUserRefused) {
    const struct { uid_t owner; mode_t mode; bool refused; } rows[] = {
        {::getuid(), 0777, false}, {::getuid(), 0705, false}, {65534, 0700, true}};
    for (const auto& row : rows) {
        if (row.owner != ::getuid() && ::getuid() != 0) GTEST_SKIP() << "giving a folder to another user needs root";
        ScratchStore store;
        QDir().mkpath(store.temp());
        for (const QString& folder : {VellumarkFolder(), TempArea()}) {
            ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), row.mode), 0);
            ASSERT_EQ(::chown(QFile::encodeName(folder).constData(), row.owner, row.owner), 0);
        }
        EXPECT_EQ(TempAreaRefused(), row.refused) << row.mode;
        EXPECT_EQ(EnsureTempArea(), !row.refused);
        struct stat st;
        ASSERT_EQ(::stat(QFile::encodeName(TempArea()).constData(), &st), 0);
        EXPECT_EQ(st.st_mode & 0777, row.refused ? row.mode : 0700u);
    }
}

TEST(FileOps, MovesFailOntoAFileAndCrossFileSystemsAsCopyAndDelete) {
    ScratchStore store;
    store.put("a", "A"), store.put("b", "B");
    EXPECT_FALSE(MoveFile(store.appFile("a"), store.appFile("b")));
    EXPECT_EQ(store.file("b"), "B");

    struct stat here, shm;
    if (::stat("/dev/shm", &shm) != 0 || ::stat(QFile::encodeName(store.app()).constData(), &here) != 0 ||
        here.st_dev == shm.st_dev)
        GTEST_SKIP() << "no second file system at hand";
    const QString other = QString("/dev/shm/tandry-move-%1").arg(::getpid());
    store.write(other, "across");
    EXPECT_TRUE(MoveFile(other, store.appFile("d")));
    EXPECT_EQ(store.file("d"), "across");
    EXPECT_FALSE(QFile::exists(other));
}

TEST(FileOps, TheKthOperationOrTheNamedOneFails) {
    ScratchStore store;
    store.put("x", "1");
    FailFileOperationAt(2);
    EXPECT_TRUE(FileExists(store.appFile("x")));
    EXPECT_FALSE(CopyFile(store.appFile("x"), store.appFile("y")));
    EXPECT_EQ(FailedFileOperation(), "copy " + store.appFile("y"));
    EXPECT_FALSE(store.exists(store.appFile("y")));
    EXPECT_TRUE(CopyFile(store.appFile("x"), store.appFile("y")));  // once only

    FailFileOperationOn("exists " + store.appFile("y"));
    EXPECT_FALSE(FileExists(store.appFile("y")));
    EXPECT_TRUE(FileExists(store.appFile("y")));  // only the first of that name
    FailFileOperationAt(0);
}

// A copy gives the target the source's bytes, whatever the source: a large
// file, the target itself, a file of the system's own whose size says
// nothing. A source that can't be opened or read leaves the target alone.
TEST(FileOps, ACopyGivesTheSourcesBytesOrLeavesTheTargetAlone) {
    ScratchStore store;
    QByteArray large;
    for (int i = 0; i < 20000; ++i) large += "\"Norway\",\"00001\",\"" + QByteArray::number(i) + "\"\r\n";
    store.put("large", large), store.put("self", "self"), store.put("kept", "kept");
    const struct { QString source, target; bool ok; QByteArray bytes; } rows[] = {
        {store.appFile("large"), store.appFile("copy"), true, large},
        {store.appFile("self"), store.appFile("self"), true, "self"},
        {store.appFile("missing"), store.appFile("kept"), false, "kept"},
        {store.app(), store.appFile("kept"), false, "kept"},  // a folder
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CopyFile(row.source, row.target), row.ok) << row.source.toStdString();
        EXPECT_EQ(store.file(QFileInfo(row.target).fileName()), row.bytes) << row.source.toStdString();
    }
    ASSERT_TRUE(CopyFile("/proc/self/status", store.appFile("status")));
    EXPECT_TRUE(store.file("status").startsWith("Name:"));
}
