// On a FAT drive (the fat_drive test runs these on a FAT image): names that
// differ only in case are one file, and the id generator does not see a
// record that is read-only or hidden, as on the Windows drive.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include "app/core/inifile.h"
#include "platform/core/appfolder.h"
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

static bool OnFat() { return !ScratchDrive().isEmpty(); }
const char* const kWhere = "runs on a FAT image: ctest -R fat_drive";

TEST(FatDrive, NamesDifferingOnlyInCaseAreOneFile) {
    if (!OnFat()) GTEST_SKIP() << kWhere;
    ScratchStore store;
    ASSERT_TRUE(EnsureStoreFiles());
    // The skin menu writes Setting.ini, every other reader setting.ini.
    ASSERT_TRUE(PutIniValue("Skin", "SkinFile", "Skins\\blue.skf", AppFile("Setting.ini")));
    EXPECT_EQ(GetIniValue("Skin", "SkinFile", "", SettingFile()), "Skins\\blue.skf");
    EXPECT_TRUE(FileExists(AppFile("CAT.DAT")));
    EXPECT_EQ(QDir(store.app()).entryList(QDir::Files).filter("setting.ini", Qt::CaseInsensitive).size(), 1);
}

TEST(FatDrive, TheIdGeneratorDoesNotSeeAReadOnlyOrHiddenRecord) {
    if (!OnFat()) GTEST_SKIP() << kWhere;
    const struct { const char* kind; bool seen; } rows[] = {{"normal", true}, {"read-only", false}, {"hidden", false}};
    for (const auto& row : rows) {
        ScratchStore store;
        QDir().mkpath(store.appFile("data"));
        ResetRandomForTest();
        const ContactId first = IdText(GenID());
        store.putRecord({first, "Ola"});
        const QByteArray path = QFile::encodeName(store.appFile("data/addr" + first + ".b64"));
        const int fd = ::open(path.constData(), O_RDONLY);
        __u32 hidden = ATTR_HIDDEN;
        const bool set = row.kind == QByteArray("normal") ||
                         (row.kind == QByteArray("read-only") ? ::chmod(path.constData(), 0444) == 0
                                                              : ::ioctl(fd, FAT_IOCTL_SET_ATTRIBUTES, &hidden) == 0);
        ::close(fd);
        if (!set) {
            std::printf("[ skipped  ] %s: %s can't set the attribute\n", row.kind, qPrintable(qEnvironmentVariable("TANDRY_FAT_MOUNT")));
            continue;
        }
        ResetRandomForTest();
        EXPECT_EQ(IdText(GenID()) == first, !row.seen) << row.kind;
    }
}
