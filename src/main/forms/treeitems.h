#pragma once
// What the main window keeps on the items of its tree and its list.
#include <Qt>

class QString;
class QTreeWidget;
class QTreeWidgetItem;

// A tree node's key ("noderoot", or "id" and the category id), and the
// numbers of its pictures in ImageList1 (1 closed, 2 open, 3 root).
constexpr int kNodeKeyRole = Qt::UserRole;
constexpr int kImageRole = Qt::UserRole + 1;
constexpr int kSelectedImageRole = Qt::UserRole + 2;

QString NodeKey(const QTreeWidgetItem* node);
// The tree's selected node, or none.
QTreeWidgetItem* SelectedNode(const QTreeWidget* tree);
// All nodes of the tree: the root and its children.
int NodeCount(const QTreeWidget* tree);

// The list's hidden fifth column holds the contact id.
constexpr int kIdColumn = 4;
// The list's selected item: the one with the focus when it is selected,
// otherwise the first selected row; none when no row is selected.
QTreeWidgetItem* SelectedListItem(const QTreeWidget* list);
