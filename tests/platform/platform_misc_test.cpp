// The prior-instance claim, the drive's mount point and the administrator test.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
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
    SetInstanceNameForTest(QString());
}

TEST(Drive, OwnerInfoLiesAtTheTopOfTheApplicationFoldersFileSystem) {
    ScratchStore store;
    ASSERT_TRUE(QFile::link("/proc/self", store.appFile("link")));
    EXPECT_EQ(MountPointOf(store.appFile("link")), "/proc");  // links resolved
    EXPECT_EQ(MountPointOf("/proc/no/such/file"), "/proc");
    EXPECT_EQ(OwnerInfoPath("/proc/self") + " " + OwnerInfoPath("/"), "/proc/Program/Bin/OwnerInfo.ini /Program/Bin/OwnerInfo.ini");
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
