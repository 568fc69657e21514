// The contact batches of the main window on a hand-written Windows-1252
// store, driven through the real widgets: delete of the checked rows,
// duplicate with the confirm-replace question, move by a drop on the tree;
// a cancel from the queue, and a fault at every file operation.
#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include "dialogs/forms/itemcombo.h"
#include "main/forms/frmduplicate.h"
#include "main/forms/progressmessage.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "support/formstore.h"

namespace {
// Main: Åse 00011, Per 00012, Bo 00013 in Norway, Liv 00014 in Sweden; Work:
// Kari 00021 and a second Per 00022 in Norway.
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const char* const kRows[][4] = {{"Norway", "00001", "00011", "Åse"}, {"Norway", "00001", "00012", "Per"},
                                {"Norway", "00001", "00013", "Bo"},  {"Sweden", "00001", "00014", "Liv"},
                                {"Norway", "00002", "00021", "Kari"}, {"Norway", "00002", "00022", "Per"}};

const char* const kIndexes[] = {"cat.dat", "cty.dat", "name.dat"};

struct BatchStore : MainStore {
    QString norway = QString::number(CountryIndex("Norway"));
    QList<QByteArray> lines[3];  // each contact's line in cat.dat, cty.dat and name.dat, as laid
    BatchStore() : MainStore(kCategories, "") {
        for (const auto& r : kRows) {
            lines[0] << Cp1252(qPrintable(QString("\"%1\",\"%2\",\"%3\"\r\n").arg(U(r[0]), r[1], r[2])));
            lines[1] << Cp1252(qPrintable(QString("\"%1\",\"%2\"\r\n").arg(U(r[0]), r[2])));
            lines[2] << Cp1252(qPrintable(QString("\"%1\",\"%2\"\r\n").arg(r[2], U(r[3]))));
            store.putRecord({r[2], U(r[3]), r[0] == QString("Norway") ? norway : "5", r[1], "", "", "", "", "", "", "Fjord"});
        }
        for (int i = 0; i < 3; ++i) store.put(kIndexes[i], lines[i].join());
        open();
        clickNode("Main (3)");
    }
    // Row `r`'s record is there and its line stands in each index that is there.
    bool untouched(int r) const {
        for (int i = 0; i < 3; ++i)
            if (store.exists(store.appFile(kIndexes[i])) && !store.file(kIndexes[i]).contains(lines[i][r])) return false;
        return store.exists(store.appFile(QString("data/addr") + kRows[r][2] + ".b64"));
    }
    void check(std::initializer_list<int> rows) const {
        for (int i : rows) row(i)->setCheckState(0, Qt::Checked);
    }
    // Each contact as "id:name@category" from cat.dat and name.dat, or
    // "id:<record>" where its record is there without lines; "id:gone".
    QString state(const QString& id) const {
        const QString cat = FromCodePage(store.file("cat.dat"), 1252), names = FromCodePage(store.file("name.dat"), 1252);
        const qsizetype row = cat.indexOf("\"" + id + "\"");
        const bool record = store.exists(store.appFile("data/addr" + id + ".b64"));
        if (row < 0) return id + (record ? ":<record>" : ":gone");
        const QString line = cat.mid(cat.lastIndexOf('\n', row) + 1, cat.indexOf('\r', row) - cat.lastIndexOf('\n', row) - 1);
        const qsizetype name = names.indexOf("\"" + id + "\",\"");
        return id + ":" + (name < 0 ? "?" : names.mid(name + 9, names.indexOf('"', name + 9) - name - 9)) + "@" +
               line.section(',', 0, 1).remove('"').replace(',', '/') + (record ? "" : " no record");
    }
    QString states(std::initializer_list<const char*> ids) const {
        QStringList s;
        for (const char* id : ids) s << state(id);
        return s.join(' ');
    }
    bool progressShown(const char* name) const {
        auto* w = window->findChild<ProgressMessage*>(name);
        return w && w->isVisible();
    }
    // A drop of the list's selection on the node of that text, as the
    // list's own drag delivers it.
    void drop(const QString& nodeText) const {
        QTreeWidget* list = window->ListView1;
        std::unique_ptr<QMimeData> data(list->model()->mimeData(list->selectionModel()->selectedIndexes()));
        const QPoint at = window->TreeView1->visualItemRect(node(nodeText)).center();
        QWidget* viewport = window->TreeView1->viewport();
        for (QEvent::Type type : {QEvent::DragEnter, QEvent::DragMove, QEvent::Drop}) {
            QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {}, type);
            QCoreApplication::sendEvent(viewport, &event);
        }
    }
};

// Runs `action` when the window queue has run `passes` more times: each
// batch lets it run once at the head of a contact.
void AtQueuePass(int passes, std::function<void()> action) {
    QTimer::singleShot(0, [passes, action] { passes <= 1 ? action() : AtQueuePass(passes - 1, action); });
}

