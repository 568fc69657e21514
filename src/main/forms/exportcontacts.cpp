// The export entries of the menu and of the toolbar's Export button: each
// runs one routine of frmExport, on a form loaded for it and never shown.
#include "export/forms/frmexport.h"
#include "main/forms/frmmain.h"

namespace {
void RunExport(FrmMain& window, void (frmExport::*routine)()) {
    frmExport form(&window);
    form.FormLoad();
    (form.*routine)();
}
}  // namespace

void ExportContactsOE(FrmMain& window) { RunExport(window, &frmExport::ExportOE); }
void ExportContactsMSO(FrmMain& window) { RunExport(window, &frmExport::ExportMSO); }
void ExportContactsYahoo(FrmMain& window) { RunExport(window, &frmExport::ExportYahoo); }
void ExportContactsIncredible(FrmMain& window) { RunExport(window, &frmExport::ExportIncredible); }
