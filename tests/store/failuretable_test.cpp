// A save, an edit and a removal, with the k-th file operation made to fail,
// for every k along the way: the live store and the staging area must then
// be exactly what the staged write promises for a failure at that point.
#include <gtest/gtest.h>

#include <QDir>
#include <QMap>
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/msgboxscript.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {

const QByteArray kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const QByteArray kCat = "\"Norway\",\"00001\",\"00010\"\r\n\"Sweden\",\"00002\",\"00020\"\r\n";
const QByteArray kCty = "\"Norway\",\"00010\"\r\n\"Sweden\",\"00020\"\r\n";
const QByteArray kName = "\"00010\",\"Ola\"\r\n\"00020\",\"Kari\"\r\n";

QByteArray Record(const char* id, const char* name, int country, const char* category) {
    return QByteArray("[Setting]\r\ninfoid=") + id + "\r\ninfoname=" + name + "\r\ncountry=" +
           QByteArray::number(country) + "\r\ncategory=" + category +
           "\r\ntel1=\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\nfax=\r\ncompany=\r\n"
           "designation=\r\naddr=\r\nnotes=\r\nmail=\r\n";
}

// The four files a write touches, and what the staging area holds.
struct Snapshot {
    QMap<QString, QByteArray> live;  // name -> bytes; a missing file is absent
    QStringList temp;
};

enum class Want { Old, New, Missing };

StoreResult Outcome(StoreResult result) { return result; }
StoreResult Outcome(bool done) { return done ? StoreResult() : StoreResult(StoreError::Failed); }

class FailureTable : public ::testing::Test {
protected:
    ScratchStore store;
    MsgBoxScript boxes;
    QString recordName;  // data/addr<id>.b64 of the contact at hand
    StoreResult outcome; // of the last write

    void SetUp() override {
        ResetRandomForTest();
        ReleaseFileNumbersForTest();
    }
    void TearDown() override { ReleaseFileNumbersForTest(); }

    void lay() {
        QDir(store.temp()).removeRecursively();
        QDir(store.appFile("data")).removeRecursively();
        QDir().mkpath(store.appFile("data"));
        EnsureTempArea();
        store.write(store.appFile("category.dat"), kCategories);
        store.write(store.appFile("cat.dat"), kCat);
        store.write(store.appFile("cty.dat"), kCty);
        store.write(store.appFile("name.dat"), kName);
        store.write(store.appFile("data/addr00010.b64"), Record("00010", "Ola", 3, "00001"));
        store.write(store.appFile("data/addr00020.b64"), Record("00020", "Kari", 4, "00002"));
        ResetRandomForTest();
        ReleaseFileNumbersForTest();
    }

    Snapshot snap() const {
        Snapshot s;
        for (const char* name : {"cat.dat", "cty.dat", "name.dat"})
            if (store.exists(store.appFile(name))) s.live[name] = store.read(store.appFile(name));
        if (!recordName.isEmpty() && store.exists(store.appFile(recordName)))
            s.live[recordName] = store.read(store.appFile(recordName));
        s.temp = store.tempFiles();
        return s;
    }

    // The live files as promised: each of the four old, new or missing.
    QMap<QString, QByteArray> mix(const Snapshot& before, const Snapshot& after, Want cat, Want cty,
                                  Want name, Want record) const {
        QMap<QString, QByteArray> live;
        auto take = [&](const QString& file, Want want) {
            const Snapshot& from = want == Want::Old ? before : after;
            if (want != Want::Missing && from.live.contains(file)) live[file] = from.live[file];
        };
        take("cat.dat", cat);
        take("cty.dat", cty);
        take("name.dat", name);
        take(recordName, record);
        return live;
    }

    // Runs `write` once with every operation traced, then once per k with
    // operation k failing, handing each outcome to `check`.
    template <typename Write, typename Check>
    void sweep(Write write, Check check) {
        lay();
        const Snapshot before = snap();
        SetFileOperationLogging(true);
        ClearFileOperationLog();
        FailFileOperationAt(0);
        ASSERT_TRUE(bool(write()));
        const QStringList trace = FileOperationTrace();
        SetFileOperationLogging(false);
        const Snapshot after = snap();
        ASSERT_FALSE(trace.isEmpty());
        for (int k = 1; k <= trace.size(); ++k) {
            lay();
            boxes.clear();
            FailFileOperationAt(k);
            outcome = Outcome(write());
            const bool result = bool(outcome);
            const QString failed = FailedFileOperation();
            FailFileOperationAt(0);
            SCOPED_TRACE(("k=" + QString::number(k) + " " + failed).toStdString());
            ASSERT_EQ(failed, trace[k - 1]);  // the run is the same up to the failure
            check(trace, k - 1, result, before, after, snap());
        }
    }
};

// Position of the first operation at or after `from` that matches.
int Find(const QStringList& trace, int from, const QString& op) {
    for (int i = from; i < trace.size(); ++i)
        if (trace[i] == op) return i;
    return -1;
}

QString Kind(const QString& op) { return op.section(' ', 0, 0); }
QString Base(const QString& op) { return op.section('/', -1); }

ContactForm NewForm() {
    ContactForm f;
    f.name = "  Åse Øvre ";
    f.countryIndex = 5;
    f.countryText = "Norway";
    f.categoryId = "00002";
    f.tel1 = "+47 22 00 00 00";
    return f;
}

// What the commit left of each live file when operation p failed: files
// before the failing one new, files after it old; the failing one old when
// its delete never happened, missing when the move failed after the delete,
// new when only the existence test after its move failed.
struct CommitState {
    Want want[4];
    int at;
};

CommitState CommitOutcome(const QStringList& trace, int p, const QStringList& order,
                          const QString& recordPath) {
    const QString op = trace[p];
    const QString file = op.endsWith(recordPath) ? order[3] : Base(op);
    CommitState c;
    c.at = int(order.indexOf(file));
    for (int i = 0; i < 4; ++i) c.want[i] = i < c.at ? Want::New : Want::Old;
    const bool afterMove = p > 0 && Kind(trace[p - 1]) == "move";
    if (Kind(op) == "move") c.want[c.at] = Want::Missing;
    if (Kind(op) == "exists" && afterMove) c.want[c.at] = Want::New;
    return c;
}

}  // namespace

