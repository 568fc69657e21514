// The category tree and the country filter.
#include <QComboBox>
#include <QKeyEvent>
#include <QTreeWidget>
#include <algorithm>
#include "app/core/libraries.h"
#include "main/core/categorycounts.h"
#include "main/forms/frmmain.h"
#include "main/forms/guarded.h"
#include "main/forms/treeimages.h"
#include "main/forms/treeitems.h"
#include "platform/forms/popup.h"
#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/text.h"

namespace {
// A node shows its image, and its selected image while it is selected.
QTreeWidgetItem* MakeNode(const QString& key, const QString& text, int image, int selectedImage) {
    auto* node = new QTreeWidgetItem(QStringList{text});
    node->setData(0, kNodeKeyRole, key);
    node->setData(0, kImageRole, image);
    node->setData(0, kSelectedImageRole, selectedImage);
    node->setIcon(0, NodeIcon(image, selectedImage));
    return node;
}

// The first 200 characters of a drop-down text, trimmed.
QString CountryFilterText(const QString& text) { return TrimSpaces(text.left(200)); }
}  // namespace

QString NodeKey(const QTreeWidgetItem* node) {
    return node ? node->data(0, kNodeKeyRole).toString() : QString();
}

QTreeWidgetItem* SelectedNode(const QTreeWidget* tree) {
    const QList<QTreeWidgetItem*> selected = tree->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

QString FrmMain::SelectedNodeText() const {
    const QTreeWidgetItem* node = SelectedNode(TreeView1);
    return node ? node->text(0) : QString();
}

QString FrmMain::SelectedCountryName() const { return cmbCountry->itemText(cmbCountry->currentIndex()); }

int NodeCount(const QTreeWidget* tree) {
    int count = 0;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        count += 1 + tree->topLevelItem(i)->childCount();
    return count;
}

// The root: expanded, selected, and its children sorted.
QTreeWidgetItem* FrmMain::AddRootNode() {
    QTreeWidgetItem* root = MakeNode(QStringLiteral("noderoot"), GetLanguageString(128), 3, 3);
    TreeView1->addTopLevelItem(root);
    root->setExpanded(true);
    TreeView1->setCurrentItem(root);
    root->setSelected(true);
    return root;
}

// The root's children stand in the order of their whole texts.
void FrmMain::AddCategoryNodes(QTreeWidgetItem* root, QList<CategoryNode> nodes) {
    std::stable_sort(nodes.begin(), nodes.end(), [](const CategoryNode& a, const CategoryNode& b) {
        return TreeTextLess(a.text, b.text);
    });
    for (const CategoryNode& node : nodes) root->addChild(MakeNode(node.key, node.text, 1, 2));
}

// Builds the tree on an empty tree. The counts come from the live cat.dat,
// for the country chosen in the filter. A failure passes to the caller, with
// the nodes made before it in the tree.
void FrmMain::LoadCategory() {
    const QString filterCountry = CountryFilterText(cmbCountry->itemText(cmbCountry->currentIndex()));
    QTreeWidgetItem* root = AddRootNode();
    QList<CategoryNode> nodes;
    const bool ok = LiveCategoryNodes(filterCountry, nodes);
    AddCategoryNodes(root, nodes);
    if (!ok) throw RoutineFailure("LoadCategory");
}

// What the category dialogs put in the tree when they close: the names
// alone, until the next RefreshCategory counts again.
void FrmMain::RebuildTreeWithoutCounts() {
    SetDropHighlight(nullptr);
    TreeView1->clear();
    QTreeWidgetItem* root = AddRootNode();
    QList<CategoryLine> lines;
    const bool ok = ReadCategoryLines(CategoryFile(), lines);
    QList<CategoryNode> nodes;
    for (const CategoryLine& line : lines) nodes.append({"id" + line.id, line.name});
    AddCategoryNodes(root, nodes);
    if (!ok) throw RoutineFailure("RebuildTreeWithoutCounts");
}

// The same after every change of the store: all nodes go first. Neither
// touches strNodeKey, strCountry or the list, so the root ends selected while
// the list goes on showing the category last clicked.
void FrmMain::RefreshCategory() {
    SetDropHighlight(nullptr);
    TreeView1->clear();
    LoadCategory();
}

// The drop highlight shows as the selection's colour on the node under a drag.
void FrmMain::SetDropHighlight(QTreeWidgetItem* node) {
    if (DropHighlight) DropHighlight->setData(0, Qt::BackgroundRole, QVariant());
    DropHighlight = node;
    if (node) node->setBackground(0, TreeView1->palette().highlight());
}

void FrmMain::TreeView1_NodeClick() {
    ShowSelectedNode();
    ListView1->setFocus();
}

// The click but its last step: the list shows the selected node's contacts.
void FrmMain::ShowSelectedNode() {
    SetDropHighlight(nullptr);
    QTreeWidgetItem* node = SelectedNode(TreeView1);
    if (!node) throw RoutineFailure("no selected node");
    strNodeKey = NodeKey(node);
    strCountry = CountryFilterText(cmbCountry->currentText());
    RefreshListView1(strCountry, strNodeKey);
}

// A key that moves the selection (arrows, Home, End, the page keys, a
// letter) shows the newly selected node's contacts as a click would, and
// leaves the focus in the tree so that the next key walks on. Enter or
// Space on a node is the click itself, and takes the focus to the list.
// The root selected by a rebuild comes from no key and runs nothing.
void FrmMain::TreeView1_KeyDown(QKeyEvent* key) {
    const int code = key->key();
    const bool enterOrSpace = code == Qt::Key_Return || code == Qt::Key_Enter || code == Qt::Key_Space;
    QTreeWidgetItem* before = SelectedNode(TreeView1);
    if (enterOrSpace && before) {
        RunHandler("TreeView1 node click", [this] { TreeView1_NodeClick(); });
        return;
    }
    static_cast<QObject*>(TreeView1)->event(key);  // the tree moves first
    if (SelectedNode(TreeView1) != before) RunHandler("TreeView1 key move", [this] { ShowSelectedNode(); });
}

// It is the selected node that counts, not the node under the pointer: the
// right button doesn't select.
void FrmMain::TreeView1_MouseUp() {
    TreeView1_NodeClick();
    QTreeWidgetItem* node = SelectedNode(TreeView1);
    if (node->parent() == nullptr) return;  // the root
    Tag = NodeKey(node).mid(2);
    PopupMenu(Menu("mnuTreeViewRightClick"));
}

void FrmMain::cmbCountry_Click() {
    ListView1->clear();
    // The first click is the one the load raises when it sets the stored
    // index; the tree is built right behind it.
    if (intCountryClick == 1) {
        intCountryClick = 2;
        return;
    }
    RefreshCategory();
    if (intCountryClick == 32767) throw RoutineFailure("overflow of intCountryClick");
    ++intCountryClick;
}

QString FrmMain::CategoryNameFromNode(const QString& text) { return CategoryNameFromNodeText(text); }
