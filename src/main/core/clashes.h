#pragma once
// The window arrays of the duplicate and move batches, and their name-clash
// test: a contact taken from the list clashes when a contact of the same name
// (without regard to case) and another id already stands in the target
// category, in the country the taken contact has now.
#include <QString>
#include <QStringList>

struct WindowArrays {
    QStringList arrSelId, arrSelName;                       // taken from the list
    QStringList arrCatId, arrCatName;                       // category.dat, stripped
    QStringList arrNameId, arrNameText;                     // name.dat, by SplitNameLine
    QStringList arrRowCountry, arrRowCategory, arrRowContact;  // cat.dat's fields, quotes still on
    // Results, each item followed by CR LF.
    QString strClashNames, strClashIds, strClashOldIds, strFreeIds;
    // The four texts of the taken contacts that have a cat.dat row, each item
    // followed by CR LF.
    QString strNames, strIds, strCategories, strCountries;

    void Empty() { *this = WindowArrays(); }

    // Reads category.dat, name.dat and cat.dat from the application folder,
    // each by the whole-file rule. False when one can't be read or a line is
    // damaged; the arrays then hold what was read.
    bool Fill();
    // The id of the first category of that name (compared exactly), or empty.
    QString CategoryIdOf(const QString& name) const;
    // Adds each taken contact (arrSelId, arrSelName) that has a cat.dat row to
    // the four texts; one without a row drops out.
    void TakeRows();
    // The contact ids of the cat.dat rows of `categoryId` in `country`, each
    // field read with its quotes stripped. A one-character field is a
    // failure (RoutineFailure).
    QStringList ContactsOf(const QString& categoryId, const QString& country) const;
    // The clash test against the target category `categoryId`: fills the
    // four result texts.
    void CheckClashes(const QString& categoryId);
};

// The items of a text whose items are each followed by CR LF.
QStringList Items(const QString& text);
