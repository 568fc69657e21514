#include "store/core/staging.h"

#include "platform/core/fileops.h"
#include "store/core/failure.h"
#include "store/core/genid.h"
#include "store/core/ids.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/text.h"

namespace {
const char* const kIndexes[] = {"cat", "cty", "name"};

void DeleteWorkCopies() {
    for (const char* index : kIndexes) KillIfExists(WorkCopy(index));
}

// Replaces a live file by its staged one: delete, move, and ask for it.
bool Place(const QString& staged, const QString& live) {
    if (!KillIfExists(live)) return false;
    if (!MoveFile(staged, live)) return false;
    return FileExists(live);
}

void Progress(const SaveProgress& progress, int value) {
    if (progress) progress(value);
}

// The test after staging: the staged record must be there.
bool StagedRecordMissing(const ContactId& contactId) { return !FileExists(StagedRecordPath(contactId)); }

bool AppendLines(const ContactId& id, const ContactForm& form, const SaveProgress& progress) {
    if (!AppendCatLine(id, form.countryText, form.categoryId)) return false;
    Progress(progress, 4);
    if (!AppendCtyLine(id, form.countryText)) return false;
    Progress(progress, 5);
    if (!AppendNameLine(id, TrimSpaces(form.name))) return false;
    Progress(progress, 6);
    return true;
}

bool ReplaceLines(const ContactId& id, const ContactForm& form, const SaveProgress& progress) {
    if (!ReplaceCatLine(id, form.countryText, form.categoryId)) return false;
    Progress(progress, 4);
    if (!ReplaceCtyLine(id, form.countryText, form.categoryId, CtyReplace::CategoryIdInPlaceOfContact))
        return false;
    Progress(progress, 5);
    if (!ReplaceNameLine(id, TrimSpaces(form.name), NameReplace::AppendWhenMissing)) return false;
    Progress(progress, 6);
    return true;
}

// Steps 2 and 3 of every save: the staged record, then the work copies,
// whose result isn't looked at: the next test asks only for the record.
bool StageRecordAndIndexes(const ContactId& id, const ContactForm& form, const SaveProgress& progress) {
    if (!WriteRecordFile(StagedRecordPath(id), RecordTextFromForm(id, form))) return false;
    Progress(progress, 3);
    StageIndexFiles();
    return true;
}
}  // namespace

bool StageIndexFiles() {
    for (const char* index : kIndexes) {
        const QString work = WorkCopy(index);
        bool ok = KillIfExists(work) && CopyFile(LiveIndex(index), work) &&
                  FileExists(work);
        if (!ok) {
            DeleteWorkCopies();
            return false;
        }
    }
    return true;
}

bool CommitStagedFiles(const ContactId& contactId, const ContactRecord* recordFromBuffer) {
    // commit order is fixed: indexes first, record last
    bool ok = true;
    for (const char* index : kIndexes)
        if (ok) ok = Place(StagedIndex(index), LiveIndex(index));
    const QString staged = StagedRecordPath(contactId);
    if (ok && recordFromBuffer && !FileExists(staged))
        ok = WriteRecordFile(staged, RecordTextFromBuffer(contactId, *recordFromBuffer));
    if (ok) ok = Place(staged, RecordPath(contactId));
    if (ok) return true;
    DiscardStagedFiles(contactId);
    return false;
}

void DiscardStagedFiles(const ContactId& contactId) {
    DeleteWorkCopies();
    KillIfExists(StagedRecordPath(contactId));
}

StoreResult SaveNewContact(const ContactForm& form, const SaveProgress& progress, ContactId* contactId) {
    ContactId id;
    try {
        id = IdText(GenID());
        if (contactId) *contactId = id;
        Progress(progress, 2);
        if (!StageRecordAndIndexes(id, form, progress)) {
            DiscardStagedFiles(id);
            return StoreError::Failed;
        }
        // Nothing is deleted on this road: the caller tells the user.
        if (StagedRecordMissing(id)) return StoreError::StagedRecordMissing;
        if (AppendLines(id, form, progress) && CommitStagedFiles(id)) return {};
    } catch (const RoutineFailure&) {
    }
    DiscardStagedFiles(id);
    return StoreError::Failed;
}

StoreResult SaveEditedContact(const ContactForm& form, const ContactId& bufferId, bool editFlag,
                              const SaveProgress& progress) {
    ContactId id = bufferId;
    StoreResult result = StoreError::Failed;
    try {
        if (!editFlag) id = IdText(GenID());
        Progress(progress, 2);
        if (StageRecordAndIndexes(id, form, progress)) {
            if (StagedRecordMissing(id)) {
                if (editFlag) DiscardStagedFiles(id);
                return StoreError::StagedRecordMissing;
            }
            const bool lines = editFlag ? ReplaceLines(id, form, progress) : AppendLines(id, form, progress);
            if (lines && CommitStagedFiles(id)) result = {};
        }
    } catch (const RoutineFailure&) {
        result = StoreError::Failed;
    }
    // A replace leaves its work copies behind: an edit clears them always.
    if (editFlag || !result) DiscardStagedFiles(id);
    return result;
}
