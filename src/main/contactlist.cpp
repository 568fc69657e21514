// The contact list.
#include <QAction>
#include <QApplication>
#include <QTreeWidget>
#include "dialogs/frmedittask.h"
#include "main/frmmain.h"
#include "main/popup.h"
#include "main/treeitems.h"
#include "platform/pointer.h"
#include "store/contactrows.h"
#include "store/paths.h"
#include "store/record.h"
#include "store/wholefile.h"

namespace {
// A row of the list; the list sorts its rows as text, without regard to case.
class ContactRowItem : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
        return QString::compare(text(column), other.text(column), Qt::CaseInsensitive) < 0;
    }
};

QTreeWidgetItem* MakeRow(const ContactRow& row) {
    auto* item = new ContactRowItem(
        QStringList{row.name, row.mail, row.company, row.designation, row.contactId});
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(0, Qt::Unchecked);
    return item;
}

// The list's selected item: the one with the focus when it is selected,
// otherwise the first selected row.
QTreeWidgetItem* SelectedListItem(const QTreeWidget* list) {
    QTreeWidgetItem* current = list->currentItem();
    if (current && current->isSelected()) return current;
    const QList<QTreeWidgetItem*> selected = list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}
}  // namespace

// Callers run CopyAddrFile first: the list reads the snapshot.
void FrmMain::RefreshListView1(const QString& country, const QString& key) { ListContacts(country, key); }

// The rows of cat.dat (as the snapshot holds it) of one country and one
// category. A failure ends the fill quietly; the rows added so far stay.
void FrmMain::ListContacts(const QString& country, const QString& key) {
    SetScreenPointer(11);
    QStringList lines;
    if (ReadWholeFileLines(CatSnapshot(), lines)) {
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
        if (sorted_) ListView1->sortItems(sortColumn_, sortOrder_);
    }
    SetScreenPointer(0);
}

// A click on the header sorts by that column; a second click on the same
// column turns the order round. The sort key starts at the first column, so
// the very first click on "Contact Name" sorts it descending.
void FrmMain::onHeaderClick(int column) {
    if (sortColumn_ != column) {
        sortColumn_ = column;
        sortOrder_ = Qt::AscendingOrder;
    } else {
        sortOrder_ = sortOrder_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }
    sorted_ = true;
    ListView1->sortItems(sortColumn_, sortOrder_);
}

// Checks every row and selects it.
void FrmMain::SelectAll() {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = ListView1->topLevelItem(i);
        row->setCheckState(0, Qt::Checked);
        row->setSelected(true);
    }
    ListView1->setFocus();
}

// Works on the check marks; of the highlight it only clears.
void FrmMain::InvertSelection() {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) ListView1->topLevelItem(i)->setSelected(false);
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = ListView1->topLevelItem(i);
        row->setCheckState(0, row->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
    ListView1->setFocus();
}

// Edit is offered only for exactly one selected row; the pop-up opens with
// any number of rows, none included.
void FrmMain::onListRightButton() {
    const bool one = ListView1->selectedItems().size() == 1;
    mnuPrint_p->setEnabled(true);
    mnuEdit_p->setEnabled(one);
    mnuDelete_p->setEnabled(true);
    mnuDuplicate_c->setEnabled(true);
    PopupMenu(mnuRightClick);
}

void FrmMain::onListDoubleClick() { EditSelectedContact(false); }

// The double click reads the id from the file and clears the buffer first;
// mnuEdit_p reads with ReadContact into the buffer as it stands. Neither
// rebuilds the tree: a contact moved to another category or country leaves
// the counts old until the next rebuild.
void FrmMain::EditSelectedContact(bool fromMenu) {
    QTreeWidgetItem* row = SelectedListItem(ListView1);
    if (!row) return;
    const QString contactId = row->text(kIdColumn);
    if (fromMenu) {
        ReadContact(contactId);
    } else {
        ClearContactBuffer();
        ReadContactWithId(contactId);
    }
    ContactEditFlag = true;
    {
        frmedittask dialog(this);
        ShowModal(&dialog, this);
    }
    CopyAddrFile();
    ClearContactBuffer();
    RefreshListView1(strCountry, strNodeKey);
}
