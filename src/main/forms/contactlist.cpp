// The contact list.
#include <QAction>
#include <QApplication>
#include <QTreeWidget>
#include "main/core/contactrows.h"
#include "main/forms/editcontact.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "platform/forms/listviewitem.h"
#include "platform/forms/pointer.h"
#include "platform/forms/popup.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/wholefile.h"

namespace {
QTreeWidgetItem* MakeRow(const ContactRow& row) {
    auto* item = new ListViewItem(
        QStringList{row.name, row.mail, row.company, row.designation, row.contactId});
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(0, Qt::Unchecked);
    return item;
}

}  // namespace

QTreeWidgetItem* SelectedListItem(const QTreeWidget* list) {
    QTreeWidgetItem* current = list->currentItem();
    if (current && current->isSelected()) return current;
    const QList<QTreeWidgetItem*> selected = list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

// Callers run CopyAddrFile first: the list reads the snapshot.
void FrmMain::RefreshListView1(const QString& country, const QString& key) { ListContacts(country, key); }

// The rows of cat.dat (as the snapshot holds it) of one country and one
// category. A failure ends the fill quietly; the rows added so far stay.
void FrmMain::ListContacts(const QString& country, const QString& key) {
    SetScreenPointer(11);
    QString snapshot;
    QList<QStringView> lines;
    if (ReadWholeFileLineViews(CatSnapshot(), snapshot, lines)) {
        ListView1->clear();
        const QString categoryId = key.mid(2);
        QApplication::processEvents();
        QList<ContactRow> rows;
        ContactRowsFromLines(lines, country, categoryId, rows);
        QList<QTreeWidgetItem*> items;
        items.reserve(rows.size());
        for (const ContactRow& row : rows) items.append(MakeRow(row));
        ListView1->addTopLevelItems(items);
        // A sort once set stays on across refills.
        listSort.Apply(ListView1);
    }
    SetScreenPointer(0);
}

// A click on the header sorts by that column; a second click on the same
// column turns the order round.
void FrmMain::ListView1_ColumnClick(int column) { listSort.ColumnClick(ListView1, column); }

// Edit is offered only for exactly one selected row; the pop-up opens with
// any number of rows, none included.
void FrmMain::ListView1_MouseUp() {
    const bool one = ListView1->selectedItems().size() == 1;
    Entry("mnuPrint_p")->setEnabled(true);
    Entry("mnuEdit_p")->setEnabled(one);
    Entry("mnuDelete_p")->setEnabled(true);
    Entry("mnuDuplicate_c")->setEnabled(true);
    PopupMenu(Menu("mnuRightClick"));
}

void FrmMain::ListView1_DblClick() { EditSelectedContact(*this, false); }
