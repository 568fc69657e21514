#include "export/forms/frmexport.h"

#include <QCoreApplication>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "export/core/exportrun.h"
#include "export/forms/frmexportmsg.h"
#include "main/core/categorycounts.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/msgbox.h"
#include "platform/forms/browseforfolder.h"
#include "platform/forms/pointer.h"
#include "store/core/failure.h"
#include "store/core/text.h"

// The captions are those of the import's choice of source, word for word.
frmExport::frmExport(QWidget* parent) : AddressBookChoice("frmExport", parent) {}

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
