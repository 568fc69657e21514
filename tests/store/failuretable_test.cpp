// A save, an edit and a removal, with the k-th file operation made to fail,
// for every k along the way: the live store and the staging area must then
// be exactly what the staged write promises for a failure at that point.
#include <gtest/gtest.h>

#include <QDir>
#include <QMap>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
// The four files a write touches, and what the staging area holds.
struct Snapshot {
    QMap<QString, QByteArray> live;  // name -> bytes; a missing file is absent
    QStringList temp;
};

enum class Want { Old, New, Missing };

StoreResult Outcome(StoreResult result) { return result; }
StoreResult Outcome(bool done) { return done ? StoreResult() : StoreResult(StoreError::Failed); }

QString Kind(const QString& op) { return op.section(' ', 0, 0); }
QString Base(const QString& op) { return op.section('/', -1); }
QString Path(const QString& op) { return op.section(' ', 1); }

// An existence test that only decides whether to delete before a copy, an
// output or an append of the same file: "not there" changes nothing.
bool HarmlessExists(const QStringList& trace, int p) {
    if (Kind(trace[p]) != "exists" || p + 1 >= trace.size()) return false;
    const QString next = Kind(trace[p + 1]);
    return (next == "copy" || next == "output" || next == "append") && Path(trace[p + 1]) == Path(trace[p]);
}

// The staged indexes whose output the routines had made before operation p.
QStringList Made(const QStringList& trace, int from, int p, const QString& kind) {
    QStringList made;
    for (int i = from; i < p; ++i)
        if (Kind(trace[i]) == kind && trace[i].endsWith(".dat")) made << Base(trace[i]);
    made.sort();
    return made;
}

class FailureTable : public ::testing::Test {
protected:
    ScratchStore store;
    QString recordName;   // data/addr<id>.b64 of the contact at hand
    QStringList order;    // the commit's order: cat.dat, cty.dat, name.dat, the record
    Snapshot before, after, now;  // the store before and after the whole write, and after the failed one
    StoreResult outcome;  // of the failed write

    void SetUp() override { ReleaseFileNumbersForTest(); }
    void TearDown() override { ReleaseFileNumbersForTest(); }

    void forContact(const QString& id) { order = {"cat.dat", "cty.dat", "name.dat", recordName = "data/addr" + id + ".b64"}; }

