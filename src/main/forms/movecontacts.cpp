// Move of the selected rows by dragging them onto a category of the tree.
// A move keeps the contact's id; its category changes, and its country
// becomes the filter's, the one it stood in.
#include <QComboBox>
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "main/core/batchflags.h"
#include "main/forms/batchsteps.h"
#include "main/forms/frmmain.h"
#include "main/forms/progressmessage.h"
#include "main/forms/treeitems.h"
#include "platform/core/msgbox.h"
#include "store/core/batchwrites.h"
#include "store/core/failure.h"
#include "store/core/record.h"
#include "store/core/staging.h"

namespace {
bool MoveContactTo(FrmMain& window, const QString& id) {
    return MoveContactFiles(id, window.strDropCategoryId, window.cmbCountry->currentText(),
                            qint16(window.cmbCountry->currentIndex()));
}

void MoveAndRemove(FrmMain& window, const QString& id, const QString& oldId) {
    MoveContactTo(window, id);
    DiscardStagedFiles(id);
    RemoveContact(window, oldId);
}

void Refill(FrmMain& window) {
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
}

// Stopped and Cancelled.
void Stopped(FrmMain& window) {
    MsgBox(GetLanguageString(575), MsgExclamation, GetLanguageString(300));
    UnloadProgressMessage(BatchKind::Move, &window);
    Refill(window);
    window.RefreshCategory();
}
}  // namespace

// The drop. Any failure ends it with no message and no refresh, a drop with
// no highlighted node among them.
void DropContacts(FrmMain& window) {
    if (!window.DropHighlight) throw RoutineFailure("no drop highlight");
    window.strDropCategory = FrmMain::CategoryNameFromNode(window.DropHighlight->text(0));
    if (window.strDropCategory == GetLanguageString(128)) return;  // the root
    QStringList ids, names;
    for (int i = 0; i < window.ListView1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = window.ListView1->topLevelItem(i);
        if (!row->isSelected()) continue;
        ids << row->text(kIdColumn);
        names << row->text(0);
    }
    TakeRows(window, ids, names);
    WindowArrays& a = window.Arrays;
    // With no category of that name the target of the drop before stays:
    // a name that holds "(" moves contacts to the last target.
    const QString target = a.CategoryIdOf(window.strDropCategory);
    if (!target.isEmpty()) window.strDropCategoryId = target;
    a.CheckClashes(window.strDropCategoryId);
    const QStringList clashNames = Items(a.strClashNames), clashIds = Items(a.strClashIds),
                      oldIds = Items(a.strClashOldIds);
    for (qsizetype i = 0; i < clashIds.size(); ++i) {
        const int answer = AskClash(window, clashNames[i]);
        if (answer == 1) {
            MoveAndRemove(window, clashIds[i], oldIds[i]);
            // The second move of the last clash is needless but harmless; it
            // is what the finishing message stands on.
            if (i == clashIds.size() - 1 && MoveContactTo(window, clashIds[i]))
                MsgBox(GetLanguageString(584), MsgInformation, QStringLiteral("Vellumark"));
        } else if (answer == 2) {
            CancelMove = 0;
            ShowProgressMessage(BatchKind::Move, &window);
            for (; i < clashIds.size(); ++i) {
                ProcessQueue();
                if (CancelMove) return Stopped(window);
                MoveAndRemove(window, clashIds[i], oldIds[i]);
            }
            UnloadProgressMessage(BatchKind::Move, &window);
            // The walk then reads the id one past the last, which is empty, as
            // a true-or-false value; that fails, and ends the drop here: the
            // free contacts are not moved and nothing is refreshed.
            throw RoutineFailure("Type mismatch");
        } else if (answer == 3) {
            DiscardStagedFiles(clashIds[i]);
        } else if (answer == 4) {
            return Refill(window);
        }
    }
    const QStringList freeIds = Items(a.strFreeIds);
    if (!freeIds.isEmpty()) {
        CancelMove = 0;
        ShowProgressMessage(BatchKind::Move, &window);
        for (const QString& id : freeIds) {
            ProcessQueue();
            if (CancelMove) return Stopped(window);
            MoveContactTo(window, id);
            DiscardStagedFiles(id);
        }
    }
    window.CopyAddrFile();
    ClearContactBuffer();
    UnloadProgressMessage(BatchKind::Move, &window);
    window.RefreshListView1(window.strCountry, window.strNodeKey);
    window.RefreshCategory();
}
