#pragma once
// The main window: the category tree and the country filter on the left, the
// contact list on the right, menus and toolbar above. It holds the
// window-level state that the dialogs read and the routines they call back.
#include <QHash>
#include <QMainWindow>
#include <QRect>
#include <QString>
#include "platform/modal.h"

class QComboBox;
class QLabel;
class QMenu;
class QAction;
class QToolBar;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class VSplitterBar;

class FrmMain;
// The one main window of the process, for the dialogs that call it back.
FrmMain* TheMainWindow();

class FrmMain : public QMainWindow, public ActivationTarget {
    Q_OBJECT
public:
    explicit FrmMain(QWidget* parent = nullptr);
    ~FrmMain() override;

    // Load of the window, in its order; run once before it is shown.
    void formLoad();

    // ---- window-level state read by the dialogs ----
    QString strNodeKey;          // key of the node last clicked; empty until the first click
    QString strCountry;          // country text taken at the last node click
    qint16 intCountryClick = 0;  // 1 after load: guards the first click of cmbCountry
    int FindKey = 0;             // 1 name, 2 e-mail, 3 company: set by the toolbar's find entries
    int CategoryTask = 0;
    QString strClashName;
    QString Tag;                 // the window's tag text: the id of the category right-clicked

    // ---- routines the dialogs call back ----
    void LoadCategory();
    void RefreshCategory();
    void RefreshListView1(const QString& country, const QString& key);
    void CopyAddrFile();
    void DelAddrFile();
    static QString CategoryNameFromNode(const QString& text);

    // ---- controls, by their names ----
    QToolBar* Toolbar1 = nullptr;
    QTreeWidget* TreeView1 = nullptr;
    QComboBox* cmbCountry = nullptr;
    QLabel* lblCountry = nullptr;
    VSplitterBar* VSplitter = nullptr;
    QTreeWidget* ListView1 = nullptr;

    // ---- menus that the commands reach by name ----
    QAction* mnuDelete_info = nullptr;
    QAction* mnuFind_info = nullptr;
    QAction* mnuImportOE = nullptr;
    QAction* mnuImportMSO = nullptr;
    QAction* mnuExportOE = nullptr;
    QAction* mnuExportMSO = nullptr;
    QMenu* mnuRightClick = nullptr;          // over the list
    QAction* mnuDelete_p = nullptr;
    QAction* mnuDuplicate_c = nullptr;
    QAction* mnuEdit_p = nullptr;
    QAction* mnuPrint_p = nullptr;
    QMenu* mnuTreeViewRightClick = nullptr;  // over the tree
    QAction* mnuDeleteCategory = nullptr;
    QMenu* mnuTreeViewMouseUp = nullptr;     // never popped up

    // Layout, in twips (1440 an inch at the screen's logical resolution).
    void LayoutMainWindow();
    void PlaceFromSplitter();
    void SizeAndCentre();
    void activatedByProgram() override;

    // Window-level measures in twips.
    int twipsWidth() const;
    int twipsHeight() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls();
    void buildMenus();        // menu bar and the three pop-up menus
    void buildToolbar();
    void wireControls();      // the events of the tree, the drop-down and the list
    void LoadCaptions();
    void LoadMenuCaptions();  // the menu bar, the pop-up menus and the toolbar
    void FillCountryFilter();
    void ReadLayoutSettings();
    void WriteLayoutSettings();
    void FormUnload();

    // The tree and the list.
    void onNodeClick();
    void onTreeRightButton();
    void onCountryClick();
    void onListDoubleClick();
    void onListRightButton();
    void onHeaderClick(int column);
    void ListContacts(const QString& country, const QString& key);

    // Commands.
    void NewContact();
    void EditSelectedContact(bool fromMenu);
    void SelectAll();
    void InvertSelection();
    void PrintContacts();
    void OnlineSupport();
    void NewCategory();
    void onToolbarButton(const QString& key);

    bool unloaded_ = false;
    int sortColumn_ = 0;     // the list's sort key: column 1 until a header is clicked
    bool sorted_ = false;    // the list's Sorted property, set by the first header click
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    // Each placed control's rectangle in twips, as the layout routines set it.
    QHash<QWidget*, QRect> twips_;
    bool setLeft(QWidget* control, int value);
    bool setTop(QWidget* control, int value);
    bool setWidth(QWidget* control, int value);
    bool setHeight(QWidget* control, int value);
    QRect twipsOf(QWidget* control) const;
    void applyGeometry(QWidget* control);
    void onSplitterMoved(int leftPixels);
};
