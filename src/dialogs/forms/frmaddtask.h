#pragma once
// The new-contact dialog: enters one contact after another. Save writes a
// complete contact through the staged write and leaves the dialog open,
// emptied, for the next one.
#include "dialogs/forms/contactdialog.h"

class frmaddtask : public ContactDialog {
    Q_OBJECT
public:
    explicit frmaddtask(QWidget* parent = nullptr);
    void FormLoad() override;

    // Empties the twelve text boxes and puts the focus in the name box;
    // country and category stay, for a run of contacts of one category.
    void ClearContactForm();

protected:
    StoreResult WriteContact(const ContactForm& form, const SaveProgress& progress) override;
    void SaveSucceeded() override;
};
