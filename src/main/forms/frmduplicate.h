#pragma once
// The duplicate dialog: the user picks the category, and if wished the
// country, into which the checked contacts are copied; the copy itself is
// the main window's Duplicate.
#include "platform/forms/modal.h"

class ItemCombo;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

class frmDuplicate : public Form {
    Q_OBJECT
public:
    explicit frmDuplicate(QWidget* parent = nullptr);
    void FormLoad() override;

    QLabel* lblDescription;
    QLabel* lblCategory;
    ItemCombo* cmbCat;  // items: the name padded to 200 characters, then the id
    QLabel* lblCountry;
    QCheckBox* Check1;  // enables the country
    QComboBox* cmbCountry2;
    QPushButton* cmdDuplicate;
    QPushButton* cmdCancel;

private:
    void cmdDuplicate_Click();
};
