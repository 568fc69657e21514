#include "main/forms/editcontact.h"

#include <QTreeWidget>
#include "dialogs/forms/frmedittask.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "store/core/record.h"

// Neither road rebuilds the tree: a contact moved to another category or
// country leaves the counts old until the next rebuild.
void EditSelectedContact(FrmMain& window, bool fromMenu) {
    QTreeWidgetItem* row = SelectedListItem(window.ListView1);
    if (!row) return;
    const ContactId contactId = row->text(kIdColumn);
    if (fromMenu) {
        ReadContact(contactId);
    } else {
        ClearContactBuffer();
        ReadContactWithId(contactId);
    }
    ContactEditFlag = true;
    {
        frmedittask dialog(&window);
        ShowModal(&dialog, &window);
    }
    window.CopyAddrFile();
    ClearContactBuffer();
    window.RefreshListView1(window.strCountry, window.strNodeKey);
}

void EditFromMenu(FrmMain& window) { EditSelectedContact(window, true); }
