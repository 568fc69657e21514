// Duplicate of the tree's selected category (mnuDuplicateCategory, the
// toolbar's "duplicateCategory"): its contacts in the filter's country are
// copied into a new category, in the country frmDuplicateCat takes.
#include <QComboBox>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "categories/forms/frmduplicatecat.h"
#include "main/core/batchflags.h"
#include "main/forms/batchsteps.h"
#include "main/forms/frmmain.h"
#include "main/forms/progressmessage.h"
#include "platform/core/msgbox.h"
#include "platform/core/numbers.h"
#include "platform/core/stringlib.h"
#include "store/core/failure.h"
#include "store/core/staging.h"

// The pop-up entry's test: the character behind the first "(" as a number.
// On a bare name that is the name's first character; a letter isn't a
// number, and the failure ends the command without a word. A count never
// starts with 0: only a name with a 0 behind its own "(" is told to choose
// another category.
void DuplicateCategory(FrmMain& window) {
    const QString text = window.SelectedNodeText();
    qint16 number = 0;
    if (!TextToInt16(text.mid(text.indexOf(u'(') + 1, 1), number)) throw RoutineFailure("Type mismatch");
    if (number != 0) return window.LoadFrmDuplicateCat();
    MsgBox(GetLanguageString(579) + "\r\nPlease choose another category to duplicate.", MsgExclamation,
           GetLanguageString(300));
}

// The toolbar's entry goes without that test.
void DuplicateCategoryFromToolbar(FrmMain& window) { window.LoadFrmDuplicateCat(); }

// After it the list shows the new category in the dialog's country, though
// strNodeKey stays and the tree has the root selected.
void FrmMain::LoadFrmDuplicateCat() {
    const QString text = SelectedNodeText();
    if (text == GetLanguageString(128)) {
        MsgBox(WithOwnerName(GetLanguageString(612)), MsgExclamation, GetLanguageString(300));
        return;
    }
    if (!text.endsWith(u')')) {  // no contacts in this country
        MsgBox(GetLanguageString(580) + text + WithOwnerName(GetLanguageString(616)), 0, LoadResString(998));
        return;
    }
    const QString name = CategoryNameFromNode(text);
    Arrays.Empty();
    if (!Arrays.Fill()) throw RoutineFailure("the store's lists can't be read");
    const QStringList ids = Arrays.ContactsOf(Arrays.CategoryIdOf(name), cmbCountry->currentText());
    Arrays.Empty();

    frmDuplicateCat dialog(this);
    ShowModal(&dialog, this);
    if (!dialog.boolConfirmed) return;
    CancelDuplicate = 0;
    ShowProgressMessage(BatchKind::Duplicate, this);
    bool cancelled = false;
    for (const QString& id : ids) {
        ProcessQueue();
        if ((cancelled = CancelDuplicate)) {
            MsgBox(GetLanguageString(575), MsgExclamation, GetLanguageString(300));
            break;
        }
        DiscardStagedFiles(CopyContactTo(*this, id, dialog.strCatID, dialog.strCountry));
    }
    CopyAddrFile();
    RefreshListView1(dialog.strCountry, "id" + dialog.strCatID);
    RefreshCategory();
    UnloadProgressMessage(BatchKind::Duplicate, this);
    if (!cancelled)
        MsgBox(GetLanguageString(586) + dialog.strCategory + ".", MsgInformation, QStringLiteral("Vellumark"));
}
