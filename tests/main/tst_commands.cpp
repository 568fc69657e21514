// The commands of the main window: the menu bar, the pop-up menus and the
// toolbar's captions from the libraries, the refusals of new category and
// print, online support. Exit and the layout it writes stand in tst_start.
#include <QAction>
#include <QToolBar>
#include <QToolButton>
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
    }

    // Five categories refuse a new one; print wants a selected row.
    void newCategoryAndPrintRefusals() {
        MainStore s("\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n\"00005\",\"E\"\r\n",
                    "\"Norway\",\"00001\",\"00011\"\r\n");
        s.contact("00011", "Anna");
        FrmMain& w = s.open();
        s.trigger("newcategory");
        QCOMPARE(w.CategoryTask, 0);
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

    // Online support reports a failing shell.
    void onlineSupport() {
        MainStore s(kCategories, kCat);
        s.open();
        QStringList calls;
        long answer = 42;
        SetShellHandlerForTest([&](const QString& verb, const QString& file) { return calls << verb + " " + file, answer; });
        s.trigger("mnuHelpOnline");
        answer = 2;
        s.trigger("mnuHelpOnline");
        QCOMPARE(calls, QStringList(2, "open https://tandry.example.org/support/"));
        QCOMPARE(s.boxes.lines(), QStringList("Tandry - Error|16|An error occurred:\r\nThe system cannot find the file specified."));
    }

};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
