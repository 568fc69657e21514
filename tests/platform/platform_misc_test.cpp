#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QString>
#include <sys/utsname.h>
#include <unistd.h>
#include "platform/core/drive.h"
#include "platform/core/instance.h"
#include "platform/core/sysinfo.h"
#include "support/scratch.h"

TEST(Instance, ASecondClaimIsRefusedWhileTheFirstIsHeld) {
    SetInstanceNameForTest("tandry-test-" + QString::number(::getpid()) + "-claim");
    EXPECT_FALSE(PrevInstance());
    EXPECT_TRUE(PrevInstance());
    ReleaseInstanceClaim();
    EXPECT_FALSE(PrevInstance());

    // Another name is another program.
    SetInstanceNameForTest("tandry-test-" + QString::number(::getpid()) + "-other");
    EXPECT_FALSE(PrevInstance());
    ReleaseInstanceClaim();
    SetInstanceNameForTest(QString());
}

TEST(Drive, MountPointOfAPath) {
    EXPECT_EQ(MountPointOf("/"), "/");
    EXPECT_EQ(MountPointOf("/proc/cpuinfo"), "/proc");
    EXPECT_EQ(MountPointOf("/proc/no/such/file"), "/proc");

    ScratchStore store;
    const QString link = store.appFile("link");
    ASSERT_TRUE(QFile::link("/proc/self", link));
    EXPECT_EQ(MountPointOf(link), "/proc");

    EXPECT_EQ(OwnerInfoPath("/proc/self"), "/proc/Program/Bin/OwnerInfo.ini");
    EXPECT_EQ(OwnerInfoPath("/"), "/Program/Bin/OwnerInfo.ini");
    // The application folder's own mount point, whatever it is here.
    const QString mount = MountPointOf(store.app());
    EXPECT_TRUE(store.app().startsWith(mount == "/" ? mount : mount + "/")) << mount.toStdString();
}

TEST(SysInfo, VersionCodeTable) {
    EXPECT_EQ(OsVersionCode(3, 51, true), 5);
    EXPECT_EQ(OsVersionCode(3, 10, false), 6);
    EXPECT_EQ(OsVersionCode(4, 0, true), 1);
    EXPECT_EQ(OsVersionCode(4, 0, false), 2);
    EXPECT_EQ(OsVersionCode(4, 10, false), 3);
    EXPECT_EQ(OsVersionCode(4, 90, false), 4);
    EXPECT_EQ(OsVersionCode(4, 20, false), 7);
    EXPECT_EQ(OsVersionCode(5, 1, true), -1);
    EXPECT_EQ(OsVersionCode(5, 2, false), -1);
    EXPECT_EQ(OsVersionCode(5, 0, false), 0);
    EXPECT_EQ(OsVersionCode(6, 1, true), 7);
    EXPECT_EQ(OsVersionCode(2, 0, false), 7);

    OsVersionInfo info;
    ASSERT_TRUE(GetOsVersion(info));
    struct utsname name;
    ASSERT_EQ(::uname(&name), 0);
    EXPECT_TRUE(QString::fromLatin1(name.release).startsWith(QString("%1.%2").arg(info.major).arg(info.minor)))
        << name.release;
    EXPECT_EQ(info.code, OsVersionCode(info.major, info.minor, false));
}

TEST(SysInfo, AdministratorTestWritesTheStagingArea) {
    {
        ScratchStore store;
        EXPECT_TRUE(IsNTAdmin());
        EXPECT_TRUE(QFileInfo(store.temp()).isDir());
        EXPECT_EQ(store.tempFiles(), QStringList());
    }
    {
        // The staging area's name is taken by a file: no folder can be made.
        ScratchStore store;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(store.temp()).path()));
        store.write(store.temp(), "x");
        EXPECT_FALSE(IsNTAdmin());
        EXPECT_EQ(store.read(store.temp()), QByteArray("x"));
    }
}
