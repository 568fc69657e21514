#pragma once
// Manage categories: every category in a list, with add, edit and delete.
// A category can be deleted only when no contact uses it. DelCat is the same
// deletion for the category selected in the main window's tree.
#include <QtGlobal>
#include "platform/forms/modal.h"
#include "store/core/ids.h"

class QPushButton;
class QTreeWidget;

class frmcategory : public Form {
    Q_OBJECT
public:
    explicit frmcategory(QWidget* parent = nullptr);
    void FormLoad() override;

    // ListView1 from category.dat: the row number, the id, the name.
    void LoadCategoryList();

    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;
    QTreeWidget* ListView1;

private:
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdClose_Click();
    void ListView1_ColumnClick(int column);
    void Renumber();

    int intSortKey = 0;
    Qt::SortOrder intSortOrder = Qt::AscendingOrder;
    bool boolSorted = false;
};

// True when a line of cat.dat has the category. A cat.dat that can't be
// read is a failure (RoutineFailure).
bool CategoryInUse(const CategoryId& id);
// Deletes the category selected in the main window's tree, after its tests
// and the question.
void DelCat();
