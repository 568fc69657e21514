// Rename of the tree's selected category (mnuRenameCategory): frmupdatecat
// in the task "2" followed by the category's id. The dialog refreshes.
#include "app/core/libraries.h"
#include "categories/forms/frmupdatecat.h"
#include "main/forms/frmmain.h"
#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/paths.h"

void RenameCategory(FrmMain& window) {
    const QString name = FrmMain::CategoryNameFromNode(window.SelectedNodeText());
    QList<CategoryLine> lines;
    if (!ReadCategoryLines(CategoryFile(), lines)) throw RoutineFailure("category.dat can't be read");
    // The walk doesn't stop at a match: the last one wins.
    QString id;
    for (const CategoryLine& line : lines)
        if (line.name == name) id = line.id;
    window.CategoryTask = ("2" + id).toInt();  // id "00007" gives 200007
    ShowUpdateCat(&window, 303);
}
