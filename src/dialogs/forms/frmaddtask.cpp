#include "dialogs/forms/frmaddtask.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include "dialogs/forms/itemcombo.h"
#include "platform/forms/pointer.h"
#include "store/core/categories.h"

frmaddtask::frmaddtask(QWidget* parent) : ContactDialog(parent) {
    setObjectName("frmaddtask");
}

void frmaddtask::FormLoad() {
    LoadContactCaptions(325, {});
    FillCategoryCombo(cbCategory);
    FillCountryCombo(cbCountry);
    if (RefuseWithoutLists()) return;
    // The main window has put the country and category to start with into
    // the buffer. An index the list doesn't hold leaves the first country.
    SetListIndex(cbCountry, ContactBuffer.country);
    cbCategory->setCurrentIndex(FindCategoryIndex(cbCategory->itemTexts(), ContactBuffer.category));
    SetScreenPointer(0);
}

StoreResult frmaddtask::WriteContact(const ContactForm& form, const SaveProgress& progress) {
    return SaveNewContact(form, progress);
}

void frmaddtask::SaveSucceeded() { ClearContactForm(); }

void frmaddtask::ClearContactForm() {
    for (QLineEdit* box : {txtname, txttel1, txtext1, txttel2, txtext2, txtmobile, txtfax,
                           txtcompany, txtDesignation, txtEmail})
        box->clear();
    txtaddr->clear();
    txtnotes->clear();
    txtname->setFocus();
}
