// The find dialog, opened from the main window: the three searches with
// their quirks, the emptiness test, the failures in the "Error: " box, the
// emptying of the list on a second search, the sort, the option chosen by
// FindKey at each opening, and the double click into the edit dialog.
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include "dialogs/forms/frmedittask.h"
#include "find/forms/frmfindtask.h"
#include "platform/forms/pointer.h"
#include "support/formstore.h"

namespace {
// Anna of Work in Norway; Marianne of Family with no country; Ghost's record
// is gone; Per of Work in Sweden with no e-mail and no company.
struct FindStore : MainStore {
    FindStore() : MainStore("\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Family\"\r\n", "") {
        store.put("name.dat", "\"00011\",\"Anna Berg\"\r\n\"00012\",\"MARIANNE Lie\"\r\n\"00013\",\"Ghost\"\r\n"
                              "\"00014\",\"Per\"\r\n");
        store.put("cty.dat", "");
        contact("00011", "Anna Berg", "ANNA@Example.no", "Fjord AS", "", "00002", CountryIndex("Norway"));
        contact("00012", "MARIANNE Lie", "marianne@example.no", "fjordline", "", "00003", -1);
        contact("00014", "Per", "", "", "", "00002", CountryIndex("Sweden"));
        open();
    }
    // The dialog from a main window entry, handed to the script while it is up.
    void find(const char* entry, const std::function<void(frmfindtask&)>& script) {
        ExpectModal([&](Form* form) { script(*static_cast<frmfindtask*>(form)); });
        trigger(entry);
        QCOMPARE(PendingModalScripts(), 0);
    }
};

// Chooses the option, types the query into its box and presses Enter there.
void Search(frmfindtask& d, int option, const QString& query) {
    d.optKey[option]->click();
    QLineEdit* box = QList<QLineEdit*>{d.txtname, d.txtEmail, d.txtcompany}[option];
    box->setText(query);
    QTest::keyClick(box, Qt::Key_Return);
}

// Each row as "#|name|e-mail|category|country|id".
QStringList Rows(const frmfindtask& d) {
    QStringList rows;
    for (int i = 0; i < d.ListView1->topLevelItemCount(); ++i) {
        QStringList cells;
        for (int c = 0; c < 6; ++c) cells << d.ListView1->topLevelItem(i)->text(c);
        rows << cells.join('|');
    }
    return rows;
}

const QString kAnna = "Anna Berg|ANNA@Example.no|Work|Norway|00011";
const QString kMarianne = "MARIANNE Lie|marianne@example.no|Family||00012";
const QString kNone = "Search Results|48|No matching contacts were found.";
}  // namespace

