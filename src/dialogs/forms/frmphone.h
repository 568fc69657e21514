#pragma once
// The phone code look-up: the user picks a country and reads its
// international dialling code. Nothing is passed back.
#include "platform/forms/modal.h"

class ItemCombo;
class QLabel;
class QLineEdit;
class QPushButton;

class frmphone : public Form {
    Q_OBJECT
public:
    explicit frmphone(QWidget* parent = nullptr);
    void FormLoad() override;
    void FormActivate() override;  // fills the list from the phone code library

    QLabel* lbcountry;
    ItemCombo* cbCountry;
    QLabel* lbcode;
    QLineEdit* txtname;  // shows the code, despite its name
    QPushButton* cmdClose;

private:
    void cbCountry_Click();
};
