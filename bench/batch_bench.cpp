// How long the main window's batches take for 500 contacts in stores of
// 10,000 and 30,000 contacts (benchstore.h): a delete of 500 checked rows, a
// duplicate of 500 into another category, a move of 500 by a drop. Each
// beside its floor, 500 staged writes with plain C++ file calls (floors.h):
// the lines taken out, added or changed. Each is measured once, the store
// changing under it; the results are checked.
// Run it with QT_QPA_PLATFORM=offscreen.
#include <QAction>
#include "roadstore.h"

void DropContacts(FrmMain& window);  // movecontacts.cpp

namespace {
constexpr int kBatch = 500;
constexpr int kDuplicateTarget = 2, kMoveTarget = 3;  // Family, Club

// The list shows the list's category again; its first 500 rows checked and selected.
void Take(FrmMain& w, const StoreModel& model) {
    w.RefreshListView1(kCountries[kListCountry].name, "id" + QString::fromStdString(CategoryIdOf(kListCategory)));
    Check(w.ListView1->topLevelItemCount() == model.inList(), "the batch's list");
    for (int i = 0; i < kBatch; ++i) {
        w.ListView1->topLevelItem(i)->setCheckState(0, Qt::Checked);
        w.ListView1->topLevelItem(i)->setSelected(true);
    }
}

// The ids of the first 500 contacts of the list's category in the floor's store.
std::vector<int> FirstOfList(const StoreModel& model) {
    std::vector<int> ids;
    for (int id = 1; id <= model.lastId && int(ids.size()) < kBatch; ++id) {
        int country, category;
        CellOf(id, country, category);
        if (country == kListCountry && category == kListCategory) ids.push_back(id);
    }
    return ids;
}

// The tree rebuilt, untimed, and its counts.
void CheckCounts(FrmMain& w, const StoreModel& model, const char* road) {
    w.RefreshCategory();
    Check(NodeTexts(w) == ExpectedNodeTexts(model, kListCountry), std::string(road) + ": the tree's counts");
}

void Run(int contacts) {
    WindowOnStore b(contacts);
    FrmMain& w = b.w();
    StoreModel &model = b.s.model, &floorModel = b.s.floorModel;
    const FloorFolders& floor = b.s.floor;
    int (&list)[kCategoryCount] = model.counts[kListCountry];

    const std::vector<int> duplicated = FirstOfList(floorModel);
    Take(w, model);
    const BenchResult duplicate = Once(
        [&] { return Millis([&] { w.Duplicate(QString::fromStdString(CategoryIdOf(kDuplicateTarget)), "", "Norway"); }); },
        [&] {
            return Millis([&] {
                for (size_t i = 0; i < duplicated.size(); ++i) SaveFloor(floor, floorModel, kListCountry, kDuplicateTarget);
            });
        });
    list[kDuplicateTarget] += kBatch;
    CheckCounts(w, model, "duplicate");

    Take(w, model);
    QTreeWidgetItem* root = w.TreeView1->topLevelItem(0);
    for (int i = 0; i < root->childCount(); ++i)
        if (NodeKey(root->child(i)) == "id" + QString::fromStdString(CategoryIdOf(kMoveTarget))) w.SetDropHighlight(root->child(i));
    const BenchResult move = Once(
        [&] { return Millis([&] { DropContacts(w); }); },
        [&] {
            return Millis([&] {
                for (int id : duplicated) EditFloor(floor, id, kListCountry, kMoveTarget, RecordText(id, kListCountry, kMoveTarget));
            });
        });
    list[kListCategory] -= kBatch;
    list[kMoveTarget] += kBatch;
    CheckCounts(w, model, "move");

    Take(w, model);
    const BenchResult remove = Once(
        [&] { return Millis([&] { w.Entry("mnuDelete_info")->trigger(); }); },
        [&] {
            return Millis([&] {
                for (int id : duplicated) RemoveFloor(floor, id, RecordText(id, kListCountry, kMoveTarget));
            });
        });
    list[kListCategory] -= kBatch;
    CheckCounts(w, model, "delete");
    Check(w.ListView1->topLevelItemCount() == model.inList(), "delete: the list after");

    PrintTableRow("delete of 500 (mnuDelete_info)", contacts, remove);
    PrintTableRow("duplicate of 500 into another category", contacts, duplicate);
    PrintTableRow("move of 500 by a drop", contacts, move);
}
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    AnswerQuestionsYes();
    if (WantsHeader(argc, argv)) PrintTableHeader();
    for (int contacts : {10000, 30000}) Run(contacts);
    return 0;
}
