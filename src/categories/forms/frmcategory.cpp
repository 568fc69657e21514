#include "categories/forms/frmcategory.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "categories/forms/frmupdatecat.h"
#include "main/core/categorycounts.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/guarded.h"
#include "platform/core/msgbox.h"
#include "platform/forms/pointer.h"
#include "services/forms/skins.h"
#include "store/core/categories.h"
#include "store/core/categorychanges.h"
#include "store/core/failure.h"
#include "store/core/paths.h"

namespace {
constexpr int kIdColumn = 1, kNameColumn = 2;

QString Text(int string) { return GetLanguageString(string); }

// The question of a deletion: Yes or No, No the default.
bool AskDelete(const QString& prompt, int icon) {
    return MsgBox(prompt, icon, MsgYesNo | MsgDefaultButton2, Text(304)) == AnswerYes;
}

// The snapshot taken anew and the backup removed, after a deletion's road.
void EndDeletion(bool rebuildTree) {
    if (MainWindowLink* main = TheMainWindow()) {
        main->CopyAddrFile();
        if (rebuildTree) main->RefreshCategory();
    }
    CategoryCleanup();
}

// ReportCategoryUse: a category in use is named with its contacts' names.
bool ReportCategoryUse(const CategoryId& id) {
    QStringList ids, names;
    if (!CategoryContacts(id, ids)) throw RoutineFailure("cat.dat can't be read");
    if (ids.isEmpty()) return false;
    if (!ContactNames(ids, names)) throw RoutineFailure("name.dat can't be read");
    MsgBox(WithOwnerName(Text(597)) + names.join(" ,") + Text(598), MsgExclamation, Text(300));
    return true;
}

void Slot(QPushButton* button, const char* name, std::function<void()> handler) {
    QObject::connect(button, &QPushButton::clicked, button, [name, handler] { RunHandler(name, handler); });
}
}  // namespace

bool CategoryInUse(const CategoryId& id) {
    QStringList ids;
    if (!CategoryContacts(id, ids)) throw RoutineFailure("cat.dat can't be read");
    return !ids.isEmpty();
}

frmcategory::frmcategory(QWidget* parent) : Form(parent) {
    setObjectName("frmcategory");
    ListView1 = new QTreeWidget(this);
    ListView1->setObjectName("ListView1");
    ListView1->setRootIsDecorated(false);
    ListView1->setColumnCount(3);
    ListView1->setHeaderLabels({"No.", "ID", "Category Name"});
    ListView1->header()->setSectionsClickable(true);
    ListView1->setColumnWidth(0, 50);
    ListView1->setColumnWidth(1, 70);
    auto* grid = new QGridLayout(this);
    grid->addWidget(ListView1, 0, 0, 5, 1);
    int row = 0;
    for (QPushButton** button : {&cmdAdd, &cmdEdit, &cmdDelete, &cmdClose}) {
        *button = new QPushButton(this);
        (*button)->setAutoDefault(false);
        grid->addWidget(*button, row++, 1);
    }
    grid->setRowStretch(4, 1);
    cmdAdd->setObjectName("cmdAdd");
    cmdEdit->setObjectName("cmdEdit");
    cmdDelete->setObjectName("cmdDelete");
    cmdClose->setObjectName("cmdClose");
    resize(460, 260);

    Slot(cmdAdd, "cmdAdd", [this] { cmdAdd_Click(); });
    Slot(cmdEdit, "cmdEdit", [this] { cmdEdit_Click(); });
    Slot(cmdDelete, "cmdDelete", [this] { cmdDelete_Click(); });
    Slot(cmdClose, "cmdClose", [this] { cmdClose_Click(); });
    connect(ListView1, &QTreeWidget::itemDoubleClicked, this,
            [this] { RunHandler("ListView1 double click", [this] { cmdEdit_Click(); }); });
    connect(ListView1->header(), &QHeaderView::sectionClicked, this, &frmcategory::ListView1_ColumnClick);
}

