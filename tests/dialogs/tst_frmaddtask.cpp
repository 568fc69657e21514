// The new-contact dialog, driven through its controls: the saves it writes,
// byte for byte, its refusals and its captions.
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include "app/forms/captionrule.h"
#include "dialogfixture.h"
#include "dialogs/forms/frmaddtask.h"
#include "dialogs/forms/itemcombo.h"

class TestFrmAddTask : public QObject {
    Q_OBJECT
private slots:
    void saveWritesTheContactAndEmptiesTheForm();
    void refusalsAndFailedSave();
    void captionsAndFonts_data();
    void captionsAndFonts();
};

void TestFrmAddTask::saveWritesTheContactAndEmptiesTheForm() {
    DialogStore s;
    s.writeFile("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Friends\"\r\n");
    const int norway = CountryIndex("Norway");
    ContactBuffer.country = qint16(norway);
    ContactBuffer.category = "00002";
    frmaddtask dlg;
    QList<int> steps;
    bool busy = true;  // bar shown and Save off at every step
    connect(dlg.ProgressBar, &QProgressBar::valueChanged, &dlg, [&](int v) {
        steps << v;
        busy = busy && dlg.ProgressBar->isVisible() && !dlg.cmdSave->isEnabled();
    });
    QStringList after;
    bool wrongAtRest = true, focusInName = false, open = false;
    ExpectModal([&](Form*) {
        dlg.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dlg));
        wrongAtRest = dlg.ProgressBar->isVisible();
        QTest::keyClicks(Control<QLineEdit>(&dlg, "txtname"), "   Puglal ");
        QTest::mouseClick(Control<QPushButton>(&dlg, "cmdSave"), Qt::LeftButton);
        after = BoxTexts(dlg) << QString::number(dlg.cbCountry->currentIndex())
                              << QString::number(dlg.cbCategory->currentIndex());
        focusInName = QApplication::focusWidget() == dlg.txtname;
        wrongAtRest = wrongAtRest || dlg.ProgressBar->isVisible() || !dlg.cmdSave->isEnabled();
        // a second contact, with a line break and a double quote
        QTest::keyClicks(dlg.txtname, "Kari");
        QTest::keyClicks(dlg.txtcompany, "Nordic \"Fish\"");
        QTest::keyClicks(dlg.txtaddr, "12 Fjord Road");
        QTest::keyClick(dlg.txtaddr, Qt::Key_Return);
        QTest::keyClicks(dlg.txtaddr, "Oslo ");
        QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
        open = dlg.isVisible();
    });
    ShowModal(&dlg);

    QCOMPARE(Boxes(s.boxes), QStringList());
    QVERIFY(!wrongAtRest);  // bar hidden and Save on, before and after
    QCOMPARE(steps, QList<int>({1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6}));
    QVERIFY(busy);
    QCOMPARE(after, QStringList(12, QString()) << QString::number(norway) << "1");
    QVERIFY(focusInName);
    QVERIFY(open);

    const QList<QByteArray> lines = s.file("name.dat").split('\n');
    QCOMPARE(lines.size(), 3);
    const QByteArray a = lines[0].mid(1, 5), b = lines[1].mid(1, 5);
    QCOMPARE(s.file("name.dat"), "\"" + a + "\",\"Puglal\"\r\n\"" + b + "\",\"Kari\"\r\n");
    QCOMPARE(s.file("cat.dat"),
             "\"Norway\",\"00002\",\"" + a + "\"\r\n\"Norway\",\"00002\",\"" + b + "\"\r\n");
    QCOMPARE(s.file("cty.dat"), "\"Norway\",\"" + a + "\"\r\n\"Norway\",\"" + b + "\"\r\n");
    const QString country = QString::number(norway);
    QCOMPARE(s.record(a), RecordBytes({a, "Puglal", country, "00002"}));
    QCOMPARE(s.record(b), RecordBytes({b, "Kari", country, "00002", "", "", "", "", "", "",
                                       "Nordic \"\"Fish\"\"", "", "12 Fjord Road<NextLine>Oslo"}));
    QCOMPARE(s.records().size(), 2);
    // nothing of the writes is left in the staging area
    QCOMPARE(s.store.tempFiles(), QStringList({"addr_country.dll", "addr_phonecode.dll",
                                               "ma_edition_0409.dll", "ma_langfile0409.dll"}));
}

