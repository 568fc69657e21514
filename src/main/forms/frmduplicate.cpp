#include "main/forms/frmduplicate.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/countrychoice.h"
#include "dialogs/forms/itemcombo.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/msgbox.h"
#include "store/core/categories.h"
#include "store/core/text.h"

frmDuplicate::frmDuplicate(QWidget* parent) : Form(parent) {
    setObjectName("frmDuplicate");
    lblDescription = new QLabel(this);
    lblDescription->setObjectName("lblDescription");
    lblDescription->setWordWrap(true);
    lblCategory = new QLabel(this);
    lblCategory->setObjectName("lblCategory");
    cmbCat = new ItemCombo(200, this);
    cmbCat->setObjectName("cmbCat");
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
    grid->addWidget(cmbCat, 1, 1, 1, 2);
    auto* countryLabel = new QHBoxLayout;
    countryLabel->addWidget(Check1);
    countryLabel->addWidget(lblCountry, 1);
    grid->addLayout(countryLabel, 2, 0);
    grid->addWidget(cmbCountry2, 2, 1, 1, 2);
    grid->addWidget(cmdDuplicate, 3, 1);
    grid->addWidget(cmdCancel, 3, 2);
    grid->setColumnStretch(1, 1);

    connect(cmdDuplicate, &QPushButton::clicked, this, &frmDuplicate::cmdDuplicate_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

void frmDuplicate::FormLoad() {
    setWindowTitle(GetLanguageString(328));
    lblDescription->setText(GetLanguageString(629));
    lblCategory->setText(GetLanguageString(128));
    lblCountry->setText(GetLanguageString(508));
    cmdDuplicate->setText(GetLanguageString(135));
    cmdCancel->setText(GetLanguageString(101));
    FillCountryChoice(cmbCountry2, Check1);
    QStringList items;
    CategoryComboItems(items);
    cmbCat->addItemTexts(items);
    cmbCat->setCurrentIndex(items.isEmpty() ? -1 : 0);
    ApplyCaptionRule(this);  // ends with the 200 milliseconds' wait
}

// The id from position 201 of the item, the name its first 100 characters,
// the country the first 100 characters of the country's text, each trimmed.
void frmDuplicate::cmdDuplicate_Click() {
    const QString item = cmbCat->currentItemText();
    if (cmbCat->currentIndex() < 0 || item.isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(612)), MsgExclamation, GetLanguageString(301));
        return;
    }
    const QString categoryId = TrimSpaces(item.mid(200));
    const QString categoryName = TrimSpaces(item.left(100));
    const QString country = TrimSpaces(cmbCountry2->currentText().left(100));
    Unload();
    if (MainWindowLink* main = TheMainWindow()) main->Duplicate(categoryId, categoryName, country);
}
