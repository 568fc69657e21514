// Printing: the selected rows of the main window become the page
// Temp5.html in the system's temporary folder, which goes through the print
// dialog to a printer or a PDF file.
#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <sys/stat.h>
#include "platform/forms/strictprogressbar.h"
#include "print/core/printlist.h"
#include "print/forms/frmprint.h"
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const char* const kCat = "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00012\"\r\n"
                         "\"Norway\",\"00001\",\"00013\"\r\n";

// The head, the group heading and the country's row of every page here.
const char* const kPageStart =
    "<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>\r\n<BODY bgcolor=white text=black>\r\n"
    "<font size=5><bold>GROUPING<bold></font><BR>"
    "<table border=0><tr><td>Country</td><td> : Norway</td></tr>";

struct PrintStore : MainStore {
    QString printed;  // the PDF file, when the dialog's answer is to print
    int dialogs = 0;

    PrintStore() : MainStore(kCategories, kCat) {
        const QString norway = QString::number(CountryIndex("Norway"));
        // Every field set: wide characters alone, a real "?" last, a typed
        // "1978nbsp;", line breaks in both the address and the notes; no fax.
        store.putRecord({"00011", U("ß&<>\""), norway, "00001", "555 0100", "12", "555 0101", "13", U("€™"), "",
                         "Acme?", "Chief1978nbsp;Clerk", "1 Main St<NextLine>Oslo", "Line one<nextline>Line two",
                         "anna@example.com"});
        store.putRecord({"00012", "Bob Ray", norway, "00001", "555 0200", "7", "555 0201", "8", "555 0202", "555 0203",
                         "Ray & Co", "Owner", "2 High St", "Call first", "bob@example.com"});
        store.putRecord({"00013", "Cleo Dahl", norway, "00001", "555 0300", "", "", "", "", "", "Dahl AS", "", "", "",
                         "cleo@example.com"});
        SetPrintDialogAnswerForTest([this](QPrinter& printer) {
            ++dialogs;
            if (printed.isEmpty()) return false;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(printed);
            return true;
        });
    }
    QString page() const { return store.systemTemp() + "/Temp5.html"; }
    // Selects the rows of these names, in the list of the node clicked.
    void select(const QStringList& names) const {
        for (int i = 0; i < window->ListView1->topLevelItemCount(); ++i)
            row(i)->setSelected(names.contains(row(i)->text(0)));
    }
};
}  // namespace

class TestPrint : public QObject {
    Q_OBJECT
private slots:
    // The page, then the PDF file it prints to through the dialog.
    void theSelectedRowsPrintAsTemp5ByteForByteThenToAPdf() {
        const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
        if (pdftotext.isEmpty()) QFAIL("pdftotext is missing: install poppler-utils (make deps)");
        PrintStore s;
        s.printed = s.store.systemTemp() + "/contacts.pdf";
        s.open();
        s.clickNode("Main (3)");
        s.select({U("ß&<>\""), "Bob Ray"});
        s.trigger("mnuPrint_p");
        QCOMPARE(s.dialogs, 1);
        // The name's entities, ampersand first; each label and value on its own. Wide
        // characters alone: the double cut takes " : &#8" of the first, a stray "?" follows.
        const QByteArray nbsp = "&nbsp; &nbsp; &nbsp; &nbsp; &nbsp;";
        const QByteArray expected = kPageStart + QByteArray("<tr><td>Category</td><td> : Main</td></tr></table>") +
            "<BR><BR><font size=5><bold>&szlig;&amp;&lt;&gt;&quot;<bold></font><BR><table border=0>"
            "<tr><td>Email Address</td><td> : anna@example.com</td></tr><tr><td>Telephone 1</td><td> : 555 0100" + nbsp +
            "Ext. : 12</td></tr><tr><td>Telephone 2</td><td> : 555 0101" + nbsp + "Ext. : 13</td></tr>"
            "<tr><td>Mobile</td><td>364;&#8482;?</td></tr><tr><td>Fax</td><td> : </td></tr>"
            "<tr><td>Company</td><td> : Acme?" "?</td></tr><tr><td>Designation</td><td> : Chief&nbsp;Clerk</td></tr>"
            "<tr><td vAlign=top>Address</td><td> : 1 Main St<BR>&nbsp;Oslo</td></tr>"
            "<tr><td vAlign=top>Notes</td><td> : Line one<BR>&nbsp;Line two</td></tr></table>\r\n"
            "<BR><BR><font size=5><bold>Bob Ray<bold></font><BR><table border=0>"
            "<tr><td>Email Address</td><td> : bob@example.com</td></tr><tr><td>Telephone 1</td><td> : 555 0200" + nbsp +
            "Ext. : 7</td></tr><tr><td>Telephone 2</td><td> : 555 0201" + nbsp + "Ext. : 8</td></tr>"
            "<tr><td>Mobile</td><td> : 555 0202</td></tr><tr><td>Fax</td><td> : 555 0203</td></tr>"
            "<tr><td>Company</td><td> : Ray &amp; Co</td></tr><tr><td>Designation</td><td> : Owner</td></tr>"
            "<tr><td vAlign=top>Address</td><td> : 2 High St</td></tr>"
            "<tr><td vAlign=top>Notes</td><td> : Call first</td></tr></table>\r\n</BODY>\r\n</HTML>\r\n";
        QCOMPARE(s.store.read(s.page()), expected);
        struct stat st;
        QVERIFY(::stat(QFile::encodeName(s.page()).constData(), &st) == 0);
        QCOMPARE(st.st_mode & 0777, 0600u);  // readable by the user alone
        QCOMPARE(ThePrintList.mails, QStringList({"anna@example.com", "bob@example.com"}));
        QCOMPARE(s.boxes.lines(), QStringList());
        QProcess reader;
        reader.start(pdftotext, {s.printed, "-"});
        QVERIFY(reader.waitForFinished(20000));
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        for (const char* needle : {"GROUPING", "ß&<>\"", ": Acme??", "Bob Ray"}) QVERIFY2(text.contains(U(needle)), needle);
        // A missing record prints the contact before it again.
        QVERIFY(QFile::remove(s.store.appFile("data/addr00013.b64")));
        s.select({"Bob Ray", "Cleo Dahl"});
        s.trigger("mnuPrint_p");
        QCOMPARE(QString(s.store.read(s.page())).count("<bold>Bob Ray<bold>"), 2);
    }

