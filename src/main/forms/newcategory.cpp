// New category (the toolbar's "newcategory").
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "categories/forms/frmupdatecat.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "platform/core/msgbox.h"

// The store holds at most five categories: with the root, six nodes.
void NewCategory(FrmMain& window) {
    if (NodeCount(window.TreeView1) >= 6) {
        MsgBox(GetLanguageString(634), MsgCritical, GetLanguageString(300));
        return;
    }
    window.CategoryTask = 1;
    ShowUpdateCat(&window, 311);
}
