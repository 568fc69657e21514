#include "dialogs/frmphone.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/captionrule.h"
#include "app/libraries.h"
#include "dialogs/itemcombo.h"
#include "platform/pointer.h"

namespace {
constexpr int kNameWidth = 100;
}

frmphone::frmphone(QWidget* parent) : Form(parent) {
    setObjectName("frmphone");
    lbcountry = new QLabel(this);
    lbcountry->setObjectName("lbcountry");
    cbCountry = new ItemCombo(kNameWidth, this);
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
    connect(cbCountry, &QComboBox::activated, this, &frmphone::cbCountryClick);
    connect(cmdClose, &QPushButton::clicked, this, &Form::unload);
}

QString frmphone::PhoneItemText(const QString& name, const QString& code) {
    return name.leftJustified(kNameWidth, u' ', true) + code;
}

void frmphone::formLoad() {
    setWindowTitle(GetLanguageString(316));
    lbcountry->setText(GetLanguageString(508));
    lbcode->setText(GetLanguageString(560));
    cmdClose->setText(GetLanguageString(103));
    ApplyCaptionRule(this);
    QCoreApplication::processEvents();
}

void frmphone::formActivate() {
    SetScreenPointer(11);
    // The library holds runs per hundred, each starting at X00 or X01 and
    // ending at the first number without a string; after an empty number the
    // scan goes on at X01 of the next hundred, so X00 is looked at only for
    // the first hundred.
    int number = 200;
    while (number < 900) {
        const QString entry = GetPhoneCodeString(number);
        if (!entry.isEmpty()) {
            const qsizetype at = entry.indexOf(QStringLiteral("/="), 0, Qt::CaseInsensitive);
            if (at >= 0) {
                const QString name = entry.left(at);
                const QString code = entry.right(entry.size() - at - 2);
                cbCountry->addItemText(PhoneItemText(name, code));
            }
        } else {
            const int firstDigit = QString::number(number).left(1).toInt();
            number = (QString::number(firstDigit + 1) + QStringLiteral("00")).toInt();
        }
        ++number;
    }
    if (cbCountry->count() > 0) {
        cbCountry->setCurrentIndex(0);
        cbCountryClick();
    }
    SetScreenPointer(0);
}

void frmphone::cbCountryClick() {
    const QString item = cbCountry->currentItemText();
    // From position 100, the last of the padded name: a space, or the
    // hundredth letter of a long name, stands before the code.
    if (item.size() < kNameWidth) return;
    txtname->setText(item.mid(kNameWidth - 1, item.size() - (kNameWidth - 1)));
}
