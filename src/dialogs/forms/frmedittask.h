#pragma once
// The edit dialog: shows the contact in ContactBuffer, lets the user change
// every field, and writes the change through the staged write. It closes
// itself after a successful save.
#include "dialogs/forms/contactdialog.h"

class frmedittask : public ContactDialog {
    Q_OBJECT
public:
    explicit frmedittask(QWidget* parent = nullptr);
    void FormLoad() override;
    void FormActivate() override;  // fills the fields from ContactBuffer, every time

    QPushButton* cmdLink;  // hands the e-mail address to the mail program

protected:
    StoreResult WriteContact(const ContactForm& form, const SaveProgress& progress) override;
    void SaveSucceeded() override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void cmdLink_Click();
};