void frmcategory::FormLoad() {
    setWindowTitle(Text(303));
    cmdAdd->setText(Text(104));
    cmdEdit->setText(Text(105));
    cmdDelete->setText(Text(106));
    cmdClose->setText(Text(103));
    ApplyCaptionRule(this);
    LoadCategoryList();
    SkinControls({ListView1});
}

// The list's first row starts selected, as the list control selects it.
void frmcategory::LoadCategoryList() {
    SetScreenPointer(11);
    ListView1->clear();
    QList<CategoryLine> lines;
    const bool ok = ReadCategoryLines(CategoryFile(), lines);
    for (const CategoryLine& line : lines)
        ListView1->addTopLevelItem(new QTreeWidgetItem(QStringList{QString(), line.id, line.name}));
    if (boolSorted) ListView1->sortItems(intSortKey, intSortOrder);
    Renumber();
    if (ListView1->topLevelItemCount() > 0) ListView1->setCurrentItem(ListView1->topLevelItem(0));
    SetScreenPointer(0);
    if (!ok) throw RoutineFailure("LoadCategoryList");
}

void frmcategory::Renumber() {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i)
        ListView1->topLevelItem(i)->setText(0, QString::number(i + 1));
}

void frmcategory::ListView1_ColumnClick(int column) {
    if (intSortKey == column) {
        intSortOrder = intSortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    } else {
        intSortKey = column;
        intSortOrder = Qt::AscendingOrder;
    }
    boolSorted = true;
    ListView1->sortItems(intSortKey, intSortOrder);
    Renumber();
}

// The store holds at most five categories.
void frmcategory::cmdAdd_Click() {
    if (ListView1->topLevelItemCount() >= 5) {
        MsgBox(Text(634), MsgCritical, Text(300));
        return;
    }
    // Add sets no caption of its own: the dialog keeps that of a new category.
    ShowUpdateCat(this, 311, "1");
    LoadCategoryList();
}

void frmcategory::cmdEdit_Click() {
    if (ListView1->topLevelItemCount() == 0) {
        MsgBox(WithOwnerName(Text(613)), 0, Text(300));
        return;
    }
    QTreeWidgetItem* row = ListView1->currentItem() ? ListView1->currentItem() : ListView1->topLevelItem(0);
    ShowUpdateCat(this, 303, "2" + row->text(kIdColumn));
    LoadCategoryList();
}

void frmcategory::cmdDelete_Click() {
    const QList<QTreeWidgetItem*> selected = ListView1->selectedItems();
    if (selected.isEmpty()) {
        MsgBox(WithOwnerName(Text(512)), MsgCritical, Text(300));
        return;
    }
    QTreeWidgetItem* row = selected.first();
    if (CategoryInUse(row->text(kIdColumn))) {
        MsgBox(Text(561), MsgCritical, Text(300));
        return;
    }
    if (!AskDelete(Text(513), MsgQuestion)) return;
    if (RemoveCategoryLine(row->text(kIdColumn))) delete row;
    EndDeletion(false);
}

void frmcategory::cmdClose_Click() {
    RefreshTreeView();
    Unload();
}

void DelCat() {
    MainWindowLink* main = TheMainWindow();
    if (!main) return;
    try {
        const QString text = main->SelectedNodeText();
        if (text == Text(128)) {
            MsgBox(WithOwnerName(Text(599)), MsgExclamation, Text(300));
        } else {
            QList<CategoryLine> lines;
            if (!ReadCategoryLines(CategoryFile(), lines)) throw RoutineFailure("category.dat can't be read");
            // The name is cut at the first "(": a name that holds one finds no line.
            const QString name = CategoryNameFromNodeText(text);
            CategoryId id;
            for (const CategoryLine& line : lines)
                if (line.name == name) {
                    id = line.id;
                    break;
                }
            if (ReportCategoryUse(id)) return;
            if (!AskDelete(Text(600) + '"' + name + "\"?", 0)) return;
            RemoveCategoryLine(id);
        }
        EndDeletion(true);
    } catch (const RoutineFailure&) {
        CategoryCleanup();
    }
}
