#include "categories/forms/frmduplicatecat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/countrychoice.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/guarded.h"
#include "platform/core/msgbox.h"
#include "store/core/categorychanges.h"
#include "store/core/text.h"

frmDuplicateCat::frmDuplicateCat(QWidget* parent) : Form(parent) {
    setObjectName("frmDuplicateCat");
    lblDescription = new QLabel(this);
    lblDescription->setObjectName("lblDescription");
    lblDescription->setWordWrap(true);
    lblCategory = new QLabel(this);
    lblCategory->setObjectName("lblCategory");
    txtCategory = new QLineEdit(this);
    txtCategory->setObjectName("txtCategory");
    Check1 = new QCheckBox(this);
    Check1->setObjectName("Check1");
    lblCountry = new QLabel(this);
    lblCountry->setObjectName("lblCountry");
    cmbCountry2 = new QComboBox(this);
    cmbCountry2->setObjectName("cmbCountry2");
    cmdDuplicate = new QPushButton(this);
    cmdDuplicate->setObjectName("cmdDuplicate");
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    for (QPushButton* button : {cmdDuplicate, cmdCancel}) button->setAutoDefault(false);

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblDescription, 0, 0, 1, 3);
    grid->addWidget(lblCategory, 1, 0);
    grid->addWidget(txtCategory, 1, 1, 1, 2);
    auto* countryLabel = new QHBoxLayout;
    countryLabel->addWidget(Check1);
    countryLabel->addWidget(lblCountry, 1);
    grid->addLayout(countryLabel, 2, 0);
    grid->addWidget(cmbCountry2, 2, 1, 1, 2);
    grid->addWidget(cmdDuplicate, 3, 1);
    grid->addWidget(cmdCancel, 3, 2);
    grid->setColumnStretch(1, 1);
    setMinimumWidth(400);

    connect(cmdDuplicate, &QPushButton::clicked, this,
            [this] { RunHandler("cmdDuplicate", [this] { cmdDuplicate_Click(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

void frmDuplicateCat::FormLoad() {
    setWindowTitle(GetLanguageString(329));
    lblCategory->setText(GetLanguageString(128));
    txtCategory->setText(GetLanguageString(530));
    lblCountry->setText(GetLanguageString(508));
    lblDescription->setText(WithOwnerName(GetLanguageString(603)));
    cmdDuplicate->setText(GetLanguageString(135));
    cmdCancel->setText(GetLanguageString(101));
    FillCountryChoice(cmbCountry2, Check1);
    ApplyCaptionRule(this);
    // It holds no list or tree to hand to the skin engine.
}

void frmDuplicateCat::cmdDuplicate_Click() {
    // The starting text counts as empty only in English: in another language
    // it is taken as a name.
    const QString text = txtCategory->text();
    if (text == "Please enter a new category" || text.isEmpty()) {
        txtCategory->setFocus();
        return;
    }
    CreateCategory();
    if (!boolSuccess) return;
    strCategory = text;
    strCountry = cmbCountry2->currentText();
    strCountryIndex = QString::number(cmbCountry2->currentIndex());
    boolConfirmed = true;
    Unload();
    if (MainWindowLink* main = TheMainWindow()) main->CopyAddrFile();
}

// Only a name that exists makes the creation fail. A blank name is told and
// then goes on as a name; a failed step of the chain ends it without a message.
void frmDuplicateCat::CreateCategory() {
    boolSuccess = true;
    const QString name = TrimSpaces(txtCategory->text());
    if (name.isEmpty()) MsgBox(WithOwnerName(GetLanguageString(530)), MsgExclamation, GetLanguageString(300));
    if (CategoryNameExists(name)) {
        MsgBox(GetLanguageString(537), MsgExclamation, GetLanguageString(300));
        boolSuccess = false;
    } else {
        AddCategoryLine(name, &strCatID);
    }
}
