// The road of one save, from the main window: the toolbar's "new" opens the
// new-contact dialog, a contact is typed and saved, the dialog is closed,
// and the window shows the count, the row and the files on the drive. And
// the edit: a saved edit rebuilds the tree through the dialog's own save,
// a close without saving leaves the tree as it was.
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include "dialogs/forms/frmaddtask.h"
#include "dialogs/forms/frmedittask.h"
#include "dialogs/forms/contactdialog.h"
#include "dialogs/forms/itemcombo.h"
#include "mainfixture.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const char* const kCat = "\"Norway\",\"00002\",\"00012\"\r\n";
const char* const kCty = "\"Norway\",\"00012\"\r\n";
const char* const kName = "\"00012\",\"Per Holm\"\r\n";

void ExistingContact(const MainStore& s) {
    s.writeFile("cty.dat", Cp1252(kCty));
    s.writeFile("name.dat", Cp1252(kName));
    s.writeRecord("00012", "Per Holm", "per@example.no", "Fjord AS", "Skipper", "00002",
                  CountryIndex("Norway"));
}

// The record ids of the data folder.
QStringList RecordIds(const MainStore& s) {
    QStringList ids;
    for (const QString& name : QDir(s.store.appFile("data")).entryList(QDir::Files))
        ids << name.mid(4, 5);
    return ids;
}

void DoubleClickRow(const MainStore& s, int i) {
    QWidget* viewport = s.window->ListView1->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, s.rowCentre(i));
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, s.rowCentre(i));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, s.rowCentre(i));
}
}  // namespace

class TestRoadOfOneSave : public QObject {
    Q_OBJECT
private slots:
    void newContactFromToolbarReachesDriveTreeAndList();
    void savedEditRebuildsTreeThroughDialog();
    void closedEditLeavesTreeAsItWas();
};

void TestRoadOfOneSave::newContactFromToolbarReachesDriveTreeAndList() {
    MainStore s(kCategories, kCat);
    ExistingContact(s);
    s.open();
    const int norway = CountryIndex("Norway");
    s.clickNode("Work (1)");
    QString startCountry, startCategory;
    ExpectModal([&](Form* form) {
        auto* dlg = static_cast<ContactDialog*>(form);
        startCountry = dlg->cbCountry->currentText();
        startCategory = dlg->cbCategory->currentText();
        QTest::keyClicks(dlg->txtname, "  Ødegård, Liv ");
        QTest::keyClicks(dlg->txttel1, "+47 22 33");
        QTest::keyClicks(dlg->txtcompany, "Fjord \"AS\"");
        QTest::keyClicks(dlg->txtEmail, "liv@example.no");
        dlg->txtaddr->setPlainText("Storgata 1\n0155 Oslo");
        QTest::mouseClick(dlg->cmdSave, Qt::LeftButton);
        QTest::mouseClick(dlg->cmdClose, Qt::LeftButton);
    });
    QToolButton* button = s.window->Toolbar1->findChild<QToolButton*>("new");
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(4, 4));
    QCOMPARE(PendingModalScripts(), 0);
    QCOMPARE(s.boxes.count(), 0);
    QCOMPARE(startCountry, QString("Norway"));
    QCOMPARE(startCategory, QString("Work"));

    const QStringList ids = RecordIds(s);
    QCOMPARE(ids.size(), 2);
    const QByteArray id = (ids[0] == "00012" ? ids[1] : ids[0]).toLatin1();
    QCOMPARE(s.file("cat.dat"), Cp1252(kCat) + "\"Norway\",\"00002\",\"" + id + "\"\r\n");
    QCOMPARE(s.file("cty.dat"), Cp1252(kCty) + "\"Norway\",\"" + id + "\"\r\n");
    QCOMPARE(s.file("name.dat"), Cp1252(kName) + "\"" + id + "\"," + Cp1252("\"Ødegård, Liv\"") + "\r\n");
    QCOMPARE(s.file("data/addr" + QString(id) + ".b64"),
             "[Setting]\r\ninfoid=" + id + "\r\ninfoname=" + Cp1252("Ødegård, Liv") +
                 "\r\ncountry=" + QByteArray::number(norway) +
                 "\r\ncategory=00002\r\ntel1=+47 22 33\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\nfax=\r\n"
                 "company=Fjord \"\"AS\"\"\r\ndesignation=\r\naddr=Storgata 1<NextLine>0155 Oslo\r\n"
                 "notes=\r\nmail=liv@example.no\r\n");

    QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main", "Work (2)"}));
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    QCOMPARE(s.rows(), QStringList({"Per Holm|per@example.no|Fjord AS|Skipper|00012",
                                    "Ødegård, Liv|liv@example.no|Fjord \"\"AS\"\"||" + QString(id)}));
}

void TestRoadOfOneSave::savedEditRebuildsTreeThroughDialog() {
    MainStore s(kCategories, kCat);
    ExistingContact(s);
    s.open();
    s.clickNode("Work (1)");
    int categoryIndexInDialog = -1;
    ExpectModal([&](Form* form) {
        auto* dlg = static_cast<ContactDialog*>(form);
        categoryIndexInDialog = dlg->cbCategory->currentIndex();
        dlg->cbCategory->setCurrentIndex(0);  // Main
        QTest::mouseClick(dlg->cmdSave, Qt::LeftButton);
    });
    DoubleClickRow(s, 0);
    QCOMPARE(PendingModalScripts(), 0);
    QCOMPARE(s.boxes.count(), 0);
    QCOMPARE(categoryIndexInDialog, 1);
    QCOMPARE(s.file("cat.dat"), Cp1252("\"Norway\",\"00001\",\"00012\"\r\n"));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main (1)", "Work"}));
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    // The list still shows Work, refilled: the contact has left it.
    QCOMPARE(s.window->strNodeKey, QString("id00002"));
    QCOMPARE(s.rows(), QStringList());
}

void TestRoadOfOneSave::closedEditLeavesTreeAsItWas() {
    MainStore s(kCategories, kCat);
    ExistingContact(s);
    s.open();
    s.clickNode("Work (1)");
    // Another contact of Main reaches the drive: a rebuild would show it.
    s.writeFile("cat.dat", Cp1252(kCat) + "\"Norway\",\"00001\",\"00013\"\r\n");
    ExpectModal([&](Form* form) {
        auto* dlg = static_cast<ContactDialog*>(form);
        dlg->cbCategory->setCurrentIndex(0);
        QTest::keyClicks(dlg->txtname, " changed");
        QTest::mouseClick(dlg->cmdClose, Qt::LeftButton);
    });
    DoubleClickRow(s, 0);
    QCOMPARE(PendingModalScripts(), 0);
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main", "Work (1)"}));
    QCOMPARE(s.selectedNodeText(), QString("Work (1)"));
    QCOMPARE(s.rows(), QStringList({"Per Holm|per@example.no|Fjord AS|Skipper|00012"}));
    QCOMPARE(s.file("cat.dat"), Cp1252(kCat) + "\"Norway\",\"00001\",\"00013\"\r\n");
}

QTEST_MAIN(TestRoadOfOneSave)
#include "tst_roadofonesave.moc"
