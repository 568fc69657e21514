// The edit dialog, driven through its controls: filled from the buffer,
// its save byte for byte, the e-mail button and the charset exception.
#include <QLabel>
#include <QPushButton>
#include "app/forms/captionrule.h"
#include "dialogfixture.h"
#include "dialogs/forms/frmedittask.h"
#include "dialogs/forms/itemcombo.h"
#include "platform/forms/shell.h"

namespace {
// Two contacts of Norway in "Main"; the second holds line breaks in its
// address and notes, a "<NextLine>" in a telephone box, and doubled quotes.
struct TwoContacts : DialogStore {
    int norway = CountryIndex("Norway");
    QString country = QString::number(norway);
    TwoContacts() {
        writeFile("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Friends\"\r\n");
        writeFile("cat.dat", "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00022\"\r\n");
        writeFile("cty.dat", "\"Norway\",\"00011\"\r\n\"Norway\",\"00022\"\r\n");
        writeFile("name.dat", "\"00011\",\"Puglal\"\r\n\"00022\",\"Kari\"\r\n");
        writeFile("data/addr00011.b64", RecordBytes({"00011", "Puglal", country, "00001"}));
        writeFile("data/addr00022.b64",
                  RecordBytes({"00022", "Kari", country, "00001", "1<NextLine>2", "7", "", "", "", "",
                               "ACME \"\"Ltd\"\"", "Buyer", "Harbour 1<NextLine>Bergen",
                               "a<nextline>b", "kari@example.no"}));
        ContactEditFlag = true;
    }
};
}  // namespace

class TestFrmEditTask : public QObject {
    Q_OBJECT
private slots:
    void filledFromTheBufferOnEveryActivation();
    void saveChangingOnlyTheCategory();
    void failures();
    void linkButton();
    void charsetExceptionAndFonts();
};

void TestFrmEditTask::filledFromTheBufferOnEveryActivation() {
    TwoContacts s;
    QVERIFY(ReadContact("00022"));
    frmedittask dlg;
    QStringList shown, typed, afterPhone;
    ExpectModal([&](Form*) {
        shown = BoxTexts(dlg) << QString::number(dlg.cbCountry->currentIndex())
                              << QString::number(dlg.cbCategory->currentIndex());
        QTest::keyClicks(dlg.txtname, " Nordmann");
        QTest::keyClicks(dlg.txtaddr, "X");
        dlg.cbCategory->setCurrentIndex(1);
        typed = BoxTexts(dlg);
        ExpectModal([](Form*) {});  // the phone code look-up, closed at once
        QTest::mouseClick(dlg.cmdPhone, Qt::LeftButton);
        afterPhone = BoxTexts(dlg) << QString::number(dlg.cbCountry->currentIndex())
                                   << QString::number(dlg.cbCategory->currentIndex());
    });
    ShowModal(&dlg);

    QCOMPARE(dlg.windowTitle() + "/" + Control<QPushButton>(&dlg, "cmdLink")->text(),
             QString("Edit Contact/Send Mail"));
    // only the address and the notes are decoded
    const QStringList stored = {"Kari", "1<NextLine>2", "7", "", "", "", "", "ACME \"\"Ltd\"\"",
                                "Buyer", "Harbour 1\nBergen", "a\nb", "kari@example.no",
                                s.country, "0"};
    QCOMPARE(shown, stored);
    QCOMPARE(typed[0], QString("Kari Nordmann"));
    QCOMPARE(afterPhone, stored);  // what was typed gave way to the buffer
    QCOMPARE(Boxes(s.boxes), QStringList());
}

void TestFrmEditTask::saveChangingOnlyTheCategory() {
    TwoContacts s;
    QVERIFY(ReadContact("00022"));
    frmedittask dlg;
    bool closed = false;
    ExpectModal([&](Form*) {
        dlg.cbCategory->setFocus();
        QTest::keyClick(dlg.cbCategory, Qt::Key_Down);
        QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
        closed = !dlg.isVisible();
    });
    ShowModal(&dlg);

    QCOMPARE(Boxes(s.boxes), QStringList());
    QVERIFY(closed);
    QCOMPARE(s.file("cat.dat"),
             QByteArray("\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00002\",\"00022\"\r\n"));
    // the category id stands where the contact id stood
    QCOMPARE(s.file("cty.dat"), QByteArray("\"Norway\",\"00011\"\r\n\"Norway\",\"00002\"\r\n"));
    QCOMPARE(s.file("name.dat"), QByteArray("\"00011\",\"Puglal\"\r\n\"00022\",\"Kari\"\r\n"));
    // every box is encoded anew: the quotes double again
    const QStringList saved = {"00022", "Kari", s.country, "00002", "1<NextLine>2", "7", "", "",
                               "", "", "ACME \"\"\"\"Ltd\"\"\"\"", "Buyer",
                               "Harbour 1<NextLine>Bergen", "a<NextLine>b", "kari@example.no"};
    QCOMPARE(s.record("00022"), RecordBytes(saved));
    QCOMPARE(s.record("00011"), RecordBytes({"00011", "Puglal", s.country, "00001"}));
    QCOMPARE(s.store.tempFiles(), QStringList({"addr_country.dll", "addr_phonecode.dll",
                                               "ma_edition_0409.dll", "ma_langfile0409.dll"}));

    // opened again, the dialog shows the quotes as the file holds them
    QVERIFY(ReadContact("00022"));
    frmedittask again;
    QString company;
    ExpectModal([&](Form*) { company = again.txtcompany->text(); });
    ShowModal(&again);
    QCOMPARE(company, saved[10]);
}

