#pragma once
// The duplicate dialog: the user picks the category, and if wished the
// country, into which the checked contacts are copied; the copy itself is
// the main window's Duplicate.
#include "dialogs/forms/duplicateform.h"

class ItemCombo;

class frmDuplicate : public DuplicateForm {
    Q_OBJECT
public:
    explicit frmDuplicate(QWidget* parent = nullptr);
    void FormLoad() override;

    ItemCombo* cmbCat;  // items: the name padded to 200 characters, then the id

private:
    void cmdDuplicate_Click();
};
