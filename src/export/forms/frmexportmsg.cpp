#include "export/forms/frmexportmsg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "export/core/exportrun.h"

namespace {
QPointer<frmExportMsg>& TheExportMsg() {
    static QPointer<frmExportMsg> form;
    return form;
}
}  // namespace

frmExportMsg::frmExportMsg(QWidget* parent) : Form(parent) {
    setObjectName("frmExportMsg");
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addLayout(buttons);
    setMinimumWidth(360);
    connect(cmdCancel, &QPushButton::clicked, this, &frmExportMsg::reject);
}

void frmExportMsg::FormLoad() {
    setWindowTitle(GetLanguageString(331));
    Label1->setText(WithOwnerName(GetLanguageString(605)));
    cmdCancel->setText(GetLanguageString(101));
    ApplyCaptionRule(this);
}

// The run sees the flag at its next line and closes the dialog; after a
// failed run nothing is left to see it, and the dialog goes by itself.
void frmExportMsg::reject() {
    bCancelExport = true;
    Form::reject();
}

frmExportMsg* ShowExportMsg(QWidget* owner) {
    QPointer<frmExportMsg>& form = TheExportMsg();
    if (!form) {
        form = new frmExportMsg(owner);
        form->setAttribute(Qt::WA_DeleteOnClose);
        // The windows behind it take no input while it stands, so that no
        // second command starts in the middle of the run.
        form->setWindowModality(Qt::ApplicationModal);
        form->FormLoad();
    }
    form->show();
    return form;
}

void CloseExportMsg() {
    if (TheExportMsg()) TheExportMsg()->close();
}
