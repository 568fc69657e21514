#pragma once
// The main window as the other forms see it: the window-level state they
// read and the routines they call back. FrmMain implements it; a dialog
// includes this header and never the window's own.
#include <QString>

class MainWindowLink {
public:
    MainWindowLink();           // becomes the process's main window
    virtual ~MainWindowLink();

    // ---- window-level state read by the dialogs ----
    QString strNodeKey;    // key of the node last clicked; empty until the first click
    QString strCountry;    // country text taken at the last node click
    int FindKey = 0;       // 1 name, 2 e-mail, 3 company: set by the toolbar's find entries
    int CategoryTask = 0;  // 1 a new category, 2 and the id a rename
    QString strClashName;  // the name a confirm-replace question is about

    // ---- routines the dialogs call back ----
    virtual void LoadCategory() = 0;
    virtual void RefreshCategory() = 0;
    virtual void RefreshListView1(const QString& country, const QString& key) = 0;
    virtual void CopyAddrFile() = 0;
    virtual void DelAddrFile() = 0;
    // Copies the checked rows into `categoryId` and `country` (the name is
    // not used), asking about each name clash.
    virtual void Duplicate(const QString& categoryId, const QString& categoryName, const QString& country) = 0;
    // Copies the contacts of the tree's selected category, in the filter's
    // country, into a new category that frmDuplicateCat asks for.
    virtual void LoadFrmDuplicateCat() = 0;
    // The tree anew from category.dat with bare names, no counts: the root
    // expanded, selected and sorted, one node per category under it.
    virtual void RebuildTreeWithoutCounts() = 0;

    // ---- what the print dialog and the export read of the window's controls ----
    // The country filter's entry at its selected position (empty without one).
    virtual QString SelectedCountryName() const = 0;
    // The text of the tree's selected node; a null text when none is selected.
    virtual QString SelectedNodeText() const = 0;
    virtual int ListView1Count() const = 0;      // rows of the contact list
    virtual QString cmbCountryText() const = 0;  // the country filter's text

    MainWindowLink(const MainWindowLink&) = delete;
    MainWindowLink& operator=(const MainWindowLink&) = delete;
};

// The one main window of the process, or none before it is made and after
// it is gone.
MainWindowLink* TheMainWindow();
