#pragma once
// The progress dialog of an export: it stands while the file is written,
// without blocking the run, and its Cancel asks the run to stop.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;
class QWidget;

class frmExportMsg : public Form {
    Q_OBJECT
public:
    explicit frmExportMsg(QWidget* parent = nullptr);
    void FormLoad() override;

    QLabel* Label1;
    QPushButton* cmdCancel;

    // Cancel, the Escape key and the window's close box alike.
    void reject() override;
};

// Loads the one progress dialog (or takes the one still standing after a
// failed run) and shows it without waiting; the run goes on at once.
frmExportMsg* ShowExportMsg(QWidget* owner);
// Closes it, if it stands.
void CloseExportMsg();