void TestFrmAddTask::refusalsAndFailedSave() {
    const QString noCountries = "Tandry|48|The list of countries could not be loaded. Please make "
                                "sure the file country.dll stands beside the program.";
    for (const QByteArray& categories : {QByteArray("\"00001\",\"Main\"\r\n"), QByteArray()}) {
        DialogStore s;  // no country library; with and without a category
        s.writeFile("category.dat", categories);
        UnloadCountryLibrary();
        frmaddtask dlg;
        ExpectModal([](Form*) {});
        ShowModal(&dlg);
        QCOMPARE(PendingModalScripts(), 1);  // it never showed
        QVERIFY(dlg.IsUnloaded());
        QCOMPARE(Boxes(s.boxes),
                 QStringList(categories.isEmpty()
                                 ? "Tandry|48|Ada, there is no category yet. Please add a category first."
                                 : noCountries));
    }

    DialogStore s;
    frmaddtask dlg;
    QStringList refused, kept;
    ExpectModal([&](Form*) {
        QTest::keyClicks(dlg.txtname, "    ");
        QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
        refused = BoxTexts(dlg);
        QDir(s.store.temp()).removeRecursively();  // the staged record can't be written
        QTest::keyClicks(dlg.txtname, "Puglal");
        QTest::keyClicks(dlg.txtnotes, "one");
        QTest::keyClick(dlg.txtnotes, Qt::Key_Return);
        QTest::keyClicks(dlg.txtnotes, "two");
        QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
        kept = BoxTexts(dlg);
        kept << (dlg.isVisible() && dlg.cmdSave->isEnabled() ? "open" : "closed");
    });
    ShowModal(&dlg);
    QCOMPARE(Boxes(s.boxes),
             QStringList({"Tandry|16|Please enter a name for the contact.",
                          "Tandry - Error|16|The contact could not be saved.\r\nPlease make sure "
                          "the drive is plugged in and not write-protected, then try again."}));
    QCOMPARE(refused[0], QString("    "));
    QCOMPARE(kept[0], QString("    Puglal"));
    QCOMPARE(kept[10], QString("one\ntwo"));
    QCOMPARE(kept.last(), QString("open"));
    QCOMPARE(s.records(), QStringList());
    QCOMPARE(s.file("cat.dat") + s.file("cty.dat") + s.file("name.dat"), QByteArray());
}

void TestFrmAddTask::captionsAndFonts_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("points");
    QTest::newRow("0804") << "0804" << 9;
    QTest::newRow("0404") << "0404" << 9;
    QTest::newRow("0409") << "0409" << 8;
}

void TestFrmAddTask::captionsAndFonts() {
    QFETCH(QString, language);
    QFETCH(int, points);
    DialogStore s;
    DesignFont design;
    LanguageId = language;  // the libraries loaded stay those of 0409
    CharsetId = "134";
    frmaddtask dlg;
    dlg.FormLoad();
    QCOMPARE(dlg.windowTitle(), QString("New Contact"));
    QStringList captions;
    for (const char* name : {"lbcountry", "lbcategory", "lbinfoname", "lbtel1", "lbExt1", "lbtel2",
                             "lbExt2", "lbmobile", "lbfax", "lbaddr", "lbemail", "lbcompany",
                             "lbDesignation", "lbnotes"}) {
        auto* label = Control<QLabel>(&dlg, name);
        captions << label->text();
        QCOMPARE(label->font().pointSize(), points);
        QCOMPARE(FontCharsetOf(label), 134);
    }
    QCOMPARE(captions, QStringList({"Country", "Category", "Contact Name", "Telephone 1", "Ext.",
                                    "Telephone 2", "Ext.", "Mobile", "Fax", "Address",
                                    "Email Address", "Company", "Designation", "Notes"}));
    QCOMPARE(dlg.cmdSave->text() + "/" + dlg.cmdClose->text(), QString("Save/Close"));
    for (QPushButton* button : {dlg.cmdSave, dlg.cmdClose}) QCOMPARE(button->font().pointSize(), points);
    // boxes and drop-downs keep the design's size; all take the charset but
    // the phone button
    QList<QWidget*> entries = {dlg.txtaddr, dlg.txtnotes, dlg.cbCountry, dlg.cbCategory};
    for (QLineEdit* box : dlg.findChildren<QLineEdit*>()) entries << box;
    QCOMPARE(entries.size(), 14);
    for (QWidget* control : entries) QCOMPARE(control->font().pointSize(), 14);
    entries << dlg.cmdSave << dlg.cmdClose;
    for (QWidget* control : entries) QCOMPARE(FontCharsetOf(control), 134);
    QCOMPARE(dlg.cmdPhone->font().pointSize(), 14);
    QCOMPARE(FontCharsetOf(dlg.cmdPhone), -1);
    // the drop-downs show names; their items are the padded texts
    QCOMPARE(dlg.cbCategory->itemText(0), QString("Main"));
    QCOMPARE(dlg.cbCategory->itemTextAt(0), QString("Main").leftJustified(200) + "00001     ");
    QCOMPARE(dlg.cbCountry->itemTextAt(0), QString("Afghanistan"));
}

QTEST_MAIN(TestFrmAddTask)
#include "tst_frmaddtask.moc"
