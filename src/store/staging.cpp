#include "store/staging.h"

#include "app/libraries.h"
#include "platform/fileops.h"
#include "platform/msgbox.h"
#include "store/failure.h"
#include "store/genid.h"
#include "store/indexfiles.h"
#include "store/paths.h"
#include "store/text.h"

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

// Message 531: the staged record isn't there.
bool StagedRecordMissing(const QString& contactId) {
    if (FileExists(StagedRecordPath(contactId))) return false;
    MsgBox(GetLanguageString(531), MsgCritical, GetLanguageString(301));
    return true;
}

bool AppendLines(const QString& id, const ContactForm& form, const SaveProgress& progress) {
    if (!AppendCatLine(id, form.countryText, form.categoryId)) return false;
    Progress(progress, 4);
    if (!AppendCtyLine(id, form.countryText)) return false;
    Progress(progress, 5);
    if (!AppendNameLine(id, TrimSpaces(form.name))) return false;
    Progress(progress, 6);
    return true;
}

bool ReplaceLines(const QString& id, const ContactForm& form, const SaveProgress& progress) {
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
bool StageRecordAndIndexes(const QString& id, const ContactForm& form, const SaveProgress& progress) {
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

bool CommitStagedFiles(const QString& contactId, const ContactRecord* recordFromBuffer) {
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

void DiscardStagedFiles(const QString& contactId) {
    DeleteWorkCopies();
    KillIfExists(StagedRecordPath(contactId));
}

bool SaveNewContact(const ContactForm& form, const SaveProgress& progress, QString* contactId) {
    QString id;
    try {
        id = IdText(GenID());
        if (contactId) *contactId = id;
        Progress(progress, 2);
        if (!StageRecordAndIndexes(id, form, progress)) {
            DiscardStagedFiles(id);
            return false;
        }
        if (StagedRecordMissing(id)) return false;
        if (AppendLines(id, form, progress)) return CommitStagedFiles(id);
    } catch (const RoutineFailure&) {
    }
    DiscardStagedFiles(id);
    return false;
}

bool SaveEditedContact(const ContactForm& form, const QString& bufferId, bool editFlag,
                       const SaveProgress& progress) {
    QString id = bufferId;
    bool ok = false;
    try {
        if (!editFlag) id = IdText(GenID());
        Progress(progress, 2);
        if (StageRecordAndIndexes(id, form, progress)) {
            if (StagedRecordMissing(id)) {
                if (editFlag) DiscardStagedFiles(id);
                return false;
            }
            bool lines = editFlag ? ReplaceLines(id, form, progress) : AppendLines(id, form, progress);
            ok = lines && CommitStagedFiles(id);
        }
    } catch (const RoutineFailure&) {
        ok = false;
    }
    // A replace leaves its work copies behind: an edit clears them always.
    if (editFlag || !ok) DiscardStagedFiles(id);
    return ok;
}

bool RemoveContactFiles(const QString& contactId) {
    try {
        ReadContactWithId(contactId);
        // The commit then has a record to move; it is deleted right after.
        return WriteRecordFile(StagedRecordPath(contactId),
                               RecordTextFromBuffer(contactId, ContactBuffer)) &&
               StageIndexFiles() && RemoveCatLine(contactId) && RemoveCtyLine(contactId) &&
               RemoveNameLine(contactId) && CommitStagedFiles(contactId, &ContactBuffer) &&
               Kill(RecordPath(contactId));
    } catch (const RoutineFailure&) {
        return false;
    }
}
