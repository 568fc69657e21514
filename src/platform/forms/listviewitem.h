#pragma once
// Rows and sorting of a report-style list view. The list view control sorts
// its rows by the text of the sort column, without regard to case, and
// keeps its sort settings (key, order, on or off) across refills.
#include <QTreeWidget>

class ListViewItem : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
        return QString::compare(text(column), other.text(column), Qt::CaseInsensitive) < 0;
    }
};

struct ListViewSort {
    int SortKey = 0;  // the first column until a heading is clicked
    Qt::SortOrder SortOrder = Qt::AscendingOrder;
    bool Sorted = false;  // switched on by the first heading click

    // A click on a heading: the same column again turns the order round,
    // another column is taken ascending. So the very first click on the
    // first column sorts it descending. Then the list is sorted.
    void ColumnClick(QTreeWidget* list, int column) {
        if (SortKey != column) {
            SortKey = column;
            SortOrder = Qt::AscendingOrder;
        } else {
            SortOrder = SortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        }
        Sorted = true;
        Apply(list);
    }
    // Rows added to a sorted list take their places.
    void Apply(QTreeWidget* list) const {
        if (Sorted) list->sortItems(SortKey, SortOrder);
    }
};
