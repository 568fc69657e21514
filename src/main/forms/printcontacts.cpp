// Print (mnuPrint_p): the selected rows.
#include <QTreeWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/forms/frmmain.h"
#include "platform/core/msgbox.h"

void PrintContacts(FrmMain& window) {
    if (window.ListView1->selectedItems().isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(628)), MsgExclamation, GetLanguageString(300));
        return;
    }
}
