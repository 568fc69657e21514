// The contact list of the main window: the rows it shows from the snapshot,
// the missing-record quirk, sorting, the check marks, the right-click
// menu, the Delete key and the double click to edit.
#include <QAction>
#include <QSignalSpy>
#include "mainfixture.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const char* const kCat =
    "\"Norway\",\"00001\",\"00011\"\r\n"
    "\"Norway\",\"00001\",\"00012\"\r\n"
    "\"Sweden\",\"00001\",\"00014\"\r\n"
    "\"Norway\",\"00001\",\"00013\"\r\n"
    "\"Norway\",\"00002\",\"00015\"\r\n";

void ThreeContacts(const MainStore& s) {
    s.writeRecord("00011", "anna", "anna@example.no", "Fjord AS", "Skipper");
    s.writeRecord("00012", "Carl", "carl@example.no", "aker", "");
    s.writeRecord("00013", "Bo", "bo@example.no", "Bergen Bank", "Clerk");
    s.writeRecord("00014", "Sven", "sven@example.se");
}

void ClickHeader(FrmMain& w, int column) {
    QHeaderView* header = w.ListView1->header();
    const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                    header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

// Press, release, double click, release: the list edits on the second press.
void DoubleClickRow(const MainStore& s, int i) {
    QWidget* viewport = s.window->ListView1->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, s.rowCentre(i));
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, s.rowCentre(i));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, s.rowCentre(i));
}

QStringList Names(const MainStore& s) {
    QStringList names;
    for (const QString& row : s.rows()) names << row.section('|', 0, 0);
    return names;
}
}  // namespace

class TestContactList : public QObject {
    Q_OBJECT
private slots:
    void rowsOfCountryAndCategoryFromSnapshot();
    void missingRecordShowsRowBefore();
    void sortStaysAcrossRefills();
    void selectAllAndInvertSelection();
    void rightButtonEnablesEditForOneRow();
    void deleteKeyRunsDeleteHandler();
    void doubleClickEditsWithoutTreeRebuild();
    void editFromMenuKeepsBuffer();
};

void TestContactList::rowsOfCountryAndCategoryFromSnapshot() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    FrmMain& w = s.open();
    // A row that reaches the drive after the snapshot isn't listed.
    s.writeFile("cat.dat", Cp1252(kCat) + "\"Norway\",\"00001\",\"00014\"\r\n");
    s.clickNode("Main (3)");
    QCOMPARE(s.rows(), QStringList({"anna|anna@example.no|Fjord AS|Skipper|00011",
                                    "Carl|carl@example.no|aker||00012",
                                    "Bo|bo@example.no|Bergen Bank|Clerk|00013"}));
    QVERIFY(w.ListView1->isColumnHidden(4) || w.ListView1->columnWidth(4) <= 2);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(s.row(i)->flags() & Qt::ItemIsUserCheckable);
        QCOMPARE(s.row(i)->checkState(0), Qt::Unchecked);
    }
    w.CopyAddrFile();
    s.clickNode("Main (3)");
    QCOMPARE(Names(s), QStringList({"anna", "Carl", "Bo", "Sven"}));
}

void TestContactList::missingRecordShowsRowBefore() {
    MainStore s(kCategories,
                "\"Norway\",\"00001\",\"00010\"\r\n\"Norway\",\"00001\",\"00011\"\r\n"
                "\"Norway\",\"00001\",\"00012\"\r\n\"Norway\",\"00001\",\"00013\"\r\n");
    s.writeRecord("00011", "anna", "anna@example.no", "Fjord AS", "Skipper");
    s.writeRecord("00013", "Bo", "bo@example.no");
    s.open();
    ClearContactBuffer();
    s.clickNode("Main (4)");
    // 00010 has no file and the buffer is empty: left out. 00012 has no file:
    // anna's values under its own id.
    QCOMPARE(s.rows(), QStringList({"anna|anna@example.no|Fjord AS|Skipper|00011",
                                    "anna|anna@example.no|Fjord AS|Skipper|00012",
                                    "Bo|bo@example.no|||00013"}));
    // A node click doesn't clear the buffer: the next fill shows Bo for 00010.
    s.clickNode("Main (4)");
    QCOMPARE(s.rows().first(), QString("Bo|bo@example.no|||00010"));
    QCOMPARE(s.rows().size(), 4);
}

void TestContactList::sortStaysAcrossRefills() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    FrmMain& w = s.open();
    s.clickNode("Main (3)");
    QCOMPARE(Names(s), QStringList({"anna", "Carl", "Bo"}));
    ClickHeader(w, 2);  // Company, as text without regard to case
    QCOMPARE(Names(s), QStringList({"Carl", "Bo", "anna"}));
    ClickHeader(w, 2);
    QCOMPARE(Names(s), QStringList({"anna", "Bo", "Carl"}));
    s.clickNode("Main (3)");
    QCOMPARE(Names(s), QStringList({"anna", "Bo", "Carl"}));
    ClickHeader(w, 0);
    QCOMPARE(Names(s), QStringList({"anna", "Bo", "Carl"}));
    ClickHeader(w, 0);
    QCOMPARE(Names(s), QStringList({"Carl", "Bo", "anna"}));
    s.clickNode("Work (1)");
    s.clickNode("Main (3)");
    QCOMPARE(Names(s), QStringList({"Carl", "Bo", "anna"}));
}