TEST_F(FailureTable, NewContactLeavesWhatTheTablePromises) {
    QString id;
    const ContactForm form = NewForm();
    // The first draw of the unseeded generator is the contact's id.
    lay();
    id = IdText(GenID());
    recordName = "data/addr" + id + ".b64";
    const QString staged = "addr" + id + ".b64";
    int checked = 0;
    sweep([&] { return SaveNewContact(form); },
          [&](const QStringList& trace, int p, bool result, const Snapshot& before,
              const Snapshot& after, const Snapshot& now) {
              const QString op = trace[p];
              const int recordWrite = Find(trace, 0, "output " + store.tempFile(staged));
              const int check = Find(trace, recordWrite + 1, "exists " + store.tempFile(staged));
              const int commit = Find(trace, check + 1, "exists " + store.appFile("cat.dat"));
              ASSERT_GE(recordWrite, 0);
              ASSERT_GT(check, recordWrite);
              ASSERT_GT(commit, check);
              const QStringList order = {"cat.dat", "cty.dat", "name.dat", recordName};
              ++checked;
              if (p == 0) {  // the id's existence test: "not there" draws nothing new
                  EXPECT_TRUE(result);
                  EXPECT_EQ(now.live, after.live);
              } else if (p < recordWrite + 3) {
                  // Writing the staged record: store unchanged, staging cleared.
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, before.temp);
              } else if (p < check) {
                  if (Kind(op) == "exists" && op.endsWith(".tmp") && Find(trace, p + 1, "copy " + op.section(' ', 1)) == p + 1) {
                      EXPECT_TRUE(result);  // "not there" before the copy changes nothing
                      EXPECT_EQ(now.live, after.live);
                      return;
                  }
                  // A failed staging deletes the work copies; each append then
                  // makes a file of its one new line, and the commit puts those
                  // in place of the whole indexes: the known weak point.
                  EXPECT_TRUE(result);
                  const QByteArray i = id.toLatin1();
                  EXPECT_EQ(now.live["cat.dat"], "\"Norway\",\"00002\",\"" + i + "\"\r\n");
                  EXPECT_EQ(now.live["cty.dat"], "\"Norway\",\"" + i + "\"\r\n");
                  EXPECT_EQ(now.live["name.dat"], "\"" + i + "\"," + Cp1252("\"Åse Øvre\"") + "\r\n");
                  EXPECT_TRUE(now.live.contains(recordName));
              } else if (p == check) {
                  // The staged record is missing, and nothing is deleted.
                  EXPECT_FALSE(result);
                  EXPECT_EQ(outcome.error(), StoreError::StagedRecordMissing);
                  EXPECT_EQ(now.live, before.live);
                  QStringList all{"addr_cat.tmp", "addr_cty.tmp", "addr_name.tmp", staged};
                  all.sort();
                  EXPECT_EQ(now.temp, all);
              } else if (p < commit) {
                  const bool harmless = Kind(op) == "exists" && Find(trace, p + 1, "kill " + op.section(' ', 1)) != p + 1 &&
                                        op.endsWith(".dat") && trace[p + 1].startsWith("append");
                  if (harmless) {
                      EXPECT_TRUE(result);
                      EXPECT_EQ(now.live, after.live);
                      return;
                  }
                  // A line routine: store unchanged, work copies and staged
                  // record gone, the staged indexes made so far stay.
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  for (const QString& name : now.temp)
                      EXPECT_TRUE(name.endsWith(".dat")) << name.toStdString();
                  QStringList made;
                  for (int i = recordWrite; i < p; ++i)
                      if (Kind(trace[i]) == "move") made << Base(trace[i]);
                  made.sort();
                  EXPECT_EQ(now.temp, made);
              } else {
                  // The commit: the moves done so far stand; no work copy and
                  // no staged record remain; staged indexes not yet moved stay.
                  const CommitState c = CommitOutcome(trace, p, order, store.appFile(recordName));
                  const bool recordTest = c.at == 3 && Kind(op) == "exists" && Kind(trace[p - 1]) != "move";
                  if (recordTest) {  // a new contact has no live record: "not there" is the truth
                      EXPECT_TRUE(result);
                      EXPECT_EQ(now.live, after.live);
                      return;
                  }
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, mix(before, after, c.want[0], c.want[1], c.want[2], c.want[3]));
                  QStringList waiting;
                  for (int i = c.at; i < 3; ++i)
                      if (c.want[i] != Want::New) waiting << "addr_" + order[i];
                  waiting.sort();
                  EXPECT_EQ(now.temp, waiting);
              }
          });
    EXPECT_GT(checked, 30);
}

