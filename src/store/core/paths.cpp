#include "store/core/paths.h"

#include <QStringBuilder>

#include "platform/core/appfolder.h"
#include "platform/core/tempfolder.h"

QString CategoryFile() { return AppFile("category.dat"); }
QString LiveIndex(const QString& index) { return AppFile(index + ".dat"); }
QString WorkCopy(const QString& index) { return TempFile("addr_" + index + ".tmp"); }
QString StagedIndex(const QString& index) { return TempFile("addr_" + index + ".dat"); }
QString DataFolder() { return AppFile("data"); }
QString RecordPath(const ContactId& contactId) { return RecordPathIn(DataFolder(), contactId); }
QString RecordPathIn(const QString& dataFolder, const ContactId& contactId) {
    // Made for every row of a list: one allocation, not one per piece.
    return dataFolder % u"/addr" % contactId % u".b64";
}
QString StagedRecordPath(const ContactId& contactId) { return TempFile("addr" + contactId + ".b64"); }
QString CatSnapshot() { return TempFile("addr_cat.dat"); }
QString CategorySnapshot() { return TempFile("addr_category.dat"); }
QString CategoryBackupFile() { return TempFile("addr_category.tmp"); }
QString CategoryStagedFile() { return TempFile("addr_addcategory.dat"); }
