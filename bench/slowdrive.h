#pragma once
// A refill of the list after one save, on a drive that answers slowly: the
// file seam waits 2 ms before every open of a file, the floor (the copy of
// the snapshots and the list floor, every record of the category read)
// waits as long before each of its own. And the number of files the refill
// opens, counted by the file seam and, as a cross-check, by strace -c.
#include <QFile>
#include <QProcess>
#include "platform/core/fileops.h"
#include "roadstore.h"

constexpr int kSlowOpenMicros = 2000;

// The list's refill as every dialog runs it after a save, the tree aside.
inline void RefillList(FrmMain& w) {
    w.CopyAddrFile();
    ClearContactBuffer();
    w.RefreshListView1(w.strCountry, w.strNodeKey);
}

// The files a refill opens, counted by the file seam: opens and existence look-ups.
struct SeamCount {
    int opens = 0, lookUps = 0;
};
inline SeamCount CountRefill(FrmMain& w) {
    SetFileOperationLogging(true);
    ClearFileOperationLog();
    RefillList(w);
    SetFileOperationLogging(false);
    SeamCount count;
    for (const QString& operation : FileOperationTrace()) {
        const QString kind = operation.section(' ', 0, 0);
        if (kind == "exists") ++count.lookUps;
        else if (kind == "copy") count.opens += 2;  // the source and the target
        else if (QStringList{"read", "write", "output", "append", "binary", "replace", "private"}.contains(kind))
            ++count.opens;
    }
    ClearFileOperationLog();
    return count;
}

// The child that, under strace, opens the window, saves one contact, and
// refills the list `refills` times.
inline int RefillOpens(const QString& app, const QString& vellumark, int refills) {
    OpenProgramOn(app, vellumark);
    std::unique_ptr<FrmMain> w = OpenMainWindow();
    StoreModel unused;
    SaveInList(unused);
    for (int i = 0; i < refills; ++i) RefillList(*w);
    std::_Exit(0);
}

// The openat calls of a child that refills `refills` times, by strace -c; -1
// when strace can't run here. The store is put back as it was after, so
// that two children start from the same store.
inline long StraceOpens(const QString& app, const QString& vellumark, int refills) {
    const std::string folder = app.toStdString();
    const QStringList records = QDir(app + "/data").entryList(QDir::Files);
    std::string indexes[3];
    for (int k = 0; k < 3; ++k) indexes[k] = ReadFile(folder + "/" + kIndexNames[k] + ".dat");
    QProcess strace;
    strace.start("strace", {"-f", "-c", "-e", "trace=open,openat", QCoreApplication::applicationFilePath(),
                            "refill-opens", app, vellumark, QString::number(refills)});
    const bool ran = strace.waitForFinished(300000) && strace.exitCode() == 0;
    for (int k = 0; k < 3; ++k) WriteFile(folder + "/" + kIndexNames[k] + ".dat", indexes[k]);
    for (const QString& record : QDir(app + "/data").entryList(QDir::Files))
        if (!records.contains(record)) QFile::remove(app + "/data/" + record);
    if (!ran) return -1;
    long calls = 0;
    for (const QByteArray& line : strace.readAllStandardError().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= 5 && (fields.last() == "openat" || fields.last() == "open")) calls += fields[3].toLong();
    }
    return calls;
}

inline int SlowDrive(bool header, int runs) {
    WindowOnStore b(30000);
    FrmMain& w = b.w();
    if (header) PrintTableHeader();
    PrintTableRow("list refill after a save, 2 ms an open", b.contacts,
                  Alternate(runs, 1,
                            [&] {
                                SaveInList(b.s.model);
                                SetOpenDelayForBench(kSlowOpenMicros);
                                const double ms = Millis([&] { RefillList(w); });
                                SetOpenDelayForBench(0);
                                Check(w.ListView1->topLevelItemCount() == b.s.model.inList(), "the slow refill's rows");
                                return ms;
                            },
                            [&] {
                                FloorOpenDelayMicros() = kSlowOpenMicros;
                                int rows = 0;
                                const double ms = Millis([&] {
                                    CopyFloor(b.s.floor);
                                    rows = ListFloor(b.s.floor, kListCountry, kListCategory, b.bare.list);
                                });
                                FloorOpenDelayMicros() = 0;
                                Check(rows == b.s.floorModel.inList(), "the slow floor's rows");
                                return ms;
                            }));
    SaveInList(b.s.model);
    const SeamCount seam = CountRefill(w);
    Check(w.ListView1->topLevelItemCount() == b.s.model.inList(), "the counted refill's rows");
    // A run with the refill less a run without: the same preparation in both.
    const QString childCache = b.s.dir.path() + "/strace-cache/Vellumark";
    const long without = StraceOpens(b.s.app, childCache, 0), with = StraceOpens(b.s.app, childCache, 1);
    std::printf("\nfiles opened by a refill of the list (%d rows) after one save: %d by the file seam (and %d existence look-ups)",
                b.s.model.inList(), seam.opens, seam.lookUps);
    if (without < 0 || with < 0) std::printf("; strace could not run here\n");
    else std::printf("; %ld openat calls by strace -c\n", with - without);
    return 0;
}
