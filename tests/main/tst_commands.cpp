// The commands of the main window: the menu bar, the pop-up menus and the
// toolbar with their captions, and the commands that work now: new contact,
// the find keys, the refusals of new category and print, online support,
// exit with the layout written.
#include <QAction>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include "main/forms/twips.h"
#include "main/forms/vsplitter.h"
#include "mainfixture.h"
#include "platform/core/tempfolder.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"family\"\r\n";
const char* const kCat = "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00002\",\"00012\"\r\n";

const char* const kMenuBarEntries[] = {
    "mnuFile", "mnuFileExit", "mnuContact", "mnuAdd_info", "mnuDelete_info", "mnuFind_info",
    "mnuSelect", "mnuSelectAll", "mnuInvertSelection", "mnuSynchronize", "mnuImport_add",
    "mnuImportOE", "mnuImportMSO", "mnuYahoo", "mnuImportIncredible", "mnuExport_add",
    "mnuExportOE", "mnuExportMSO", "mnuExportYahoo", "mnuExportIncredible", "mnuCategory",
    "mnuManageCategory", "mnuSkin", "mnuNoSkin", "mnuHelp", "mnuHelpWhat", "mnuHelpOnline",
    "mnuHelpUpdates", "mnuHelpAbout"};

// The caption of a menu or an entry, whichever the name is.
QString Caption(const MainStore& s, const char* name) {
    QObject* found = s.window->findChild<QObject*>(QString::fromLatin1(name));
    if (auto* menu = qobject_cast<QMenu*>(found)) return menu->title();
    if (auto* action = qobject_cast<QAction*>(found)) return action->text();
    return "<missing>";
}

bool Shown(const MainStore& s, const char* name) {
    QObject* found = s.window->findChild<QObject*>(QString::fromLatin1(name));
    if (auto* menu = qobject_cast<QMenu*>(found)) return menu->menuAction()->isVisible();
    return qobject_cast<QAction*>(found)->isVisible();
}

QToolButton* Button(const MainStore& s, const char* key) {
    return s.window->Toolbar1->findChild<QToolButton*>(QString::fromLatin1(key));
}

// The keys and visibility of a toolbar button's drop-down entries.
QStringList Entries(const MainStore& s, const char* key) {
    QStringList entries;
    for (QAction* a : Button(s, key)->menu()->actions())
        entries << a->objectName() + "=" + a->text() + (a->isVisible() ? "" : " (hidden)");
    return entries;
}
}  // namespace

class TestCommands : public QObject {
    Q_OBJECT
private slots:
    void menusAndPopupsWithEnglishCaptions();
    void captionsFromLibrariesWithDesignFallback();
    void toolbarOffersWhatTheMenuHides();
    void findKeyOnlyFromToolbarEntries();
    void newCategoryRefusedAtSixNodes();
    void printRefusedWithoutSelection();
    void onlineSupport();
    void newContactPreparesBufferAndRebuilds();
    void newContactFailsWithoutCategory();
    void windowSizedBackWhenModalCloses();
    void exitWritesLayoutKeys();
};

