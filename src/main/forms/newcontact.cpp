// New contact (mnuAdd_info, the toolbar's "new" and "newcontact").
#include <QComboBox>
#include <QTreeWidget>
#include "dialogs/forms/frmaddtask.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "store/core/failure.h"
#include "store/core/record.h"

// The dialog starts with the category of the selected node (the first
// category in tree order when the root is selected) and the country of the
// filter. A store with no category has no first child, and the command
// fails there.
void NewContact(FrmMain& window) {
    QTreeWidgetItem* node = SelectedNode(window.TreeView1);
    if (!node) throw RoutineFailure("no selected node");
    QString key = NodeKey(node);
    if (key == "noderoot") {
        if (node->childCount() == 0) throw RoutineFailure("the root has no child");
        key = NodeKey(node->child(0));
    }
    ContactBuffer.category = key.mid(2);
    ContactBuffer.country = qint16(window.cmbCountry->currentIndex());
    {
        frmaddtask dialog(&window);
        ShowModal(&dialog, &window);
    }
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
    window.RefreshCategory();
}
