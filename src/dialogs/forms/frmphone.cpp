#include "dialogs/forms/frmphone.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/libraries.h"
#include "app/forms/captionrule.h"
#include "dialogs/core/phonecodes.h"
#include "dialogs/forms/itemcombo.h"
#include "platform/forms/pointer.h"

frmphone::frmphone(QWidget* parent) : Form(parent) {
    setObjectName("frmphone");
    lbcountry = new QLabel(this);
    lbcountry->setObjectName("lbcountry");
    cbCountry = new ItemCombo(kPhoneNameWidth, this);
    cbCountry->setObjectName("cbCountry");
    lbcode = new QLabel(this);
    lbcode->setObjectName("lbcode");
    txtname = new QLineEdit(this);
    txtname->setObjectName("txtname");
    cmdClose = new QPushButton(this);
    cmdClose->setObjectName("cmdClose");
    cmdClose->setAutoDefault(false);

    auto* grid = new QGridLayout;
    grid->addWidget(lbcountry, 0, 0);
    grid->addWidget(cbCountry, 0, 1);
    grid->addWidget(lbcode, 1, 0);
    grid->addWidget(txtname, 1, 1);
    grid->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    // A choice by mouse, keyboard or wheel; a selection made by the program
    // runs the step itself.
    connect(cbCountry, &QComboBox::activated, this, &frmphone::cbCountry_Click);
    connect(cmdClose, &QPushButton::clicked, this, &Form::Unload);
}

void frmphone::FormLoad() {
    setWindowTitle(GetLanguageString(316));
    lbcountry->setText(GetLanguageString(508));
    lbcode->setText(GetLanguageString(560));
    cmdClose->setText(GetLanguageString(103));
    ApplyCaptionRule(this);
    QCoreApplication::processEvents();
}

void frmphone::FormActivate() {
    SetScreenPointer(11);
    for (const PhoneCode& entry : ScanPhoneCodes()) cbCountry->addItemText(PhoneItemText(entry));
    if (cbCountry->count() > 0) {
        cbCountry->setCurrentIndex(0);
        cbCountry_Click();
    }
    SetScreenPointer(0);
}

void frmphone::cbCountry_Click() {
    const QString item = cbCountry->currentItemText();
    // From position 100, the last of the padded name: a space, or the
    // hundredth letter of a long name, stands before the code.
    if (item.size() < kPhoneNameWidth) return;
    txtname->setText(item.mid(kPhoneNameWidth - 1, item.size() - (kPhoneNameWidth - 1)));
}
