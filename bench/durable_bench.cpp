// What lasting writes cost: a new-contact save (the median of 20) and a
// delete of 500 contacts, in a store of 2,000, with the flushes on, beside
// the same with the flushes off (the writes as they were before), in one run. On tmpfs, and on the
// drive TANDRY_SCRATCH_DRIVE names (`make bench` runs this on a FAT image);
// the staging area lies on tmpfs, as the local disk would.
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include "app/core/inifile.h"
#include "benchfiles.h"
#include "benchtable.h"
#include "platform/core/appfolder.h"
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"

namespace {
constexpr int kContacts = 2000, kDeleted = 500, kSaves = 20;

void MakeStore(const QString& app) {
    QDir().mkpath(app + "/data");
    std::string cat, cty, name;
    for (int i = 1; i <= kContacts; ++i) {
        const std::string id = IdText(i).toStdString();
        cat += "\"Norway\",\"00001\",\"" + id + "\"\r\n";
        cty += "\"Norway\",\"" + id + "\"\r\n";
        name += "\"" + id + "\",\"Contact " + id + "\"\r\n";
        WriteFile(app + "/data/addr" + QString::fromStdString(id) + ".b64",
                  "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact " + id + "\r\ncountry=3\r\ncategory=00001\r\n");
    }
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", cty);
    WriteFile(app + "/name.dat", name);
    EnsureStoreFiles();
}

struct Cost {
    double save, deletion;  // ms
};

Cost Measure(const QString& drive, bool flush) {
    QTemporaryDir app(drive + "/bench-XXXXXX"), staging(QDir::tempPath() + "/bench-XXXXXX");
    SetAppPathForTest(app.path());
    SetVellumarkFolderForTest(staging.path() + "/Vellumark");
    EnsureTempArea();
    MakeStore(app.path());
    SetFlushingForBench(flush);
    ContactForm form;
    form.name = "Benchmark Person";
    form.countryText = "Norway";
    form.categoryId = "00001";
    std::vector<double> saves;
    for (int i = 0; i < kSaves; ++i) {
        const auto start = BenchClock::now();
        SaveNewContact(form);
        saves.push_back(MillisSince(start));
    }
    std::sort(saves.begin(), saves.end());
    const auto start = BenchClock::now();
    for (int i = 1; i <= kDeleted; ++i) DeleteContactFiles(IdText(i));
    const Cost cost{saves[saves.size() / 2], MillisSince(start)};
    SetFlushingForBench(true);
    return cost;
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (QDir("/dev/shm").exists()) qputenv("TMPDIR", "/dev/shm");
    QList<std::pair<std::string, QString>> drives = {{"tmpfs", QDir::tempPath()}};
    if (!qEnvironmentVariable("TANDRY_SCRATCH_DRIVE").isEmpty())
        drives.append({"FAT", qEnvironmentVariable("TANDRY_SCRATCH_DRIVE")});
    if (WantsHeader(argc, argv)) PrintTableHeader();
    for (const auto& [label, folder] : drives) {
        const Cost before = Measure(folder, false), after = Measure(folder, true);
        PrintTableRow("new contact, flushed against not (" + label + ")", kContacts, {after.save, before.save});
        PrintTableRow("delete of 500, flushed against not (" + label + ")", kContacts, {after.deletion, before.deletion});
    }
    return 0;
}
