// The category tree and the country filter of the main window: counts per
// country from the live cat.dat, node texts and order, the clicks and what
// they leave in the list.
#include "store/core/failure.h"
#include "support/formstore.h"

namespace {
// Zoo and the last Norway row of Work stand on lines without CR LF.
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"family\"\r\n\"00004\",\"Zoo\"";
const char* const kCat =
    "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00012\"\r\n\"Sweden\",\"00001\",\"00013\"\r\n"
    "\"Norway\",\"00002\",\"00014\"\r\n\"Sweden\",\"00003\",\"00015\"\r\n\"norway\",\"00002\",\"00016\"\r\n"
    "\"Norway\",\"00002\",\"00017\"";

struct TreeStore : MainStore {
    TreeStore() : MainStore(kCategories, kCat) {
        contact("00011", "Åse Berg", "ase@example.no", "Fjord AS", "Skipper");
        contact("00012", "Per Holm", "per@example.no");
        contact("00014", "Kari Dahl", "kari@example.no", "", "", "00002");
    }
};
}  // namespace

class TestCategoryTree : public QObject {
    Q_OBJECT
private slots:
    void countsPerCountryInTextOrderAndFailuresOfARebuild() {
        TreeStore s;
        FrmMain& w = s.open();
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
        QVERIFY(s.node("Category")->isExpanded());
        // The click raised by setting the stored index was swallowed: one tree.
        QCOMPARE(w.intCountryClick, qint16(2));
        QCOMPARE(w.TreeView1->topLevelItemCount(), 1);
        s.store.put("cat.dat", "");
        w.RefreshCategory();  // an empty cat.dat gives bare names
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main", "Work"}));
        s.store.put("cat.dat", "\"Norway\",\"00001\",\"00011\"\r\nX,\"00001\",\"00012\"\r\n");  // a one-character field
        QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
        QCOMPARE(s.nodeTexts(), QStringList({"Category"}));
        s.store.put("cat.dat", "");
        QFile::remove(s.store.appFile("category.dat"));
        QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
    }

    // Enter on a node is the click, focus to the list. The right button works on the selected node; on the root nothing pops up.
    void theKeyboardAndTheClicksFillTheList() {
        TreeStore s;
        FrmMain& w = s.open();
        w.TreeView1->setFocus();
        QTest::keyClick(w.TreeView1, Qt::Key_End);
        QTest::keyClick(w.TreeView1, Qt::Key_Return);
        QCOMPARE(w.strNodeKey + "|" + s.names(), QString("id00002|Kari Dahl"));
        QCOMPARE(QApplication::focusWidget(), w.ListView1);
        s.clickNode("Main (2)");
        QCOMPARE(s.rows(), QStringList({U("Åse Berg|ase@example.no|Fjord AS|Skipper|00011"), "Per Holm|per@example.no|||00012"}));
        s.clickNode("Work (1)");
        s.clickNode("Main (2)", Qt::RightButton);  // released over Main: Work counts, stays selected
        QCOMPARE(s.selectedNodeText(), QString("Work (1)"));
        QCOMPARE(w.strNodeKey + "|" + w.Tag + "|" + s.names(), QString("id00002|00002|Kari Dahl"));
        s.clickNode("Category");
        s.clickNode("Category", Qt::RightButton);
        QCOMPARE(w.strNodeKey + "|" + w.Tag + "|" + s.names(), QString("noderoot|00002|"));
        QCOMPARE(s.popups, QStringList({"mnuTreeViewRightClick"}));
    }

    // A country change or a rebuild leaves the list on its category.
    void aCountryChangeOrARebuildLeavesTheListOnItsCategory() {
        TreeStore s;
        FrmMain& w = s.open();
        s.clickNode("Main (2)");
        w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
        QCOMPARE(s.rows(), QStringList());
        QCOMPARE(w.strNodeKey + "|" + w.strCountry, QString("id00001|Norway"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work"}));
        w.cmbCountry->setCurrentIndex(CountryIndex("Norway"));
        s.clickNode("Work (1)");
        // A second Work contact in Norway arrives on the drive.
        s.store.put("cat.dat", Cp1252(kCat) + "\r\n\"Norway\",\"00002\",\"00018\"\r\n");
        w.RefreshCategory();
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (3)"}));
        QCOMPARE(s.selectedNodeText() + "|" + w.strNodeKey + "|" + s.names(), QString("Category|id00002|Kari Dahl"));
    }
};

QTEST_MAIN(TestCategoryTree)
#include "tst_categorytree.moc"
