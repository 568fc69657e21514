#pragma once
// The design the two duplicate dialogs share (frmDuplicate for the checked
// contacts, frmDuplicateCat for a category): a description above, the
// category beside its label, the country behind a check box that enables
// it, Duplicate and Cancel below. The country list starts on the country
// stored in setting.ini, unchecked and disabled, so unless the box is
// checked the stored country is the one taken.
#include "platform/forms/modal.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

class DuplicateForm : public Form {
    Q_OBJECT
public:
    QLabel* lblDescription;
    QLabel* lblCategory;
    QCheckBox* Check1;  // enables the country
    QLabel* lblCountry;
    QComboBox* cmbCountry2;
    QPushButton* cmdDuplicate;
    QPushButton* cmdCancel;

protected:
    // `name` is the form's objectName; Cancel unloads it.
    DuplicateForm(const char* name, QWidget* parent);
    // Puts the form's own category control beside lblCategory.
    void PlaceCategory(QWidget* control);
    // The caption, the description, the shared captions, and the country list.
    void LoadDuplicateCaptions(int caption, const QString& description);
};