void TestCommands::menusAndPopupsWithEnglishCaptions() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    for (const char* name : kMenuBarEntries) QVERIFY2(Caption(s, name) != "<missing>", name);
    QCOMPARE(Caption(s, "mnuFile"), QString("&File"));
    QCOMPARE(Caption(s, "mnuExportMSO"), QString("&MS Outlook"));
    QCOMPARE(Caption(s, "mnuHelpWhat"), QString("&What is Tandry?"));
    QCOMPARE(Caption(s, "mnuRightClick"), QString("RightClick"));
    QCOMPARE(Caption(s, "mnuEdit_p"), QString("Edit Contact"));
    QCOMPARE(Caption(s, "mnuDeleteCategory"), QString("Delete Category"));

    QStringList bar;
    for (QAction* a : w.menuBar()->actions()) bar << a->text();
    QCOMPARE(bar, QStringList({"&File", "&Contact", "&Select", "S&ynchronize", "Category", "S&kin", "&Help"}));
    QStringList rightClick, treeRightClick, mouseUp;
    for (QAction* a : w.Menu("mnuRightClick")->actions()) rightClick << a->objectName();
    for (QAction* a : w.Menu("mnuTreeViewRightClick")->actions()) treeRightClick << a->objectName();
    for (QAction* a : w.Menu("mnuTreeViewMouseUp")->actions()) mouseUp << a->objectName();
    QCOMPARE(rightClick, QStringList({"mnuDelete_p", "mnuDuplicate_c", "mnuEdit_p", "mnuPrint_p"}));
    QCOMPARE(treeRightClick, QStringList({"mnuDeleteCategory", "mnuDuplicateCategory",
                                          "mnuEmptyCategory", "mnuRenameCategory"}));
    QCOMPARE(mouseUp, QStringList({"mnuCopyContact", "mnuMoveContact"}));

    QStringList skins;
    for (QAction* a : s.control<QMenu>("mnuSkin")->actions())
        skins << (a->isSeparator() ? "-" + a->objectName() : a->text());
    QCOMPARE(skins, QStringList({"No Skin", "-mnuSeparator1", "Skin1", "Skin2", "Skin3", "Skin4", "Skin5",
                                 "Skin6", "Skin7", "Skin8", "Skin9", "Skin10"}));
    QCOMPARE(w.findChildren<QAction*>("mnuSkinList").size(), 10);

    for (const char* hidden : {"mnuYahoo", "mnuImportIncredible", "mnuExportYahoo",
                               "mnuExportIncredible", "mnuSkin", "mnuHelpWhat", "mnuHelpUpdates"})
        QVERIFY2(!Shown(s, hidden), hidden);
    for (const char* shown : {"mnuImportOE", "mnuExportOE", "mnuHelpOnline", "mnuHelpAbout", "mnuAdd_info"})
        QVERIFY2(Shown(s, shown), shown);
}

void TestCommands::captionsFromLibrariesWithDesignFallback() {
    MainStore s(kCategories, kCat);
    // A language of the user's own: some strings given, others missing.
    UnloadAllLibraries();
    s.writeFile("langfile0409.dll",
                "158=&Fichier\n117=&Nouveau contact\n150=Nouveau\n132=Par nom\n128=Catégorie\n"
                "306=Modifier le contact\n");
    s.writeFile("edition0409.dll", "103=&Aide\n104=&Qu'est-ce que %S ?\n");
    LoadAllLibraries(s.store);
    FrmMain& w = s.open();
    QCOMPARE(Caption(s, "mnuFile"), QString("&Fichier"));
    QCOMPARE(Caption(s, "mnuFileExit"), QString("E&xit"));
    QCOMPARE(Caption(s, "mnuAdd_info"), QString("&Nouveau contact"));
    QCOMPARE(Caption(s, "mnuEdit_p"), QString("Modifier le contact"));
    QCOMPARE(Caption(s, "mnuHelp"), QString("&Aide"));
    QCOMPARE(Caption(s, "mnuHelpWhat"), QString("&Qu'est-ce que Tandry ?"));
    QCOMPARE(Caption(s, "mnuHelpOnline"), QString("&Online Support Web Site"));
    QCOMPARE(Button(s, "new")->text(), QString("Nouveau"));
    QCOMPARE(Button(s, "find")->text(), QString("Find"));
    QCOMPARE(Entries(s, "new"), QStringList({"newcontact=&Nouveau contact", "newcategory=New Category"}));
    QCOMPARE(Entries(s, "find").first(), QString("findbyname=Par nom"));
    QCOMPARE(s.nodeTexts().first(), QString("Catégorie"));
    QCOMPARE(w.ListView1->headerItem()->text(0), QString("Contact Name"));
}

