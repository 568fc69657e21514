#pragma once
// What the tests of the forms share: a scratch store with the real string
// libraries loaded and the first-run store files, message boxes recorded,
// modal forms and pop-up menus scripted, and the main window opened on
// hand-written store files and driven with the mouse and the keyboard.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>
#include <memory>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "main/forms/frmmain.h"
#include "platform/core/pause.h"
#include "platform/forms/modal.h"
#include "platform/forms/popup.h"
#include "platform/forms/printdialog.h"
#include "platform/forms/shell.h"
#include "store/core/genid.h"
#include "store/core/indexfiles.h"
#include "store/core/record.h"
#include "support/libraryfixture.h"
#include "support/msgboxscript.h"
#include "support/scratch.h"

template <typename T>
T* Control(const QObject* form, const char* name) {
    T* control = form->findChild<T*>(QString::fromLatin1(name));
    if (!control) qFatal("no control %s", name);
    return control;
}

struct FormStore {
    ScratchStore store;
    MsgBoxScript boxes;
    QStringList popups;  // objectName of each menu popped up

    FormStore() {
        SetSleepDisabledForTest(true);
        LoadAllLibraries(store);
        EnsureStoreFiles();
        QDir().mkpath(store.appFile("data"));
        ResetRandomForTest();
        ReleaseFileNumbersForTest();
        ClearContactBuffer();
        ContactEditFlag = false;
        ClearModalScripts();
        OwnerName = "Ada";
        SetPopupHandlerForTest([this](QMenu* menu) { popups << menu->objectName(); });
    }
    ~FormStore() {
        SetPopupHandlerForTest({});
        SetShellHandlerForTest({});
        SetPrintDialogAnswerForTest({});
        ClearModalScripts();
        UnloadAllLibraries();
        ClearContactBuffer();
    }
    // Names of the record files in the data folder, sorted.
    QStringList records() const { return QDir(store.appFile("data")).entryList(QDir::Files, QDir::Name); }
    QByteArray record(const QString& id) const { return store.file("data/addr" + id + ".b64"); }
    // The staging area after a road: only the four library copies stay.
    bool stagingIsClear() const {
        return store.tempFiles() == QStringList({"addr_country.dll", "addr_phonecode.dll",
                                                 "ma_edition_0409.dll", "ma_langfile0409.dll"});
    }
};

// The main window on a store of the given category.dat and cat.dat (UTF-8,
// written in 1252), with the filter set to `country`.
struct MainStore : FormStore {
    std::unique_ptr<FrmMain> window;

    MainStore(const char* categoryDat, const char* catDat, const QString& country = "Norway") {
        QByteArray setting = FirstRunSettingText();
        setting.replace("Country=113", "Country=" + QByteArray::number(CountryIndex(country)));
        store.put("setting.ini", setting);
        store.put("category.dat", Cp1252(categoryDat));
        store.put("cat.dat", Cp1252(catDat));
    }
    ~MainStore() { window.reset(); }

    FrmMain& open() {
        window = std::make_unique<FrmMain>();
        window->FormLoad();
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get())) qWarning("window not exposed");
        return *window;
    }
    // A record with the keys the list shows; the others empty.
    void contact(const char* id, const char* name, const char* mail = "", const char* company = "",
                 const char* designation = "", const char* category = "00001", int country = 0) const {
        store.putRecord({id, U(name), QString::number(country), category, "", "", "", "", "", "", U(company),
                         U(designation), "", "", U(mail)});
    }

    // ---- the tree ----
    // The root's text, then the children's texts in tree order.
    QStringList nodeTexts() const {
        QStringList texts;
        QTreeWidgetItem* root = window->TreeView1->topLevelItem(0);
        for (int j = -1; root && j < root->childCount(); ++j) texts << (j < 0 ? root : root->child(j))->text(0);
        return texts;
    }
    QTreeWidgetItem* node(const QString& text) const {
        QTreeWidgetItem* found = window->TreeView1->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        return found ? found : (qFatal("no node %s", qPrintable(text)), nullptr);
    }
    QString selectedNodeText() const {
        const auto selected = window->TreeView1->selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text(0);
    }
    void clickNode(const QString& text, Qt::MouseButton button = Qt::LeftButton) const {
        QTreeWidget* tree = window->TreeView1;
        QTest::mouseClick(tree->viewport(), button, {}, tree->visualItemRect(node(text)).center());
    }

    // ---- the list ----
    // Each row as "name|mail|company|designation|id", in the order shown.
    QStringList rows() const {
        QStringList result;
        for (int i = 0; i < window->ListView1->topLevelItemCount(); ++i)
            result << QStringList({row(i)->text(0), row(i)->text(1), row(i)->text(2), row(i)->text(3), row(i)->text(4)}).join('|');
        return result;
    }
    QString names() const {
        QStringList result;
        for (const QString& r : rows()) result << r.section('|', 0, 0);
        return result.join(',');
    }
    QTreeWidgetItem* row(int i) const { return window->ListView1->topLevelItem(i); }
    QPoint rowCentre(int i) const { return window->ListView1->visualItemRect(row(i)).center(); }
    // Press, release, double click, release: the list edits on the second press.
    void doubleClickRow(int i) const {
        QWidget* viewport = window->ListView1->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, rowCentre(i));
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, rowCentre(i));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, rowCentre(i));
    }
    void trigger(const char* entry) const { window->Entry(entry)->trigger(); }
};