namespace {
// The staged indexes whose output the streaming routines had opened before
// operation p: they stay behind in the staging area after a failure.
QStringList StagedOutputsBefore(const QStringList& trace, int from, int p) {
    QStringList made;
    for (int i = from; i < p; ++i)
        if (Kind(trace[i]) == "output" && trace[i].endsWith(".dat")) made << Base(trace[i]);
    made.sort();
    return made;
}

QStringList WaitingAfterCommit(const CommitState& c, const QStringList& order) {
    QStringList waiting;
    for (int i = c.at; i < 3; ++i)
        if (c.want[i] != Want::New) waiting << "addr_" + order[i];
    waiting.sort();
    return waiting;
}

// An existence test that only decides whether to delete before a copy or
// an output: "not there" changes nothing.
bool HarmlessExists(const QStringList& trace, int p) {
    if (Kind(trace[p]) != "exists" || p + 1 >= trace.size()) return false;
    const QString next = Kind(trace[p + 1]);
    return (next == "copy" || next == "output" || next == "append") &&
           trace[p + 1].section(' ', 1) == trace[p].section(' ', 1);
}
}  // namespace

TEST_F(FailureTable, EditLeavesWhatTheTablePromises) {
    ContactForm form = NewForm();
    form.name = "Ola Nordmann";
    recordName = "data/addr00010.b64";
    const QString staged = "addr00010.b64";
    const QStringList order = {"cat.dat", "cty.dat", "name.dat", recordName};
    int checked = 0;
    sweep([&] { return SaveEditedContact(form, "00010", true); },
          [&](const QStringList& trace, int p, bool result, const Snapshot& before,
              const Snapshot& after, const Snapshot& now) {
              ++checked;
              const QString op = trace[p];
              const int check = Find(trace, 3, "exists " + store.tempFile(staged));
              const int commit = Find(trace, check + 1, "exists " + store.appFile("cat.dat"));
              const int discard = Find(trace, commit + 1, "exists " + store.tempFile("addr_cat.tmp"));
              ASSERT_TRUE(check > 0 && commit > check && discard > commit);
              if (p < 3) {  // writing the staged record
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, QStringList());
              } else if (p < check) {
                  if (HarmlessExists(trace, p)) {
                      EXPECT_TRUE(result);
                      EXPECT_EQ(now.live, after.live);
                      return;
                  }
                  // No work copies: the first replace opens its output and
                  // finds no input to stream. The store stays as it was.
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, QStringList{"addr_cat.dat"});
              } else if (p == check) {
                  EXPECT_FALSE(result);
                  EXPECT_EQ(outcome.error(), StoreError::StagedRecordMissing);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, QStringList());
              } else if (p < commit) {
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, StagedOutputsBefore(trace, check, p));
              } else if (p < discard) {
                  const CommitState c = CommitOutcome(trace, p, order, store.appFile(recordName));
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, mix(before, after, c.want[0], c.want[1], c.want[2], c.want[3]));
                  EXPECT_EQ(now.temp, WaitingAfterCommit(c, order));
              } else {
                  // Clearing the work copies after success: a failure there
                  // leaves that copy behind and nothing else.
                  EXPECT_TRUE(result);
                  EXPECT_EQ(now.live, after.live);
                  QStringList left;
                  if (op.endsWith(".tmp")) left << Base(op);
                  EXPECT_EQ(now.temp, left);
              }
          });
    EXPECT_GT(checked, 30);
}

