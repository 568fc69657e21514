#include "main/core/clashes.h"

#include <QHash>

#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

namespace {
QString WithoutQuotes(QString text) { return text.remove(u'"'); }
QString CrLf(const QString& item) { return item + QStringLiteral("\r\n"); }

// The rows of cat.dat by their contact id (quotes removed), in file order.
// A batch looks up hundreds of contacts among tens of thousands of rows.
QHash<QString, QList<qsizetype>> RowsByContact(const QStringList& contacts) {
    QHash<QString, QList<qsizetype>> rows;
    rows.reserve(contacts.size());
    for (qsizetype row = 0; row < contacts.size(); ++row) rows[WithoutQuotes(contacts[row])].append(row);
    return rows;
}
}  // namespace

QStringList Items(const QString& text) {
    QStringList items = text.split(QStringLiteral("\r\n"));
    items.removeLast();
    return items;
}

bool WindowArrays::Fill() {
    QList<CategoryLine> categories;
    QStringList names, rows;
    const bool read = ReadCategoryLines(CategoryFile(), categories);
    for (const CategoryLine& c : categories) {
        arrCatId << c.id;
        arrCatName << c.name;
    }
    if (!read || !ReadWholeFileLines(LiveIndex("name"), names) || !ReadWholeFileLines(LiveIndex("cat"), rows))
        return false;
    for (const QString& line : names) {
        const NameLine name = SplitNameLine(line);
        arrNameId << name.id;
        arrNameText << name.name;
    }
    try {
        for (const QString& line : rows) {
            const QStringList fields = line.split(u',');
            arrRowCountry << Element(fields, 0);
            arrRowCategory << Element(fields, 1);
            arrRowContact << Element(fields, 2);
        }
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}

QString WindowArrays::CategoryIdOf(const QString& name) const {
    const qsizetype at = arrCatName.indexOf(name);
    return at < 0 ? QString() : arrCatId[at];
}

// Each taken contact with its first row.
void WindowArrays::TakeRows() {
    const QHash<QString, QList<qsizetype>> rowsOf = RowsByContact(arrRowContact);
    for (qsizetype i = 0; i < arrSelId.size(); ++i) {
        const auto found = rowsOf.constFind(arrSelId[i]);
        if (found == rowsOf.constEnd()) continue;
        const qsizetype row = found->first();
        strNames += CrLf(arrSelName[i]);
        strIds += CrLf(arrSelId[i]);
        strCategories += CrLf(arrRowCategory[row]);
        strCountries += CrLf(arrRowCountry[row]);
    }
}

QStringList WindowArrays::ContactsOf(const QString& categoryId, const QString& country) const {
    QStringList ids;
    for (qsizetype row = 0; row < arrRowContact.size(); ++row)
        if (StripEnds(arrRowCategory[row]) == categoryId && StripEnds(arrRowCountry[row]) == country)
            ids << StripEnds(arrRowContact[row]);
    return ids;
}

void WindowArrays::CheckClashes(const QString& categoryId) {
    const QStringList names = Items(strNames), ids = Items(strIds), countries = Items(strCountries);
    strClashNames.clear();
    strClashIds.clear();
    strClashOldIds.clear();
    strFreeIds.clear();
    // name.dat's lines by their name in capitals, in file order.
    QHash<QString, QList<qsizetype>> namesByText;
    namesByText.reserve(arrNameText.size());
    for (qsizetype j = 0; j < arrNameText.size(); ++j) namesByText[arrNameText[j].toUpper()].append(j);
    const QHash<QString, QList<qsizetype>> rowsOf = RowsByContact(arrRowContact);
    for (qsizetype i = 0; i < ids.size(); ++i) {
        bool clash = false;
        for (const qsizetype j : namesByText.value(names[i].toUpper())) {
            if (arrNameId[j] == ids[i]) continue;
            for (const qsizetype row : rowsOf.value(arrNameId[j])) {
                clash = WithoutQuotes(arrRowCategory[row]) == categoryId && arrRowCountry[row] == countries[i];
                if (clash) break;
            }
            if (clash) {
                strClashNames += CrLf(names[i]);
                strClashIds += CrLf(ids[i]);
                strClashOldIds += CrLf(arrNameId[j]);
                break;
            }
        }
        if (!clash) strFreeIds += CrLf(ids[i]);
    }
}
