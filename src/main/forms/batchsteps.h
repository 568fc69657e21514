#pragma once
// Steps the contact batches of the main window share.
#include <QString>

class FrmMain;

// Lets the window system process its queue once: how a batch's Cancel
// button takes effect.
void ProcessQueue();

// The confirm-replace question about strClashName: 1 Yes, 2 Yes to All,
// 3 No, 4 Not to All.
int AskClash(FrmMain& window, const QString& name);

// A copy of contact `id` as a new contact in `categoryId` and `country`; the
// new id comes back. The copy's record keeps the country of the main
// window's filter; only the indexes take the country given. Its work copies
// stay for the caller's DiscardStagedFiles.
QString CopyContactTo(FrmMain& window, const QString& id, const QString& categoryId, const QString& country);

// The Cancel of a delete walk: the progress window unloaded, the message,
// the staging area cleared for `id`, and the window shows the truth again.
void DeleteCancelled(FrmMain& window, const QString& id);

// Removes the contact whose record the buffer holds under `oldId` (the
// store's removal), then the pointer to default, a new snapshot, the buffer
// cleared and the list filled again.
void RemoveContact(FrmMain& window, const QString& oldId);

// Takes the arrays of the window anew: the store's lists, then `ids` and
// `names` of the rows taken, then the four texts of those that have a row.
// A list that can't be read is a failure of the batch (RoutineFailure).
void TakeRows(FrmMain& window, const QStringList& ids, const QStringList& names);
