#pragma once
// What the tests of the main window share: a scratch store with the real
// string libraries, hand-written store files, message boxes and pop-up
// menus recorded, the window loaded and shown, and its controls driven
// with the mouse and the keyboard.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>
#include <memory>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "main/forms/frmmain.h"
#include "platform/forms/popup.h"
#include "platform/forms/modal.h"
#include "platform/core/pause.h"
#include "platform/forms/shell.h"
#include "store/core/genid.h"
#include "store/core/record.h"
#include "support/libraryfixture.h"
#include "support/msgboxscript.h"
#include "support/scratch.h"


struct MainStore {
    ScratchStore store;
    MsgBoxScript boxes;
    QStringList popups;  // objectName of each menu popped up
    std::unique_ptr<FrmMain> window;

    // category.dat and cat.dat as given (Windows-1252 bytes, CR LF); the
    // filter country stored in setting.ini.
    MainStore(const char* categoryDat, const char* catDat, const QString& country = "Norway") {
        SetSleepDisabledForTest(true);
        LoadAllLibraries(store);
        QByteArray setting = FirstRunSettingText();
        setting.replace("Country=113", "Country=" + QByteArray::number(CountryIndex(country)));
        writeFile("setting.ini", setting);
        writeFile("category.dat", Cp1252(categoryDat));
        writeFile("cat.dat", Cp1252(catDat));
        writeFile("cty.dat", "");
        writeFile("name.dat", "");
        QDir().mkpath(store.appFile("data"));
        ResetRandomForTest();
        ClearContactBuffer();
        ContactEditFlag = false;
        ClearModalScripts();
        OwnerName = "Ada";
        SetPopupHandlerForTest([this](QMenu* menu) { popups << menu->objectName(); });
    }
    ~MainStore() {
        window.reset();
        SetPopupHandlerForTest({});
        SetShellHandlerForTest({});
        ClearModalScripts();
        UnloadAllLibraries();
        ClearContactBuffer();
    }

    FrmMain& open() {
        window = std::make_unique<FrmMain>();
        window->FormLoad();
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get())) qWarning("window not exposed");
        return *window;
    }

    QByteArray file(const QString& name) const { return store.read(store.appFile(name)); }
    void writeFile(const QString& name, const QByteArray& bytes) const {
        store.write(store.appFile(name), bytes);
    }
    // A record file with the keys the list reads; the others empty.
    void writeRecord(const char* id, const char* name, const char* mail = "",
                     const char* company = "", const char* designation = "",
                     const char* category = "00001", int country = 0) const {
        QByteArray text = "[Setting]\r\ninfoid=" + QByteArray(id) + "\r\ninfoname=" + Cp1252(name) +
                          "\r\ncountry=" + QByteArray::number(country) + "\r\ncategory=" + category +
                          "\r\ntel1=\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\nfax=\r\ncompany=" +
                          Cp1252(company) + "\r\ndesignation=" + Cp1252(designation) +
                          "\r\naddr=\r\nnotes=\r\nmail=" + Cp1252(mail) + "\r\n";
        writeFile("data/addr" + QString::fromLatin1(id) + ".b64", text);
    }

    // ---- the tree ----
    QTreeWidgetItem* root() const { return window->TreeView1->topLevelItem(0); }
    // The root's text, then the children's texts in tree order.
    QStringList nodeTexts() const {
        QStringList texts;
        for (int i = 0; i < window->TreeView1->topLevelItemCount(); ++i) {
            QTreeWidgetItem* top = window->TreeView1->topLevelItem(i);
            texts << top->text(0);
            for (int j = 0; j < top->childCount(); ++j) texts << top->child(j)->text(0);
        }
        return texts;
    }
    QTreeWidgetItem* node(const QString& text) const {
        const QList<QTreeWidgetItem*> found =
            window->TreeView1->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        if (found.isEmpty()) qFatal("no node %s", qPrintable(text));
        return found.first();
    }
    QString selectedNodeText() const {
        const QList<QTreeWidgetItem*> selected = window->TreeView1->selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text(0);
    }
    void clickNode(const QString& text) const {
        QTreeWidget* tree = window->TreeView1;
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(node(text)).center());
    }
    void rightClickNode(const QString& text) const {
        QTreeWidget* tree = window->TreeView1;
        QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, tree->visualItemRect(node(text)).center());
    }

    // ---- the list ----
    // Each row as "name|mail|company|designation|id", in the order shown.
    QStringList rows() const {
        QStringList result;
        QTreeWidget* list = window->ListView1;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            QTreeWidgetItem* row = list->topLevelItem(i);
            QStringList cells;
            for (int c = 0; c < 5; ++c) cells << row->text(c);
            result << cells.join('|');
        }
        return result;
    }
    QTreeWidgetItem* row(int i) const { return window->ListView1->topLevelItem(i); }
    QPoint rowCentre(int i) const { return window->ListView1->visualItemRect(row(i)).center(); }
    // "x" for a checked row, "-" for an unchecked one; "s" marks a selected row.
    QString marks() const {
        QString text;
        for (int i = 0; i < window->ListView1->topLevelItemCount(); ++i) {
            if (!text.isEmpty()) text += ' ';
            text += row(i)->checkState(0) == Qt::Checked ? 'x' : '-';
            if (row(i)->isSelected()) text += 's';
        }
        return text;
    }

    template <typename T>
    T* control(const char* name) const {
        T* found = window->findChild<T*>(QString::fromLatin1(name));
        if (!found) qFatal("no control %s", name);
        return found;
    }
    void trigger(const char* action) const { control<QAction>(action)->trigger(); }
};