void TestCommands::toolbarOffersWhatTheMenuHides() {
    MainStore s(kCategories, kCat);
    s.open();
    QStringList buttons;
    for (QToolButton* b : s.window->Toolbar1->findChildren<QToolButton*>()) {
        if (b->objectName().startsWith("qt_")) continue;  // the toolbar's own extension button
        buttons << b->objectName() + "=" + b->text() + "/" + b->toolTip();
        QCOMPARE(b->popupMode(), QToolButton::MenuButtonPopup);
    }
    QCOMPARE(buttons, QStringList({"new=New/New Blank Contact", "find=Find/Find Contact(s)",
                                   "duplicate=Duplicate/Duplicate Contact(s)",
                                   "delete=Delete/Delete Contact(s)", "export=Export/Export Contact(s)",
                                   "import=Import/Import Contact(s)"}));
    QCOMPARE(Entries(s, "export"), QStringList({"exportOE=Export Outlook Express", "exportMSO=Export MS Outlook",
                                                "exportYahoo=Export Yahoo", "exportIncredible=Export Incredible"}));
    QCOMPARE(Entries(s, "import"), QStringList({"importOE=Import Outlook Express", "importMSO=Import MS Outlook",
                                                "importYahoo=Import Yahoo", "importIncredi=Import Incredible"}));
    QCOMPARE(Entries(s, "duplicate"), QStringList({"duplicateContact=Duplicate Contact(s)",
                                                   "duplicateCategory=Duplicate Category"}));
    QCOMPARE(Entries(s, "delete"), QStringList({"deleteContact=Delete Contact(s)",
                                                "deleteCategory=Delete Category"}));
    QVERIFY(!Shown(s, "mnuYahoo"));
    QVERIFY(!Shown(s, "mnuExportIncredible"));
    // Buttons at the even places 2 to 12, separators at the odd ones.
    const QList<QAction*> places = s.window->Toolbar1->actions();
    QCOMPARE(places.size(), 12);
    for (int i = 0; i < places.size(); ++i) QCOMPARE(places[i]->isSeparator(), i % 2 == 0);
}

void TestCommands::findKeyOnlyFromToolbarEntries() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    w.FindKey = 7;
    QTest::mouseClick(Button(s, "find"), Qt::LeftButton, {}, QPoint(4, 4));
    s.trigger("mnuFind_info");
    QCOMPARE(w.FindKey, 7);
    auto entry = [&](const char* key) { return Button(s, "find")->menu()->findChild<QAction*>(key); };
    entry("findbycompany")->trigger();
    QCOMPARE(w.FindKey, 3);
    entry("findbyemail")->trigger();
    QCOMPARE(w.FindKey, 2);
    entry("findbyname")->trigger();
    QCOMPARE(w.FindKey, 1);
}

void TestCommands::newCategoryRefusedAtSixNodes() {
    MainStore s("\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n\"00005\",\"E\"\r\n", "");
    FrmMain& w = s.open();
    QAction* newCategory = Button(s, "new")->menu()->findChild<QAction*>("newcategory");
    newCategory->trigger();
    QCOMPARE(s.boxes.count(), 1);
    QCOMPARE(s.boxes.last().prompt, QString("No more categories can be added. Tandry keeps at most five categories."));
    QCOMPARE(s.boxes.last().title, QString("Tandry"));
    QCOMPARE(s.boxes.last().icon, int(MsgCritical));
    QCOMPARE(w.CategoryTask, 0);

    // With four categories the refusal doesn't come.
    s.writeFile("category.dat", "\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n");
    w.RefreshCategory();
    newCategory->trigger();
    QCOMPARE(s.boxes.count(), 1);
    QCOMPARE(w.CategoryTask, 1);
}

void TestCommands::printRefusedWithoutSelection() {
    MainStore s(kCategories, kCat);
    s.writeRecord("00011", "Anna");
    FrmMain& w = s.open();
    s.clickNode("Main (1)");
    s.trigger("mnuPrint_p");
    QCOMPARE(s.boxes.count(), 1);
    QCOMPARE(s.boxes.last().prompt, QString("Ada, please select the contacts you want to print."));
    QCOMPARE(s.boxes.last().title, QString("Tandry"));
    QCOMPARE(s.boxes.last().icon, int(MsgExclamation));
    w.ListView1->topLevelItem(0)->setSelected(true);
    s.trigger("mnuPrint_p");
    QCOMPARE(s.boxes.count(), 1);
}

void TestCommands::onlineSupport() {
    MainStore s(kCategories, kCat);
    s.open();
    QStringList calls;
    long answer = 42;
    SetShellHandlerForTest([&](const QString& verb, const QString& file) {
        calls << verb + " " + file;
        return answer;
    });
    s.trigger("mnuHelpOnline");
    QCOMPARE(calls, QStringList({"open https://tandry.example.org/support/"}));
    QCOMPARE(s.boxes.count(), 0);
    answer = 2;
    s.trigger("mnuHelpOnline");
    QCOMPARE(s.boxes.count(), 1);
    QCOMPARE(s.boxes.last().prompt, QString("An error occurred:\r\nThe system cannot find the file specified."));
    QCOMPARE(s.boxes.last().title, QString("Tandry - Error"));
    QCOMPARE(s.boxes.last().icon, int(MsgCritical));
    QCOMPARE(s.window->cursor().shape(), Qt::ArrowCursor);
}

