#include "categories/forms/frmupdatecat.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/guarded.h"
#include "platform/core/msgbox.h"
#include "store/core/categorychanges.h"
#include "store/core/text.h"

frmupdatecat::frmupdatecat(QWidget* parent) : Form(parent) {
    setObjectName("frmupdatecat");
    lbcategory = new QLabel(this);
    lbcategory->setObjectName("lbcategory");
    txtname = new QLineEdit(this);
    txtname->setObjectName("txtname");
    cmdSave = new QPushButton(this);
    cmdSave->setObjectName("cmdSave");
    cmdClose = new QPushButton(this);
    cmdClose->setObjectName("cmdClose");
    cmdClose->setAutoDefault(false);

    auto* grid = new QGridLayout(this);
    grid->addWidget(lbcategory, 0, 0);
    grid->addWidget(txtname, 0, 1, 1, 3);
    grid->addWidget(cmdSave, 1, 2);
    grid->addWidget(cmdClose, 1, 3);
    grid->setColumnStretch(1, 1);
    setMinimumWidth(360);

    connect(cmdSave, &QPushButton::clicked, this, [this] { RunHandler("cmdSave", [this] { cmdSave_Click(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &Form::Unload);
}

void frmupdatecat::FormLoad() {
    lbcategory->setText(GetLanguageString(128));
    cmdSave->setText(GetLanguageString(102));
    cmdClose->setText(GetLanguageString(103));
    ApplyCaptionRule(this);
}

void frmupdatecat::FormActivate() {
    if (Tag.isEmpty())
        if (MainWindowLink* main = TheMainWindow()) Tag = QString::number(main->CategoryTask);
}

void frmupdatecat::cmdSave_Click() {
    const QString name = TrimSpaces(txtname->text());
    if (name.isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(530)), MsgCritical, GetLanguageString(300));
        return;
    }
    const QString mode = Tag.left(1);
    if (mode != "1" && mode != "2") return;
    // Names are unique without regard to case; an edit that keeps its name
    // is refused as well.
    if (CategoryNameExists(name)) {
        MsgBox(GetLanguageString(537), MsgExclamation, GetLanguageString(300));
        return;
    }
    // A failed step ends the chain without a message.
    if (mode == "1") AddCategoryLine(name);
    else RenameCategoryLine(Tag.mid(1), name);
    CategoryCleanup();
    if (MainWindowLink* main = TheMainWindow()) {
        main->CopyAddrFile();
        main->RefreshCategory();
    }
    Unload();
    CategoryCleanup();
}

void ShowUpdateCat(QObject* owner, int caption, const QString& tag) {
    frmupdatecat dialog(qobject_cast<QWidget*>(owner));
    dialog.setWindowTitle(GetLanguageString(caption));
    dialog.Tag = tag;
    ShowModal(&dialog, owner);
}

void AddCatMSO(const QString& names) {
    AddCategories(names);
    RefreshTreeView();
}

void RefreshTreeView() {
    if (MainWindowLink* main = TheMainWindow()) main->RebuildTreeWithoutCounts();
}
