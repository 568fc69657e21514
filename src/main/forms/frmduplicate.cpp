#include "main/forms/frmduplicate.h"

#include <QComboBox>
#include <QPushButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/itemcombo.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/msgbox.h"
#include "store/core/categories.h"
#include "store/core/text.h"

frmDuplicate::frmDuplicate(QWidget* parent) : DuplicateForm("frmDuplicate", parent) {
    cmbCat = new ItemCombo(200, this);
    cmbCat->setObjectName("cmbCat");
    PlaceCategory(cmbCat);
    connect(cmdDuplicate, &QPushButton::clicked, this, &frmDuplicate::cmdDuplicate_Click);
}

void frmDuplicate::FormLoad() {
    LoadDuplicateCaptions(328, GetLanguageString(629));
    QStringList items;
    CategoryComboItems(items);
    cmbCat->addItemTexts(items);
    cmbCat->setCurrentIndex(items.isEmpty() ? -1 : 0);
    ApplyCaptionRule(this);  // ends with the 200 milliseconds' wait
}

// The id from position 201 of the item, the name its first 100 characters,
// the country the first 100 characters of the country's text, each trimmed.
void frmDuplicate::cmdDuplicate_Click() {
    const QString item = cmbCat->currentItemText();
    if (cmbCat->currentIndex() < 0 || item.isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(612)), MsgExclamation, GetLanguageString(301));
        return;
    }
    const QString categoryId = TrimSpaces(item.mid(200));
    const QString categoryName = TrimSpaces(item.left(100));
    const QString country = TrimSpaces(cmbCountry2->currentText().left(100));
    Unload();
    if (MainWindowLink* main = TheMainWindow()) main->Duplicate(categoryId, categoryName, country);
}
