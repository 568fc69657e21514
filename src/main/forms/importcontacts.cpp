// The import commands: each entry of the menu and of the toolbar's Import
// button opens the form of its source; the button itself asks first which
// address book to import from (frmoption).
#include "import/forms/frmoption.h"
#include "import/forms/importsession.h"
#include "main/forms/frmmain.h"

void ImportOE(FrmMain& window) { ShowImportForm(ImportKind::OE, &window); }
void ImportMSO(FrmMain& window) { ShowImportForm(ImportKind::MSO, &window); }
void ImportYahoo(FrmMain& window) { ShowImportForm(ImportKind::Yahoo, &window); }
void ImportIncredi(FrmMain& window) { ShowImportForm(ImportKind::Incredi, &window); }

void ChooseImportSource(FrmMain& window) {
    frmoption choice(&window);
    ShowModal(&choice, &window);
}
