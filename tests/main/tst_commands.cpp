// The commands of the main window: the menu bar, the pop-up menus and the
// toolbar built from the command table with their captions, and the
// commands that work now: the find keys, the refusals of new category and
// print, online support. Exit and the layout it writes stand in tst_start.
#include <QAction>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include "main/forms/commandtable.h"
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
    void everyRowIsBuiltWithItsCaptionAndVisibility() {
        MainStore s(kCategories, kCat);
        FrmMain& w = s.open();
        for (const Command& c : Commands()) {
            if (c.kind == CommandKind::Separator) continue;
            const QString text = c.library == Library::Edition ? GetEditionString(c.string) : GetLanguageString(c.string);
            QString caption = c.library == Library::None || text.isEmpty() ? QString(c.design) : text;
            caption += QString(c.count > 1 ? "1" : "") + (c.toolTip ? "/" + QString(c.toolTip) : "");
            QCOMPARE(Shown(w, c.name), caption.replace("%s", "Tandry") + (c.shown ? "" : " (hidden)"));
        }
        QStringList bar;
        for (QAction* a : w.menuBar()->actions()) bar << a->text() + (a->isVisible() ? "" : "-");
        QCOMPARE(bar, QStringList({"&File", "&Contact", "&Select", "S&ynchronize", "Category", "S&kin-", "&Help"}));
        // The toolbar offers the Yahoo! and IncrediMail entries the menu bar hides.
        QCOMPARE(QStringList({Shown(w, "mnuHelpWhat"), Shown(w, "delete"), Shown(w, "importYahoo"), Shown(w, "mnuYahoo")}),
                 QStringList({"&What is Tandry? (hidden)", "Delete/Delete Contact(s)", "Import Yahoo", "&Yahoo! (hidden)"}));
        const QList<QAction*> skins = w.findChildren<QAction*>("mnuSkinList");
        QCOMPARE(skins.size(), 10);
        QCOMPARE(skins[9]->text() + skins[9]->property("Index").toString(), QString("Skin109"));
        // Buttons at the even places 2 to 12, separators at the odd ones.
        const QList<QAction*> places = w.Toolbar1->actions();
        QCOMPARE(places.size(), 12);
        for (int i = 0; i < places.size(); ++i) QCOMPARE(places[i]->isSeparator(), i % 2 == 0);
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

    void findKeyOnlyFromToolbarEntries() {
        MainStore s(kCategories, kCat);
        FrmMain& w = s.open();
        w.FindKey = 7;
        for (int i = 0; i < 5; ++i) ExpectModal([](Form*) {});  // the find dialog, opened and closed
        QTest::mouseClick(w.Toolbar1->findChild<QToolButton*>("find"), Qt::LeftButton, {}, QPoint(4, 4));
        s.trigger("mnuFind_info");
        QString keys = QString::number(w.FindKey);
        for (const char* entry : {"findbycompany", "findbyemail", "findbyname"}) {
            s.trigger(entry);
            keys += QString::number(w.FindKey);
        }
        QCOMPARE(keys, QString("7321"));
        QCOMPARE(PendingModalScripts(), 0);
    }

    void newCategoryAndPrintRefusals() {
        MainStore s("\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n\"00005\",\"E\"\r\n",
                    "\"Norway\",\"00001\",\"00011\"\r\n");
        s.contact("00011", "Anna");
        FrmMain& w = s.open();
        s.trigger("newcategory");
        QCOMPARE(w.CategoryTask, 0);
        s.store.put("category.dat", "\"00001\",\"A\"\r\n\"00002\",\"B\"\r\n\"00003\",\"C\"\r\n\"00004\",\"D\"\r\n");
        w.RefreshCategory();
        QString opened;
        ExpectModal([&](Form* form) { opened = form->objectName() + "|" + form->windowTitle(); });
        s.trigger("newcategory");  // with four categories there is room
        QCOMPARE(w.CategoryTask, 1);
        QCOMPARE(opened, QString("frmupdatecat|New Category"));
        s.clickNode("A (1)");
        s.trigger("mnuPrint_p");
        w.ListView1->topLevelItem(0)->setSelected(true);
        int printDialogs = 0;
        SetPrintDialogAnswerForTest([&](QPrinter&) { return ++printDialogs, false; });
        s.trigger("mnuPrint_p");  // a selected row goes on to the print dialog
        QCOMPARE(printDialogs, 1);
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|16|No more categories can be added. Tandry keeps at most five "
                                               "categories.",
                                               "Tandry|48|Ada, please select the contacts you want to print."}));
    }

    void onlineSupport() {
        MainStore s(kCategories, kCat);
        s.open();
        QStringList calls;
        long answer = 42;
        SetShellHandlerForTest([&](const QString& verb, const QString& file) {
            calls << verb + " " + file;
            return answer;
        });
        s.trigger("mnuHelpOnline");
        answer = 2;
        s.trigger("mnuHelpOnline");
        QCOMPARE(calls, QStringList(2, "open https://tandry.example.org/support/"));
        QCOMPARE(s.boxes.lines(),
                 QStringList("Tandry - Error|16|An error occurred:\r\nThe system cannot find the file specified."));
        QCOMPARE(s.window->cursor().shape(), Qt::ArrowCursor);
    }

    void newContactFailsWithoutCategoryAndTheWindowIsSizedBackAfterAModalForm() {
        {
            MainStore none("", "");
            none.open();
            ExpectModal([](Form*) {});
            none.trigger("mnuAdd_info");
            // The dialog isn't reached: it would refuse with a message of its own.
            QCOMPARE(PendingModalScripts(), 1);
            QCOMPARE(none.boxes.count(), 0);
        }
        MainStore s(kCategories, kCat);
        FrmMain& w = s.open();
        const QSize stored = w.size();
        // The outer size setting.ini holds, to the pixel.
        QVERIFY(w.TwipsWidth() == 9930 && qAbs(w.TwipsHeight() - 7260) < PixelsToTwipsY(1));
        w.resize(300, 200);
        ExpectModal([](Form*) {});
        s.trigger("mnuAdd_info");
        QCOMPARE(w.size(), stored);
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