    void lay() {
        QDir(store.temp()).removeRecursively();
        QDir(store.appFile("data")).removeRecursively();
        QDir().mkpath(store.appFile("data"));
        EnsureTempArea();
        store.put("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
        store.put("cat.dat", "\"Norway\",\"00001\",\"00010\"\r\n\"Sweden\",\"00002\",\"00020\"\r\n");
        store.put("cty.dat", "\"Norway\",\"00010\"\r\n\"Sweden\",\"00020\"\r\n");
        store.put("name.dat", "\"00010\",\"Ola\"\r\n\"00020\",\"Kari\"\r\n");
        store.putRecord({"00010", "Ola", "3", "00001"});
        store.putRecord({"00020", "Kari", "4", "00002"});
        ResetRandomForTest();
        ReleaseFileNumbersForTest();
    }

    Snapshot snap() const {
        Snapshot s;
        for (const QString& name : order)
            if (store.exists(store.appFile(name))) s.live[name] = store.file(name);
        s.temp = store.tempFiles();
        return s;
    }

    // The write failed and left `live` on the drive, `temp` in the staging area.
    void failed(const QMap<QString, QByteArray>& live, const QStringList& temp) const {
        EXPECT_FALSE(outcome);
        EXPECT_EQ(now.live, live);
        EXPECT_EQ(now.temp, temp);
    }
    // The failed write changed nothing on the drive and left `temp` behind.
    void unchanged(const QStringList& temp) const { failed(before.live, temp); }
    // The operation that failed changed nothing that mattered: the write went through.
    void done() const { EXPECT_TRUE(outcome && now.live == after.live); }

    // A failure at operation p of the commit: the files before the failing
    // one new, those after it old; the failing one old when its delete never
    // happened, missing when the move failed after the delete, new when only
    // the existence test after its move failed. The staged indexes not yet
    // moved wait in the staging area; nothing else stays there. `committed`
    // is what the whole commit puts in place.
    void commitFailure(const QStringList& trace, int p, const Snapshot& committed) const {
        const QString op = trace[p];
        // The record's steps: its staged copy written from the buffer, then moved.
        const int at = Base(op) == Base(recordName) ? 3 : int(order.indexOf(Base(op)));
        QMap<QString, QByteArray> live;
        QStringList waiting;
        for (int i = 0; i < 4; ++i) {
            Want want = i < at ? Want::New : Want::Old;
            if (i == at && Kind(op) == "move") want = Want::Missing;
            if (i == at && Kind(op) == "exists" && Kind(trace[p - 1]) == "move") want = Want::New;
            const Snapshot& from = want == Want::Old ? before : committed;
            if (want != Want::Missing && from.live.contains(order[i])) live[order[i]] = from.live[order[i]];
            if (i >= at && i < 3 && want != Want::New) waiting << "addr_" + order[i];
        }
        failed(live, waiting);
    }

    // Runs `write` once with every operation traced, then once per k with
    // operation k failing, handing each failure's position to `check`.
    template <typename Write, typename Check>
    void sweep(Write write, Check check) {
        lay();
        before = snap();
        SetFileOperationLogging(true);
        ClearFileOperationLog();
        FailFileOperationAt(0);
        ASSERT_TRUE(bool(write()));
        const QStringList trace = FileOperationTrace();
        SetFileOperationLogging(false);
        after = snap();
        ASSERT_GT(trace.size(), 30);
        for (int k = 1; k <= trace.size(); ++k) {
            lay();
            FailFileOperationAt(k);
            outcome = Outcome(write());
            const QString failedOp = FailedFileOperation();
            FailFileOperationAt(0);
            now = snap();
            SCOPED_TRACE(("k=" + QString::number(k) + " " + failedOp).toStdString());
            ASSERT_EQ(failedOp, trace[k - 1]);  // the run is the same up to the failure
            check(trace, k - 1);
        }
    }
};

ContactForm NewForm() {
    ContactForm f;
    f.name = U("  Åse Øvre "), f.tel1 = "+47 22 00 00 00", f.countryIndex = 5, f.countryText = "Norway", f.categoryId = "00002";
    return f;
}
}  // namespace

TEST_F(FailureTable, NewContactLeavesWhatTheTablePromises) {
    lay();
    const QString id = IdText(GenID());  // the first draw of the unseeded generator
    forContact(id);
    const QString staged = store.tempFile("addr" + id + ".b64");
    sweep([&] { return SaveNewContact(NewForm()); }, [&](const QStringList& trace, int p) {
        const QString op = trace[p];
        const int recordWrite = int(trace.indexOf("output " + staged));
        const int check = int(trace.indexOf("exists " + staged, recordWrite + 1));
        const int commit = int(trace.indexOf("exists " + store.appFile("cat.dat"), check + 1));
        ASSERT_TRUE(recordWrite >= 0 && check > recordWrite && commit > check);
        // An append first deletes an old staged index: "not there" changes nothing.
        const bool beforeAppend = Kind(op) == "exists" && op.endsWith(".dat") && Kind(trace[p + 1]) == "append";
        if (p == 0  // the id's test: "not there" draws nothing new
            || (p > recordWrite && p < check && HarmlessExists(trace, p)) || (p > check && p < commit && beforeAppend)
            // a new contact has no live record: "not there" is the truth
            || (p > commit && op == "exists " + store.appFile(recordName) && Kind(trace[p - 1]) != "move")) {
            done();
        } else if (p < recordWrite + 3) {  // writing the staged record
            unchanged({});
        } else if (p < check) {
            // A failed staging deletes the work copies; each append then makes
            // a file of its one new line, and the commit puts those in place
            // of the whole indexes: the known weak point.
            EXPECT_TRUE(outcome);
            const QByteArray i = id.toLatin1();
            EXPECT_EQ(now.live["cat.dat"], "\"Norway\",\"00002\",\"" + i + "\"\r\n");
            EXPECT_EQ(now.live["cty.dat"], "\"Norway\",\"" + i + "\"\r\n");
            EXPECT_EQ(now.live["name.dat"], "\"" + i + "\"," + Cp1252("\"Åse Øvre\"") + "\r\n");
            EXPECT_TRUE(now.live.contains(recordName));
        } else if (p == check) {
            // The staged record is missing: the caller is told, nothing is deleted.
            unchanged({"addr" + id + ".b64", "addr_cat.tmp", "addr_cty.tmp", "addr_name.tmp"});
            EXPECT_EQ(outcome.error(), StoreError::StagedRecordMissing);
        } else if (p < commit) {
            // A line routine: work copies and staged record gone, the staged
            // indexes made so far stay.
            unchanged(Made(trace, recordWrite, p, "move"));
            EXPECT_EQ(outcome.error(), StoreError::Failed);
        } else {
            commitFailure(trace, p, after);
        }
    });
}

