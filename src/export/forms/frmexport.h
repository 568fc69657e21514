#pragma once
// The export: the contacts of the category and country chosen in the main
// window, written to one CSV file in the shape of another address book.
// The main window's commands run one of the four routines directly, on a
// loaded form that is never shown; shown, the form offers the four shapes
// and runs the one chosen.
#include "export/core/exportshapes.h"
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;
class QRadioButton;

class frmExport : public Form {
    Q_OBJECT
public:
    explicit frmExport(QWidget* parent = nullptr);
    void FormLoad() override;

    // Each ends at its first failure, which passes to the caller; the
    // progress dialog then stays until its Cancel is pressed.
    void ExportOE();
    void ExportMSO();
    void ExportYahoo();
    void ExportIncredible();

    QLabel* lbdesc;
    QRadioButton* optOperation[4];  // the order of ExportKind
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void Export(ExportKind kind);
    void cmdOK_Click();
};
