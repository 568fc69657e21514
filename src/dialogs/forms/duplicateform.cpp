#include "dialogs/forms/duplicateform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "platform/core/numbers.h"

namespace {
template <class Control>
Control* Make(const char* name, QWidget* form) {
    auto* control = new Control(form);
    control->setObjectName(name);
    return control;
}
}  // namespace

DuplicateForm::DuplicateForm(const char* name, QWidget* parent) : Form(parent) {
    setObjectName(name);
    lblDescription = Make<QLabel>("lblDescription", this);
    lblDescription->setWordWrap(true);
    lblCategory = Make<QLabel>("lblCategory", this);
    Check1 = Make<QCheckBox>("Check1", this);
    lblCountry = Make<QLabel>("lblCountry", this);
    cmbCountry2 = Make<QComboBox>("cmbCountry2", this);
    cmdDuplicate = Make<QPushButton>("cmdDuplicate", this);
    cmdCancel = Make<QPushButton>("cmdCancel", this);
    for (QPushButton* button : {cmdDuplicate, cmdCancel}) button->setAutoDefault(false);

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblDescription, 0, 0, 1, 3);
    grid->addWidget(lblCategory, 1, 0);
    auto* countryLabel = new QHBoxLayout;
    countryLabel->addWidget(Check1);
    countryLabel->addWidget(lblCountry, 1);
    grid->addLayout(countryLabel, 2, 0);
    grid->addWidget(cmbCountry2, 2, 1, 1, 2);
    grid->addWidget(cmdDuplicate, 3, 1);
    grid->addWidget(cmdCancel, 3, 2);
    grid->setColumnStretch(1, 1);
    setMinimumWidth(400);

    connect(Check1, &QCheckBox::toggled, cmbCountry2, &QWidget::setEnabled);
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

void DuplicateForm::PlaceCategory(QWidget* control) {
    static_cast<QGridLayout*>(layout())->addWidget(control, 1, 1, 1, 2);
    // The keyboard goes from the category to the country and the buttons.
    QWidget* order[] = {control, Check1, cmbCountry2, cmdDuplicate, cmdCancel};
    for (int i = 0; i + 1 < 5; ++i) setTabOrder(order[i], order[i + 1]);
}

void DuplicateForm::LoadDuplicateCaptions(int caption, const QString& description) {
    setWindowTitle(GetLanguageString(caption));
    lblDescription->setText(description);
    lblCategory->setText(GetLanguageString(128));
    lblCountry->setText(GetLanguageString(508));
    cmdDuplicate->setText(GetLanguageString(135));
    cmdCancel->setText(GetLanguageString(101));
    cmbCountry2->addItems(CountryNames());
    qint16 country = 0;
    TextToInt16(GetIniValue("Setting", "Country", "0", SettingFile()), country);
    cmbCountry2->setCurrentIndex(country);
    Check1->setChecked(false);
    cmbCountry2->setEnabled(false);
}