class TestFind : public QObject {
    Q_OBJECT
private slots:
    void searches_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("file");        // a store file written first, "name|bytes"
        QTest::addColumn<QStringList>("expected");  // the rows, then the boxes
        const QStringList three{"1|" + kAnna, "2|" + kMarianne, "3|" + kMarianne};
        // A missing record is skipped by name, and repeats the contact before by e-mail and company.
        QTest::newRow("name in capitals") << 0 << "ANN" << "" << QStringList{"1|" + kAnna, "2|" + kMarianne};
        QTest::newRow("e-mail") << 1 << " EXAMPLE.NO " << "" << three;
        QTest::newRow("company") << 2 << "Fjord" << "" << three;
        // Blanks pass the emptiness test and then search for nothing: every non-empty name.
        QTest::newRow("blanks") << 0 << "   " << "" << QStringList{"1|" + kAnna, "2|" + kMarianne, "3|Per||Work|Sweden|00014"};
        QTest::newRow("nothing found") << 0 << "zz" << "" << QStringList(kNone);
        for (const char* what : {"name", "e-mail address", "company"})
            QTest::addRow("empty %s", what) << QStringList{"name", "e-mail address", "company"}.indexOf(what) << "" << ""
                                            << QStringList(QString("Tandry|48|Ada, please enter the %1 you want to search for.").arg(what));
        // The first line of category.dat is never looked at: a hit of that category fails after its row was added.
        QTest::newRow("first category") << 0 << "ann"
                                        << "data/addr00011.b64|[Setting]\r\ninfoid=00011\r\ninfoname=Anna\r\ncategory=00001\r\n"
                                           "country=-1\r\n" << QStringList{"1|Anna||||00011", "|16|Error: Subscript out of range"};
        QTest::newRow("no cty.dat") << 1 << "a" << "cty.dat" << QStringList("|16|Error: File not found");
        // The 16-bit line counter of e-mail and company overflows after line 32,768.
        const QString lines = QString("\"00099\",\"x\"\r\n").repeated(32767);
        QTest::newRow("32,767 lines") << 1 << "a" << "name.dat|" + lines << QStringList(kNone);
        QTest::newRow("32,768 lines") << 1 << "a" << "name.dat|" + lines + lines.left(13) << QStringList("|16|Error: Overflow");
    }
    void searches() {
        QFETCH(int, option);
        QFETCH(QString, query);
        QFETCH(QString, file);
        FindStore s;
        if (file == "cty.dat") QFile::remove(s.store.appFile(file));
        else if (!file.isEmpty()) s.store.put(file.section('|', 0, 0), file.section('|', 1).toLatin1());
        QStringList seen;
        s.find("mnuFind_info", [&](frmfindtask& d) {
            Search(d, option, query);
            seen = Rows(d);
        });
        QTEST(seen + s.boxes.lines(), "expected");
        QCOMPARE(ScreenPointer(), 0);
    }

    // At each opening: which option is on, and which box is enabled ("e")
    // and has the focus ("F").
    void theOptionOfFindKeyAtEachOpening() {
        FindStore s;
        s.window->FindKey = 7;
        QStringList seen;
        for (const char* entry : {"mnuFind_info", "findbycompany", "mnuFind_info", "findbyemail", "findbyname"}) {
            s.find(entry, [&](frmfindtask& d) {
                QString state;
                for (int i = 0; i < 3; ++i) state += d.optKey[i]->isChecked() ? "o" : "-";
                for (QLineEdit* box : {d.txtname, d.txtEmail, d.txtcompany})
                    state += box->isEnabled() ? (box == d.focusWidget() ? "F" : "e") : "-";
                seen << state;
            });
        }
        QCOMPARE(seen, QStringList({"o--F--", "--o--F", "--o--F", "-o--F-", "o--F--"}));
    }

    // The sort renumbers; a double click edits the row's contact; a second
    // search over two rows or more fails halfway, emptying the list (the
    // counter overtakes it), and then runs.
    void theSortRenumbersAndADoubleClickEditsTheRowsContact() {
        FindStore s;
        const QByteArray later = "\"Norway\",\"00002\",\"00014\"\r\n";
        QStringList seen;
        s.find("findbyname", [&](frmfindtask& d) {
            Search(d, 0, "a");
            QHeaderView* header = d.ListView1->header();
            for (int i = 0; i < 2; ++i)  // by name, then by name the other way round
                QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                                  QPoint(header->sectionViewportPosition(1) + 5, header->height() / 2));
            seen << Rows(d);
            s.store.put("cat.dat", later);
            d.optKey[2]->click();  // a choice by hand, overruled when the edit dialog closes
            ExpectModal([&](Form* edit) { seen << static_cast<frmedittask*>(edit)->txtname->text(); });
            const QPoint first = d.ListView1->visualItemRect(d.ListView1->topLevelItem(0)).center();
            QTest::mouseClick(d.ListView1->viewport(), Qt::LeftButton, {}, first);
            QTest::mouseDClick(d.ListView1->viewport(), Qt::LeftButton, {}, first);
            seen << QString::number(d.optKey[0]->isChecked()) + ContactBuffer.infoid;
            for (int i = 0; i < 2; ++i) Search(d, 0, "ann");  // over two rows it fails; then it runs, sorted as before
            seen << Rows(d);
        });
        QCOMPARE(seen, QStringList({"1|" + kMarianne, "2|" + kAnna, "MARIANNE Lie", "1", "1|" + kMarianne, "2|" + kAnna}));
        QCOMPARE(s.store.read(s.store.tempFile("addr_cat.dat")), later);  // the snapshot taken again
        QCOMPARE(s.boxes.lines(), QStringList("|16|Error: Index out of bounds"));
    }
};

QTEST_MAIN(TestFind)
#include "tst_find.moc"
