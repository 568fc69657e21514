// The commands of the main window: the menu bar, the pop-up menus and the
// toolbar built from the command table with their captions, and the
// commands that work now: the find button, the refusals of new category and
// print, online support. Exit and the layout it writes stand in tst_start.
#include <QAction>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include "main/forms/twips.h"
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"family\"\r\n";
const char* const kCat = "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00002\",\"00012\"\r\n";

// The caption of a menu, an entry or a button ("caption/tool tip"), with
// " (hidden)" when it is out of sight.
QString Shown(const FrmMain& w, const char* name) {
    if (QMenu* menu = w.Menu(name)) return menu->title() + (menu->menuAction()->isVisible() ? "" : " (hidden)");
    if (QAction* action = w.Entry(name)) return action->text() + (action->isVisible() ? "" : " (hidden)");
    auto* button = w.Toolbar1->findChild<QToolButton*>(name);
    return button ? button->text() + "/" + button->toolTip() : "<missing>";
}
}  // namespace

class TestCommands : public QObject {
    Q_OBJECT
private slots:
    // Hidden entries, tool tips, the program's name for %s, a control array.
    void theBarsAndTheFindButton() {
        MainStore s(kCategories, kCat);
        FrmMain& w = s.open();
        QStringList bar;
        for (QAction* a : w.menuBar()->actions()) bar << a->text() + (a->isVisible() ? "" : "-");
        QCOMPARE(bar, QStringList({"&File", "&Contact", "&Select", "S&ynchronize", "Category", "S&kin-", "&Help"}));
        QStringList shown;
        for (const char* name : {"mnuHelpWhat", "delete", "importYahoo", "mnuYahoo", "mnuSkinList", "find"}) shown << Shown(w, name);
        QCOMPARE(shown, QStringList({"&What is Tandry? (hidden)", "Delete/Delete Contact(s)", "Import Yahoo",
                                     "&Yahoo! (hidden)", "Skin1", "Find/Find Contact(s)"}));
        const QList<QAction*> skins = w.findChildren<QAction*>("mnuSkinList");
        QCOMPARE(skins.size(), 10);
        QCOMPARE(skins[9]->text() + skins[9]->property("Index").toString(), QString("Skin109"));
        // Buttons at the even places 2 to 12, separators at the odd ones.
        const QList<QAction*> places = w.Toolbar1->actions();
        QCOMPARE(places.size(), 12);
        for (int i = 0; i < places.size(); ++i) QCOMPARE(places[i]->isSeparator(), i % 2 == 0);

        w.FindKey = 7;  // the button opens the dialog; only the entries under it set the key (tst_find)
        ExpectModal([](Form*) {});
        QTest::mouseClick(w.Toolbar1->findChild<QToolButton*>("find"), Qt::LeftButton, {}, QPoint(4, 4));
        QCOMPARE(w.FindKey * 10 + PendingModalScripts(), 70);
    }

    void captionsFromALibraryWithDesignFallback() {
        MainStore s(kCategories, kCat);
        UnloadAllLibraries();
        s.store.put("langfile0409.dll", "158=&Fichier\n117=&Nouveau contact\n150=Nouveau\n128=Catégorie\n306=Modifier\n");
        s.store.put("edition0409.dll", "103=&Aide\n104=&Qu'est-ce que %S ?\n");
        LoadAllLibraries(s.store);
        FrmMain& w = s.open();
        QStringList captions;
        for (const char* name : {"mnuFile", "mnuFileExit", "newcontact", "mnuEdit_p", "mnuHelp", "mnuHelpWhat", "new"})
            captions << Shown(w, name);
        QCOMPARE(captions, QStringList({"&Fichier", "E&xit", "&Nouveau contact", "Modifier", "&Aide",
                                        "&Qu'est-ce que Tandry ? (hidden)", "Nouveau/New Blank Contact"}));
        QCOMPARE(s.nodeTexts().first() + "|" + w.ListView1->headerItem()->text(0), U("Catégorie|Contact Name"));
    }

    // Five categories refuse a new one, four open the dialog; print wants a selected row.
    void newCategoryAndPrintRefusals() {
        const QByteArray four = "\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n";
        MainStore s((four + "\"00005\",\"E\"\r\n").constData(), "\"Norway\",\"00001\",\"00011\"\r\n");
        s.contact("00011", "Anna");
        FrmMain& w = s.open();
        s.trigger("newcategory");
        QCOMPARE(w.CategoryTask, 0);
        s.store.put("category.dat", four);
        w.RefreshCategory();
        QString opened;
        ExpectModal([&](Form* form) { opened = form->objectName() + "|" + form->windowTitle(); });
        s.trigger("newcategory");
        QCOMPARE(opened + QString::number(w.CategoryTask), QString("frmupdatecat|New Category1"));
        s.clickNode("A (1)");
        s.trigger("mnuPrint_p");
        w.ListView1->topLevelItem(0)->setSelected(true);
        int printDialogs = 0;
        SetPrintDialogAnswerForTest([&](QPrinter&) { return ++printDialogs, false; });
        s.trigger("mnuPrint_p");
        QCOMPARE(printDialogs, 1);
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|16|No more categories can be added. Tandry keeps at most five categories.",
                                               "Tandry|48|Ada, please select the contacts you want to print."}));
    }

    // Online support reports a failing shell; a modal form leaves the window
    // at the outer size setting.ini holds, to the pixel.
    void onlineSupportAndTheWindowSizedBackAfterAModalForm() {
        MainStore s(kCategories, kCat);
        FrmMain& w = s.open();
        QStringList calls;
        long answer = 42;
        SetShellHandlerForTest([&](const QString& verb, const QString& file) { return calls << verb + " " + file, answer; });
        s.trigger("mnuHelpOnline");
        answer = 2;
        s.trigger("mnuHelpOnline");
        QCOMPARE(calls, QStringList(2, "open https://tandry.example.org/support/"));
        QCOMPARE(s.boxes.lines(), QStringList("Tandry - Error|16|An error occurred:\r\nThe system cannot find the file specified."));
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
        const QSize stored = w.size();
        QVERIFY(w.TwipsWidth() == 9930 && qAbs(w.TwipsHeight() - 7260) < PixelsToTwipsY(1));
        w.resize(300, 200);
        ExpectModal([](Form*) {});
        s.trigger("mnuAdd_info");
        QCOMPARE(w.size(), stored);
    }

    void newContactFailsWithoutCategory() {
        MainStore none("", "");
        none.open();
        ExpectModal([](Form*) {});
        none.trigger("mnuAdd_info");
        // The dialog isn't reached: it would refuse with a message of its own.
        QCOMPARE(PendingModalScripts() * 10 + none.boxes.count(), 10);
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
