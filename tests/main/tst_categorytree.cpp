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
}  // namespace

class TestCategoryTree : public QObject {
    Q_OBJECT
private slots:
    void countsPerCountryInTextOrderAndFailuresOfARebuild() {
        TreeStore s;
        FrmMain& w = s.open();
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
        QTreeWidgetItem* root = s.node("Category");
        QCOMPARE(NodeKey(root) + NodeKey(s.node("Main (2)")) + NodeKey(s.node("family")), QString("noderootid00001id00003"));
        QVERIFY(root->isExpanded());
        auto images = [](QTreeWidgetItem* n) { return n->data(0, kImageRole).toInt() * 10 + n->data(0, kSelectedImageRole).toInt(); };
        QCOMPARE(images(root) * 100 + images(s.node("Main (2)")), 3312);
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
        auto image = [&](const char* node, QIcon::Mode mode) { return s.node(node)->icon(0).pixmap(16, mode).toImage(); };
        const QImage root = image("Category", QIcon::Normal);
        QIcon::setThemeName(QString());
        QVERIFY(root != image("Main (2)", QIcon::Normal) && root != image("Main (2)", QIcon::Selected));
    }

    // Walking the tree with the keys shows each node's contacts as a click
    // would, with the focus left in the tree; Enter on a node is the click,
    // focus to the list. The root a rebuild selects runs nothing. The right
    // button works on the selected node; on the root the click runs, nothing pops up.
    void theKeyboardAndTheClicksFillTheList() {
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
        w.TreeView1->setFocus();
        s.clickNode("Main (2)");
        QCOMPARE(w.strNodeKey + "|" + w.strCountry, QString("id00001|Norway"));
        QCOMPARE(s.rows(), QStringList({U("Åse Berg|ase@example.no|Fjord AS|Skipper|00011"), "Per Holm|per@example.no|||00012"}));
        QCOMPARE(QApplication::focusWidget(), w.ListView1);
        s.clickNode("Work (1)");
        s.clickNode("Main (2)", Qt::RightButton);  // released over Main: Work counts, stays selected
        QCOMPARE(s.selectedNodeText(), QString("Work (1)"));
        QCOMPARE(w.strNodeKey + "|" + w.Tag + "|" + s.names(), QString("id00002|00002|Kari Dahl"));
        s.clickNode("Category");
        s.clickNode("Category", Qt::RightButton);
        QCOMPARE(w.strNodeKey + "|" + w.Tag + "|" + s.names(), QString("noderoot|00002|"));
        QCOMPARE(s.popups, QStringList({"mnuTreeViewRightClick"}));
    }

    // A country change or a rebuild leaves the list on its category; the
    // click counter stops at its top, where a change rebuilds, then fails.
    void aCountryChangeOrARebuildLeavesTheListOnItsCategory() {
        TreeStore s;
        FrmMain& w = s.open();
        s.clickNode("Main (2)");
        w.intCountryClick = 32766;
        w.cmbCountry->setCurrentIndex(CountryIndex("Sweden"));
        QCOMPARE(s.rows(), QStringList());
        QCOMPARE(w.strNodeKey + "|" + w.strCountry, QString("id00001|Norway"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work"}));
        QCOMPARE(w.intCountryClick, qint16(32767));
        w.cmbCountry->setCurrentIndex(CountryIndex("Norway"));
        QCOMPARE(s.nodeTexts(), QStringList({"Category", "family", "Main (2)", "Work (1)"}));
        QCOMPARE(w.intCountryClick, qint16(32767));

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
