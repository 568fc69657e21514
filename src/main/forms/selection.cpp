// Select All and Invert Selection, on the rows of the list.
#include <QTreeWidget>
#include "main/forms/frmmain.h"

// Checks every row and selects it.
void SelectAll(FrmMain& window) {
    QTreeWidget* list = window.ListView1;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = list->topLevelItem(i);
        row->setCheckState(0, Qt::Checked);
        row->setSelected(true);
    }
    list->setFocus();
}

// Works on the check marks; of the highlight it only clears.
void InvertSelection(FrmMain& window) {
    QTreeWidget* list = window.ListView1;
    for (int i = 0; i < list->topLevelItemCount(); ++i) list->topLevelItem(i)->setSelected(false);
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = list->topLevelItem(i);
        row->setCheckState(0, row->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
    list->setFocus();
}
