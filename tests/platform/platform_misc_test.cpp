// The prior-instance claim, the drive's mount point, the system's version and
// the administrator test.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/utsname.h>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include "platform/core/drive.h"
#include "platform/core/instance.h"
#include "platform/core/sysinfo.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(Instance, ASecondClaimOfOneNameIsRefusedWhileTheFirstIsHeld) {
    const QString base = "tandry-test-" + QString::number(::getpid());
    SetInstanceNameForTest(base + "-claim");
    EXPECT_FALSE(PrevInstance());
    EXPECT_TRUE(PrevInstance());
    ReleaseInstanceClaim();
    EXPECT_FALSE(PrevInstance());
    SetInstanceNameForTest(base + "-other");  // another name is another program
    EXPECT_FALSE(PrevInstance());
    ReleaseInstanceClaim();
    SetInstanceNameForTest(QString());
}

// Anyone can bind an abstract name first: a holder of another user is
// passed over by its credentials; one of this user counts on any name, and
// its claim goes with its process.
TEST(Instance, OnlyAHolderOfThisUserCountsAndItsDeathReleasesTheClaim) {
    if (::getuid() != 0) GTEST_SKIP() << "a holder of another user needs root";
    SetInstanceNameForTest("tandry-test-" + QString::number(::getpid()) + "-holder");
    for (const uid_t holder : {uid_t(65534), ::getuid()}) {
        int ready[2];
        ASSERT_EQ(::pipe(ready), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            if (::setuid(holder) != 0 || PrevInstance() || ::write(ready[1], "x", 1) != 1) ::_exit(1);
            ::pause();
        }
        char c;
        ASSERT_EQ(::read(ready[0], &c, 1), 1);
        const bool other = holder != ::getuid();
        EXPECT_EQ(PrevInstance(), !other);
        if (other) EXPECT_TRUE(PrevInstance());  // our own claim, on the next name
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ReleaseInstanceClaim();
        EXPECT_FALSE(PrevInstance());
        ReleaseInstanceClaim();
        ::close(ready[0]), ::close(ready[1]);
    }
    SetInstanceNameForTest(QString());
}

TEST(Drive, OwnerInfoLiesAtTheTopOfTheApplicationFoldersFileSystem) {
    ScratchStore store;
    ASSERT_TRUE(QFile::link("/proc/self", store.appFile("link")));
    EXPECT_EQ(MountPointOf(store.appFile("link")), "/proc");  // links resolved
    EXPECT_EQ(MountPointOf("/proc/no/such/file"), "/proc");
    EXPECT_EQ(OwnerInfoPath("/proc/self") + " " + OwnerInfoPath("/"), "/proc/Program/Bin/OwnerInfo.ini /Program/Bin/OwnerInfo.ini");
}

TEST(SysInfo, SkinsBelongToMajorVersionFiveAndTheKernelIsReadAsItRuns) {
    EXPECT_EQ(QList<int>({OsVersionCode(5, 1, true), OsVersionCode(5, 0, false), OsVersionCode(6, 1, false)}), QList<int>({-1, 0, 7}));
    OsVersionInfo info;
    ASSERT_TRUE(GetOsVersion(info));
    struct utsname name;
    ASSERT_EQ(::uname(&name), 0);
    EXPECT_TRUE(QString(name.release).startsWith(QString("%1.%2").arg(info.major).arg(info.minor))) << name.release;
}

TEST(SysInfo, TheAdministratorTestIsWhetherTheStagingAreaCanBeWritten) {
    {
        ScratchStore store;
        EXPECT_TRUE(IsNTAdmin());
        EXPECT_EQ(store.tempFiles(), QStringList());  // the probe is gone
    }
    ScratchStore store;  // a file stands where the staging folder should
    ASSERT_TRUE(QDir().mkpath(QFileInfo(store.temp()).path()));
    store.write(store.temp(), "x");
    EXPECT_FALSE(IsNTAdmin());
    EXPECT_EQ(store.read(store.temp()), "x");
}