void TestCommands::newContactPreparesBufferAndRebuilds() {
    MainStore s(kCategories, kCat);
    s.writeRecord("00012", "Per", "per@example.no", "", "", "00002");
    FrmMain& w = s.open();
    const int norway = CountryIndex("Norway");
    QString form, category;
    int country = -2;
    auto look = [&](Form* dialog) {
        form = dialog->objectName();
        category = ContactBuffer.category;
        country = ContactBuffer.country;
    };
    // The root is selected: the first category in tree order.
    ExpectModal([&](Form* dialog) {
        look(dialog);
        s.writeFile("cat.dat", Cp1252(kCat) + "\"Norway\",\"00003\",\"00013\"\r\n");
    });
    QTest::mouseClick(Button(s, "new"), Qt::LeftButton, {}, QPoint(4, 4));
    QCOMPARE(form, QString("frmaddtask"));
    QCOMPARE(category, QString("00003"));
    QCOMPARE(country, norway);
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work (1)"}));
    QCOMPARE(ContactBuffer.category, QString(""));

    // A clicked category; the list is refreshed from a new snapshot.
    s.clickNode("Work (1)");
    ExpectModal([&](Form* dialog) {
        look(dialog);
        s.writeFile("cat.dat", s.file("cat.dat") + "\"Norway\",\"00002\",\"00014\"\r\n");
        s.writeRecord("00014", "Liv", "liv@example.no", "", "", "00002");
    });
    s.trigger("mnuAdd_info");
    QCOMPARE(category, QString("00002"));
    QCOMPARE(s.nodeTexts(), QStringList({"Category", "family (1)", "Main (1)", "Work (2)"}));
    QCOMPARE(s.selectedNodeText(), QString("Category"));
    QCOMPARE(s.rows(), QStringList({"Per|per@example.no|||00012", "Liv|liv@example.no|||00014"}));

    s.clickNode("Main (1)");
    ExpectModal(look);
    Button(s, "new")->menu()->findChild<QAction*>("newcontact")->trigger();
    QCOMPARE(category, QString("00001"));
    QCOMPARE(w.strNodeKey, QString("id00001"));
}

void TestCommands::newContactFailsWithoutCategory() {
    MainStore s("", "");
    s.open();
    ExpectModal([](Form*) {});
    s.trigger("mnuAdd_info");
    // The dialog isn't reached: it would refuse with a message of its own.
    QCOMPARE(PendingModalScripts(), 1);
    QCOMPARE(s.boxes.count(), 0);
    QCOMPARE(ContactBuffer.category, QString(""));
    QCOMPARE(s.nodeTexts(), QStringList({"Category"}));
}

void TestCommands::windowSizedBackWhenModalCloses() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    const QSize stored(TwipsToPixelsX(9930), TwipsToPixelsY(7260));
    QCOMPARE(w.size(), stored);
    w.resize(300, 200);
    QCOMPARE(w.size(), QSize(300, 200));
    ExpectModal([](Form*) {});
    s.trigger("mnuAdd_info");
    QCOMPARE(PendingModalScripts(), 0);
    QCOMPARE(w.size(), stored);
}

void TestCommands::exitWritesLayoutKeys() {
    MainStore s(kCategories, kCat);
    FrmMain& w = s.open();
    if (QGuiApplication::primaryScreen()->logicalDotsPerInchX() != 96)
        QSKIP("the twips of this test are those of a 96 dpi screen");
    w.VSplitter->move(200, w.VSplitter->y());
    emit w.VSplitter->moved(200);
    const int sweden = CountryIndex("Sweden");
    w.cmbCountry->setCurrentIndex(sweden);
    QVERIFY(s.store.exists(s.store.tempFile("addr_cat.dat")));
    s.trigger("mnuFileExit");
    QVERIFY(!w.isVisible());
    const QByteArray setting = s.file("setting.ini");
    QVERIFY2(setting.contains("[VSplitter]\r\nLeft=3000\r\n\r\n[VSplitter]\r\nLeft=4700\r\n"), setting);
    QVERIFY2(setting.contains("[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=" +
                              QByteArray::number(sweden) + "\r\n"), setting);
    QVERIFY(!s.store.exists(s.store.tempFile("addr_cat.dat")));
}

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
