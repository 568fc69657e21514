#pragma once
// The export: the contacts of the category and country chosen in the main
// window, written to one CSV file in the shape of another address book.
// The main window's commands run one of the four routines directly, on a
// loaded form that is never shown; shown, the form offers the four shapes
// and runs the one chosen.
#include "export/core/exportshapes.h"
#include "import/forms/addressbookchoice.h"

class frmExport : public AddressBookChoice {
    Q_OBJECT
public:
    explicit frmExport(QWidget* parent = nullptr);

    // Each ends at its first failure, which passes to the caller; the
    // progress dialog then stays until its Cancel is pressed.
    void ExportOE();
    void ExportMSO();
    void ExportYahoo();
    void ExportIncredible();

protected:
    void RunChoice(int index) override { Export(ExportKind(index)); }

private:
    void Export(ExportKind kind);
};
