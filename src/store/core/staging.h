#pragma once
// The staged write. A change to the contacts touches four files on the
// drive: the three indexes and one record. All four are built in the
// staging area on the local disk and only then moved onto the drive, one
// after the other: cat.dat, cty.dat, name.dat, record. A failure before the
// moves leaves the store as it was; the drive is at risk only for the time
// of four moves.
#include <QString>
#include <functional>
#include "store/core/ids.h"
#include "store/core/record.h"
#include "store/core/result.h"

// Copies the three live indexes to their work copies.
bool StageIndexFiles();

// Moves the three staged indexes and the staged record onto the drive. With
// `recordFromBuffer` (the main window's variant) a missing staged record is
// first written from that buffer, so that a removal can move four files too.
bool CommitStagedFiles(const ContactId& contactId, const ContactRecord* recordFromBuffer = nullptr);

// Deletes the three work copies and the staged record where they exist.
void DiscardStagedFiles(const ContactId& contactId);

// The progress of a save: the dialog's bar takes these values (2 to 6).
using SaveProgress = std::function<void(int)>;

// A new contact from the dialog's fields; the id drawn comes back in
// `contactId` when asked for. StagedRecordMissing when the staged record was
// not there after staging (nothing is deleted then), Failed for any other
// failure.
StoreResult SaveNewContact(const ContactForm& form, const SaveProgress& progress = {},
                           ContactId* contactId = nullptr);

// A change to the contact `bufferId`. When `editFlag` is false the contact
// is saved as a new one, with a fresh id. The same reasons as a new contact.
StoreResult SaveEditedContact(const ContactForm& form, const ContactId& bufferId, bool editFlag,
                              const SaveProgress& progress = {});
