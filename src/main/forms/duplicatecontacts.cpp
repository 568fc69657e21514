// Duplicate of the checked contacts (mnuDuplicate_c and the toolbar's
// duplicate entries): each copy is a new contact with a new id in the
// category and country picked in frmDuplicate; a name clash in the target is
// asked about, one after another.
#include <QComboBox>
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/core/batchflags.h"
#include "main/forms/batchsteps.h"
#include "main/forms/frmduplicate.h"
#include "main/forms/frmmain.h"
#include "main/forms/progressmessage.h"
#include "main/forms/treeitems.h"
#include "platform/core/msgbox.h"
#include "store/core/batchwrites.h"
#include "store/core/genid.h"
#include "store/core/record.h"
#include "store/core/staging.h"

namespace {
// The checked rows' ids and names, in row order.
QStringList Checked(const QTreeWidget* list, int column) {
    QStringList values;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->checkState(0) == Qt::Checked) values << list->topLevelItem(i)->text(column);
    return values;
}

// The "Yes" of a clash: what is read and copied is the contact that already
// stands in the target (the old id), not the source; the old one is then
// removed. The new contact is written first, so a failure between leaves two.
void ReplaceClash(FrmMain& window, const QString& oldId, const QString& categoryId, const QString& country) {
    DiscardStagedFiles(CopyContactTo(window, oldId, categoryId, country));
    RemoveContact(window, oldId);
}

void Finish(FrmMain& window) {
    window.CopyAddrFile();
    ClearContactBuffer();
    UnloadProgressMessage(BatchKind::Duplicate, &window);
    window.Arrays.Empty();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
    window.RefreshCategory();
}
}  // namespace

void ShowDuplicateDialog(FrmMain& window) {
    if (Checked(window.ListView1, kIdColumn).isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(585)), MsgExclamation, GetLanguageString(300));
        return;
    }
    frmDuplicate dialog(&window);
    ShowModal(&dialog, &window);
}

void FrmMain::Duplicate(const QString& categoryId, const QString&, const QString& country) {
    Arrays.Empty();
    const QStringList ids = Checked(ListView1, kIdColumn);
    if (ids.isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(574)), MsgExclamation, GetLanguageString(300));
        return;
    }
    TakeRows(*this, ids, Checked(ListView1, 0));
    Arrays.CheckClashes(categoryId);
    const QStringList clashNames = Items(Arrays.strClashNames), clashIds = Items(Arrays.strClashIds),
                      oldIds = Items(Arrays.strClashOldIds);
    for (qsizetype i = 0; i < oldIds.size(); ++i) {
        const int answer = AskClash(*this, clashNames[i]);
        if (answer == 1) {
            ReplaceClash(*this, oldIds[i], categoryId, country);
        } else if (answer == 2) {
            CancelDuplicate = 0;
            ShowProgressMessage(BatchKind::Duplicate, this);
            for (; i < oldIds.size(); ++i) {
                ProcessQueue();
                if (CancelDuplicate) {
                    UnloadProgressMessage(BatchKind::Duplicate, this);
                    MsgBox(GetLanguageString(575), MsgExclamation, GetLanguageString(300));
                    return Finish(*this);
                }
                ReplaceClash(*this, oldIds[i], categoryId, country);
            }
        } else if (answer == 3) {
            DiscardStagedFiles(clashIds[i]);
        } else if (answer == 4) {
            CopyAddrFile();
            ClearContactBuffer();
            Arrays.Empty();
            RefreshListView1(strCountry, strNodeKey);
            return;
        }
    }
    const QStringList freeIds = Items(Arrays.strFreeIds);
    if (!freeIds.isEmpty()) {
        CancelDuplicate = 0;
        ShowProgressMessage(BatchKind::Duplicate, this);
        // This loop looks at a stop flag of its own that nothing sets: its
        // Cancel button has no effect. Each pass draws an id that the copy
        // then draws anew.
        for (const QString& id : freeIds) {
            ProcessQueue();
            GenID();
            DiscardStagedFiles(CopyContactTo(*this, id, categoryId, country));
        }
    }
    MsgBox(GetLanguageString(576), 0, QStringLiteral("Vellumark"));
    Finish(*this);
}
