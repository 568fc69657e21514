#pragma once
// category.dat: one category a line, "id","name", in the order of creation.
// Every reader splits a line at every comma and strips one character off
// each end of the first two elements, so a name that holds a comma is cut.
#include <QList>
#include <QString>
#include <QStringList>
#include "store/core/ids.h"

struct CategoryLine {
    QString id;
    QString name;
};

// Reads the list by the whole-file rule. On a failure (file missing, a line
// with one field, a one-character field) `lines` keeps what was read so far
// and false comes back.
bool ReadCategoryLines(const QString& path, QList<CategoryLine>& lines);

// A drop-down item: the name padded or cut to 200 characters, then the id
// padded or cut to 10. Only the name shows in the control.
QString CategoryItemText(const QString& name, const CategoryId& id);
// The id back from an item: 10 characters from position 200 (1-based),
// trimmed. Position 200 lies inside the name field: a name of 200
// characters or more puts its 200th character in front of the id.
QString CategoryIdFromItem(const QString& item);

// What FillCategoryCombo puts into the drop-down, read from category.dat.
bool CategoryComboItems(QStringList& items);
// Index of the first item whose id equals `categoryId`, or -1.
int FindCategoryIndex(const QStringList& items, const CategoryId& categoryId);
