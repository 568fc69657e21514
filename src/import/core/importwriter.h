#pragma once
// The writer of the import: each row of the final list becomes a contact by
// one staged write of its own, so that a failure loses only the row in
// hand. A row whose name (in any letter case), category and country match
// a contact of the store replaces it, keeping its id; any other row is a
// new contact.
#include <QHash>
#include <QList>
#include <QStringList>
#include <optional>
#include "import/core/importdesigns.h"
#include "store/core/categories.h"
#include "store/core/indexfiles.h"
#include "store/core/record.h"
#include "store/core/result.h"

// The tables a commit reads once at its start, so that the clash test
// doesn't see the rows the commit itself writes; each holds the empty
// element one past the file's last line.
struct CommitTables {
    QHash<QString, QList<ContactId>> idsByName;  // name.dat: the ids of each upper-cased name, in file order
    // cat.dat, split at every comma: the category and country of each
    // contact id, in file order; a line too short for the test is left out.
    QHash<ContactId, QList<std::pair<CategoryId, QString>>> placesById;
    QList<CategoryLine> categories;  // category.dat, read for a design whose categories are folders
};
// False when a file can't be read, or category.dat holds a damaged line.
bool ReadCommitTables(const ImportDesign& design, CommitTables& tables);

// The id of the first contact of that name (upper-cased on both sides)
// whose cat.dat line has the category and the country, each compared
// exactly.
std::optional<ContactId> FindClash(const CommitTables& tables, const QString& name, const CategoryId& category,
                                   const QString& country);

// A row of ListView2 (sub-items 0 to 14, item text first) as the record to
// write: name 3, e-mail 4, first telephone 5, notes 6, company 7, job title
// 8, country index 9, category 10, second telephone 11, mobile 12, fax 13,
// address 14. A design whose categories are folders trims every value.
ContactRecord ImportRecordOf(const QStringList& row, const ImportDesign& design);

// The form's two lists as the writer moves them: their items and the
// selected places. The writer selects each row's country and category
// before writing it, so that what stays selected is the row written last.
struct WriterLists {
    QStringList countries;
    QStringList categories;  // CategoryItemText; none in use for folder categories
    int country = -1;
    int category = -1;
};

// Writes one row. The clash test takes the country selected before the
// row is written, that is the country of the row written before it (for
// the first row, what the user left); the lines and the record take the
// row's own. StagedRecordMissing and a failure with a run-time error are
// the store's (WriteImportedRecord).
StoreResult WriteImportedContact(ContactRecord record, WriterLists& lists, const CommitTables& tables,
                                 const ImportDesign& design);
