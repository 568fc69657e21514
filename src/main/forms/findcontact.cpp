// Find (mnuFind_info, and through it the toolbar's "find" and its three
// entries): the find dialog, then a fresh snapshot, since an edit from the
// results may have changed the store.
#include "find/forms/frmfindtask.h"
#include "main/forms/frmmain.h"

void FindContact(FrmMain& window) {
    {
        frmfindtask dialog(&window);
        ShowModal(&dialog, &window);
    }
    window.CopyAddrFile();
}
