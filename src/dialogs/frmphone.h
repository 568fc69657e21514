#pragma once
// The phone code look-up: the user picks a country and reads its
// international dialling code. Nothing is passed back.
#include "platform/modal.h"

class ItemCombo;
class QLabel;
class QLineEdit;
class QPushButton;

class frmphone : public Form {
    Q_OBJECT
public:
    explicit frmphone(QWidget* parent = nullptr);
    void formLoad() override;
    void formActivate() override;  // the scan of the phone code library

    // An item of the list: the name padded or cut to 100 characters, then
    // the code.
    static QString PhoneItemText(const QString& name, const QString& code);

    QLabel* lbcountry;
    ItemCombo* cbCountry;
    QLabel* lbcode;
    QLineEdit* txtname;  // shows the code, despite its name
    QPushButton* cmdClose;

private:
    void cbCountryClick();
};
