// The category tree and the country filter of the main window: counts per
// country from the live cat.dat, node texts and order, the clicks and what
// they leave in the list.
#include "mainfixture.h"
#include "main/forms/treeitems.h"
#include "store/core/failure.h"

namespace {
// Zoo and the last Norway row of Work stand on lines without CR LF.
const char* const kCategories =
    "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"family\"\r\n\"00004\",\"Zoo\"";
const char* const kCat =
    "\"Norway\",\"00001\",\"00011\"\r\n"
    "\"Norway\",\"00001\",\"00012\"\r\n"
    "\"Sweden\",\"00001\",\"00013\"\r\n"
    "\"Norway\",\"00002\",\"00014\"\r\n"
    "\"Sweden\",\"00003\",\"00015\"\r\n"
    "\"norway\",\"00002\",\"00016\"\r\n"
    "\"Norway\",\"00002\",\"00017\"";

void WriteRecords(const MainStore& s) {
    s.writeRecord("00011", "Åse Berg", "ase@example.no", "Fjord AS", "Skipper");
    s.writeRecord("00012", "Per Holm", "per@example.no");
    s.writeRecord("00014", "Kari Dahl", "kari@example.no", "", "", "00002");
}
}  // namespace

class TestCategoryTree : public QObject {
    Q_OBJECT
private slots:
    void countsPerCountryInTextOrder();
    void emptyCatDatGivesBareNames();
    void rootClickEmptiesTheList();
    void countryChangeEmptiesListAndKeepsNodeKey();
    void rebuildSelectsRootWhileListKeepsCategory();
    void rightButtonWorksOnSelectedNode();
    void countryClickCounterOverflows();
    void failureOfRebuildPassesToCaller();
};

void TestCategoryTree::countsPerCountryInTextOrder() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
    QTreeWidgetItem* root = s.root();
    QCOMPARE(NodeKey(root), QString("noderoot"));
    QVERIFY(root->isExpanded());
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    QCOMPARE(root->data(0, kImageRole).toInt(), 3);
    QCOMPARE(root->data(0, kSelectedImageRole).toInt(), 3);
    QTreeWidgetItem* main = s.node("Main (2)");
    QCOMPARE(NodeKey(main), QString("id00001"));
    QCOMPARE(main->data(0, kImageRole).toInt(), 1);
    QCOMPARE(main->data(0, kSelectedImageRole).toInt(), 2);
    QCOMPARE(NodeKey(s.node("family")), QString("id00003"));
    // The click raised by setting the stored index was swallowed: one tree.
    QCOMPARE(w.intCountryClick, qint16(2));
    QCOMPARE(w.TreeView1->topLevelItemCount(), 1);
}

void TestCategoryTree::emptyCatDatGivesBareNames() {
    MainStore s(kCategories, "");
    s.open();
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main", "Work"}));
}

void TestCategoryTree::rootClickEmptiesTheList() {
    MainStore s(kCategories, kCat);
    WriteRecords(s);
    FrmMain& w = s.open();
    s.clickNode("Main (2)");
    QCOMPARE(w.strNodeKey, QString("id00001"));
    QCOMPARE(w.strCountry, QString("Norway"));
    QCOMPARE(s.rows(), QStringList({"Åse Berg|ase@example.no|Fjord AS|Skipper|00011",
                                    "Per Holm|per@example.no|||00012"}));
    QCOMPARE(QApplication::focusWidget(), w.ListView1);
    s.clickNode("Category");
    QCOMPARE(w.strNodeKey, QString("noderoot"));
    QCOMPARE(s.rows(), QStringList());
}

void TestCategoryTree::countryChangeEmptiesListAndKeepsNodeKey() {
    MainStore s(kCategories, kCat);
    WriteRecords(s);
    FrmMain& w = s.open();
    s.clickNode("Main (2)");
    QCOMPARE(s.rows().size(), 2);
    w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
    QCOMPARE(s.rows(), QStringList());
    QCOMPARE(w.strNodeKey, QString("id00001"));
    QCOMPARE(w.strCountry, QString("Norway"));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work"}));
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    QCOMPARE(w.intCountryClick, qint16(3));
}

void TestCategoryTree::rebuildSelectsRootWhileListKeepsCategory() {
    MainStore s(kCategories, kCat);
    WriteRecords(s);
    FrmMain& w = s.open();
    s.clickNode("Work (1)");
    QCOMPARE(s.rows(), QStringList({"Kari Dahl|kari@example.no|||00014"}));
    // A second Work contact in Norway arrives on the drive.
    s.writeFile("cat.dat", Cp1252(kCat) + "\r\n\"Norway\",\"00002\",\"00018\"\r\n");
    w.RefreshCategory();
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (3)"}));
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    QCOMPARE(w.strNodeKey, QString("id00002"));
    QCOMPARE(s.rows(), QStringList({"Kari Dahl|kari@example.no|||00014"}));
}

void TestCategoryTree::rightButtonWorksOnSelectedNode() {
    MainStore s(kCategories, kCat);
    WriteRecords(s);
    FrmMain& w = s.open();
    s.clickNode("Work (1)");
    // Released over Main: the selected node Work counts, and stays selected.
    s.rightClickNode("Main (2)");
    QCOMPARE(s.selectedNodeText(), QString("Work (1)"));
    QCOMPARE(w.strNodeKey, QString("id00002"));
    QCOMPARE(w.Tag, QString("00002"));
    QCOMPARE(s.popups, QStringList({"mnuTreeViewRightClick"}));
    QCOMPARE(s.rows(), QStringList({"Kari Dahl|kari@example.no|||00014"}));

    // On the root the click runs, and nothing pops up.
    s.clickNode("Category");
    s.rightClickNode("Category");
    QCOMPARE(w.strNodeKey, QString("noderoot"));
    QCOMPARE(w.Tag, QString("00002"));
    QCOMPARE(s.popups, QStringList({"mnuTreeViewRightClick"}));
    QCOMPARE(s.rows(), QStringList());
}

void TestCategoryTree::countryClickCounterOverflows() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    w.intCountryClick = 32766;
    w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
    QCOMPARE(w.intCountryClick, qint16(32767));
    // The next change rebuilds the tree, then fails on the addition.
    w.cmbCountry->setCurrentIndex(CountryIndex("Norway"));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
    QCOMPARE(w.intCountryClick, qint16(32767));
}

void TestCategoryTree::failureOfRebuildPassesToCaller() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    // A one-character field in cat.dat.
    s.writeFile("cat.dat", Cp1252("\"Norway\",\"00001\",\"00011\"\r\nX,\"00001\",\"00012\"\r\n"));
    QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
    QCOMPARE(s.nodeTexts(), QStringList({"Category"}));
    s.writeFile("cat.dat", "");
    QFile::remove(s.store.appFile("category.dat"));
    QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
}

QTEST_MAIN(TestCategoryTree)
#include "tst_categorytree.moc"
