#include "main/forms/batchsteps.h"

#include <QApplication>
#include <QComboBox>
#include "app/core/libraries.h"
#include "import/forms/frmmsg.h"
#include "main/forms/frmmain.h"
#include "main/forms/progressmessage.h"
#include "platform/core/msgbox.h"
#include "platform/forms/pointer.h"
#include "store/core/batchwrites.h"
#include "store/core/failure.h"
#include "store/core/record.h"
#include "store/core/staging.h"

void ProcessQueue() { QApplication::processEvents(); }

int AskClash(FrmMain& window, const QString& name) {
    window.strClashName = name;
    frmMsg question(&window);
    ShowModal(&question, &window);
    return question.ConfirmResult();
}

QString CopyContactTo(FrmMain& window, const QString& id, const QString& categoryId, const QString& country) {
    ContactId newId;
    CopyContactFiles(id, categoryId, country, qint16(window.cmbCountry->currentIndex()), &newId);
    return newId;
}

void DeleteCancelled(FrmMain& window, const QString& id) {
    UnloadProgressMessage(BatchKind::Delete, &window);
    MsgBox(GetLanguageString(575), MsgExclamation, GetLanguageString(300));
    DiscardStagedFiles(id);
    SetScreenPointer(0);
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshCategory();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
}

void RemoveContact(FrmMain& window, const QString& oldId) {
    RemoveContactFiles(oldId);
    SetScreenPointer(0);
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
}

void TakeRows(FrmMain& window, const QStringList& ids, const QStringList& names) {
    WindowArrays& a = window.Arrays;
    a.Empty();
    if (!a.Fill()) throw RoutineFailure("the store's lists can't be read");
    a.arrSelId = ids;
    a.arrSelName = names;
    a.TakeRows();
}