    // A list of one: Max 5, the values 0, 1, 3 and 4, then 6, which the bar
    // refuses; the job leaves through its failure path and the dialog goes.
    // After a rebuild the root is selected: a node text without "(".
    void progressOfAListOfOneAndTheRootAsCategory_data() {
        QTest::addColumn<bool>("cancelAtFirstContact");
        QTest::newRow("printed") << false;
        QTest::newRow("cancelled") << true;
    }
    void progressOfAListOfOneAndTheRootAsCategory() {
        QFETCH(bool, cancelAtFirstContact);
        PrintStore s;
        FrmMain& w = s.open();
        s.clickNode("Main (3)");
        w.RefreshCategory();
        ClearPrintList();
        AddToPrintList("00012", "Bob Ray", "bob@example.com");
        frmprint dialog(&w);
        QStringList steps;
        connect(dialog.ProgressBar, &QProgressBar::valueChanged, [&](int v) {
            steps << QString::number(v);
            if (v == 1 && cancelAtFirstContact) dialog.cmdCancel->click();
        });
        connect(dialog.ProgressBar, &StrictProgressBar::refused, [&](int v) { steps << "refused " + QString::number(v); });
        ShowModal(&dialog, &w);
        QVERIFY(dialog.isHidden() && dialog.ProgressBar->isHidden());
        if (cancelAtFirstContact) {
            QCOMPARE(steps, QStringList({"0", "1"}));
            QCOMPARE(s.dialogs, 0);
            QVERIFY(!QFile::exists(s.page()));
            return;
        }
        QCOMPARE(steps, QStringList({"0", "1", "3", "4", "refused 6"}));
        QCOMPARE(s.dialogs, 1);
        QVERIFY(s.store.read(s.page()).contains("<tr><td>Category</td><td> : Category</td></tr></table>"));
    }

    // A failure before the write keeps the page of the last run and shows
    // nothing; a link planted at the page's name is not followed.
    void failuresEndTheJobInSilence_data() {
        QTest::addColumn<bool>("plantLink");
        QTest::newRow("country no number") << false;
        QTest::newRow("planted link") << true;
    }
    void failuresEndTheJobInSilence() {
        QFETCH(bool, plantLink);
        PrintStore s;
        const QString target = s.store.systemTemp() + "/victim.txt";
        s.store.write(target, "the user's own file");
        if (plantLink) QVERIFY(QFile::link(target, s.page()));
        else s.store.write(s.page(), "last run");
        if (!plantLink) s.store.putRecord({"00013", "Cleo Dahl", "x", "00001"});
        s.open();
        s.clickNode("Main (3)");
        s.select({"Bob Ray", "Cleo Dahl"});
        s.trigger("mnuPrint_p");
        QCOMPARE(s.dialogs, 0);
        QCOMPARE(s.store.read(s.page()), QByteArray(plantLink ? "the user's own file" : "last run"));
        QCOMPARE(s.store.read(target), QByteArray("the user's own file"));
        QCOMPARE(s.boxes.lines(), QStringList());
    }
};

QTEST_MAIN(TestPrint)
#include "tst_print.moc"
