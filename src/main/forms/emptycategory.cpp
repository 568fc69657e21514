// Empty of the tree's selected category (mnuEmptyCategory). The right click
// has just listed the category's contacts in the filter's country, and
// every row of the list goes, checked or not; rows of other countries stay.
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
#include "platform/forms/pointer.h"
#include "store/core/batchwrites.h"
#include "store/core/record.h"
#include "store/core/staging.h"
#include "store/core/text.h"

namespace {
void Finish(FrmMain& window) {
    window.RefreshCategory();
    UnloadProgressMessage(BatchKind::Delete, &window);
}

// Each contact as a delete walk without a staged record. A failure is told
// and ends the command: the progress window stays, nothing is refreshed.
bool EmptyRows(FrmMain& window, QString& id) {
    QString text;
    for (int i = 0; i < window.ListView1->topLevelItemCount(); ++i)
        text += window.ListView1->topLevelItem(i)->text(kIdColumn) + QStringLiteral("\r\n");
    QStringList ids = text.split(QStringLiteral("\r\n"));
    ids.removeLast();  // the walk ends one before the upper bound
    for (const QString& element : ids) {
        id = element;
        ProcessQueue();
        if (CancelDelete) {
            DeleteCancelled(window, id);
            return false;
        }
        const StoreResult emptied = DeleteContactFiles(id, StagedRecordFirst::None);
        if (!emptied) {
            MsgBox(GetEditionString(524) + RuntimeErrorDescription(emptied.runtimeError()), MsgCritical,
                   GetLanguageString(301));
            return false;
        }
    }
    return true;
}
}  // namespace

void EmptyCategory(FrmMain& window) {
    const QString text = window.SelectedNodeText();
    const QString name = FrmMain::CategoryNameFromNode(text);
    const QString quoted = '"' + name + '"';
    // A node without a count has no contacts in this country; a name that
    // holds "(" counts as having some.
    if (!TrimSpaces(text).contains(u'(')) {
        MsgBox(GetLanguageString(580) + quoted + WithOwnerName(GetLanguageString(581)) + ".", MsgExclamation,
               GetLanguageString(300));
        return Finish(window);
    }
    if (MsgBox(GetLanguageString(582) + quoted + "?", 0, MsgYesNo, QStringLiteral("Vellumark")) != AnswerYes) {
        window.RefreshListView1(window.strCountry, window.strNodeKey);
        return Finish(window);
    }
    CancelDelete = 0;
    ShowProgressMessage(BatchKind::Delete, &window);
    QString id;
    if (!EmptyRows(window, id)) return;
    DiscardStagedFiles(id);
    SetScreenPointer(0);
    window.CopyAddrFile();
    ClearContactBuffer();
    // The list isn't filled again: its rows stay on the screen after their
    // contacts have gone, until the next click on a node.
    Finish(window);
}
