#include "export/forms/frmexport.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <exception>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "export/core/exportrun.h"
#include "export/forms/frmexportmsg.h"
#include "main/core/categorycounts.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/msgbox.h"
#include "platform/forms/browseforfolder.h"
#include "platform/forms/pointer.h"
#include "store/core/failure.h"
#include "store/core/text.h"

frmExport::frmExport(QWidget* parent) : Form(parent) {
    setObjectName("frmExport");
    lbdesc = new QLabel(this);
    lbdesc->setObjectName("lbdesc");
    lbdesc->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbdesc);
    // The last two keep their design captions in every language.
    const char* design[] = {"Outlook Express", "Microsoft Outlook", "Yahoo!", "IncrediMail"};
    for (int i = 0; i < 4; ++i) {
        optOperation[i] = new QRadioButton(QString::fromLatin1(design[i]), this);
        optOperation[i]->setObjectName("optOperation");
        optOperation[i]->setProperty("Index", i);
        layout->addWidget(optOperation[i]);
    }
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    layout->addLayout(buttons);
    connect(cmdOK, &QPushButton::clicked, this, &frmExport::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

// The captions are those of the import's choice of source, word for word.
void frmExport::FormLoad() {
    setWindowTitle(GetLanguageString(312));
    lbdesc->setText(WithOwnerName(GetLanguageString(538)));
    optOperation[0]->setText(GetLanguageString(539));
    optOperation[1]->setText(GetLanguageString(540));
    cmdOK->setText(GetLanguageString(100));
    cmdCancel->setText(GetLanguageString(101));
    ApplyCaptionRule(this);
}

void frmExport::ExportOE() { Export(ExportKind::OE); }
void frmExport::ExportMSO() { Export(ExportKind::MSO); }
void frmExport::ExportYahoo() { Export(ExportKind::Yahoo); }
void frmExport::ExportIncredible() { Export(ExportKind::Incredible); }

void frmExport::Export(ExportKind kind) {
    const ExportShape& shape = ExportShapeOf(kind);
    MainWindowLink* main = TheMainWindow();
    if (!main) throw RoutineFailure("Object variable or With block variable not set");
    if (main->ListView1Count() == 0) {
        MsgBox(WithOwnerName(GetLanguageString(592)), MsgExclamation, GetLanguageString(300));
        return;
    }
    ExportCountry = TrimSpaces(main->cmbCountryText());
    // The node's text without the count the tree shows after the name.
    const QString nodeText = main->SelectedNodeText();
    if (nodeText.isNull()) throw RoutineFailure("Object variable or With block variable not set");
    ExportCategoryName = CategoryNameFromNodeText(nodeText);
    ExportCategoryId = ExportCategoryIdOf(ExportCategoryName);
    // The form is never shown when a command runs it: the folder dialog
    // then stands over the main window.
    QWidget* owner = isVisible() ? this : parentWidget();
    const QString folder = TrimSpaces(BrowseForFolder(owner, GetLanguageString(shape.folderTitle)));
    if (folder.isEmpty()) return;

    bCancelExport = false;
    // The progress dialog belongs to the main window: after a failure it
    // outlives this form.
    ShowExportMsg(parentWidget());
    QCoreApplication::processEvents();
    const ExportEnd end = WriteExportFile(shape, ExportFilePath(folder, shape),
                                          [] { QCoreApplication::processEvents(); });
    CloseExportMsg();
    if (end == ExportEnd::Cancelled) {
        MsgBox(GetLanguageString(591), MsgExclamation, GetLanguageString(300));
        return;
    }
    SetScreenPointer(0);
    MsgBox(GetLanguageString(625), MsgInformation, GetLanguageString(323));
}

// The first shape chosen runs; a failure in it is passed over, and the form
// closes all the same.
void frmExport::cmdOK_Click() {
    for (int i = 0; i < 4; ++i) {
        if (!optOperation[i]->isChecked()) continue;
        try {
            Export(ExportKind(i));
        } catch (const std::exception&) {
        }
        break;
    }
    Unload();
}