// Answers the next confirm-replace questions with these buttons.
void Answer(QStringList buttons, QStringList* seen) {
    for (const QString& button : buttons)
        ExpectModal([button, seen](Form* form) {
            *seen << Control<QLabel>(form, "lblMsg")->text();
            QTest::mouseClick(Control<QPushButton>(form, qPrintable(button)), Qt::LeftButton);
        });
}
}  // namespace

class TestBatches : public QObject {
    Q_OBJECT
private slots:
    void deleteOfTheCheckedRows() {
        BatchStore s;
        s.check({0, 2});
        s.row(1)->setSelected(true);  // selected, not checked: stays
        s.boxes.answer(AnswerNo);
        QTest::keyClick(s.window->ListView1, Qt::Key_Delete);
        QCOMPARE(s.window->ListView1->topLevelItem(0)->checkState(0), Qt::Unchecked);  // "No" reloads the list
        s.check({0, 2});
        s.boxes.answer(AnswerYes);
        QTest::keyClick(s.window->ListView1, Qt::Key_Delete);
        QCOMPARE(s.states({"00011", "00012", "00013", "00014"}), QString("00011:gone 00012:Per@Norway/00001 00013:gone "
                                                                         "00014:Liv@Sweden/00001"));
        QCOMPARE(s.store.file("cty.dat"), Cp1252("\"Norway\",\"00012\"\r\n\"Sweden\",\"00014\"\r\n\"Norway\",\"00021\"\r\n"
                                                 "\"Norway\",\"00022\"\r\n"));
        QVERIFY(!s.store.exists(s.store.appFile("data/addr.b64")));  // the empty last element's pass
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main (1)", "Work (2)"}));
        QCOMPARE(s.boxes.lines(), QStringList(2, "Vellumark|32|Are you sure you want to delete the checked contacts?"));
        QCOMPARE(s.store.tempFiles().size(), 6);  // the snapshots and the library copies only
    }

    void aCancelFromTheQueueKeepsWhatWasDeleted() {
        BatchStore s;
        s.check({0, 1, 2});
        s.boxes.answer(AnswerYes);
        bool shown = false;
        AtQueuePass(2, [&] {  // at the head of the second contact
            shown = s.progressShown("frmDeleteMsg");
            QTest::mouseClick(Control<QPushButton>(s.window->findChild<ProgressMessage*>("frmDeleteMsg"), "cmdCancel"),
                              Qt::LeftButton);
        });
        s.trigger("mnuDelete_info");
        QVERIFY(shown);
        QCOMPARE(s.states({"00011", "00012", "00013"}), QString("00011:gone 00012:Per@Norway/00001 00013:Bo@Norway/00001"));
        QCOMPARE(s.boxes.lines().last(), QString("Tandry|48|The operation was cancelled. The changes made before it "
                                                 "stopped have been kept."));
        QVERIFY(!s.progressShown("frmDeleteMsg"));
    }

    // A fault at every file operation of a delete of three and of a move of
    // two: what was done stays done, no other contact is lost, only a
    // commit's failed move leaves an index missing, and the staging area
    // holds no work copy and no staged record.
    void aFaultAnywhereInADeleteOfThreeOrAMoveOfTwo_data() {
        QTest::addColumn<bool>("move");
        QTest::newRow("delete") << false;
        QTest::newRow("move") << true;
    }
    void aFaultAnywhereInADeleteOfThreeOrAMoveOfTwo() {
        QFETCH(bool, move);
        const QList<int> taken = move ? QList<int>{0, 2} : QList<int>{0, 1, 2};
        QStringList trace;
        for (int k = 0; k == 0 || k <= trace.size(); ++k) {
            BatchStore s;
            for (int r : taken) move ? s.row(r)->setSelected(true) : s.row(r)->setCheckState(0, Qt::Checked);
            s.boxes.answer(AnswerYes);
            SetFileOperationLogging(true);
            ClearFileOperationLog();
            FailFileOperationAt(k);
            move ? s.drop("Work (2)") : s.trigger("mnuDelete_info");
            FailFileOperationAt(0);
            if (k == 0) {
                trace = FileOperationTrace();
                continue;
            }
            const QString failed = trace[k - 1];
            int inHand = -1;  // the row the failing operation belongs to
            for (int i = 0; i < k; ++i)
                for (int r : taken)
                    if (trace[i].endsWith(QString("data/addr") + kRows[r][2] + ".b64")) inHand = r;
            // A delete stops at its failure and says so; a move goes on, unless
            // the store's lists could not be read at its start, or a line
            // routine failed between open and close and so keeps its file
            // numbers taken: every later line routine fails then.
            const bool errorShown = !move && s.boxes.lines().last().startsWith("Tandry|16|Error: ");
            const bool stopped = errorShown || (move && (inHand < 0 || FileNumberInUse(1) || FileNumberInUse(2)));
            for (int r : taken) {
                const QString id = kRows[r][2], state = s.state(id);
                const bool catThere = s.store.exists(s.store.appFile("cat.dat"));
                const bool done = move ? s.record(id).contains("category=00002") && (state.endsWith("/00002") || !catThere)
                                       : state == id + ":gone";
                if (r != inHand && !(stopped && r > inHand)) QVERIFY2(done, qPrintable(failed + " " + state));
                if (stopped && r > inHand) QVERIFY2(s.untouched(r), qPrintable(failed + " " + state));
            }
            for (int r = 3; r < 6; ++r) QVERIFY2(s.untouched(r), qPrintable(failed));
            for (const char* index : kIndexes)
                QVERIFY2(s.store.exists(s.store.appFile(index)) || (failed.startsWith("move") && failed.endsWith(QString("/") + index)),
                         qPrintable(failed));
            // The delete's failure road clears the staging area for the id the
            // buffer holds: after the empty last element's read found no file,
            // that is the contact before, and a staged addr.b64 stays. A
            // clearing that fails leaves its one file.
            for (const QString& name : s.store.tempFiles())
                QVERIFY2((!name.endsWith(".tmp") && (!name.endsWith(".b64") || name == "addr.b64")) ||
                             failed.endsWith("/" + name),
                         qPrintable(failed + " " + name));
            QVERIFY2(errorShown == s.progressShown("frmDeleteMsg"), qPrintable(failed));  // left on screen
        }
        QVERIFY(trace.size() > 60);
    }

