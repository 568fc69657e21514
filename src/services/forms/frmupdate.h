#pragma once
// The answer "an update exists": what it is and where to get it. Shown
// without waiting; the main window goes on behind it.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;

class frmUpdate : public Form {
    Q_OBJECT
public:
    explicit frmUpdate(QWidget* parent = nullptr);
    // The description, and the address, which the desktop opens on a click
    // when it is a web address.
    void ShowResult(const QString& description, const QString& url);

    QLabel* lbdesc;
    QLabel* lburl;
    QPushButton* cmdOK;
private:
    void lburl_Click(const QString& url);
};

// Makes the dialog on `owner` and shows it.
frmUpdate* ShowUpdateResult(QWidget* owner, const QString& description, const QString& url);
