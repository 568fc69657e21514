#include "dialogs/forms/frmedittask.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include "app/core/libraries.h"
#include "dialogs/forms/itemcombo.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/msgbox.h"
#include "platform/core/runtimeerror.h"
#include "platform/forms/pointer.h"
#include "platform/forms/shell.h"
#include "store/core/categories.h"

frmedittask::frmedittask(QWidget* parent) : ContactDialog(parent) {
    setObjectName("frmedittask");
    cmdLink = new QPushButton(this);
    cmdLink->setObjectName("cmdLink");
    addBesideEmail(cmdLink);
    setTabOrder(txtEmail, cmdLink);
    setMouseTracking(true);
    connect(cmdLink, &QPushButton::clicked, this, &frmedittask::cmdLink_Click);
}

void frmedittask::FormLoad() {
    cmdLink->setText(GetLanguageString(534));
    // Company and designation keep the design's charset in this dialog.
    LoadContactCaptions(330, {txtcompany, txtDesignation});
    FillCategoryCombo(cbCategory);
    FillCountryCombo(cbCountry);
    RefuseWithoutLists();
}

void frmedittask::FormActivate() {
    // Whatever was typed gives way to the buffer, also on the return from
    // the phone code look-up.
    txtname->setText(ContactBuffer.infoname);
    if (!SetListIndex(cbCountry, ContactBuffer.country)) {
        // the run time's words for a list index the list doesn't hold
        ShowRuntimeError(RuntimeErrorDescription(ErrInvalidPropertyValue));
        return;
    }
    cbCategory->setCurrentIndex(FindCategoryIndex(cbCategory->itemTexts(), ContactBuffer.category));
    txttel1->setText(ContactBuffer.tel1);
    txtext1->setText(ContactBuffer.ext1);
    txttel2->setText(ContactBuffer.tel2);
    txtext2->setText(ContactBuffer.ext2);
    txtmobile->setText(ContactBuffer.mobile);
    txtfax->setText(ContactBuffer.fax);
    txtcompany->setText(ContactBuffer.company);
    txtDesignation->setText(ContactBuffer.designation);
    txtEmail->setText(ContactBuffer.mail);
    // Only the address and the notes can hold line breaks.
    SetMultiLineText(txtaddr, DecodeNextLine(ContactBuffer.addr));
    SetMultiLineText(txtnotes, DecodeNextLine(ContactBuffer.notes));
    SetScreenPointer(0);
}

StoreResult frmedittask::WriteContact(const ContactForm& form, const SaveProgress& progress) {
    return SaveEditedContact(form, ContactBuffer.infoid, ContactEditFlag, progress);
}

void frmedittask::SaveSucceeded() {
    if (MainWindowLink* main = TheMainWindow()) main->RefreshCategory();
    Unload();
}

void frmedittask::mouseMoveEvent(QMouseEvent* event) {
    SetScreenPointer(0);
    ContactDialog::mouseMoveEvent(event);
}

void frmedittask::cmdLink_Click() {
    if (txtEmail->text().isEmpty()) {
        MsgBox(GetLanguageString(533), MsgExclamation, GetLanguageString(301));
        return;
    }
    // The address goes as typed; what the shell makes of it isn't asked.
    ShellExecute(this, QStringLiteral("open"), QStringLiteral("mailto:") + txtEmail->text(), 5);
}
