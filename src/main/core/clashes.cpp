#include "main/core/clashes.h"

#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

namespace {
QString WithoutQuotes(QString text) { return text.remove(u'"'); }
QString CrLf(const QString& item) { return item + QStringLiteral("\r\n"); }
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

void WindowArrays::TakeRows() {
    for (qsizetype i = 0; i < arrSelId.size(); ++i) {
        for (qsizetype row = 0; row < arrRowContact.size(); ++row) {
            if (WithoutQuotes(arrRowContact[row]) != arrSelId[i]) continue;
            strNames += CrLf(arrSelName[i]);
            strIds += CrLf(arrSelId[i]);
            strCategories += CrLf(arrRowCategory[row]);
            strCountries += CrLf(arrRowCountry[row]);
            break;
        }
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
    for (qsizetype i = 0; i < ids.size(); ++i) {
        bool clash = false;
        for (qsizetype j = 0; j < arrNameId.size() && !clash; ++j) {
            if (arrNameText[j].toUpper() != names[i].toUpper() || arrNameId[j] == ids[i]) continue;
            for (qsizetype row = 0; row < arrRowContact.size() && !clash; ++row) {
                clash = WithoutQuotes(arrRowContact[row]) == arrNameId[j] &&
                        WithoutQuotes(arrRowCategory[row]) == categoryId && arrRowCountry[row] == countries[i];
            }
            if (clash) {
                strClashNames += CrLf(names[i]);
                strClashIds += CrLf(ids[i]);
                strClashOldIds += CrLf(arrNameId[j]);
            }
        }
        if (!clash) strFreeIds += CrLf(ids[i]);
    }
}
