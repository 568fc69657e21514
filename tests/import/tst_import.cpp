// The import through its real forms on a scratch store: the real Yahoo!
// export from the Import button, hand-written files of both CSV shapes, the
// review session of each design, the writer's replace-or-append, and a fault
// at every file operation of a commit.
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QToolBar>
#include <QToolButton>
#include "dialogs/forms/itemcombo.h"
#include "import/forms/importsession.h"
#include "import/forms/importsources.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/forms/getopenfilename.h"
#include "store/core/snapshot.h"
#include "support/formstore.h"
#include "support/scratchhome.h"
#include <algorithm>

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
const QString kNorway = "161";
const QString kBadFile = "The file chosen is not an address book file that can be read.\r\nAda, please choose a CSV "
                         "file exported from your address book and try again.";

// A Yahoo! row of `count` quoted fields, the given places filled, and LF.
QByteArray Yahoo(std::initializer_list<std::pair<int, const char*>> fields, int count = 55) {
    QStringList row(count);
    for (const auto& [place, value] : fields) row[place] = U(value);
    return Cp1252(qPrintable("\"" + row.join("\",\"") + "\"\n"));
}
const QByteArray kThree = "h\n" + Yahoo({{0, "Ann"}, {2, "Lee"}, {8, "11"}, {21, "Fjord"}}) + Yahoo({{0, "Bo"}, {8, "22"}}) +
                          Yahoo({{0, "Cy"}, {8, "33"}});

// Each row of a list as "a|b|c" of the given columns, empty ones at the end cut.
QStringList Cells(const QTreeWidget* list, std::initializer_list<int> columns) {
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QStringList cells;
        for (int c : columns) cells << list->topLevelItem(i)->text(c);
        rows << cells.join('|').remove(QRegularExpression("\\|+$"));
    }
    return rows;
}

void ClickHeader(QTreeWidget* list, int column) {
    const QHeaderView* header = list->header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, 4));
}

// The open-file dialog answers with this file (none: cancelled).
void ChooseFile(const FormStore& s, const QString& name, const QByteArray& bytes) {
    const QString path = name.isEmpty() ? name : s.store.systemTemp() + "/" + name;
    s.store.write(path, bytes);
    SetOpenFileNameHandlerForTest([path](const QString&, const QString&) { return path; });
}

// Shows the form of `kind` and runs `script` in it; false when it wasn't on screen.
bool RunForm(ImportKind kind, const std::function<void(ImportSession&)>& script) {
    bool shown = false;
    ExpectModal([&](Form* form) { shown = form->isVisible(), script(*static_cast<ImportSession*>(form)); });
    ShowImportForm(kind, nullptr);
    ClearModalScripts();
    return shown;
}

// Checks every item with chkCheck and adds them with Norway and this category.
void AddAll(ImportSession& f, int category) {
    QTest::mouseClick(f.chkCheck, Qt::LeftButton);
    f.cbCountry->setCurrentIndex(CountryIndex("Norway"));
    f.cbCategory->setCurrentIndex(category);
    QTest::mouseClick(f.cmdAdd, Qt::LeftButton);
}

// Imports every row of a Yahoo! file so; `beforeOK` runs just before OK.
void ImportFile(const FormStore& s, const QByteArray& file, int category, const std::function<void(ImportSession&)>& beforeOK = {}) {
    ChooseFile(s, "y.csv", file);
    RunForm(ImportKind::Yahoo, [&](ImportSession& f) {
        AddAll(f, category);
        if (beforeOK) beforeOK(f);
        QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    });
}

// Every contact as "name@country/category:id" from the line-parallel
// cat.dat and name.dat, with "!" where its record is missing.
QStringList Contacts(const FormStore& s) {
    const QStringList cat = FromAnsi(s.store.file("cat.dat")).remove('"').split("\r\n", Qt::SkipEmptyParts);
    const QStringList names = FromAnsi(s.store.file("name.dat")).remove('"').split("\r\n");
    QStringList contacts;
    for (int i = 0; i < cat.size(); ++i) {
        const QStringList f = cat[i].split(',');
        contacts << names.value(i).section(',', 1) + "@" + f[0] + "/" + f[1] + ":" + f[2] + (s.record(f[2]).isEmpty() ? "!" : "");
    }
    return contacts;
}