TEST_F(FailureTable, RemovalLeavesWhatTheTablePromises) {
    recordName = "data/addr00020.b64";
    const QString staged = "addr00020.b64";
    const QStringList order = {"cat.dat", "cty.dat", "name.dat", recordName};
    int checked = 0;
    sweep([&] {
              ClearContactBuffer();
              bool ok = RemoveContactFiles("00020");
              DiscardStagedFiles("00020");
              return ok;
          },
          [&](const QStringList& trace, int p, bool result, const Snapshot& before,
              Snapshot after, const Snapshot& now) {
              ++checked;
              const QString op = trace[p];
              const int write = Find(trace, 0, "output " + store.tempFile(staged));
              const int remove = Find(trace, write + 1, "output " + store.tempFile("addr_cat.dat"));
              const int commit = Find(trace, remove + 1, "exists " + store.appFile("cat.dat"));
              const int finalKill = trace.lastIndexOf("kill " + store.appFile(recordName));
              ASSERT_TRUE(write > 0 && remove > write && commit > remove && finalKill > commit);
              // The record the commit puts back is the one read: the same bytes.
              Snapshot restored = after;
              restored.live[recordName] = before.live[recordName];
              if (p < write || HarmlessExists(trace, p)) {
                  // Reading the record: a key not read comes back empty, and
                  // the record goes all the same.
                  EXPECT_TRUE(result);
                  EXPECT_EQ(now.live, after.live);
              } else if (p < remove) {
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, QStringList());
              } else if (p < commit) {
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, before.live);
                  EXPECT_EQ(now.temp, StagedOutputsBefore(trace, remove, p));
              } else if (op == "exists " + store.tempFile(staged)) {
                  EXPECT_TRUE(result);  // the staged record is written again from the buffer
                  EXPECT_EQ(now.live, after.live);
              } else if (p < finalKill) {
                  const CommitState c = CommitOutcome(trace, p, order, store.appFile(recordName));
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, mix(before, restored, c.want[0], c.want[1], c.want[2], c.want[3]));
                  EXPECT_EQ(now.temp, WaitingAfterCommit(c, order));
              } else if (p == finalKill) {
                  // All three indexes without the contact, its record still there.
                  EXPECT_FALSE(result);
                  EXPECT_EQ(now.live, restored.live);
                  EXPECT_EQ(now.temp, QStringList());
              } else {
                  EXPECT_TRUE(result);
                  EXPECT_EQ(now.live, after.live);
                  QStringList left;
                  if (op.endsWith(".tmp")) left << Base(op);
                  EXPECT_EQ(now.temp, left);
              }
          });
    EXPECT_GT(checked, 40);
}
