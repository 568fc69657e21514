// The contact list of the main window: the rows it shows from the snapshot,
// the missing-record quirk, sorting, the check marks, the right-click menu,
// the Delete key and the two roads into the edit dialog.
#include <QAction>
#include <QHeaderView>
#include <QSignalSpy>
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const char* const kCat = "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00012\"\r\n"
                         "\"Sweden\",\"00001\",\"00014\"\r\n\"Norway\",\"00001\",\"00013\"\r\n"
                         "\"Norway\",\"00002\",\"00015\"\r\n";

struct ListStore : MainStore {
    explicit ListStore(const char* cat = kCat) : MainStore(kCategories, cat) {
        contact("00011", "anna", "anna@example.no", "Fjord AS", "Skipper");
        contact("00012", "Carl", "carl@example.no", "aker", "");
        contact("00013", "Bo", "bo@example.no", "Bergen Bank", "Clerk");
        contact("00014", "Sven", "sven@example.se");
    }
    void clickHeader(int column) const {
        QHeaderView* header = window->ListView1->header();
        const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }
    // "x" for a checked row, "-" for an unchecked one; "s" marks a selected row.
    QString marks() const {
        QString text;
        for (int i = 0; i < window->ListView1->topLevelItemCount(); ++i)
            text += QString(row(i)->checkState(0) == Qt::Checked ? "x" : "-") + (row(i)->isSelected() ? "s " : " ");
        return text.trimmed();
    }
};
}  // namespace

class TestContactList : public QObject {
    Q_OBJECT
private slots:
    void rowsOfCountryAndCategoryFromTheSnapshot() {
        ListStore s;
        FrmMain& w = s.open();
        // A row that reaches the drive after the snapshot isn't listed.
        s.store.put("cat.dat", Cp1252(kCat) + "\"Norway\",\"00001\",\"00014\"\r\n");
        s.clickNode("Main (3)");
        QCOMPARE(s.names(), QString("anna,Carl,Bo"));  // the columns stand in tst_categorytree
        w.CopyAddrFile();
        s.clickNode("Main (3)");
        QCOMPARE(s.names(), QString("anna,Carl,Bo,Sven"));
    }

    void aMissingRecordShowsTheRowBefore() {
        ListStore s("\"Norway\",\"00001\",\"00010\"\r\n\"Norway\",\"00001\",\"00011\"\r\n"
                    "\"Norway\",\"00001\",\"00019\"\r\n\"Norway\",\"00001\",\"00013\"\r\n");
        s.open();
        ClearContactBuffer();
        s.clickNode("Main (4)");
        // 00010 has no file and the buffer is empty: left out. 00019 has no
        // file: anna's values under its own id.
        QCOMPARE(s.rows(), QStringList({"anna|anna@example.no|Fjord AS|Skipper|00011",
                                        "anna|anna@example.no|Fjord AS|Skipper|00019", "Bo|bo@example.no|Bergen Bank|Clerk|00013"}));
        // A node click doesn't clear the buffer: the next fill shows Bo for 00010.
        s.clickNode("Main (4)");
        QCOMPARE(s.rows().first(), QString("Bo|bo@example.no|Bergen Bank|Clerk|00010"));
    }

    // A sort stays across refills; Select All and Invert Selection work on the check marks.
    void aSortStaysAcrossRefillsAndTheMarks() {
        ListStore s;
        s.open();
        s.clickNode("Main (3)");
        QStringList orders{s.names()};
        for (int column : {2, 2, -1, 0, 0, -2}) {  // -1 refills the list, -2 goes to Work and back
            if (column >= 0) s.clickHeader(column);
            if (column == -2) s.clickNode("Work (1)");
            if (column < 0) s.clickNode("Main (3)");
            orders << s.names();
        }
        // Company as text without regard to case; the first click on "Contact Name" sorts it descending.
        QCOMPARE(orders, QStringList({"anna,Carl,Bo", "Carl,Bo,anna", "anna,Bo,Carl", "anna,Bo,Carl", "anna,Bo,Carl",
                                      "Carl,Bo,anna", "Carl,Bo,anna"}));
        s.trigger("mnuSelectAll");
        QCOMPARE(s.marks(), QString("xs xs xs"));
        s.trigger("mnuInvertSelection");
        QCOMPARE(s.marks(), QString("- - -"));
    }

    void rightButtonDeleteKeyAndEdit() {
        ListStore s;
        // Carl's record says another id inside: the double click takes it. Bo's
        // country can't be read: ReadContact stops there.
        s.store.put("data/addr00012.b64", s.record("00012").replace("infoid=00012", "infoid=77777"));
        s.store.put("data/addr00013.b64", s.record("00013").replace("country=0", "country="));
        FrmMain& w = s.open();
        s.clickNode("Main (3)");
        QWidget* viewport = w.ListView1->viewport();
        QTest::mouseClick(viewport, Qt::RightButton, {}, s.rowCentre(1));
        QCOMPARE(s.popups, QStringList("mnuRightClick"));

        QSignalSpy deleteHandler(w.Entry("mnuDelete_info"), &QAction::triggered);
        QTest::keyClick(w.ListView1, Qt::Key_Delete);
        QTest::keyClick(w.TreeView1, Qt::Key_Delete);
        QCOMPARE(deleteHandler.count(), 1);  // the Delete key in the list only; with no row checked: the guard

        // The double click reads the id from the file into a cleared buffer; the
        // menu's Edit reads into the buffer as it stands. Neither rebuilds the tree.
        QStringList seen;
        auto look = [&](Form* dialog) {
            seen << dialog->objectName() + "|" + ContactBuffer.infoid + "|" + ContactBuffer.infoname + "|" +
                        ContactBuffer.fax + "|" + QString::number(ContactEditFlag);
            s.store.put("cat.dat", Cp1252(kCat).replace("\"Sweden\",\"00001\"", "\"Norway\",\"00001\""));  // Sven moves
        };
        ContactBuffer.fax = "left over";
        ExpectModal(look);
        s.doubleClickRow(1);
        QCOMPARE(s.names(), QString("anna,Carl,Sven,Bo"));  // refilled from a new snapshot
        QCOMPARE(ContactBuffer.country, qint16(-1));  // cleared, then refilled by summaries without the country
        QTest::mouseClick(viewport, Qt::LeftButton, {}, s.rowCentre(3));
        ContactBuffer.fax = "kept";
        ExpectModal(look);
        s.trigger("mnuEdit_p");
        QCOMPARE(seen, QStringList({"frmedittask|77777|Carl||1", "frmedittask|00013|Bo|kept|1"}));
        QCOMPARE(s.boxes.lines(), QStringList("Tandry|48|Ada, please check the contacts you want to delete."));
    }
};

QTEST_MAIN(TestContactList)
#include "tst_contactlist.moc"
