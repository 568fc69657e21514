// The category tree and the country filter of the main window: counts per
// country from the live cat.dat, node texts and order, the clicks and what
// they leave in the list.
#include "main/forms/treeitems.h"
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
const QStringList kMain = {U("Åse Berg|ase@example.no|Fjord AS|Skipper|00011"), "Per Holm|per@example.no|||00012"};
const QStringList kWork = {"Kari Dahl|kari@example.no|||00014"};
}  // namespace

class TestCategoryTree : public QObject {
    Q_OBJECT
private slots:
    void countsPerCountryInTextOrder() {
        TreeStore s;
        FrmMain& w = s.open();
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
        QTreeWidgetItem* root = s.node("Category");
        QCOMPARE(NodeKey(root) + NodeKey(s.node("Main (2)")) + NodeKey(s.node("family")), QString("noderootid00001id00003"));
        QVERIFY(root->isExpanded());
        QCOMPARE(s.selectedNodeText(), QString("Category"));
        auto images = [](QTreeWidgetItem* n) { return n->data(0, kImageRole).toInt() * 10 + n->data(0, kSelectedImageRole).toInt(); };
        QCOMPARE(images(root), 33);
        QCOMPARE(images(s.node("Main (2)")), 12);
        // The click raised by setting the stored index was swallowed: one tree.
        QCOMPARE(w.intCountryClick, qint16(2));
        QCOMPARE(w.TreeView1->topLevelItemCount(), 1);
        s.store.put("cat.dat", "");
        w.RefreshCategory();  // an empty cat.dat gives bare names
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main", "Work"}));
    }

    void rootPictureStandsApart_data() {
        QTest::addColumn<QString>("theme");
        QTest::newRow("no icon theme") << "";
        QTest::newRow("Adwaita") << "Adwaita";
        QTest::newRow("address book drawn as the folder") << "samefolder";
    }

    // Whatever icon theme the desktop uses, the root's picture is neither
    // the closed nor the open category's.
    void rootPictureStandsApart() {
        QFETCH(QString, theme);
        TreeStore s;
        const QString themes = s.store.app() + "/../icons", samefolder = themes + "/samefolder/16/";
        QDir().mkpath(samefolder);
        s.store.write(samefolder + "../index.theme", "[Icon Theme]\nDirectories=16\n[16]\nSize=16\n");
        QImage square(16, 16, QImage::Format_ARGB32);
        square.fill(Qt::darkYellow);
        QVERIFY(square.save(samefolder + "folder.png") && square.save(samefolder + "x-office-address-book.png"));
        QIcon::setThemeSearchPaths({themes, "/usr/share/icons"});
        QIcon::setThemeName(theme);
        s.open();
        auto image = [](QTreeWidgetItem* n, QIcon::Mode mode) { return n->icon(0).pixmap(16, mode).toImage(); };
        const QImage root = image(s.node("Category"), QIcon::Normal);
        QIcon::setThemeName(QString());
        QVERIFY(root != image(s.node("Main (2)"), QIcon::Normal) && root != image(s.node("Main (2)"), QIcon::Selected));
    }

    void nodeClicksFillTheListAndTheRootEmptiesIt() {
        TreeStore s;
        FrmMain& w = s.open();
        s.clickNode("Main (2)");
        QCOMPARE(w.strNodeKey + "|" + w.strCountry, QString("id00001|Norway"));
        QCOMPARE(s.rows(), kMain);
        QCOMPARE(QApplication::focusWidget(), w.ListView1);
        s.clickNode("Category");
        QCOMPARE(w.strNodeKey, QString("noderoot"));
        QCOMPARE(s.rows(), QStringList());
    }

    // Walking the tree with the keys shows each node's contacts as a click
    // would, with the focus left in the tree; Enter on a node is the click,
    // focus to the list. The root a rebuild selects runs nothing.
    void theKeyboardWalksTheTree() {
        TreeStore s;
        FrmMain& w = s.open();
        w.TreeView1->setFocus();
        QStringList seen;
        auto key = [&](Qt::Key k) {
            QTest::keyClick(w.TreeView1, k);
            seen << w.strNodeKey + "|" + s.names();
        };
        for (Qt::Key k : {Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown}) key(k);
        QCOMPARE(QApplication::focusWidget(), w.TreeView1);
        w.RefreshCategory();
        seen << s.selectedNodeText() + "|" + w.strNodeKey + "|" + s.names();
        key(Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), w.ListView1);
        QCOMPARE(seen, QStringList({"id00003|", U("id00001|Åse Berg,Per Holm"), "id00002|Kari Dahl", "noderoot|",
                                    "id00002|Kari Dahl", "Category|id00002|Kari Dahl", "noderoot|"}));
    }

    void aCountryChangeOrARebuildLeavesTheListOnItsCategory() {
        TreeStore s;
        FrmMain& w = s.open();
        s.clickNode("Main (2)");
        w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
        QCOMPARE(s.rows(), QStringList());
        QCOMPARE(w.strNodeKey + "|" + w.strCountry, QString("id00001|Norway"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work"}));
        QCOMPARE(s.selectedNodeText(), QString("Category"));
        QCOMPARE(w.intCountryClick, qint16(3));

        w.cmbCountry->setCurrentIndex(CountryIndex("Norway"));
        s.clickNode("Work (1)");
        // A second Work contact in Norway arrives on the drive.
        s.store.put("cat.dat", Cp1252(kCat) + "\r\n\"Norway\",\"00002\",\"00018\"\r\n");
        w.RefreshCategory();
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (3)"}));
        QCOMPARE(s.selectedNodeText(), QString("Category"));
        QCOMPARE(w.strNodeKey, QString("id00002"));
        QCOMPARE(s.rows(), kWork);
    }

    void rightButtonWorksOnTheSelectedNode() {
        TreeStore s;
        FrmMain& w = s.open();
        s.clickNode("Work (1)");
        // Released over Main: the selected node Work counts, and stays selected.
        s.clickNode("Main (2)", Qt::RightButton);
        QCOMPARE(s.selectedNodeText(), QString("Work (1)"));
        QCOMPARE(w.strNodeKey + "|" + w.Tag, QString("id00002|00002"));
        QCOMPARE(s.rows(), kWork);
        // On the root the click runs, and nothing pops up.
        s.clickNode("Category");
        s.clickNode("Category", Qt::RightButton);
        QCOMPARE(w.strNodeKey + "|" + w.Tag, QString("noderoot|00002"));
        QCOMPARE(s.popups, QStringList({"mnuTreeViewRightClick"}));
        QCOMPARE(s.rows(), QStringList());
    }

    void countryClickCounterOverflows() {
        TreeStore s;
        FrmMain& w = s.open();
        w.intCountryClick = 32766;
        w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
        QCOMPARE(w.intCountryClick, qint16(32767));
        // The next change rebuilds the tree, then fails on the addition.
        w.cmbCountry->setCurrentIndex(CountryIndex("Norway"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
        QCOMPARE(w.intCountryClick, qint16(32767));
    }

    void failureOfRebuildPassesToCaller() {
        TreeStore s;
        FrmMain& w = s.open();
        s.store.put("cat.dat", "\"Norway\",\"00001\",\"00011\"\r\nX,\"00001\",\"00012\"\r\n");  // a one-character field
        QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
        QCOMPARE(s.nodeTexts(), QStringList({"Category"}));
        s.store.put("cat.dat", "");
        QFile::remove(s.store.appFile("category.dat"));
        QVERIFY_THROWS_EXCEPTION(RoutineFailure, w.RefreshCategory());
    }
};

QTEST_MAIN(TestCategoryTree)
#include "tst_categorytree.moc"
