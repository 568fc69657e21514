// The contact dialogs and the phone code look-up, driven through their
// controls: the saves they write, their refusals and failures in the user's
// words, the edit dialog's refill, the e-mail button, the phone code scan,
// the caption rule. The bytes of a save from the main
// window's road stand in tst_roadofonesave.
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include "app/forms/captionrule.h"
#include "dialogs/forms/frmaddtask.h"
#include "dialogs/forms/frmedittask.h"
#include "dialogs/forms/frmphone.h"
#include "dialogs/forms/itemcombo.h"
#include "platform/core/fileops.h"
#include "platform/forms/pointer.h"
#include "support/formstore.h"

namespace {
const QString kNotSaved = "Tandry - Error|16|The contact could not be saved.\r\nPlease make sure the drive is "
                          "plugged in and not write-protected, then try again.";

// The twelve text boxes in the record's order, then the two drop-downs' indexes.
QStringList Shown(const ContactDialog& d) {
    QStringList texts;
    for (QLineEdit* box : {d.txtname, d.txttel1, d.txtext1, d.txttel2, d.txtext2, d.txtmobile, d.txtfax,
                           d.txtcompany, d.txtDesignation})
        texts << box->text();
    return texts << d.txtaddr->toPlainText() << d.txtnotes->toPlainText() << d.txtEmail->text()
                 << QString::number(d.cbCountry->currentIndex()) << QString::number(d.cbCategory->currentIndex());
}

// Two contacts of Norway in "Main"; the second holds line breaks in its
// address and notes, a "<NextLine>" in a telephone box, and doubled quotes.
struct TwoContacts : FormStore {
    QString country = QString::number(CountryIndex("Norway"));
    TwoContacts() {
        store.put("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Friends\"\r\n");
        store.put("cat.dat", "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00022\"\r\n");
        store.put("cty.dat", "\"Norway\",\"00011\"\r\n\"Norway\",\"00022\"\r\n");
        store.put("name.dat", "\"00011\",\"Puglal\"\r\n\"00022\",\"Kari\"\r\n");
        store.putRecord({"00022", "Kari", country, "00001", "1<NextLine>2", "7", "", "", "", "", "ACME \"\"Ltd\"\"",
                         "Buyer", "Harbour 1<NextLine>Bergen", "a<nextline>b", "kari@example.no"});
        ContactEditFlag = true;
        ReadContact("00022");
    }
};


struct DesignFont {  // the forms' design size, made to differ from 8 and 9
    QFont before = QApplication::font();
    DesignFont() { QFont f = before; f.setPointSize(14); QApplication::setFont(f); }
    ~DesignFont() { QApplication::setFont(before); }
};
}  // namespace