void TestFrmEditTask::failures() {
    TwoContacts s;
    QVERIFY(ReadContact("00022"));
    const QByteArray before = s.file("cat.dat") + s.record("00022");
    ContactBuffer.country = 5000;  // past the end of the country list
    frmedittask dlg;
    QStringList filled, kept;
    ExpectModal([&](Form*) {
        filled = BoxTexts(dlg);
        QDir(s.store.temp()).removeRecursively();  // the staged record can't be written
        QTest::mouseClick(dlg.cmdSave, Qt::LeftButton);
        kept = BoxTexts(dlg) << (dlg.isVisible() && dlg.cmdSave->isEnabled() ? "open" : "closed");
    });
    ShowModal(&dlg);
    QCOMPARE(Boxes(s.boxes),
             QStringList({"|16|Error: Invalid property value",
                          "Tandry - Error|16|The contact could not be saved.\r\nPlease make sure "
                          "the drive is plugged in and not write-protected, then try again."}));
    // the fill ended where it failed, and the dialog stayed
    QCOMPARE(filled, QStringList({"Kari"}) + QStringList(11, QString()));
    QCOMPARE(kept, filled << "open");
    QCOMPARE(s.file("cat.dat") + s.record("00022"), before);
}

void TestFrmEditTask::linkButton() {
    TwoContacts s;
    QVERIFY(ReadContact("00011"));
    QStringList calls;
    SetShellHandlerForTest([&](const QString& verb, const QString& file) {
        calls << verb + "|" + file;
        return 2L;  // a failure, which nobody looks at
    });
    frmedittask dlg;
    ExpectModal([&](Form*) {
        auto* link = Control<QPushButton>(&dlg, "cmdLink");
        QTest::mouseClick(link, Qt::LeftButton);
        QTest::keyClicks(dlg.txtEmail, "  not an address ");
        QTest::mouseClick(link, Qt::LeftButton);
    });
    ShowModal(&dlg);
    SetShellHandlerForTest({});
    QCOMPARE(Boxes(s.boxes),
             QStringList("Tandry - Error|48|There is no e-mail address to send a message to."));
    QCOMPARE(calls, QStringList("open|mailto:  not an address "));
}

void TestFrmEditTask::charsetExceptionAndFonts() {
    TwoContacts s;
    DesignFont design;
    for (const char* language : {"0804", "0409"}) {
        LanguageId = language;
        CharsetId = "134";
        frmedittask dlg;
        dlg.FormLoad();
        const int points = LanguageId == "0804" ? 9 : 8;
        const QList<QLabel*> labels = dlg.findChildren<QLabel*>();
        QCOMPARE(labels.size(), 14);
        QList<QWidget*> sized = {dlg.cmdSave, dlg.cmdClose};
        for (QLabel* label : labels) sized << label;
        for (QWidget* control : sized) {
            QCOMPARE(control->font().pointSize(), points);
            QCOMPARE(FontCharsetOf(control), 134);
        }
        auto* link = Control<QPushButton>(&dlg, "cmdLink");
        QCOMPARE(link->font().pointSize(), 14);
        QCOMPARE(FontCharsetOf(link), 134);
        // company and designation keep the design's charset in this dialog
        for (QLineEdit* box : dlg.findChildren<QLineEdit*>()) {
            const bool exception = box == dlg.txtcompany || box == dlg.txtDesignation;
            QCOMPARE(FontCharsetOf(box), exception ? -1 : 134);
        }
        for (QWidget* control : {(QWidget*)dlg.txtaddr, (QWidget*)dlg.txtnotes,
                                 (QWidget*)dlg.cbCountry, (QWidget*)dlg.cbCategory})
            QCOMPARE(FontCharsetOf(control), 134);
    }
}

QTEST_MAIN(TestFrmEditTask)
#include "tst_frmedittask.moc"
