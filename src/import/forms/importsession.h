#pragma once
// The review session of an import, one design for the four import forms.
// At load the form reads its source into ListView1, the items found; the
// user checks items, picks a country and a category, and cmdAdd moves them
// to ListView2, the final list, stamped with both; cmdOK writes the final
// list to the store, one staged write a row. Between load and commit a row
// lives only in the lists' columns, the hidden ones included. Where the
// four forms differ, their row of the table of designs says.
#include <memory>
#include "import/core/importdesigns.h"
#include "import/core/importsource.h"
#include "platform/forms/listviewitem.h"
#include "platform/forms/modal.h"

class ItemCombo;
class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class StrictProgressBar;

class ImportSession : public Form, private SourceSink {
    Q_OBJECT
public:
    ImportSession(ImportKind kind, QWidget* parent = nullptr);
    ~ImportSession() override;
    void FormLoad() override;
    void FormActivate() override;

    // ---- controls, by their names ----
    QLabel* lbselect;
    QTreeWidget* ListView1;  // the items found, a check box in column 0
    QCheckBox* chkCheck;
    QLabel* lbcountry;
    ItemCombo* cbCountry;
    QLabel* lbcategory;
    ItemCombo* cbCategory;  // items are CategoryItemText; hidden where categories are folders
    QPushButton* cmdAdd;
    QLabel* lbfinal;
    QTreeWidget* ListView2;  // the final list
    QPushButton* btnRemoveItem;
    QLabel* picCount;
    StrictProgressBar* ProgressBar;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    bool bCancelImport = false;
    bool bCloseOnActivate = false;

protected:
    // The Escape key and the close box are cmdCancel's, while it is there.
    void reject() override;

private:
    void ShowCount(int current, int total) override;
    void ClearCount() override;
    void AddRow(const SourceRow& row) override;

    void LoadSteps();
    void Stop();
    void LoadCaptions();
    void chkCheck_Click();
    void cmdAdd_Click();
    void ScanForDuplicates();
    void btnRemoveItem_Click();
    void ColumnClick(QTreeWidget* list, int column);
    void cmdCancel_Click();
    void cmdOK_Click();
    bool RemoveDuplicateBeforeWrite();
    bool BeginCommit();
    bool CommitRows();
    void SelectPair(int first, int second);

    const ImportDesign& design;
    std::unique_ptr<ImportSource> source;
    ListViewSort sort1, sort2;
};

// Shows the import form of that kind modally over `owner`.
void ShowImportForm(ImportKind kind, QObject* owner);