class TestContactDialogs : public QObject {
    Q_OBJECT
private slots:
    // The typing goes into the name; Save, then Enter, save one after another.
    void newContactSavesOneAfterAnother() {
        FormStore s;
        s.store.put("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Friends\"\r\n");
        const QString norway = QString::number(CountryIndex("Norway"));
        ContactBuffer.country = qint16(norway.toInt());
        ContactBuffer.category = "00002";
        frmaddtask dlg;
        QStringList after;
        ExpectModal([&](Form*) {
            dlg.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dlg));
            QTest::keyClicks(QApplication::focusWidget(), "   Puglal ");
            QTest::mouseClick(Control<QPushButton>(&dlg, "cmdSave"), Qt::LeftButton);
            after << Shown(dlg) << QString::number(QApplication::focusWidget() == dlg.txtname);
            QTest::keyClicks(dlg.txtname, "Kari");  // a second contact, in the country it started with
            QTest::keyClick(dlg.txtname, Qt::Key_Return);
            after << QString::number(dlg.isVisible());
        });
        ShowModal(&dlg);
        QCOMPARE(s.boxes.lines(), QStringList());
        // emptied with country and category kept, the focus in the name, open
        QCOMPARE(after, QStringList(12, QString()) + QStringList({norway, "1", "1", "1"}));
        const QList<QByteArray> names = s.store.file("name.dat").split('\n');
        QCOMPARE(names.size(), 3);
        QCOMPARE(names[0].mid(8) + names[1].mid(8), QByteArray("\"Puglal\"\r\"Kari\"\r"));
        QCOMPARE(s.record(names[1].mid(1, 5)), RecordBytes({names[1].mid(1, 5), "Kari", norway, "00002"}));
        QVERIFY(s.stagingIsClear());
    }

    void newContactRefusalsAndFailedSaves() {
        for (const QByteArray& categories : {QByteArray("\"00001\",\"Main\"\r\n"), QByteArray()}) {
            FormStore s;  // no country library; with and without a category
            s.store.put("category.dat", categories);
            UnloadCountryLibrary();
            frmaddtask dlg;
            ExpectModal([](Form*) {});
            ShowModal(&dlg);
            QCOMPARE(PendingModalScripts(), 1);  // it never showed
            QCOMPARE(s.boxes.lines(), QStringList(categories.isEmpty()
                                                      ? "Tandry|48|Ada, there is no category yet. Please add a category first."
                                                      : "Tandry|48|The list of countries could not be loaded. Please make "
                                                        "sure the file country.dll stands beside the program."));
        }
        FormStore s;
        frmaddtask dlg;
        QStringList kept;
        ExpectModal([&](Form*) {
            QTest::keyClicks(dlg.txtname, "    ");
            QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
            QTest::keyClicks(dlg.txtname, "Puglal");
            QTest::keyClicks(dlg.txtnotes, "one");
            QTest::keyClick(dlg.txtnotes, Qt::Key_Return);
            QTest::keyClicks(dlg.txtnotes, "two");
            // The staged record is gone when the save looks for it.
            ResetRandomForTest();
            const QString id = IdText(GenID());
            ResetRandomForTest();
            FailFileOperationOn("exists " + s.store.tempFile("addr" + id + ".b64"));
            QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
            QDir(s.store.temp()).removeRecursively();  // the staged record can't be written
            QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
            kept = Shown(dlg) << QString::number(dlg.isVisible() && dlg.cmdSave->isEnabled());
        });
        ShowModal(&dlg);
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|16|Please enter a name for the contact.",
                                               "Tandry - Error|16|The contact could not be written to the working "
                                               "folder on this computer.",
                                               kNotSaved, kNotSaved}));
        QCOMPARE(kept[0] + "|" + kept[10] + "|" + kept.last(), QString("    Puglal|one\ntwo|1"));  // fields kept, open
        QCOMPARE(s.records(), QStringList());
        QCOMPARE(s.store.file("cat.dat") + s.store.file("cty.dat") + s.store.file("name.dat"), QByteArray());
    }

    void editFillsFromTheBufferOnEveryActivationSavesAndCloses() {
        TwoContacts s;
        frmedittask dlg;
        QStringList shown, typed, afterPhone;
        bool closed = false;
        ExpectModal([&](Form*) {
            dlg.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dlg));
            shown = Shown(dlg);
            QTest::keyClicks(QApplication::focusWidget(), " Nordmann");  // the typing goes into the name
            typed = Shown(dlg);
            ExpectModal([](Form*) {});  // the phone code look-up, closed at once
            QTest::mouseClick(dlg.cmdPhone, Qt::LeftButton);
            afterPhone = Shown(dlg);
            dlg.cbCategory->setFocus();
            QTest::keyClick(dlg.cbCategory, Qt::Key_Down);
            QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
            closed = !dlg.isVisible();
        });
        ShowModal(&dlg);
        // Only the address and the notes are decoded.
        const QStringList stored = {"Kari", "1<NextLine>2", "7", "", "", "", "", "ACME \"\"Ltd\"\"", "Buyer",
                                    "Harbour 1\nBergen", "a\nb", "kari@example.no", s.country, "0"};
        QCOMPARE(shown, stored);
        QCOMPARE(typed[0], QString("Kari Nordmann"));
        QCOMPARE(afterPhone, stored);  // what was typed gave way to the buffer
        QCOMPARE(s.boxes.lines(), QStringList());
        QVERIFY(closed);
        // every box is encoded anew: the quotes double again
        QCOMPARE(s.record("00022"), RecordBytes({"00022", "Kari", s.country, "00002", "1<NextLine>2", "7", "", "", "", "",
                                                 "ACME \"\"\"\"Ltd\"\"\"\"", "Buyer", "Harbour 1<NextLine>Bergen",
                                                 "a<NextLine>b", "kari@example.no"}));
        QVERIFY(s.stagingIsClear());
    }

    void editFailuresAndTheMailButton() {
        TwoContacts s;
        const QByteArray before = s.store.file("cat.dat") + s.record("00022");
        ContactBuffer.country = 5000;  // past the end of the country list
        QStringList calls;
        SetShellHandlerForTest([&](const QString& verb, const QString& file) {
            calls << verb + "|" + file;
            return 2L;  // a failure, which nobody looks at
        });
        frmedittask dlg;
        QStringList filled, kept;
        ExpectModal([&](Form*) {
            filled = Shown(dlg);
            auto* link = Control<QPushButton>(&dlg, "cmdLink");
            QTest::mouseClick(link, Qt::LeftButton);
            QTest::keyClicks(dlg.txtEmail, "  not an address ");
            QTest::mouseClick(link, Qt::LeftButton);
            dlg.txtEmail->clear();
            QDir(s.store.temp()).removeRecursively();  // the staged record can't be written
            QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
            kept = Shown(dlg) << QString::number(dlg.isVisible());
        });
        ShowModal(&dlg);
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|16|Error: Invalid property value",
                                               "Tandry - Error|48|There is no e-mail address to send a message to.",
                                               kNotSaved}));
        QCOMPARE(calls, QStringList("open|mailto:  not an address "));
        // the fill ended where it failed, and the dialog stayed
        QCOMPARE(filled.mid(0, 12), QStringList({"Kari"}) + QStringList(11, QString()));
        QCOMPARE(kept.mid(0, 12) << kept.last(), filled.mid(0, 12) << "1");
        QCOMPARE(s.store.file("cat.dat") + s.record("00022"), before);
    }

    void phoneCodeScanListsTheRunsAndShowsCodes() {
        FormStore s;
        // Runs of 200-204 (a gap at 205), 301-302 (300 is never read), an empty
        // 401 hundred, 501, and 801 (the gap at 802 ends the scan).
        const QString longName = QString(99, u'L') + "Z-beyond";
        s.store.put("phonecode.dll", "200=Afghanistan/=93\n201=No separator\n202=/=999\n203=Norway/=47\n204=" +
                                         longName.toUtf8() + "/=1\n250=After the gap/=250\n300=Hundred start/=300\n"
                                         "301=Sweden/=46\n302=A/=B/=C\n450=Behind an empty start/=450\n501=Zambia/=260\n"
                                         "801=Last/=0\n899=Behind the end/=899\n");
        UnloadPhoneCodeLibrary();
        CopyCountryLibraries();
        LoadPhoneCodeLibrary();
        frmphone dlg;
        QStringList items, codes;
        ExpectModal([&](Form*) {
            auto* list = Control<ItemCombo>(&dlg, "cbCountry");
            items = list->itemTexts();
            codes << Control<QLineEdit>(&dlg, "txtname")->text();
            list->setFocus();
            for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_End}) {
                QTest::keyClick(list, key);
                codes << dlg.txtname->text();
            }
        });
        ShowModal(&dlg);
        auto padded = [](const QString& name) { return name.leftJustified(100); };
        QCOMPARE(items, QStringList({padded("Afghanistan") + "93", padded("") + "999", padded("Norway") + "47",
                                     longName.left(100) + "1", padded("Sweden") + "46", padded("A") + "B/=C",
                                     padded("Zambia") + "260", padded("Last") + "0"}));
        // index 0 chosen at once; the box shows the last character of the padded name, then the code
        QCOMPARE(codes, QStringList({" 93", " 999", " 47", "Z1", " 0"}));
        QCOMPARE(s.boxes.lines(), QStringList());
    }

    // The caption rule after the load: labels, Save and Close take the
    // language's size, the rest keep the design's; all but the phone button
    // and the bar take the charset.
    void captionRule() {
        FormStore s;
        DesignFont design;
        LanguageId = "0804";  // the libraries loaded stay those of 0409
        CharsetId = "134";
        frmaddtask add;
        add.FormLoad();
        for (QWidget* control : add.findChildren<QWidget*>()) {
            const QString name = control->objectName();
            if (name.isEmpty() || name.startsWith("qt_") || qobject_cast<QLineEdit*>(control->parentWidget())) continue;
            const bool sized = qobject_cast<QLabel*>(control) || name == "cmdSave" || name == "cmdClose";
            QVERIFY2(control->font().pointSize() == (sized ? 9 : 14), qPrintable(name));
            QVERIFY2(FontCharsetOf(control) == (name == "cmdPhone" || name == "ProgressBar" ? -1 : 134), qPrintable(name));
        }
    }
};

QTEST_MAIN(TestContactDialogs)
#include "tst_contactdialogs.moc"
