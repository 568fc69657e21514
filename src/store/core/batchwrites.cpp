#include "store/core/batchwrites.h"

#include "platform/core/fileops.h"
#include "platform/core/runtimeerror.h"
#include "store/core/failure.h"
#include "store/core/genid.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/staging.h"
#include "store/core/text.h"

namespace {
// The buffer as the record of `contactId`, with its category and country set.
bool WriteRecordAs(const ContactId& contactId, const CategoryId& categoryId, qint16 country) {
    ContactRecord record = ContactBuffer;
    record.category = categoryId;
    record.country = country;
    return WriteRecordFile(StagedRecordPath(contactId), RecordTextFromBuffer(contactId, record));
}
}  // namespace

bool WriteStagedRecord(const ContactId& contactId) {
    return WriteRecordFile(StagedRecordPath(contactId), RecordTextFromBuffer(contactId, ContactBuffer));
}

StoreResult DeleteContactFiles(const ContactId& contactId, StagedRecordFirst first) {
    try {
        if (first == StagedRecordFirst::ReadAndWrite) {
            ReadContactWithId(contactId);
            if (!WriteStagedRecord(contactId)) return {StoreError::Failed, ErrPathFileAccess};
        }
        StageIndexFiles();
        if (!RemoveCatLine(contactId) || !RemoveCtyLine(contactId) || !RemoveNameLine(contactId) ||
            !CommitStagedFiles(contactId, &ContactBuffer))
            return StoreError::Failed;
        if (!Kill(RecordPath(contactId))) return {StoreError::Failed, ErrFileNotFound};
        return {};
    } catch (const RoutineFailure&) {
        return StoreError::Failed;
    }
}

bool RemoveContactFiles(const ContactId& contactId) {
    bool ok = false;
    try {
        ok = StageIndexFiles() && RemoveCatLine(contactId) && RemoveCtyLine(contactId) &&
             RemoveNameLine(contactId) && CommitStagedFiles(contactId, &ContactBuffer) &&
             Kill(RecordPath(contactId));
    } catch (const RoutineFailure&) {
        ok = false;
    }
    DiscardStagedFiles(contactId);
    return ok;
}

bool CopyContactFiles(const ContactId& contactId, const CategoryId& categoryId, const QString& country,
                      qint16 recordCountry, ContactId* newId) {
    try {
        ReadContactWithId(contactId);
        const ContactId id = IdText(GenID());
        if (newId) *newId = id;
        if (!WriteRecordAs(id, categoryId, recordCountry)) return false;
        StageIndexFiles();
        return AppendCatLine(id, country, categoryId) && AppendCtyLine(id, country) &&
               AppendNameLine(id, ContactBuffer.infoname) && CommitStagedFiles(id);
    } catch (const RoutineFailure&) {
        return false;
    }
}

bool MoveContactFiles(const ContactId& contactId, const CategoryId& categoryId, const QString& country,
                      qint16 recordCountry) {
    try {
        ReadContactWithId(contactId);
        if (WriteRecordAs(contactId, categoryId, recordCountry)) {
            StageIndexFiles();
            if (FileExists(StagedRecordPath(contactId)) && ReplaceCatLine(contactId, country, categoryId) &&
                ReplaceCtyLine(contactId, country, categoryId, CtyReplace::KeepContactId) &&
                ReplaceNameLine(contactId, ContactBuffer.infoname, NameReplace::OnlyReplace) &&
                CommitStagedFiles(contactId))
                return true;
        }
    } catch (const RoutineFailure&) {
    }
    DiscardStagedFiles(contactId);
    return false;
}

StoreResult WriteImportedRecord(const ContactRecord& record, const QString& country,
                                const std::optional<ContactId>& clashId, bool withNotes) {
    ContactId id;
    try {
        id = clashId ? *clashId : IdText(GenID());
        StageIndexFiles();
        if (!FileExists(QString())) return StoreError::StagedRecordMissing;
        if (clashId) ReadContact(id);  // read, and not used: the row alone makes the record
        const QString name = TrimSpaces(record.infoname);
        if (WriteRecordFile(StagedRecordPath(id), RecordTextFromBuffer(id, record, withNotes))) {
            bool lines = false;
            if (clashId) {
                lines = ReplaceCatLine(id, country, record.category) &&
                        ReplaceCtyLine(id, country, record.category, CtyReplace::KeepContactId) &&
                        ReplaceNameLine(id, name, NameReplace::OnlyReplace);
            } else if (AppendCatLine(id, country, record.category) && AppendCtyLine(id, country)) {
                if (!AppendNameLine(id, name)) {
                    DiscardStagedFiles(id);
                    return {StoreError::Failed, ErrPathFileAccess};
                }
                lines = true;
            }
            if (lines && CommitStagedFiles(id)) return {};
        }
    } catch (const RoutineFailure&) {
    }
    DiscardStagedFiles(id);
    return StoreError::Failed;
}
