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
    struct stat st;
    ASSERT_EQ(::stat(QFile::encodeName(VellumarkFolder()).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0700u);
    ASSERT_EQ(::stat(QFile::encodeName(TempArea()).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0700u);

    // A link planted under a staging name: copying over it fails, and the
    // file it points to is untouched.
    const QString victim = store.appFile("victim.txt");
    store.write(victim, "keep me");
    store.write(store.appFile("cat.dat"), "\"N\",\"00001\",\"00002\"\r\n");
    ASSERT_TRUE(QFile::link(victim, TempFile("addr_cat.tmp")));
    EXPECT_FALSE(CopyFile(store.appFile("cat.dat"), TempFile("addr_cat.tmp")));
    OutputFile out;
    EXPECT_FALSE(out.openForAppend(TempFile("addr_cat.tmp")));
    QByteArray bytes;
    EXPECT_FALSE(ReadWholeFile(TempFile("addr_cat.tmp"), bytes));
    EXPECT_EQ(store.read(victim), "keep me");
    EXPECT_FALSE(FileExists(TempFile("nothing")));
    EXPECT_FALSE(FileExists(TempArea()));  // a folder is no file

    // A staging folder that is a link is not used.
    ScratchStore other;
    QDir().mkpath(other.app() + "/elsewhere");
    QDir().mkpath(QFileInfo(other.temp()).absolutePath());
    ASSERT_TRUE(QFile::link(other.app() + "/elsewhere", other.temp()));
    EXPECT_FALSE(EnsureTempArea());
}

TEST(FileOps, MovesFailOntoAFileAndCrossFileSystemsAsCopyAndDelete) {
    ScratchStore store;
    store.write(store.appFile("a"), "A");
    store.write(store.appFile("b"), "B");
    EXPECT_FALSE(MoveFile(store.appFile("a"), store.appFile("b")));
    EXPECT_EQ(store.read(store.appFile("b")), "B");
    EXPECT_TRUE(MoveFile(store.appFile("a"), store.appFile("c")));
    EXPECT_FALSE(store.exists(store.appFile("a")));

    struct stat here, shm;
    if (::stat("/dev/shm", &shm) != 0 || ::stat(QFile::encodeName(store.app()).constData(), &here) != 0 ||
        here.st_dev == shm.st_dev)
        GTEST_SKIP() << "no second file system at hand";
    const QString other = QString("/dev/shm/tandry-move-%1").arg(::getpid());
    store.write(other, "across");
    EXPECT_TRUE(MoveFile(other, store.appFile("d")));
    EXPECT_EQ(store.read(store.appFile("d")), "across");
    EXPECT_FALSE(QFile::exists(other));
}

TEST(FileOps, TheKthOperationFailsAndIsNamed) {
    ScratchStore store;
    store.write(store.appFile("x"), "1");
    FailFileOperationAt(2);
    EXPECT_TRUE(FileExists(store.appFile("x")));
    EXPECT_FALSE(CopyFile(store.appFile("x"), store.appFile("y")));
    EXPECT_EQ(FailedFileOperation(), "copy " + store.appFile("y"));
    EXPECT_FALSE(store.exists(store.appFile("y")));
    EXPECT_TRUE(CopyFile(store.appFile("x"), store.appFile("y")));
    EXPECT_EQ(FileOperationCount(), 3);
    FailFileOperationAt(0);
}
