// Start and shut-down of the whole program, in process: the refusals in
// their order, the first start in an empty folder, a second instance, and
// the keys written when the main window closes.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QDir>
#include <QTest>
#include "app/forms/frmprogress.h"
#include "app/forms/general.h"
#include "app/core/libraries.h"
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "main/forms/frmmain.h"
#include "platform/core/instance.h"
#include "platform/core/pause.h"
#include "platform/core/profile.h"
#include "platform/core/tempfolder.h"
#include "support/libraryfixture.h"
#include "support/msgboxscript.h"
#include "support/scratch.h"

class StartTest : public QObject {
    Q_OBJECT
    int run_ = 0;

    void claimAnew() {
        ReleaseInstanceClaim();
        SetInstanceNameForTest(QString("tandry-start-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++run_));
    }

    void expectRefusal(const MsgBoxScript& boxes, const char* message) {
        QCOMPARE(boxes.count(), 1);
        QCOMPARE(boxes.last().prompt, QString::fromLatin1(message));
        QCOMPARE(boxes.last().title, QString("Error"));
        QCOMPARE(boxes.last().icon, int(MsgCritical));
        QCOMPARE(boxes.last().buttons, int(MsgOkOnly));
    }

    void setSetting(const ScratchStore& store, const QByteArray& from, const QByteArray& to) {
        QByteArray text = store.read(store.appFile("setting.ini"));
        text.replace(from, to);
        store.write(store.appFile("setting.ini"), text);
    }

private slots:
    void initTestCase() { SetSleepDisabledForTest(true); }
    void init() { claimAnew(); }

    void firstStartInAnEmptyFolderRunsAndShutsDownCleanly() {
        ScratchStore store;
        InstallLibraries(store);
        MsgBoxScript boxes;
        FrmMain* window = nullptr;
        QCOMPARE(Main(&window), StartResult::Started);
        QVERIFY(window);
        QCOMPARE(boxes.count(), 0);  // the staging area could be written: no warning
        QCOMPARE(window->windowTitle(), QString("Tandry"));
        QCOMPARE(OwnerName, QString("User"));  // no OwnerInfo.ini on this drive
        QVERIFY(QDir(store.appFile("data")).exists());
        QCOMPARE(store.read(store.appFile("category.dat")), QByteArray("\"00001\",\"Main\"\r\n"));
        QCOMPARE(window->cmbCountry->currentIndex(), 113);
        QCOMPARE(store.tempFiles(), (QStringList{"addr_cat.dat", "addr_category.dat", "addr_country.dll",
                                                 "addr_phonecode.dll", "ma_edition_0409.dll", "ma_langfile0409.dll"}));

        window->cmbCountry->setCurrentIndex(5);
        window->resize(700, 500);
        window->close();
        QCoreApplication::processEvents();
        // Only the first [VSplitter] takes the position; ColWidth5 is never written.
        const QByteArray setting = store.read(store.appFile("setting.ini"));
        QVERIFY(setting.startsWith("[Setting]\r\nLanguage=0409\r\nCharset=0\r\nCountry=5\r\n"));
        QVERIFY(setting.contains("[VSplitter]\r\nLeft=3190\r\n\r\n[VSplitter]\r\nLeft=4700\r\n"));
        QVERIFY(setting.contains("ColWidth0=2070\r\n"));
        QVERIFY(setting.contains("ColWidth4=15\r\n"));
        QVERIFY(setting.contains("ColWidth5=0\r\n"));
        QCOMPARE(GetIniValue("Size", "Width", "", SettingFile()), QString::number(700 * 15));
        QCOMPARE(GetIniValue("Size", "Height", "", SettingFile()), QString::number(500 * 15));
        QCOMPARE(store.tempFiles(), QStringList());  // snapshots and library copies gone
    }

    void refusalsComeInTheirOrder() {
        {   // an empty Language=: the language message, and the file isn't repaired
            ScratchStore store;
            InstallLibraries(store);
            EnsureStoreFiles();
            setSetting(store, "Language=0409", "Language=");
            MsgBoxScript boxes;
            QCOMPARE(Main(), StartResult::Refused);
            expectRefusal(boxes, kNoLanguageIdMessage);
            QVERIFY(store.read(store.appFile("setting.ini")).contains("Language=\r\n"));
        }
        claimAnew();
        {   // no language file and no charset: the language file is tested first
            ScratchStore store;
            EnsureStoreFiles();
            setSetting(store, "Charset=0", "Charset=");
            MsgBoxScript boxes;
            QCOMPARE(Main(), StartResult::Refused);
            expectRefusal(boxes, kNoLanguageFileMessage);
        }
        claimAnew();
        {   // the language file there, the charset empty
            ScratchStore store;
            InstallLibraries(store);
            EnsureStoreFiles();
            setSetting(store, "Charset=0", "Charset=");
            MsgBoxScript boxes;
            QCOMPARE(Main(), StartResult::Refused);
            expectRefusal(boxes, kNoCharsetMessage);
            QCOMPARE(store.tempFiles(), QStringList());  // no library was copied
        }
        claimAnew();
        {   // no setting.ini: it is made, language 0409 is found, and the missing
            // language file refuses the start
            ScratchStore store;
            MsgBoxScript boxes;
            QCOMPARE(Main(), StartResult::Refused);
            expectRefusal(boxes, kNoLanguageFileMessage);
            QVERIFY(store.exists(store.appFile("setting.ini")));
        }
    }

    void aSecondInstanceIsRefusedAndTouchesNothing() {
        ScratchStore store;
        InstallLibraries(store);
        MsgBoxScript boxes;
        FrmMain* window = nullptr;
        QCOMPARE(Main(&window), StartResult::Started);
        const QByteArray setting = store.read(store.appFile("setting.ini"));
        const QStringList temp = store.tempFiles();
        const QByteArray snapshot = store.read(store.tempFile("addr_cat.dat"));
        QFile::remove(store.appFile("cat.dat"));  // a second start would make it anew

        QCOMPARE(Main(), StartResult::Refused);
        expectRefusal(boxes, kAlreadyRunningMessage);
        QVERIFY(!store.exists(store.appFile("cat.dat")));
        QCOMPARE(store.read(store.appFile("setting.ini")), setting);
        QCOMPARE(store.tempFiles(), temp);
        QCOMPARE(store.read(store.tempFile("addr_cat.dat")), snapshot);
        window->close();
        QCoreApplication::processEvents();
    }

    void aStoredCountryBeyondTheListEndsTheStartSilently() {
        ScratchStore store;
        InstallLibraries(store);
        EnsureStoreFiles();
        setSetting(store, "Country=113", "Country=9999");
        MsgBoxScript boxes;
        FrmMain* window = nullptr;
        QCOMPARE(Main(&window), StartResult::Failed);
        QVERIFY(!window);
        QVERIFY(!TheMainWindow());
        QCOMPARE(boxes.count(), 0);
        // The one failure path unloads the language and edition libraries.
        QVERIFY(!store.tempFiles().contains("ma_langfile0409.dll"));
        QVERIFY(!store.tempFiles().contains("ma_edition_0409.dll"));
        UnloadAllLibraries();
    }

    void aStoredCountryThatIsNoNumberEndsTheStartToo() {
        ScratchStore store;
        InstallLibraries(store);
        EnsureStoreFiles();
        setSetting(store, "Country=113", "Country=abc");
        MsgBoxScript boxes;
        QCOMPARE(Main(), StartResult::Failed);
        QCOMPARE(boxes.count(), 0);
        UnloadAllLibraries();
    }

    void theSplashNamesTheOwner() {
        ScratchStore store;
        LoadAllLibraries(store);
        OwnerName = "Ingrid";
        frmprogress splash;
        splash.FormLoad();
        QCOMPARE(splash.windowTitle(), GetLanguageString(308));
        auto* caption = splash.findChild<QLabel*>("lbcaption");
        QVERIFY(caption);
        QVERIFY(GetLanguageString(536).contains("%username"));
        QCOMPARE(caption->text(), QString(GetLanguageString(536)).replace("%username", "Ingrid"));
        QCOMPARE(caption->font().pointSize(), 8);
        QCOMPARE(caption->property("fontCharset").toInt(), 0);
        QVERIFY(!SkinEnabled);  // no skins on this system
        UnloadAllLibraries();
    }

    void theOwnerComesFromTheDriveAndTheWarningWhenStagingIsImpossible() {
        ScratchStore store;
        InstallLibraries(store);
        // The staging area can't be made: a file stands where its folder should.
        const QString blocker = store.app() + "/../blocker";
        store.write(blocker, "x");
        SetVellumarkFolderForTest(blocker + "/Vellumark");
        MsgBoxScript boxes;
        FrmMain* window = nullptr;
        QCOMPARE(Main(&window), StartResult::Started);
        QCOMPARE(boxes.count(), 1);
        QCOMPARE(boxes.last().icon, int(MsgExclamation));
        // No library could be copied, so every string is empty, the window
        // caption included; the program runs all the same.
        QCOMPARE(window->windowTitle(), QString());
        QCOMPARE(window->cmbCountry->count(), 0);
        window->close();
        QCoreApplication::processEvents();
    }
};

QTEST_MAIN(StartTest)
#include "tst_start.moc"
