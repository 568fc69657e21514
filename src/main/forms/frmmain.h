#pragma once
// The main window: the category tree and the country filter on the left, the
// contact list on the right, menus and toolbar above. What the other forms
// may use of it is MainWindowLink; the commands that start here are rows of
// the command table, each with a handler of its own.
//
// Naming inside the window follows the code base: routines in mixed case
// (LoadCategory), event handlers as control_Event (TreeView1_NodeClick),
// fields with a type prefix (strNodeKey, intCountryClick). Only the window
// system's own virtual functions keep the toolkit's names.
#include <QHash>
#include <QMainWindow>
#include <QRect>
#include <QString>
#include "main/core/categorycounts.h"
#include "main/core/clashes.h"
#include "main/core/mainwindowlink.h"
#include "platform/forms/listviewitem.h"
#include "platform/forms/modal.h"

class QAction;
class QComboBox;
class QKeyEvent;
class QLabel;
class QMenu;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;
class VSplitterBar;

class FrmMain : public QMainWindow, public ActivationTarget, public MainWindowLink {
    Q_OBJECT
public:
    explicit FrmMain(QWidget* parent = nullptr);

    // Load of the window, in its order; run once before it is shown.
    void FormLoad();

    // ---- window-level state of its own ----
    qint16 intCountryClick = 0;  // 1 after load: guards the first click of cmbCountry
    QString Tag;                 // the window's tag text: the id of the category right-clicked
    WindowArrays Arrays;         // the duplicate and move batches' lists, rebuilt per run
    QString strDropCategory;     // the name of the category of the last drop
    QString strDropCategoryId;   // its id; kept when a drop finds no category of the name
    QTreeWidgetItem* DropHighlight = nullptr;  // the node under a drag; none after a click
    void SetDropHighlight(QTreeWidgetItem* node);

    // ---- routines the other forms call back ----
    void LoadCategory() override;
    void RefreshCategory() override;
    void RefreshListView1(const QString& country, const QString& key) override;
    void CopyAddrFile() override;
    void DelAddrFile() override;
    void Duplicate(const QString& categoryId, const QString& categoryName, const QString& country) override;
    QString SelectedCountryName() const override;
    int ListView1Count() const override;
    QString cmbCountryText() const override;
    QString SelectedNodeText() const override;
    void LoadFrmDuplicateCat() override;
    void RebuildTreeWithoutCounts() override;
    static QString CategoryNameFromNode(const QString& text);

    // ---- controls, by their names ----
    QToolBar* Toolbar1 = nullptr;
    QTreeWidget* TreeView1 = nullptr;
    QComboBox* cmbCountry = nullptr;
    QLabel* lblCountry = nullptr;
    VSplitterBar* VSplitter = nullptr;
    QTreeWidget* ListView1 = nullptr;

    // A menu entry or toolbar entry, and a menu or pop-up menu, by name.
    QAction* Entry(const char* name) const;
    QMenu* Menu(const char* name) const;

    // Layout, in twips (1440 an inch at the screen's logical resolution).
    void LayoutMainWindow();
    void PlaceFromSplitter();
    void SizeAndCentre();
    void ActivatedByProgram() override;
    // The window's outer size as setting.ini holds it (see layout.cpp).
    int TwipsWidth() const;
    int TwipsHeight() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void BuildControls();
    void BuildCommands();  // menu bar, pop-up menus and toolbar, from the command table
    void WireControls();   // the events of the tree, the drop-down and the list
    void LoadCaptions();
    void LoadCommandCaptions();
    void FillCountryFilter();
    void ReadLayoutSettings();
    void WriteLayoutSettings();
    void FormUnload();
    void ListContacts(const QString& country, const QString& key);
    QTreeWidgetItem* AddRootNode();
    void AddCategoryNodes(QTreeWidgetItem* root, QList<CategoryNode> nodes);

    // Events.
    void TreeView1_NodeClick();
    void TreeView1_KeyDown(QKeyEvent* key);
    void ShowSelectedNode();
    void TreeView1_MouseUp();
    void cmbCountry_Click();
    void ListView1_DblClick();
    void ListView1_MouseUp();
    void ListView1_ColumnClick(int column);
    void VSplitter_Moved(int leftPixels);

    bool boolUnloaded = false;
    ListViewSort listSort;  // the list's sort settings, kept across refills

    // Each placed control's rectangle in twips, as the layout routines set it.
    QHash<QWidget*, QRect> rectTwips;
    bool SetTwips(QWidget* control, void (QRect::*side)(int), int value, bool isSize);
    bool SetLeft(QWidget* control, int value);
    bool SetTop(QWidget* control, int value);
    bool SetWidth(QWidget* control, int value);
    bool SetHeight(QWidget* control, int value);
    QRect TwipsOf(QWidget* control) const;
    int FrameAndMenuTwips() const;
    int MenuHeight(int windowWidth) const;
    void ApplyGeometry(QWidget* control);
};
