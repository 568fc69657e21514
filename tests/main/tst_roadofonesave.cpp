// The road of one save, from the main window: the toolbar's "new" opens the
// new-contact dialog with the category and country to start with, a contact
// is typed and saved, the dialog is closed, and the window shows the count,
// the row and the files on the drive. And the edit: a saved edit rebuilds
// the tree through the dialog's own save.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include "dialogs/forms/contactdialog.h"
#include "dialogs/forms/itemcombo.h"
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"family\"\r\n";
const char* const kCat = "\"Norway\",\"00002\",\"00012\"\r\n";
const char* const kCty = "\"Norway\",\"00012\"\r\n";
const char* const kName = "\"00012\",\"Per Holm\"\r\n";

struct RoadStore : MainStore {
    RoadStore() : MainStore(kCategories, kCat) {
        store.put("cty.dat", Cp1252(kCty));
        store.put("name.dat", Cp1252(kName));
        contact("00012", "Per Holm", "per@example.no", "Fjord AS", "Skipper", "00002", CountryIndex("Norway"));
    }
    // The dialog's country and category as it opened, and the buffer's.
    static QString Start(Form* form) {
        auto* d = static_cast<ContactDialog*>(form);
        return d->objectName() + "|" + d->cbCountry->currentText() + "|" + d->cbCategory->currentText() + "|" + ContactBuffer.category;
    }
};
}  // namespace

class TestRoadOfOneSave : public QObject {
    Q_OBJECT
private slots:
    // With the root selected the dialog starts on the first category in tree
    // order, else on the selected one; the filter gives the country.
    void newContactFromToolbarReachesDriveTreeAndList() {
        RoadStore s;
        s.open();
        QStringList starts;
        ExpectModal([&](Form* form) { starts << RoadStore::Start(form); });
        s.trigger("newcontact");
        QCOMPARE(ContactBuffer.category, QString());  // cleared after the dialog
        s.clickNode("Work (1)");
        ExpectModal([&](Form* form) {
            starts << RoadStore::Start(form);
            auto* dlg = static_cast<ContactDialog*>(form);
            QTest::keyClicks(dlg->txtname, U("  Ødegård, Liv "));
            QTest::keyClicks(dlg->txttel1, "+47 22 33");
            QTest::keyClicks(dlg->txtcompany, "Fjord \"AS\"");
            QTest::keyClicks(dlg->txtEmail, "liv@example.no");
            dlg->txtaddr->setPlainText("Storgata 1\n0155 Oslo");
            QTest::mouseClick(dlg->cmdSave, Qt::LeftButton);
            QTest::mouseClick(dlg->cmdClose, Qt::LeftButton);
        });
        QTest::mouseClick(s.window->Toolbar1->findChild<QToolButton*>("new"), Qt::LeftButton, {}, QPoint(4, 4));
        QVERIFY(PendingModalScripts() == 0 && s.boxes.lines().isEmpty());
        QCOMPARE(starts, QStringList({"frmaddtask|Norway|family|00003", "frmaddtask|Norway|Work|00002"}));

        QStringList records = s.records();
        QCOMPARE(records.size(), 2);
        records.removeAll("addr00012.b64");
        const QByteArray id = records.first().mid(4, 5).toLatin1();
        QCOMPARE(s.store.file("cat.dat"), Cp1252(kCat) + "\"Norway\",\"00002\",\"" + id + "\"\r\n");
        QCOMPARE(s.store.file("cty.dat"), Cp1252(kCty) + "\"Norway\",\"" + id + "\"\r\n");
        QCOMPARE(s.store.file("name.dat"), Cp1252(kName) + "\"" + id + "\"," + Cp1252("\"Ødegård, Liv\"") + "\r\n");
        QCOMPARE(s.record(id), RecordBytes({id, "Ødegård, Liv", QString::number(CountryIndex("Norway")), "00002",
                                            "+47 22 33", "", "", "", "", "", "Fjord \"\"AS\"\"", "",
                                            "Storgata 1<NextLine>0155 Oslo", "", "liv@example.no"}));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main", "Work (2)"}));
        QCOMPARE(s.rows(), QStringList({"Per Holm|per@example.no|Fjord AS|Skipper|00012",
                                        U("Ødegård, Liv|liv@example.no|Fjord \"\"AS\"\"||") + id}));
    }

    void savedEditRebuildsTreeThroughDialog() {
        RoadStore s;
        s.open();
        s.clickNode("Work (1)");
        // Another contact of Main reaches the drive: a rebuild shows it.
        s.store.put("cat.dat", Cp1252(kCat) + "\"Norway\",\"00001\",\"00013\"\r\n");
        int categoryInDialog = -1;
        ExpectModal([&](Form* form) {
            auto* dlg = static_cast<ContactDialog*>(form);
            categoryInDialog = dlg->cbCategory->currentIndex();
            dlg->cbCategory->setCurrentIndex(0);  // Main
            QTest::mouseClick(dlg->cmdSave, Qt::LeftButton);
        });
        s.doubleClickRow(0);
        QVERIFY(PendingModalScripts() == 0 && s.boxes.lines().isEmpty());
        QCOMPARE(categoryInDialog, 1);
        QCOMPARE(s.store.file("cat.dat"), Cp1252("\"Norway\",\"00001\",\"00012\"\r\n\"Norway\",\"00001\",\"00013\"\r\n"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work"}));
        // Through the root the rebuild selects, the list still shows Work, refilled: the contact has left it.
        QCOMPARE(s.selectedNodeText() + "|" + s.window->strNodeKey + "|" + s.names(), QString("Category|id00002|"));
    }
};

QTEST_MAIN(TestRoadOfOneSave)
#include "tst_roadofonesave.moc"
