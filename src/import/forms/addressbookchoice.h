#pragma once
// The small dialog that asks for one of the four address books: a line of
// text, four options, OK and Cancel. The import's choice of source
// (frmoption) and the export (frmExport) are this one design. OK runs what
// the first option chosen stands for, passes over a failure in it, and
// closes the dialog; without a choice it just closes.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;
class QRadioButton;

class AddressBookChoice : public Form {
    Q_OBJECT
public:
    void FormLoad() override;

    QLabel* lbdesc;
    QRadioButton* optOperation[4];  // Outlook Express, Microsoft Outlook, Yahoo!, IncrediMail
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    AddressBookChoice(const char* name, QWidget* parent);
    virtual void RunChoice(int index) = 0;

private:
    void cmdOK_Click();
};