void TestContactList::selectAllAndInvertSelection() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    FrmMain& w = s.open();
    // On an empty list: nothing to mark, and the focus still moves.
    w.TreeView1->setFocus();
    s.trigger("mnuSelectAll");
    QCOMPARE(QApplication::focusWidget(), w.ListView1);

    s.clickNode("Main (3)");
    s.trigger("mnuSelectAll");
    QCOMPARE(s.marks(), QString("xs xs xs"));
    s.trigger("mnuInvertSelection");
    QCOMPARE(s.marks(), QString("- - -"));
    s.row(0)->setCheckState(0, Qt::Checked);
    s.row(1)->setSelected(true);
    w.TreeView1->setFocus();
    s.trigger("mnuInvertSelection");
    QCOMPARE(s.marks(), QString("- x x"));
    QCOMPARE(QApplication::focusWidget(), w.ListView1);
}

void TestContactList::rightButtonEnablesEditForOneRow() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    FrmMain& w = s.open();
    s.clickNode("Main (3)");
    auto enabled = [&] {
        QString text;
        for (const char* name : {"mnuPrint_p", "mnuEdit_p", "mnuDelete_p", "mnuDuplicate_c"})
            text += s.control<QAction>(name)->isEnabled() ? '1' : '0';
        return text;
    };
    QWidget* viewport = w.ListView1->viewport();
    QTest::mouseClick(viewport, Qt::RightButton, {}, QPoint(5, viewport->height() - 5));
    QCOMPARE(s.popups, QStringList({"mnuRightClick"}));
    QCOMPARE(enabled(), QString("1011"));

    QTest::mouseClick(viewport, Qt::RightButton, {}, s.rowCentre(1));
    QCOMPARE(w.ListView1->selectedItems().size(), 1);
    QCOMPARE(enabled(), QString("1111"));

    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, s.rowCentre(2));
    QTest::mouseClick(viewport, Qt::RightButton, {}, s.rowCentre(2));
    QCOMPARE(w.ListView1->selectedItems().size(), 2);
    QCOMPARE(enabled(), QString("1011"));
    QCOMPARE(s.popups.size(), 3);
}

void TestContactList::deleteKeyRunsDeleteHandler() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    FrmMain& w = s.open();
    s.clickNode("Main (3)");
    QSignalSpy handler(s.control<QAction>("mnuDelete_info"), &QAction::triggered);
    QTest::keyClick(w.ListView1, Qt::Key_Delete);
    QCOMPARE(handler.count(), 1);
    QTest::keyClick(w.ListView1, Qt::Key_Backspace);
    QTest::keyClick(w.TreeView1, Qt::Key_Delete);
    QCOMPARE(handler.count(), 1);
}

void TestContactList::doubleClickEditsWithoutTreeRebuild() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    // The record of Carl says another id inside; the double click takes it.
    s.writeFile("data/addr00012.b64", s.file("data/addr00012.b64").replace("infoid=00012", "infoid=77777"));
    s.open();
    s.clickNode("Main (3)");
    ContactBuffer.fax = "left over";
    QString form, infoid, name, fax;
    bool flag = false;
    ExpectModal([&](Form* dialog) {
        form = dialog->objectName();
        infoid = ContactBuffer.infoid;
        name = ContactBuffer.infoname;
        fax = ContactBuffer.fax;
        flag = ContactEditFlag;
        // Meanwhile Sven moves to Norway on the drive.
        s.writeFile("cat.dat", Cp1252(kCat).replace("\"Sweden\",\"00001\"", "\"Norway\",\"00001\""));
    });
    DoubleClickRow(s, 1);
    QCOMPARE(form, QString("frmedittask"));
    QCOMPARE(infoid, QString("77777"));
    QCOMPARE(name, QString("Carl"));
    QCOMPARE(fax, QString(""));
    QVERIFY(flag);
    QCOMPARE(PendingModalScripts(), 0);
    // The list is read again from a new snapshot; the tree keeps its counts.
    QCOMPARE(Names(s), QStringList({"anna", "Carl", "Sven", "Bo"}));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main (3)", "Work (1)"}));
    // Cleared after the dialog, then filled again by the list's summaries,
    // which don't read the country.
    QCOMPARE(ContactBuffer.country, qint16(-1));
}

void TestContactList::editFromMenuKeepsBuffer() {
    MainStore s(kCategories, kCat);
    ThreeContacts(s);
    // Bo's country can't be read: the reading stops there.
    s.writeFile("data/addr00013.b64", s.file("data/addr00013.b64").replace("country=0", "country="));
    FrmMain& w = s.open();
    s.clickNode("Main (3)");
    QTest::mouseClick(w.ListView1->viewport(), Qt::LeftButton, {}, s.rowCentre(2));
    ContactBuffer.mail = "kept@example.no";
    QString infoid, name, mail;
    ExpectModal([&](Form*) {
        infoid = ContactBuffer.infoid;
        name = ContactBuffer.infoname;
        mail = ContactBuffer.mail;
    });
    s.trigger("mnuEdit_p");
    QCOMPARE(infoid, QString("00013"));
    QCOMPARE(name, QString("Bo"));
    QCOMPARE(mail, QString("kept@example.no"));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main (3)", "Work (1)"}));
}

QTEST_MAIN(TestContactList)
#include "tst_contactlist.moc"
