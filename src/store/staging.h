#pragma once
// The staged write. A change to the contacts touches four files on the
// drive: the three indexes and one record. All four are built in the
// staging area on the local disk and only then moved onto the drive, one
// after the other: cat.dat, cty.dat, name.dat, record. A failure before the
// moves leaves the store as it was; the drive is at risk only for the time
// of four moves.
#include <QString>
#include <functional>
#include "store/record.h"

// Copies the three live indexes to their work copies.
bool StageIndexFiles();

// Moves the three staged indexes and the staged record onto the drive. With
// `recordFromBuffer` (the main window's variant) a missing staged record is
// first written from that buffer, so that a removal can move four files too.
bool CommitStagedFiles(const QString& contactId, const ContactRecord* recordFromBuffer = nullptr);

// Deletes the three work copies and the staged record where they exist.
void DiscardStagedFiles(const QString& contactId);

// The progress of a save: the dialog's bar takes these values (2 to 6).
using SaveProgress = std::function<void(int)>;

// A new contact from the dialog's fields; the id drawn comes back in
// `contactId` when asked for.
bool SaveNewContact(const ContactForm& form, const SaveProgress& progress = {},
                    QString* contactId = nullptr);

// A change to the contact `bufferId`. When `editFlag` is false the contact
// is saved as a new one, with a fresh id.
bool SaveEditedContact(const ContactForm& form, const QString& bufferId, bool editFlag,
                       const SaveProgress& progress = {});

// Removes one contact: the record read into ContactBuffer and staged, the
// three lines filtered out, the four files committed, then the live record
// deleted. Each step runs only if the one before gave true. The work copies
// stay for the caller's DiscardStagedFiles.
bool RemoveContactFiles(const QString& contactId);
