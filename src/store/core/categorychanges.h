#pragma once
// Changes to category.dat. A change is built in the staging area: the live
// list is copied to addr_category.tmp, the new list is written beside it,
// then the live file is deleted and the new one renamed onto it. Between
// that delete and that rename the drive holds no category.dat; the next
// EnsureStoreFiles makes it anew with "Main". Each step reports true or
// false and shows nothing; a false step ends its chain.
#include <QString>
#include <QStringList>
#include <optional>
#include "store/core/ids.h"

// Both read the live category.dat by the whole-file rule. Names compare
// lower-cased: they are unique without regard to case. A list that can't
// be read gives false, from the lines read before the failure.
bool CategoryNameExists(const QString& name);
bool CategoryIdExists(const CategoryId& id);
// A number whose five-digit id is not in use, drawn as a contact id is.
qint16 NewCategoryId();

// CategoryBackup (BackupCategory): category.dat copied to addr_category.tmp,
// an old copy deleted first. True when the copy is there.
bool CategoryBackup();
// CategoryCleanup (CleanCategoryTmp): addr_category.tmp deleted when there.
void CategoryCleanup();

// AppendCategory: the line "id","name" appended to addr_category.tmp, which
// is renamed to addr_addcategory.dat. True when that is there.
bool AppendCategory(const CategoryId& id, const QString& name);

// RewriteCategory (into addr_addcategory.dat, with the new name) and
// WriteCategoryWithout (into the snapshot addr_category.dat, no new name:
// the line is left out). `target` is opened for output, then
// addr_category.tmp is read whole by comma reading and every line written
// back: a name that holds a comma comes back cut. True when `target` is there.
bool RewriteCategoryLines(const QString& target, const CategoryId& id, const std::optional<QString>& newName);

// CategoryInstall (from addr_addcategory.dat) and RestoreCategory (from
// addr_category.dat): category.dat deleted and `staged` renamed onto it.
// True when category.dat is there; otherwise `staged` is deleted as well.
bool InstallCategoryFile(const QString& staged);

// The chains of the dialogs, each run after its name test; the clean-up of
// addr_category.tmp is the caller's.
// A new category: the backup, and when it is there a new id, the line
// appended and installed. `newId` gets the id drawn.
bool AddCategoryLine(const QString& name, CategoryId* newId = nullptr);
// A rename: the backup, and when it is there the rewrite, installed.
bool RenameCategoryLine(const CategoryId& id, const QString& name);
// A deletion: the backup (its result isn't looked at), and when the snapshot
// addr_category.dat is there, the list written into it without `id` and, on
// success, put in place. True when that writing succeeded.
bool RemoveCategoryLine(const CategoryId& id);
// AddCatMSO's file work: each element of `names` split at CR LF, trimmed,
// that names no category yet is added; then the clean-up. Every element is
// visited, also the one after the last CR LF.
void AddCategories(const QString& names);

// The contacts (third field) of the cat.dat rows that have `id` in their
// second field, read by comma reading. False when cat.dat can't be read or
// a line is too short.
bool CategoryContacts(const CategoryId& id, QStringList& contactIds);
// The names of those contacts in name.dat, in the order of `contactIds`; an
// id without a line is passed over. False when name.dat can't be read.
bool ContactNames(const QStringList& contactIds, QStringList& names);
