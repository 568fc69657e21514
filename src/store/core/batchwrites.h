#pragma once
// The writes the main window's batches make, one contact at a time, each a
// full staged write of its own. The record they write comes from
// ContactBuffer: file values as read, written back without encoding.
#include <QString>
#include <optional>
#include "store/core/ids.h"
#include "store/core/record.h"
#include "store/core/result.h"

// Writes ContactBuffer as the staged record of `contactId`, with infoid the
// id, so that a commit has a record to move. False when it can't be written.
bool WriteStagedRecord(const ContactId& contactId);

// What a delete walk does before the indexes. The delete of the checked rows
// reads the record and writes it as the staged record; the empty of a
// category writes none, so the commit writes it from ContactBuffer, which
// holds nothing of this contact, and that file is what the delete removes.
enum class StagedRecordFirst { ReadAndWrite, None };

// One contact of a delete walk: (the record read, a missing one leaving the
// buffer as it was, and written as the staged record,) the indexes staged,
// the three lines removed, the four files committed, and the live record
// deleted: it is rewritten and then removed. A step that gives false is a
// Failed result without a run-time error; a record that can't be written or
// deleted carries the run time's error number. The staging area is left to
// the caller.
StoreResult DeleteContactFiles(const ContactId& contactId, StagedRecordFirst first = StagedRecordFirst::ReadAndWrite);

// The removal of a contact whose record the caller has read: the indexes
// staged, the three lines removed, the commit (which first writes the staged
// record from ContactBuffer, so that the record moved in is then deleted),
// the live record deleted, the staging area cleared. Each step runs only if
// the one before gave true; a failure clears the staging area too.
bool RemoveContactFiles(const ContactId& contactId);

// A copy of contact `contactId` as a new contact: read into ContactBuffer, a
// new id drawn, the record written with that id, `categoryId` and the
// country index `recordCountry` (the main window's filter), the three lines
// appended with the country text `country`, committed. The result of the
// last step that ran; the work copies are left to the caller.
bool CopyContactFiles(const ContactId& contactId, const CategoryId& categoryId, const QString& country,
                      qint16 recordCountry, ContactId* newId = nullptr);

// A move of contact `contactId` to `categoryId`, keeping its id: read, the
// record written with the category and the country index `recordCountry`,
// the three lines replaced with the country text `country` (name.dat only
// where the line is there), committed. On a false step the staging area is
// cleared and false comes back; after success the work copies are the
// caller's to clear.
bool MoveContactFiles(const ContactId& contactId, const CategoryId& categoryId, const QString& country,
                      qint16 recordCountry);

// An imported contact, in the order of the import's writer: with
// `clashId`, the contact it replaces (its record read, its three lines
// replaced, its id kept); without, a new contact with an id drawn and its
// lines appended. The indexes are staged, whatever that gives; then the
// staged record's name is tested before it is set, and an empty name finds
// a file only where the working folder holds one: StagedRecordMissing
// when it finds none, and nothing is deleted. The record goes out as it
// stands, values unencoded (a line break in one ends its line), the notes=
// line only `withNotes`; the lines take `country`, the record's category
// and its name trimmed. A failure inside the append of the name line
// carries the run time's error; every failure clears the staging area.
StoreResult WriteImportedRecord(const ContactRecord& record, const QString& country,
                                const std::optional<ContactId>& clashId, bool withNotes);
