// The category dialogs and the tree's category commands, through the real
// widgets on a hand-written Windows-1252 store: manage (add up to the limit,
// edit, delete), the refusals and questions of the tree's commands, rename,
// empty and duplicate of a category.
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include "categories/forms/frmduplicatecat.h"
#include "categories/forms/frmupdatecat.h"
#include "platform/core/fileops.h"
#include "support/formstore.h"

namespace {
const char* const kCategories =
    "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Café\"\r\n\"00004\",\"Tom\"\r\n";
// Main: Åse and Per in Norway, Liv in Sweden; Work: Kari in Norway.
const char* const kRows[][4] = {{"Norway", "00001", "00011", "Åse"}, {"Norway", "00001", "00012", "Per"},
                                {"Sweden", "00001", "00013", "Liv"}, {"Norway", "00002", "00021", "Kari"}};
const char* const kIndexes[] = {"cat.dat", "cty.dat", "name.dat"};

struct CategoryStore : MainStore {
    QList<QByteArray> lines[3];  // each contact's line of cat.dat, cty.dat and name.dat, as laid
    explicit CategoryStore(const char* categories = kCategories) : MainStore(categories, "") {
        for (const auto& r : kRows) {
            const QString line[3] = {QString("\"%1\",\"%2\",\"%3\"\r\n").arg(U(r[0]), r[1], r[2]),
                                     QString("\"%1\",\"%2\"\r\n").arg(U(r[0]), r[2]), QString("\"%1\",\"%2\"\r\n").arg(r[2], U(r[3]))};
            for (int i = 0; i < 3; ++i) lines[i] << Cp1252(qPrintable(line[i]));
            store.putRecord({r[2], U(r[3]), QString::number(CountryIndex(r[0])), r[1]});
        }
        for (int i = 0; i < 3; ++i) store.put(kIndexes[i], lines[i].join());
        open();
    }
    // Index file i as the lines of `rows`, then `added`.
    QByteArray index(int i, std::initializer_list<int> rows, const char* added = "") const {
        QByteArray bytes;
        for (int r : rows) bytes += lines[i][r];
        return bytes + Cp1252(added);
    }
};

void Click(const QObject* form, const char* button) { QTest::mouseClick(Control<QPushButton>(form, button), Qt::LeftButton); }
// Types a name into frmupdatecat and saves.
void Save(Form* dialog, const char* name) {
    Control<QLineEdit>(dialog, "txtname")->setText(U(name));
    Click(dialog, "cmdSave");
}
QStringList ListRows(const QTreeWidget* list) {
    QStringList rows;
    for (QTreeWidgetItem* row = list->topLevelItem(0); row; row = list->itemBelow(row))
        rows << row->text(0) + "|" + row->text(1) + "|" + row->text(2);
    return rows;
}
}  // namespace

