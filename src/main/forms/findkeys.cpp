// The toolbar's find entries: each sets the field to search, then runs what
// the menu's Find runs. The menu's own Find leaves FindKey as it was.
#include "main/forms/commandtable.h"
#include "main/forms/frmmain.h"

namespace {
void FindBy(FrmMain& window, int key) {
    window.FindKey = key;
    RunCommand(window, "mnuFind_info");
}
}  // namespace

void FindByName(FrmMain& window) { FindBy(window, 1); }
void FindByEmail(FrmMain& window) { FindBy(window, 2); }
void FindByCompany(FrmMain& window) { FindBy(window, 3); }