// Every form reads these rows (ListView1's sub-items 2 on).
struct RowsSource : ImportSource {
    explicit RowsSource(const QList<QStringList>& rows) : rows(rows) {}
    bool Load(SourceSink& sink) override { return std::ranges::for_each(rows, [&](auto& r) { sink.AddRow(r); }), true; }
    QList<QStringList> rows;
};
void UseRows(const QList<QStringList>& rows) {
    SetImportSourcesForTest([rows](ImportKind) -> std::unique_ptr<ImportSource> { return std::make_unique<RowsSource>(rows); });
}

struct ImportStore : FormStore {
    ImportStore() { store.put("category.dat", kCategories); }
    ~ImportStore() { SetOpenFileNameHandlerForTest({}), SetImportSourcesForTest({}); }
};
}  // namespace

class TestImport : public QObject {
    Q_OBJECT
private slots:
    // The one road through the window: the Import button, frmoption (first
    // left without a choice), the file dialog and the form.
    void realYahooExportFromTheImportButton() {
        const QString real = TANDRY_FIXTURES_DIR "/yahoo_csv/blackbook_yahoo_contacts.csv";
        if (!QFile::exists(real)) QSKIP("no real Yahoo! export at " TANDRY_FIXTURES_DIR);
        MainStore s(kCategories, "");
        FrmMain& w = s.open();
        SetOpenFileNameHandlerForTest([&](const QString&, const QString&) { return real; });
        for (int option : {-1, 2})
            ExpectModal([&, option](Form* choice) {
                if (QRadioButton* chosen = choice->findChildren<QRadioButton*>().value(option)) chosen->click();
                QTest::mouseClick(Control<QPushButton>(choice, "cmdOK"), Qt::LeftButton);
            });
        ExpectModal([&](Form* form) {
            AddAll(*static_cast<ImportSession*>(form), 1);
            QTest::mouseClick(static_cast<ImportSession*>(form)->cmdOK, Qt::LeftButton);
        });
        for (int i = 0; i < 2; ++i) QTest::mouseClick(w.Toolbar1->findChild<QToolButton*>("import"), Qt::LeftButton, {}, QPoint(4, 4));
        const QByteArray a = Contacts(s)[0].right(5).toLatin1(), b = Contacts(s)[1].right(5).toLatin1();
        QCOMPARE(s.store.file("cat.dat") + s.store.file("cty.dat") + s.store.file("name.dat"),
                 "\"Norway\",\"00002\",\"" + a + "\"\r\n\"Norway\",\"00002\",\"" + b + "\"\r\n\"Norway\",\"" + a +
                     "\"\r\n\"Norway\",\"" + b + "\"\r\n\"" + a + "\",\"Jane  User\"\r\n\"" + b + "\",\"Joe  User\"\r\n");
        QCOMPARE(s.record(b), RecordBytes({b, "Joe  User", kNorway, "00002", "", "", "", "", "", "", "", "", "", "", "joe.user@example.com"}));
        QCOMPARE(s.boxes.lines(), QStringList("Tandry|64|The import has finished. All contacts of the final list have been written."));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Main", "Work (2)"}));
    }

