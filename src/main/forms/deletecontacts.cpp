// Delete of the checked contacts (mnuDelete_info, the Delete key, the
// toolbar's delete entries, and mnuDelete_p without the guard). One contact
// at a time, each a full staged write: a cancel or a failure keeps what has
// been deleted.
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/core/batchflags.h"
#include "main/forms/batchsteps.h"
#include "main/forms/frmmain.h"
#include "main/forms/progressmessage.h"
#include "main/forms/treeitems.h"
#include "platform/core/msgbox.h"
#include "platform/core/runtimeerror.h"
#include "store/core/batchwrites.h"
#include "store/core/record.h"
#include "store/core/staging.h"

namespace {
int CheckedRows(const QTreeWidget* list) {
    int count = 0;
    for (int i = 0; i < list->topLevelItemCount(); ++i) count += list->topLevelItem(i)->checkState(0) == Qt::Checked;
    return count;
}
}  // namespace

void DeleteCheckedContacts(FrmMain& window) {
    if (MsgBox(GetLanguageString(578), MsgQuestion, MsgYesNo, QStringLiteral("Vellumark")) != AnswerYes) {
        // "No" too reloads the list, which clears every check mark.
        window.RefreshListView1(window.strCountry, window.strNodeKey);
        UnloadProgressMessage(BatchKind::Delete, &window);
        window.RefreshCategory();
        return;
    }
    CancelDelete = 0;
    ShowProgressMessage(BatchKind::Delete, &window);
    QString text;
    for (int i = 0; i < window.ListView1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = window.ListView1->topLevelItem(i);
        if (row->checkState(0) == Qt::Checked) text += row->text(kIdColumn) + QStringLiteral("\r\n");
    }
    // The split keeps an empty last element, and the walk takes it too: its
    // pass moves the indexes back unchanged and deletes data/addr.b64.
    const QStringList ids = text.split(QStringLiteral("\r\n"));
    QString id;
    for (const QString& element : ids) {
        id = element;
        ProcessQueue();
        if (CancelDelete) return DeleteCancelled(window, id);
        const StoreResult deleted = DeleteContactFiles(id);
        if (!deleted) {
            // The progress window stays: its button has nothing left to stop.
            ShowRuntimeError(RuntimeErrorDescription(deleted.runtimeError()));
            DiscardStagedFiles(ContactBuffer.infoid);
            return;
        }
    }
    DiscardStagedFiles(id);
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
    UnloadProgressMessage(BatchKind::Delete, &window);
    window.RefreshCategory();
}

void DeleteContacts(FrmMain& window) {
    if (CheckedRows(window.ListView1) < 1) {
        MsgBox(WithOwnerName(GetLanguageString(577)), MsgExclamation, GetLanguageString(300));
        return;
    }
    DeleteCheckedContacts(window);
    window.RefreshCategory();
}
