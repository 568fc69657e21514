// The category list over any category.dat.
#include "fuzzfolder.h"
#include "store/core/categories.h"
#include "store/core/paths.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzFile("category.dat", Input(data, size));
    QList<CategoryLine> lines;
    ReadCategoryLines(CategoryFile(), lines);
    QStringList items;
    CategoryComboItems(items);
    FindCategoryIndex(items, "00002");
    return 0;
}
