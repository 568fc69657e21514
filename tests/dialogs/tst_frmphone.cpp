// The phone code look-up over a hand-written phone code library: which
// entries the scan lists, what the code box shows, and its captions.
#include <QLabel>
#include <QPushButton>
#include "app/forms/captionrule.h"
#include "dialogfixture.h"
#include "dialogs/forms/frmphone.h"
#include "dialogs/forms/itemcombo.h"
#include "platform/forms/pointer.h"

namespace {
const QString kLongName = QString(99, u'L') + "Z-beyond-the-hundredth";

// Runs of 200-204 (a gap at 205), 301-302 (300 is never read), an empty
// 401 hundred, 501, and 801 (the gap at 802 ends the scan).
const QByteArray kPhoneLibrary = "# a phone code library for the test\n"
                                 "200=Afghanistan/=93\n201=Entry without separator\n202=/=999\n"
                                 "203=Norway/=47\n204=" + kLongName.toUtf8() + "/=1\n"
                                 "250=After the gap/=250\n300=Hundred start/=300\n"
                                 "301=Sweden/=46\n302=A/=B/=C\n450=Behind an empty start/=450\n"
                                 "500=Another hundred start/=500\n501=Zambia/=260\n"
                                 "801=Last/=0\n899=Behind the end/=899\n";

QString Padded(const QString& name) { return name + QString(100 - name.size(), u' '); }
}  // namespace

class TestFrmPhone : public QObject {
    Q_OBJECT
private slots:
    void scanListsTheRunsAndShowsCodes();
    void withoutLibraryTheListStaysEmpty();
    void captionsAndFonts();
};

void TestFrmPhone::scanListsTheRunsAndShowsCodes() {
    DialogStore s;
    UnloadPhoneCodeLibrary();
    s.writeFile("phonecode.dll", kPhoneLibrary);
    CopyCountryLibraries();
    LoadPhoneCodeLibrary();
    frmphone dlg;
    QStringList items, shown, codes;
    int pointer = -1;
    ExpectModal([&](Form*) {
        auto* list = Control<ItemCombo>(&dlg, "cbCountry");
        auto* code = Control<QLineEdit>(&dlg, "txtname");
        items = list->itemTexts();
        for (int i = 0; i < list->count(); ++i) shown << list->itemText(i);
        pointer = ScreenPointer();
        codes << QString::number(list->currentIndex()) << code->text();
        list->setFocus();
        for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_End}) {
            QTest::keyClick(list, key);
            codes << code->text();
        }
    });
    ShowModal(&dlg);

    QCOMPARE(items, QStringList({Padded("Afghanistan") + "93", Padded("") + "999",
                                 Padded("Norway") + "47", kLongName.left(100) + "1",
                                 Padded("Sweden") + "46", Padded("A") + "B/=C",
                                 Padded("Zambia") + "260", Padded("Last") + "0"}));
    QCOMPARE(shown, QStringList({"Afghanistan", "", "Norway", kLongName.left(100), "Sweden", "A",
                                 "Zambia", "Last"}));
    QCOMPARE(pointer, 0);
    // index 0 chosen at once; the box shows the last character of the
    // padded name, then the code
    QCOMPARE(codes, QStringList({"0", " 93", " 999", " 47", "Z1", " 0"}));
    QCOMPARE(Boxes(s.boxes), QStringList());
}

void TestFrmPhone::withoutLibraryTheListStaysEmpty() {
    DialogStore s;
    UnloadPhoneCodeLibrary();
    frmphone dlg;
    QString seen = "unset";
    ExpectModal([&](Form*) { seen = QString::number(dlg.cbCountry->count()) + "|" + dlg.txtname->text(); });
    ShowModal(&dlg);
    QCOMPARE(seen, QString("0|"));
    QCOMPARE(Boxes(s.boxes), QStringList());
}

void TestFrmPhone::captionsAndFonts() {
    DialogStore s;
    DesignFont design;
    LanguageId = "0804";
    CharsetId = "134";
    frmphone dlg;
    dlg.FormLoad();
    QCOMPARE(QStringList({dlg.windowTitle(), Control<QLabel>(&dlg, "lbcountry")->text(),
                          Control<QLabel>(&dlg, "lbcode")->text(),
                          Control<QPushButton>(&dlg, "cmdClose")->text()}),
             QStringList({"International Dialling Codes", "Country", "Dialling Code", "Close"}));
    for (QLabel* label : {dlg.lbcountry, dlg.lbcode}) QCOMPARE(label->font().pointSize(), 9);
    QCOMPARE(dlg.cmdClose->font().pointSize(), 14);  // the button isn't sized here
    for (QWidget* control : {(QWidget*)dlg.lbcountry, (QWidget*)dlg.lbcode, (QWidget*)dlg.cbCountry,
                             (QWidget*)dlg.txtname, (QWidget*)dlg.cmdClose})
        QCOMPARE(FontCharsetOf(control), 134);
}

QTEST_MAIN(TestFrmPhone)
#include "tst_frmphone.moc"
