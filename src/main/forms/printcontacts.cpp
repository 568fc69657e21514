// Print (mnuPrint_p): the selected rows go into the print list, and frmprint
// prints them.
#include <QComboBox>
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "platform/core/msgbox.h"
#include "print/core/printlist.h"
#include "print/forms/frmprint.h"
#include "store/core/record.h"

void PrintContacts(FrmMain& window) {
    QTreeWidget* list = window.ListView1;
    if (list->selectedItems().isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(628)), MsgExclamation, GetLanguageString(300));
        return;
    }
    ClearPrintList();
    ContactBuffer.country = qint16(window.cmbCountry->currentIndex());
    ContactBuffer.category = NodeKey(SelectedNode(window.TreeView1)).mid(2, 5);
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* row = list->topLevelItem(i);
        if (row->isSelected()) AddToPrintList(row->text(kIdColumn), row->text(0), row->text(1));
    }
    frmprint dialog(&window);
    ShowModal(&dialog, &window);
}
