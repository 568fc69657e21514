#pragma once
// Duplicate a category: asks for the name of a new category and a country,
// creates the category, and hands the outcome to the main window, which
// copies the contacts of the selected category into it.
#include "dialogs/forms/duplicateform.h"

class QLineEdit;

class frmDuplicateCat : public DuplicateForm {
    Q_OBJECT
public:
    explicit frmDuplicateCat(QWidget* parent = nullptr);
    void FormLoad() override;

    // The outcome, set when the category has been created.
    QString strCategory;      // the name as entered
    QString strCatID;         // the id it was given
    QString strCountry;       // the country's name
    QString strCountryIndex;  // its list position, as text
    bool boolConfirmed = false;

    QLineEdit* txtCategory;  // starts with message 530

private:
    void cmdDuplicate_Click();
    void CreateCategory();
    bool boolSuccess = false;
};