TEST_F(FailureTable, EditLeavesWhatTheTablePromises) {
    ContactForm form = NewForm();
    form.name = "Ola Nordmann";
    forContact("00010");
    const QString staged = store.tempFile("addr00010.b64");
    sweep([&] { return SaveEditedContact(form, "00010", true); }, [&](const QStringList& trace, int p) {
        const int check = int(trace.indexOf("exists " + staged, 3));
        const int commit = int(trace.indexOf("exists " + store.appFile("cat.dat"), check + 1));
        const int discard = int(trace.indexOf("exists " + store.tempFile("addr_cat.tmp"), commit + 1));
        ASSERT_TRUE(check > 0 && commit > check && discard > commit);
        if (p < check && p >= 3 && HarmlessExists(trace, p)) {
            done();
        } else if (p < check) {
            // Writing the staged record, or staging: without work copies the
            // first replace opens its output and finds no input.
            unchanged(p < 3 ? QStringList() : QStringList{"addr_cat.dat"});
        } else if (p == check) {
            unchanged({});
            EXPECT_EQ(outcome.error(), StoreError::StagedRecordMissing);
        } else if (p < commit) {
            unchanged(Made(trace, check, p, "output"));
            EXPECT_EQ(outcome.error(), StoreError::Failed);
        } else if (p < discard) {
            commitFailure(trace, p, after);
        } else {
            // Clearing the work copies after success: a failure there leaves
            // that copy behind and nothing else.
            done();
            EXPECT_EQ(now.temp, trace[p].endsWith(".tmp") ? QStringList{Base(trace[p])} : QStringList());
        }
    });
}

// The removal the duplicate and move batches make of a contact whose record
// the caller has read: it stages no record of its own; the commit writes one
// from the buffer, moves it in, and the next step deletes it.
TEST_F(FailureTable, RemovalLeavesWhatTheTablePromises) {
    forContact("00020");
    const QString staged = store.tempFile("addr00020.b64");
    sweep([&] { return ClearContactBuffer(), ReadContactWithId("00020"), RemoveContactFiles("00020"); },
        [&](const QStringList& trace, int p) {
            const QString op = trace[p];
            const int stage = int(trace.indexOf("exists " + store.tempFile("addr_cat.tmp")));
            const int remove = int(trace.indexOf("output " + store.tempFile("addr_cat.dat"), stage + 1));
            const int commit = int(trace.indexOf("exists " + store.appFile("cat.dat"), remove + 1));
            const int finalKill = int(trace.lastIndexOf("kill " + store.appFile(recordName)));
            ASSERT_TRUE(stage > 0 && remove > stage && commit > remove && finalKill > commit);
            // The record the commit puts back is the one read: the same bytes.
            Snapshot restored = after;
            restored.live[recordName] = before.live[recordName];
            if (p < stage || HarmlessExists(trace, p) || op == "exists " + staged) {
                // Reading the record (an empty buffer makes an empty record,
                // deleted all the same), a test before a copy or an output, or
                // the test for a staged record that is never there.
                done();
                EXPECT_EQ(now.temp, op.endsWith(".tmp") && p > finalKill ? QStringList{Base(op)} : QStringList());
            } else if (p < commit) {
                unchanged(p < remove ? QStringList() : Made(trace, remove, p, "output"));
            } else if (p < finalKill) {
                commitFailure(trace, p, restored);
            } else if (p == finalKill) {
                failed(restored.live, {});  // all three indexes without the contact, its record still there
            } else {
                done();  // clearing the work copies after success
                EXPECT_EQ(now.temp, op.endsWith(".tmp") ? QStringList{Base(op)} : QStringList());
            }
        });
}