class TestCategories : public QObject {
    Q_OBJECT
private slots:
    void manageCategories() {
        CategoryStore s;
        QStringList rows, treeAtClose;
        ExpectModal([&](Form* form) {
            auto* list = Control<QTreeWidget>(form, "ListView1");
            rows = ListRows(list);
            // A name that stands in another case is refused and the dialog stays.
            ExpectModal([&](Form* u) { Save(u, "WORK"), Save(u, " Ny "); });
            Click(form, "cmdAdd");
            Click(form, "cmdAdd");  // five now: the limit
            list->setCurrentItem(list->topLevelItem(2));
            ExpectModal([&](Form* u) { Save(u, "CAFÉ"), Save(u, "Kafé"); });
            Click(form, "cmdEdit");  // its own name in capitals is refused too
            list->setCurrentItem(list->topLevelItem(0));
            Click(form, "cmdDelete");  // Main holds contacts
            list->setCurrentItem(list->topLevelItem(3));
            s.boxes.answer(AnswerYes);
            Click(form, "cmdDelete");
            rows << ListRows(list);
            Click(form, "cmdClose");
            treeAtClose = s.nodeTexts();
        });
        s.trigger("mnuManageCategory");
        QCOMPARE(rows, QStringList({"1|00001|Main", "2|00002|Work", "3|00003|Café", "4|00004|Tom", "1|00001|Main",
                                    "2|00002|Work", "3|00003|Kafé", "5|23118|Ny"}));
        QCOMPARE(s.store.file("category.dat"), Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Kafé\"\r\n"
                                                      "\"23118\",\"Ny\"\r\n"));
        QCOMPARE(treeAtClose, QStringList({"Category", "Kafé", "Main", "Ny", "Work"}));  // no counts until the refresh
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Kafé", "Main (2)", "Ny", "Work (1)"}));
        const QString exists = "Tandry|48|A category of this name already exists. Please choose another name.";
        QCOMPARE(s.boxes.lines(), QStringList({exists, "Tandry|16|No more categories can be added. Tandry keeps at most five categories.", exists,
                                               "Tandry|16|This category still holds contacts and cannot be deleted.",
                                               "Delete Category|32|Are you sure you want to delete this category?"}));
        QVERIFY(s.boxes.last().secondDefault);
    }

    // Each command on a node: the box it shows (a question is answered Yes),
    // and category.dat after it: only the deletion of Tom changes it.
    void treeCommands() {
        const char* const rows[][3] = {
            {"Category", "mnuDeleteCategory", "Tandry|48|Ada, please select a category in the tree, not the top entry."},
            {"Main (2)", "deleteCategory", "Tandry|48|Ada, this category cannot be deleted because it still holds these "
                                           "contacts:\r\nÅse ,Per ,Liv\r\nPlease delete or move these contacts first."},
            {"Tom", "mnuDeleteCategory", "Delete Category|0|Are you sure you want to delete the category\r\n\"Tom\"?"},
            {"Tom", "mnuDuplicateCategory", ""},  // a letter behind no "(": nothing at all
            {"Null (0)", "mnuDuplicateCategory", "Tandry|48|This category has no contacts in the country selected.\r\n"
                                                 "Please choose another category to duplicate."},
            {"Tom", "duplicateCategory", "Tandry|0|Category:\r\nTom\r\nThis category has no contacts in the country selected, Ada."},
            {"Category", "duplicateCategory", "Tandry|48|Ada, please choose a category first."},
            {"Tom", "mnuEmptyCategory", "Tandry|48|Category:\r\n\"Tom\"\r\nThis category holds no contacts in the country "
                                        "selected, Ada."}};
        const QString list = U(kCategories) + "\"00005\",\"Null (0)\"\r\n";
        for (const auto& row : rows) {
            CategoryStore s(qPrintable(list));
            s.clickNode(U(row[0]));
            const QString box = U(row[2]);
            if (box.contains("Are you sure")) s.boxes.answer(AnswerYes);
            s.trigger(row[1]);
            QCOMPARE(s.boxes.lines(), box.isEmpty() ? QStringList() : QStringList(box));
            const QString after = box.contains("Are you sure") ? QString(list).remove("\"00004\",\"Tom\"\r\n") : list;
            QCOMPARE(s.store.file("category.dat"), Cp1252(qPrintable(after)));
        }
    }

    void renameTakesTheTaskFromTheMainWindow() {
        CategoryStore s;
        s.clickNode("Work (1)");
        QString opened;
        ExpectModal([&](Form* u) { opened = u->windowTitle() + "|" + static_cast<frmupdatecat*>(u)->Tag, Save(u, "Jobb"); });
        s.trigger("mnuRenameCategory");
        QCOMPARE(opened, QString("Category|200002"));
        QCOMPARE(s.store.file("category.dat"), Cp1252(U(kCategories).replace("Work", "Jobb").toUtf8()));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Café", "Jobb (1)", "Main (2)", "Tom"}));
    }

    // Every row of the list goes, checked or not, and no staged record is
    // written before the indexes; Liv in Sweden stays. The list keeps
    // showing the rows that are gone.
    void emptyACategoryWithContactsInTwoCountries() {
        CategoryStore s;
        s.clickNode("Main (2)");
        s.row(0)->setCheckState(0, Qt::Checked);
        s.boxes.answer(AnswerYes);
        SetFileOperationLogging(true);
        ClearFileOperationLog();
        s.trigger("mnuEmptyCategory");
        SetFileOperationLogging(false);
        const QStringList log = FileOperationLog();  // the record's first write is the commit's
        QVERIFY(log.indexOf(QRegularExpression("output .*/addr00011.b64")) > log.indexOf(QRegularExpression("output .*/addr_name.dat")));
        QCOMPARE(s.boxes.lines(), QStringList(U("Vellumark|0|Are you sure you want to delete every contact listed for the "
                                                "category\r\n\"Main\"?")));
        for (int i = 0; i < 3; ++i) QCOMPARE(s.store.file(kIndexes[i]), s.index(i, {2, 3}));
        QCOMPARE(s.records(), QStringList({"addr00013.b64", "addr00021.b64"}));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Café", "Main", "Tom", "Work (1)"}));
    }

    // Main's contacts in Norway into a new category in Sweden. The copies'
    // records keep the main window's country; the indexes take Sweden.
    void duplicateACategoryIntoANewOneWithAnotherCountry() {
        CategoryStore s;
        s.clickNode("Main (2)");
        QString start;
        ExpectModal([&](Form* form) {
            auto* d = static_cast<frmDuplicateCat*>(form);
            start = d->txtCategory->text();
            Click(d, "cmdDuplicate");  // the starting text counts as empty: nothing happens
            d->txtCategory->setText("MAIN");
            Click(d, "cmdDuplicate");  // exists in another case: refused, the dialog stays
            d->txtCategory->setText(" Ny");
            QTest::mouseClick(d->Check1, Qt::LeftButton);
            d->cmbCountry2->setCurrentIndex(CountryIndex("Sweden"));
            Click(d, "cmdDuplicate");
        });
        s.trigger("mnuDuplicateCategory");
        QCOMPARE(start, QString("Please enter a new category"));
        QCOMPARE(s.store.file("category.dat"), Cp1252(kCategories) + "\"23118\",\"Ny\"\r\n");
        const char* const added[] = {"\"Sweden\",\"23118\",\"17479\"\r\n\"Sweden\",\"23118\",\"18989\"\r\n",
                                     "\"Sweden\",\"17479\"\r\n\"Sweden\",\"18989\"\r\n", "\"17479\",\"Åse\"\r\n\"18989\",\"Per\"\r\n"};
        for (int i = 0; i < 3; ++i) QCOMPARE(s.store.file(kIndexes[i]), s.index(i, {0, 1, 2, 3}, added[i]));
        const QString norway = QString::number(CountryIndex("Norway"));
        QCOMPARE(s.record("17479"), RecordBytes({"17479", "Åse", norway, "23118"}));
        QCOMPARE(s.record("18989"), RecordBytes({"18989", "Per", norway, "23118"}));
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|48|A category of this name already exists. Please choose another name.",
                                               "Vellumark|64|The contacts have been copied into the new category:\r\n Ny."}));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "Café", "Main (2)", "Ny", "Tom", "Work (1)"}));
    }
};

QTEST_MAIN(TestCategories)
#include "tst_categories.moc"
