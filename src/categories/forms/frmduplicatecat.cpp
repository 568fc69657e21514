#include "categories/forms/frmduplicatecat.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/guarded.h"
#include "platform/core/msgbox.h"
#include "store/core/categorychanges.h"
#include "store/core/text.h"

frmDuplicateCat::frmDuplicateCat(QWidget* parent) : DuplicateForm("frmDuplicateCat", parent) {
    txtCategory = new QLineEdit(this);
    txtCategory->setObjectName("txtCategory");
    PlaceCategory(txtCategory);
    connect(cmdDuplicate, &QPushButton::clicked, this,
            [this] { RunHandler("cmdDuplicate", [this] { cmdDuplicate_Click(); }); });
}

void frmDuplicateCat::FormLoad() {
    LoadDuplicateCaptions(329, WithOwnerName(GetLanguageString(603)));
    txtCategory->setText(GetLanguageString(530));
    ApplyCaptionRule(this);
    // It holds no list or tree to hand to the skin engine.
}

void frmDuplicateCat::cmdDuplicate_Click() {
    // The starting text counts as empty only in English: in another language
    // it is taken as a name.
    const QString text = txtCategory->text();
    if (text == "Please enter a new category" || text.isEmpty()) {
        txtCategory->setFocus();
        return;
    }
    CreateCategory();
    if (!boolSuccess) return;
    strCategory = text;
    strCountry = cmbCountry2->currentText();
    strCountryIndex = QString::number(cmbCountry2->currentIndex());
    boolConfirmed = true;
    Unload();
    if (MainWindowLink* main = TheMainWindow()) main->CopyAddrFile();
}

// Only a name that exists makes the creation fail. A blank name is told and
// then goes on as a name; a failed step of the chain ends it without a message.
void frmDuplicateCat::CreateCategory() {
    boolSuccess = true;
    const QString name = TrimSpaces(txtCategory->text());
    if (name.isEmpty()) MsgBox(WithOwnerName(GetLanguageString(530)), MsgExclamation, GetLanguageString(300));
    if (CategoryNameExists(name)) {
        MsgBox(GetLanguageString(537), MsgExclamation, GetLanguageString(300));
        boolSuccess = false;
    } else {
        AddCategoryLine(name, &strCatID);
    }
}
