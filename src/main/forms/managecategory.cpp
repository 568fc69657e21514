// Manage categories (mnuManageCategory) and delete of the tree's selected
// category (mnuDeleteCategory, the toolbar's "deleteCategory").
#include "categories/forms/frmcategory.h"
#include "main/forms/frmmain.h"

void ManageCategories(FrmMain& window) {
    frmcategory dialog(&window);
    ShowModal(&dialog, &window);
    window.CopyAddrFile();
    window.RefreshCategory();
}

void DeleteCategory(FrmMain&) { DelCat(); }
