// Skins, on a system forced to major version 5 (today's Linux takes none):
// the start under the splash form, the forms handing their lists and trees
// to the engine, the skin menu and what it leaves in setting.ini.
#include <QAction>
#include "app/forms/frmprogress.h"
#include "platform/core/sysinfo.h"
#include "platform/forms/skinengine.h"
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n";
const char* const kGreenTrees = "QTreeView { background-color: rgb(10, 120, 30); }";

// The store with [Skin] SkinFile set, the system's version forced, and
// every call of the engine noted.
struct SkinStore : MainStore {
    QStringList calls;
    SkinStore(const QByteArray& skinFile, int major = 5) : MainStore(kCategories, "") {
        store.put("setting.ini", store.file("setting.ini").replace("SkinFile=Skins\\default.skf", "SkinFile=" + skinFile));
        SetOsVersionForTest(major, 1);
        SkinEnabled = false;
        SkinPath.clear();
        ResetSkinEngineForTest();
        SetSkinEngineLogForTest(&calls);
    }
    ~SkinStore() {
        SetSkinEngineLogForTest(nullptr);
        ResetSkinEngineForTest();
        SetOsVersionForTest(0, 0);
        SkinEnabled = false;
        SkinPath.clear();
    }
    // The splash form's creation and load, as the start makes them.
    void splash() {
        frmprogress form;
        form.FormLoad();
    }
    // Below the tree's rows, where only its background shows.
    QRgb treeColour() const {
        const QImage image = window->TreeView1->viewport()->grab().toImage();
        return image.pixel(5, image.height() - 5);
    }
    // The checked entries of the skin menu by caption.
    QString checked() const {
        QStringList names;
        for (QAction* a : window->Menu("mnuSkin")->actions())
            if (a->isChecked()) names << a->text();
        return names.join(',');
    }
    void chooseSkin(int index) const {
        for (QAction* a : window->findChildren<QAction*>("mnuSkinList"))
            if (a->property("Index").toInt() == index) a->trigger();
    }
};
const QStringList kControls = {"ApplyToControl TreeView1 1", "ApplyToControl ListView1 1"};
}  // namespace

class TestSkins : public QObject {
    Q_OBJECT
private slots:
    void theStartLoadsTheSkinOfTheSettings() {
        // SkinFile=, the file's text (none: missing), the version's major;
        // the engine's calls before the main window's; SkinEnabled; trees green
        const struct { QByteArray skinFile; const char* sheet; int major; QStringList calls; bool enabled, green; } rows[] = {
            {"", "", 5, {}, true, false},
            {"Skins\\default.skf", kGreenTrees, 5,
             {"SetDrawMode 2", "SetEngineMode 1", "SelectSkinFile \"%1/Skins\\default.skf\"", "LoadSelectedSkin",
              "ApplyToAllForms 0"}, true, true},
            // Written on Windows in another case: found all the same.
            {"SKINS\\Default.SKF", kGreenTrees, 5,
             {"SetDrawMode 2", "SetEngineMode 1", "SelectSkinFile \"%1/SKINS\\Default.SKF\"", "LoadSelectedSkin",
              "ApplyToAllForms 0"}, true, true},
            // A missing skin ends the skin's steps; the program goes on unskinned.
            {"Skins\\gone.skf", nullptr, 5,
             {"SetDrawMode 2", "SetEngineMode 1", "SelectSkinFile \"%1/Skins\\gone.skf\"", "LoadSelectedSkin"}, true, false},
            {"Skins\\default.skf", kGreenTrees, 6, {}, false, false},  // another major version: no engine at all
        };
        for (const auto& row : rows) {
            SkinStore s(row.skinFile, row.major);
            QDir().mkpath(s.store.appFile("Skins"));
            if (row.sheet) s.store.put("Skins/default.skf", row.sheet);
            s.splash();
            QCOMPARE(SkinEnabled, row.enabled);
            QStringList expected;
            for (const QString& call : row.calls) expected << QString(call).replace("%1", s.store.app());
            QCOMPARE(s.calls, expected);
            s.calls.clear();
            s.open();
            QCOMPARE(s.calls, row.enabled ? kControls : QStringList());  // with or without a skin path
            QCOMPARE(s.treeColour() == qRgb(10, 120, 30), row.green);
            QCOMPARE(s.boxes.count(), 0);
        }
    }

    void aChosenSkinIsSavedAndNoSkinLeavesTheSettingAlone() {
        SkinStore s("");
        s.splash();
        FrmMain& w = s.open();
        const QString folder = QDir::currentPath();
        QDir::setCurrent(s.store.app());  // the bare caption is looked up from the working folder
        s.store.put("Skin3", kGreenTrees);
        s.calls.clear();
        s.chooseSkin(2);
        QCOMPARE(s.calls, QStringList({"SetDrawMode 2", "SetEngineMode 1", "SelectSkinFile \"Skin3\"",
                                       "LoadSelectedSkin", "ApplyToAllForms 0"}));
        QCOMPARE(s.checked() + "|" + SkinPath, QString("Skin3|Skin3"));
        QCOMPARE(s.treeColour(), qRgb(10, 120, 30));
        QVERIFY(s.store.file("setting.ini").contains("[Skin]\r\nSkinFile=Skins\\Skin3\r\n"));

        s.calls.clear();
        s.chooseSkin(4);  // no file "Skin5": the choice ends before its mark and its save
        QCOMPARE(s.calls, QStringList({"SelectSkinFile \"Skin5\"", "LoadSelectedSkin"}));  // set up already
        QCOMPARE(s.checked(), QString());
        QVERIFY(s.store.file("setting.ini").contains("SkinFile=Skins\\Skin3\r\n"));

        s.calls.clear();
        s.trigger("mnuNoSkin");
        QCOMPARE(s.calls, QStringList({"SelectSkinFile \"\"", "LoadSelectedSkin", "ApplyToAllForms 0"}));
        QCOMPARE(s.checked() + "|" + SkinPath, QString("No Skin|"));
        QVERIFY(s.treeColour() != qRgb(10, 120, 30));
        w.close();
        QDir::setCurrent(folder);
        QVERIFY(s.store.file("setting.ini").contains("[Skin]\r\nSkinFile=Skins\\Skin3\r\n"));
    }
};

QTEST_MAIN(TestSkins)
#include "tst_skins.moc"
