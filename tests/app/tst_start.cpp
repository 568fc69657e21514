// Start and shut-down of the whole program, in process: the refusals in
// their order, the first start in an empty folder, a second instance, and
// the keys written when the main window closes.
#include <QLabel>
#include <QScreen>
#include "app/forms/frmprogress.h"
#include "app/forms/general.h"
#include "main/forms/vsplitter.h"
#include "platform/core/instance.h"
#include "platform/core/tempfolder.h"
#include "support/formstore.h"

namespace {
const QStringList kLibraryCopies = {"addr_country.dll", "addr_phonecode.dll", "ma_edition_0409.dll", "ma_langfile0409.dll"};

// The store's first-run files with one text of setting.ini replaced.
void Setting(const ScratchStore& store, const QByteArray& from, const QByteArray& to) {
    EnsureStoreFiles();
    store.put("setting.ini", store.file("setting.ini").replace(from, to));
}

// A scratch store, the libraries installed unless told, the boxes recorded.
struct Start {
    ScratchStore store;
    MsgBoxScript boxes;
    FrmMain* window = nullptr;
    explicit Start(bool libraries = true) { if (libraries) InstallLibraries(store); }
};
}  // namespace

class StartTest : public QObject {
    Q_OBJECT
    int run_ = 0;

private slots:
    void initTestCase() { SetSleepDisabledForTest(true); }
    void init() {  // each start claims a name of its own
        ReleaseInstanceClaim();
        SetInstanceNameForTest(QString("tandry-start-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++run_));
    }

    void firstStartInAnEmptyFolderRunsAndShutsDownCleanly() {
        Start s;
        auto& [store, boxes, window] = s;
        QCOMPARE(Main(&window), StartResult::Started);
        QCOMPARE(boxes.count(), 0);  // the staging area could be written: no warning
        QCOMPARE(window->windowTitle() + "|" + OwnerName, QString("Tandry|User"));  // no OwnerInfo.ini on this drive
        QCOMPARE(store.tempFiles(), QStringList({"addr_cat.dat", "addr_category.dat"}) + kLibraryCopies);
        window->cmbCountry->setCurrentIndex(5);
        window->resize(700, 500);
        emit window->VSplitter->moved(200);
        window->Entry("mnuFileExit")->trigger();
        QCoreApplication::processEvents();
        // Only the first [VSplitter] takes the position; ColWidth5 is never written.
        const QByteArray setting = store.file("setting.ini");
        for (QByteArray part : {"[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=5\r\n", "ColWidth0=2070\r\n",
                                "ColWidth4=15\r\n", "ColWidth5=0\r\n"})
            QVERIFY2(setting.contains(part), part);
        if (QGuiApplication::primaryScreen()->logicalDotsPerInchX() == 96)  // the twips of a 96 dpi screen
            for (QByteArray part : {"Width=10500\r\n", "[VSplitter]\r\nLeft=3000\r\n\r\n[VSplitter]\r\nLeft=4700"})
                QVERIFY2(setting.contains(part), part);
        QCOMPARE(FrmMain().size(), QSize(700, 500));  // the size written comes back
        QCOMPARE(store.tempFiles(), QStringList());  // snapshots and library copies gone
    }

    void refusalsComeInTheirOrder() {
        // libraries installed, setting.ini made first, the change to it, the refusal
        const struct { bool libraries, made; const char *from, *to, *message; } rows[] = {
            {true, true, "Language=0409", "Language=", kNoLanguageIdMessage},
            {false, true, "Charset=0", "Charset=", kNoLanguageFileMessage},  // the language file is tested first
            {true, true, "Charset=0", "Charset=", kNoCharsetMessage},
            {false, false, "", "", kNoLanguageFileMessage},  // setting.ini is made, 0409 found, no file
        };
        for (const auto& row : rows) {
            init();
            Start s(row.libraries);
            auto& [store, boxes, window] = s;
            if (row.made) Setting(store, row.from, row.to);
            QCOMPARE(Main(), StartResult::Refused);
            QCOMPARE(boxes.lines(), QStringList("Error|16|" + QString::fromLatin1(row.message)));
            QCOMPARE(boxes.last().buttons, int(MsgOkOnly));
            QCOMPARE(store.tempFiles(), QStringList());  // no library was copied
            QVERIFY(store.file("setting.ini").contains(QByteArray(row.made ? row.to : "Language=0409") + "\r\n"));
        }
    }

    void aSecondInstanceIsRefusedAndTouchesNothing() {
        Start s;
        auto& [store, boxes, window] = s;
        QCOMPARE(Main(&window), StartResult::Started);
        const QByteArray setting = store.file("setting.ini");
        QFile::remove(store.appFile("cat.dat"));  // a second start would make it anew
        QCOMPARE(Main(), StartResult::Refused);
        QCOMPARE(boxes.lines(), QStringList("Error|16|" + QString::fromLatin1(kAlreadyRunningMessage)));
        QVERIFY(!store.exists(store.appFile("cat.dat")));
        QCOMPARE(store.file("setting.ini"), setting);
        window->close();
    }

    void aStoredCountryBeyondTheListOrNoNumberEndsTheStartSilently() {
        for (const char* country : {"Country=9999", "Country=abc"}) {
            init();
            Start s;
            auto& [store, boxes, window] = s;
            Setting(store, "Country=113", country);
            QCOMPARE(Main(&window), StartResult::Failed);
            QVERIFY(!window && !TheMainWindow());
            QCOMPARE(boxes.count(), 0);
            // The one failure path unloads the language and edition libraries.
            QCOMPARE(store.tempFiles(), QStringList({"addr_cat.dat", "addr_category.dat", "addr_country.dll", "addr_phonecode.dll"}));
            UnloadAllLibraries();
        }
    }

    void theSplashNamesTheOwner() {
        ScratchStore store;
        LoadAllLibraries(store);
        OwnerName = "Ingrid";
        frmprogress splash;
        splash.FormLoad();
        auto* caption = Control<QLabel>(&splash, "lbcaption");
        QCOMPARE(splash.windowTitle() + "|" + caption->text(), "Tandry|" + GetLanguageString(536).replace("%username", "Ingrid"));
        UnloadAllLibraries();
    }

    void aStagingAreaThatCannotBeMadeIsOnlyWarnedOf() {
        Start s;
        auto& [store, boxes, window] = s;
        store.write(store.app() + "/../blocker", "x");  // a file where the folder should be
        SetVellumarkFolderForTest(store.app() + "/../blocker/Vellumark");
        QCOMPARE(Main(&window), StartResult::Started);
        // No library could be copied, so every string is empty; the program runs all the same.
        QCOMPARE(boxes.lines(), QStringList("|48|"));
        QCOMPARE(window->windowTitle() + QString::number(window->cmbCountry->count()), QString("0"));
        window->close();
    }
};

QTEST_MAIN(StartTest)
#include "tst_start.moc"