    // Each file gives its messages, then, if the form came up, its count and
    // ListView1's rows from sub-item 2 on; a failed file writes nothing.
    void handWrittenFiles_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("shown");
        const int yahoo = int(ImportKind::Yahoo), incredi = int(ImportKind::Incredi);
        const QStringList bad("Tandry|0|" + kBadFile);
        QTest::newRow("yahoo rows") << yahoo << "a.csv"
            << "h\n" + Yahoo({{0, "Åse"}, {1, "B"}, {2, "Lee"}, {4, "a@x.no"}, {8, "11"}, {9, "22"}, {11, "33"}, {12, "44"},
                              {20, "Skipper"}, {21, "Fjord, AS"}, {27, "Gate 1"}, {28, "Oslo"}, {29, "OS"}, {30, "0155"},
                              {31, "Norway"}, {38, "Says \"\"hi\"\" "}}) +
                   Yahoo({{4, "bo@x.no"}}) + Yahoo({{0, " "}}) + Yahoo({{0, "Lost"}}).chopped(1)
            << QStringList({"3 / 3", U("Åse B Lee|a@x.no|11|Says hi|Fjord, AS|Skipper|22|44|33|Gate 1 0155 Oslo OS Norway"),
                            "bo@x.no|bo@x.no", ""});
        QTest::newRow("yahoo upper-case extension, header alone") << yahoo << "b.CSV" << QByteArray("h\n") << QStringList("");
        QTest::newRow("yahoo 38 fields") << yahoo << "c.csv" << "h\n" + Yahoo({{0, "A"}}, 38) << bad;
        QTest::newRow("yahoo not csv") << yahoo << "f.txt" << QByteArray("h\n") << QStringList("Tandry - Error|16|" + kBadFile);
        QTest::newRow("yahoo cancelled") << yahoo << "" << QByteArray() << QStringList();
        QTest::newRow("incredimail rows") << incredi << "g.csv"
            << QByteArray("h\r\n,,,Ann Lee,a@x.no,, Likes \"tea\" ,,11,Gate 1,Oslo,OS,0155,Norway,33,44,,22,Fjord,,,,,,Skipper\r\n"
                          ",,,,bo@x.no\r\n,,,Bo, Jr,b@x.no\r\n,,,Lost")
            << QStringList({"3 / 3", "Ann Lee|a@x.no|11|Likes \"tea\".|Fjord|Skipper|22|44|33|Gate 1Oslo0155,OS.Norway.",
                            "bo@x.no|bo@x.no", "Bo| Jr"});
        QTest::newRow("incredimail LF only") << incredi << "i.csv" << QByteArray("h\n,,,A\n") << bad;
    }
    void handWrittenFiles() {
        QFETCH(int, kind);
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        ImportStore s;
        ChooseFile(s, name, bytes);
        QStringList seen;
        RunForm(ImportKind(kind), [&](ImportSession& f) {
            seen << f.picCount->text() << Cells(f.ListView1, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
        });
        QTEST(s.boxes.lines() + seen, "shown");
        QCOMPARE(s.records(), QStringList());
    }

    // Where the designs differ: the sort at load, the category (cbCategory
    // or the row's folder), the numbers after an add to a sorted final
    // list, the fields a row keeps on its way back, and the record: only
    // frmsync leaves out notes=, only frmsync1 trims (name.dat always).
    void sessionOfEachDesign() {
        const QStringList expected[] = {
            {"Ann,Bo,Per ", "1|Ann|Main,2|Per |Work+", "Ann|a@x|1 1", "Per |00002|-"},
            {"Ann,Bo,Per ", "2|Ann|Main,1|Per |Work-", "Ann|a@x|1|n|c|j|Main|t|m|f|a 1", "Per|00002|+"},
            {"Per ,Ann,Bo", "1|Ann|Main,2|Per |Work+", "Ann|a@x|1|n|c|j|Main|t|m|f 1", "Per |00002|+"},
            {"Per ,Ann,Bo", "2|Ann|Main,1|Per |Work+", "Ann|a@x|1|n|c|j|Main|t|m|f 1", "Per |00002|+"}};
        for (ImportKind kind : {ImportKind::OE, ImportKind::MSO, ImportKind::Yahoo, ImportKind::Incredi}) {
            ImportStore s;
            UseRows({{"Per ", "p@x", "1", "n", "c", "j", "Work", "t", "m", "f", "a"},
                     {"Ann", "a@x", "1", "n", "c", "j", "Main", "t", "m", "f", "a"},
                     {"Bo", "b@x", "1", "n", "c", "j", "Main", "t", "m", "f", "a"}});
            QStringList seen;
            QVERIFY(RunForm(kind, [&](ImportSession& f) {
                seen << Cells(f.ListView1, {2}).join(',');
                ClickHeader(f.ListView2, 3);  // the final list sorted by name
                for (const char* name : {"Per ", "Ann"}) {
                    f.cbCategory->setCurrentIndex(name[0] == 'P');
                    f.ListView1->findItems(name, Qt::MatchExactly, 2)[0]->setCheckState(0, Qt::Checked);
                    QTest::mouseClick(f.cmdAdd, Qt::LeftButton);
                }
                seen << Cells(f.ListView2, {0, 3, 2}).join(',') + (f.cbCategory->isVisible() ? "+" : "-");
                f.ListView2->topLevelItem(0)->setSelected(true);
                QTest::mouseClick(f.btnRemoveItem, Qt::LeftButton);
                seen << Cells(f.ListView1, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}).filter(QRegularExpression("^Ann"))[0] + " " +
                            QString::number(f.cmdOK->isEnabled());
                QTest::mouseClick(f.cmdOK, Qt::LeftButton);
            }));
            const QString id = s.records().value(0).mid(4, 5), record = s.record(id);
            seen << record.section("infoname=", 1).section('\r', 0, 0) + "|" + record.section("category=", 1).left(5) +
                        (record.contains("notes=") ? "|+" : "|-");
            QCOMPARE(seen, expected[int(kind)]);
            QCOMPARE(Contacts(s), QStringList("Per@Korea South/00002:" + id));
        }
    }

    // A name twice in a category goes back, both rows, when added; a pair
    // the add's scan misses behind the same name in another category is
    // found by OK once the list is sorted by category; Cancel writes nothing.
    void duplicatesAndCancel() {
        ImportStore s;
        UseRows({{"Cy"}, {"Bo"}, {"Al"}, {"Al"}, {"Di"}, {"Di"}, {"Di"}});
        QStringList seen;
        QVERIFY(RunForm(ImportKind::Yahoo, [&](ImportSession& f) {
            for (int i : {0, 1, 2, 3}) f.ListView1->topLevelItem(i)->setCheckState(0, Qt::Checked);
            QTest::mouseClick(f.cmdAdd, Qt::LeftButton);
            for (int category : {0, 1, 0}) {
                f.cbCategory->setCurrentIndex(category);
                f.ListView1->topLevelItem(0)->setCheckState(0, Qt::Checked);  // a Di
                QTest::mouseClick(f.cmdAdd, Qt::LeftButton);
            }
            seen << Cells(f.ListView2, {2, 3});
            ClickHeader(f.ListView2, 2);
            QTest::mouseClick(f.cmdOK, Qt::LeftButton);
            QTest::mouseClick(f.cmdCancel, Qt::LeftButton);
            seen << QString::number(f.isVisible());
        }));
        QCOMPARE(seen.join(','), "Main|Bo,Main|Cy,Main|Di,Work|Di,Main|Di,0");
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|48|The same name appears twice in one category of the final list. Both "
                                               "items have been moved back.",
                                               "Tandry|48|Di appears more than once in the same category of the final list. "
                                               "Please remove the extra items before importing."}));
        QCOMPARE(s.records(), QStringList());
    }

    // A home without address books: 611 and frmsync closes; the Outlook
    // file dialog cancelled: 624 and frmsync1 stays open, empty.
    void noAddressBookAndNoOutlookFile() {
        ImportStore s;
        ScratchHome home;
        ChooseFile(s, "", "");
        QVERIFY(!RunForm(ImportKind::OE, [](ImportSession&) {}) && RunForm(ImportKind::MSO, [](ImportSession&) {}));
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|48|No contacts were found in the Outlook Express address book.",
                                               "Tandry - Error|48|The contacts could not be read from Microsoft Outlook.\r\n"
                                               "Please make sure Microsoft Outlook is installed and set up on this computer."}));
    }

    // The real PST: its six contacts go to a new category named for their folder.
    void realPstIntoANewCategory() {
        const QString pst = TANDRY_FIXTURES_DIR "/pst/aspose_SampleContacts.pst";
        if (!QFile::exists(pst)) QSKIP("no real PST at " TANDRY_FIXTURES_DIR);
        ImportStore s;
        SetOpenFileNameHandlerForTest([pst](const QString&, const QString&) { return pst; });
        RunForm(ImportKind::MSO, [&](ImportSession& f) {
            AddAll(f, 0);
            QTest::mouseClick(f.cmdOK, Qt::LeftButton);
        });
        // The names' text ends with CR LF: its empty last piece is a category too.
        QVERIFY(QRegularExpression("^" + QString(kCategories) + "\"\\d{5}\",\"Contacts\"\r\n\"\\d{5}\",\"\"\r\n$")
                    .match(s.store.file("category.dat")).hasMatch());
        QCOMPARE(s.records().size(), 6);
        QCOMPARE(s.boxes.lines(), QStringList("Tandry|64|The import has finished. All contacts of the final list have been written."));
    }

    // The same file twice into one category and country replaces each
    // contact, keeping its id, a name in capitals taking the new spelling;
    // into another category it adds copies. The clash test of a row takes
    // the country of the row before: the first row's is what the user left.
    void replaceOrAppend() {
        ImportStore s;
        ImportFile(s, kThree, 0);
        QStringList contacts = Contacts(s);
        const QString ann = contacts[2].right(5);
        ImportFile(s, QByteArray(kThree).replace("Ann\",\"\",\"Lee", "ANN\",\"\",\"LEE").replace("\"11\"", "\"99\""), 0);
        contacts[2].replace("Ann  Lee", "ANN  LEE");
        QCOMPARE(Contacts(s), contacts);
        QCOMPARE(s.record(ann), RecordBytes({ann, "ANN  LEE", kNorway, "00001", "99", "", "", "", "", "", "Fjord"}));
        ImportFile(s, kThree, 1);
        ImportFile(s, kThree, 0, [](ImportSession& f) { f.cbCountry->setCurrentIndex(CountryIndex("Sweden")); });
        QCOMPARE(Contacts(s).mid(3).join(' ').remove(QRegularExpression(":\\d{5}")),
                 QString("Cy@Norway/00002 Bo@Norway/00002 Ann  Lee@Norway/00002 Cy@Norway/00001"));
        QCOMPARE(s.records().size(), 7);
    }

    // A row that fails (here the staged record's test of the working
    // folder) is told, and Yes goes on with the next: the commit counts as done.
    void aFailedRowAndGoOn() {
        ImportStore s;
        s.boxes.answer(AnswerYes);
        ImportFile(s, kThree, 0, [](ImportSession&) { FailFileOperationOn("exists "); });
        QCOMPARE(Contacts(s).join(' ').remove(QRegularExpression(":\\d{5}")), QString("Bo@Norway/00001 Ann  Lee@Norway/00001"));
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry - Error|16|The contact could not be written to the working folder on this computer.",
                                               "Import Contact|32|Cy could not be imported.\r\nDo you want to go on with the next contact?",
                                               "Tandry|64|The import has finished. All contacts of the final list have been written."}));
    }

    // A fault at each file operation of a commit of three rows, the 320
    // question answered No: the rows before stay, the row in hand is written
    // whole or not at all, the rows after are not written. Only a failed
    // step on a live file leaves lines in part, and a failed staging puts
    // the row's lines alone into the indexes, those of the rows before lost:
    // the kept weak points of the staged write.
    void aFaultAtEveryOperationOfACommit() {
        QStringList trace, ids;
        for (int k = 0; k == 0 || k <= trace.size(); ++k) {
            ImportStore s;
            s.boxes.answer(AnswerNo);
            ImportFile(s, kThree, 0, [k](ImportSession&) { SetFileOperationLogging(true), ClearFileOperationLog(), FailFileOperationAt(k); });
            FailFileOperationAt(0);
            if (k == 0) {
                trace = FileOperationTrace();
                for (const QString& op : trace.filter(QRegularExpression("^exists .*/data/addr\\d{5}\\.b64$")))
                    if (!ids.contains(op.right(9).left(5))) ids << op.right(9).left(5);
                QCOMPARE(ids.size(), 3);
                continue;
            }
            const QString failed = trace[k - 1];
            int inHand = 0;
            for (int i = 0; i < k; ++i)
                for (int r = 0; r < 3; ++r) inHand = trace[i].contains("addr" + ids[r]) ? r : inHand;
            QString states;  // Whole, Absent, Record alone, in Part
            for (int r = 0; r < 3; ++r) {
                int lines = 0;
                for (const char* index : {"cat.dat", "cty.dat", "name.dat"}) lines += s.store.file(index).contains(ids[r].toLatin1());
                const bool record = !s.record(ids[r]).isEmpty();
                states += lines == 3 && record ? "W" : lines == 0 && !record ? "A" : lines == 0 ? "R" : "P";
            }
            const bool stopped = s.boxes.lines().last().contains("The import did not finish");
            const QString pattern = !stopped ? "^(W{%1}|R{%1})W*$" : failed.contains("/Tandry/") ? "^[WP]{%1}.A*$" : "^W{%1}A*$";
            QVERIFY2(states.contains(QRegularExpression(pattern.arg(inHand))), qPrintable(failed + " " + states));
            QVERIFY2(stopped || s.boxes.lines().last().contains("The import has finished"), qPrintable(failed));
            for (const QString& name : s.store.tempFiles().filter(QRegularExpression("^addr\\d{5}\\.b64$")))
                QVERIFY2(failed.endsWith(name), qPrintable(failed + " leaves " + name));  // a staged record
        }
        QVERIFY(trace.size() > 100);
    }
};

QTEST_MAIN(TestImport)
#include "tst_import.moc"
