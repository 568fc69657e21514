#include "store/core/categories.h"

#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

bool ReadCategoryLines(const QString& path, QList<CategoryLine>& lines) {
    QStringList text;
    if (!ReadWholeFileLines(path, text)) return false;
    try {
        for (const QString& line : text) {
            const QStringList parts = line.split(u',');
            lines.append({StripEnds(Element(parts, 0)), StripEnds(Element(parts, 1))});
        }
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}

QString CategoryItemText(const QString& name, const CategoryId& id) {
    return name.leftJustified(200, u' ', true) + id.leftJustified(10, u' ', true);
}

QString CategoryIdFromItem(const QString& item) { return TrimSpaces(item.mid(199, 10)); }

bool CategoryComboItems(QStringList& items) {
    QList<CategoryLine> lines;
    bool ok = ReadCategoryLines(CategoryFile(), lines);
    for (const CategoryLine& line : lines) items << CategoryItemText(line.name, line.id);
    return ok;
}

int FindCategoryIndex(const QStringList& items, const CategoryId& categoryId) {
    for (int i = 0; i < items.size(); ++i)
        if (CategoryIdFromItem(items[i]) == categoryId) return i;
    return -1;
}
