#pragma once
// The three line-parallel index files and the routines that change them.
// They write only to the work copies in the staging area:
//   cat.dat   "country","category id","contact id"
//   cty.dat   "country","contact id"
//   name.dat  "contact id","name"
// An append adds a line to the work copy (addr_X.tmp) and renames it to the
// staged file (addr_X.dat); a replace or a removal streams the work copy
// into the staged file line by line.
#include <QString>
#include <QStringView>
#include <array>
#include "store/core/ids.h"

bool AppendCatLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId);
bool AppendCtyLine(const ContactId& contactId, const QString& country);
bool AppendNameLine(const ContactId& contactId, const QString& name);

bool ReplaceCatLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId);

// The edit dialog writes the category id where the contact id stood; the
// main window keeps the contact id.
enum class CtyReplace { CategoryIdInPlaceOfContact, KeepContactId };
bool ReplaceCtyLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId,
                    CtyReplace mode);

// The edit dialog appends the line when no line matched, so a name missing
// from name.dat is repaired by an edit.
enum class NameReplace { AppendWhenMissing, OnlyReplace };
bool ReplaceNameLine(const ContactId& contactId, const QString& name, NameReplace mode);

bool RemoveCatLine(const ContactId& contactId);
bool RemoveCtyLine(const ContactId& contactId);
// Reading past the end (a damaged last line) counts here as the end of the
// file; the other streaming routines fail on it.
bool RemoveNameLine(const ContactId& contactId);

// A cat.dat line as the lists read it: split at every comma, the first
// three elements stripped of their ends. A country that holds a comma
// shifts the fields; a line of fewer than three is a failure (RoutineFailure).
struct CatLine {
    QString country;
    CategoryId categoryId;
    ContactId contactId;
};
CatLine SplitCatLine(const QString& line);
// The same three fields as views of the line, for the walks of whole files
// that keep only a few of their lines.
std::array<QStringView, 3> SplitCatLineViews(QStringView line);

// A name.dat line split at the three characters "," : id and name, with
// every double quote removed; a line that doesn't split in two gives the id
// and an empty name.
struct NameLine {
    QString id;
    QString name;
};
NameLine SplitNameLine(const QString& line);

// File numbers 1 and 2 are fixed in the line routines and closed only on
// their normal path: after a failure between open and close they stay
// taken, and every later routine that opens them fails until the process
// ends.
bool FileNumberInUse(int number);
void ReleaseFileNumbersForTest();
