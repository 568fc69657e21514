#pragma once
// What the contact list shows of each record file, kept between refills.
// A refill after a save then reads again only the records that changed:
// every change this program makes to a file tells the keeper, and a change
// made from outside is seen in the file's stamp (size, times, identity).
// A file whose times are too recent to tell two writes apart is read again
// every time until it has aged, so that a change within the file system's
// time step is never missed.
#include <QString>
#include "platform/core/fileops.h"

struct RecordSummary {
    QString infoname, mail, category, company, designation;
};

// What was read of a file, and the stamp the file had then.
struct KeptRecordSummary {
    FileStamp stamp;
    RecordSummary summary;
};
// The summary kept for `path` that the file's stamp alone may confirm: the
// caller compares the stamp the file has now. Null when there is none.
const KeptRecordSummary* KeptSummary(const QString& path);
// Keeps what was read from the file of that stamp, read at `readAtNs` on
// the file clock.
// Room for `more` summaries to come, made at once rather than as they come.
void ReserveKeptSummaries(qsizetype more);
void KeepSummary(const QString& path, const FileStamp& stamp, qint64 readAtNs, const RecordSummary& summary);
