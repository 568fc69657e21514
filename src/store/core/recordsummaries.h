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

// The summary kept for `path` when its stamp is still `stamp`; null when
// there is none or the file may have changed.
const RecordSummary* KeptSummary(const QString& path, const FileStamp& stamp);
// Whether a summary is kept for `path` that its stamp alone may confirm.
bool SummaryKept(const QString& path);
// Keeps what was read from the file of that stamp, read at `readAtNs` on
// the file clock.
void KeepSummary(const QString& path, const FileStamp& stamp, qint64 readAtNs, const RecordSummary& summary);
