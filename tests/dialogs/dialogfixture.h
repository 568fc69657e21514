#pragma once
// What the tests of the contact dialogs share: a scratch store with the
// real string libraries loaded, the first-run store files and a data
// folder, message boxes answered and recorded, and controls by name.
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <memory>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "dialogs/forms/contactdialog.h"
#include "platform/forms/modal.h"
#include "platform/core/pause.h"
#include "store/core/genid.h"
#include "store/core/record.h"
#include "support/libraryfixture.h"
#include "support/msgboxscript.h"
#include "support/scratch.h"

struct DialogStore {
    ScratchStore store;
    MsgBoxScript boxes;

    DialogStore() {
        SetSleepDisabledForTest(true);
        LoadAllLibraries(store);
        EnsureStoreFiles();
        QDir().mkpath(store.appFile("data"));
        ResetRandomForTest();
        ClearContactBuffer();
        ClearModalScripts();
        OwnerName = "Ada";
    }
    ~DialogStore() {
        ClearModalScripts();
        UnloadAllLibraries();
        ClearContactBuffer();
    }

    QByteArray file(const QString& name) const { return store.read(store.appFile(name)); }
    void writeFile(const QString& name, const QByteArray& bytes) const {
        store.write(store.appFile(name), bytes);
    }
    // Names of the record files in the data folder, sorted.
    QStringList records() const {
        QStringList names = QDir(store.appFile("data")).entryList(QDir::Files);
        names.sort();
        return names;
    }
    QByteArray record(const QString& id) const { return file("data/addr" + id + ".b64"); }
};


// A message box as one line: title, icon number and text.
inline QString Box(const MsgBoxRequest& box) {
    return box.title + "|" + QString::number(box.icon) + "|" + box.prompt;
}
inline QStringList Boxes(const MsgBoxScript& script) {
    QStringList boxes;
    for (const MsgBoxRequest& box : script.shown()) boxes << Box(box);
    return boxes;
}

template <typename T>
T* Control(QWidget* form, const char* name) {
    T* control = form->findChild<T*>(QString::fromLatin1(name));
    if (!control) qFatal("no control %s", name);
    return control;
}

// A record file as the contact dialogs write it, from the values given in
// the order of the file.
inline QByteArray RecordBytes(const QStringList& values) {
    static const char* const keys[] = {"infoid", "infoname", "country", "category", "tel1",
                                       "ext1",   "tel2",     "ext2",    "mobile",   "fax",
                                       "company", "designation", "addr", "notes",  "mail"};
    QByteArray text = "[Setting]\r\n";
    for (int i = 0; i < 15; ++i)
        text += QByteArray(keys[i]) + "=" + Cp1252(values.value(i).toUtf8().constData()) + "\r\n";
    return text;
}

// The twelve text boxes of a contact dialog, in the record's order.
inline QStringList BoxTexts(const ContactDialog& d) {
    QStringList texts;
    for (QLineEdit* box : {d.txtname, d.txttel1, d.txtext1, d.txttel2, d.txtext2, d.txtmobile,
                           d.txtfax, d.txtcompany, d.txtDesignation})
        texts << box->text();
    return texts << d.txtaddr->toPlainText() << d.txtnotes->toPlainText() << d.txtEmail->text();
}

// The font size of the form's design, made to differ from 8 and 9.
struct DesignFont {
    QFont before = QApplication::font();
    DesignFont() {
        QFont font = before;
        font.setPointSize(14);
        QApplication::setFont(font);
    }
    ~DesignFont() { QApplication::setFont(before); }
};