    void duplicateWithEachAnswer() {
        QStringList seen;
        for (const char* answer : {"btnYes", "btnNo", "btnNotoAll"}) {
            BatchStore s;
            s.check({0, 1, 2});  // Per clashes with Per of Work
            ExpectModal([&](Form* form) {
                auto* dialog = static_cast<frmDuplicate*>(form);
                QVERIFY(!dialog->cmbCountry2->isEnabled());
                dialog->cmbCat->setCurrentIndex(1);
                QTest::mouseClick(dialog->Check1, Qt::LeftButton);
                dialog->cmbCountry2->setCurrentIndex(CountryIndex("Sweden"));
                QTest::mouseClick(dialog->cmdDuplicate, Qt::LeftButton);
            });
            Answer({answer}, &seen);
            s.trigger("mnuDuplicate_c");
            QStringList copies;
            QString perCopy;
            for (const QString& file : s.records()) {
                const QString id = file.mid(4, 5);
                if (QString("00011 00012 00013 00014 00021 00022").contains(id)) continue;
                copies << s.state(id).mid(6);
                if (copies.last().startsWith("Per")) perCopy = id;
            }
            copies.sort();
            // Yes copies the Per that already stands in Work (00022) and removes
            // it; Not to All copies nothing, the free contacts included.
            const bool yes = QString(answer) == "btnYes", notToAll = QString(answer) == "btnNotoAll";
            const QString expected = yes ? "Bo@Sweden/00002 Per@Sweden/00002 Åse@Sweden/00002"
                                         : notToAll ? "" : "Bo@Sweden/00002 Åse@Sweden/00002";
            QCOMPARE(copies.join(' '), U(qPrintable(expected)));
            QCOMPARE(s.state("00022"), yes ? "00022:gone" : "00022:Per@Norway/00002");
            QCOMPARE(s.boxes.lines(), notToAll ? QStringList() : QStringList("Vellumark|0|The checked contacts have been duplicated."));
            // The copy's record keeps the main window's country; its index lines the one picked.
            if (yes) QCOMPARE(s.record(perCopy), RecordBytes({perCopy, "Per", s.norway, "00002", "", "", "", "", "", "", "Fjord"}));
        }
        QCOMPARE(seen, QStringList(3, "A contact of the same name already exists in the target category:\r\n'Per'"));
    }

    void moveByADropOnTheTree() {
        BatchStore s;
        QTest::mouseClick(s.window->ListView1->viewport(), Qt::LeftButton, {}, s.rowCentre(0));
        QTest::mouseClick(s.window->ListView1->viewport(), Qt::LeftButton, Qt::ControlModifier, s.rowCentre(2));
        s.check({1});  // checked, not selected: stays
        s.drop("Work (2)");
        QCOMPARE(s.states({"00011", "00012", "00013"}), QString("00011:Åse@Norway/00002 00012:Per@Norway/00001 "
                                                                 "00013:Bo@Norway/00002"));
        QCOMPARE(s.names(), QString("Per"));
        // Per onto Work clashes with Work's Per: Yes on the last clash moves
        // it twice and says so.
        s.clickNode("Main (1)");
        QTest::mouseClick(s.window->ListView1->viewport(), Qt::LeftButton, {}, s.rowCentre(0));
        QStringList seen;
        Answer({"btnYes"}, &seen);
        s.drop("Work (4)");
        QCOMPARE(s.states({"00012", "00022"}), QString("00012:Per@Norway/00002 00022:gone"));
        QCOMPARE(s.boxes.lines(), QStringList("Vellumark|64|The contacts have been moved."));
    }
};

QTEST_MAIN(TestBatches)
#include "tst_batches.moc"
