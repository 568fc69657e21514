#include "platform/forms/msgbox_widgets.h"

#include <QApplication>
#include <QMessageBox>
#include "platform/core/msgbox.h"

namespace {
int Present(const MsgBoxRequest& r) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(r.title);
    box.setText(r.prompt);
    switch (r.icon) {
    case MsgCritical: box.setIcon(QMessageBox::Critical); break;
    case MsgQuestion: box.setIcon(QMessageBox::Question); break;
    case MsgExclamation: box.setIcon(QMessageBox::Warning); break;
    case MsgInformation: box.setIcon(QMessageBox::Information); break;
    default: break;
    }
    switch (r.buttons) {
    case MsgOkCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case MsgYesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    case MsgYesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    default: box.setStandardButtons(QMessageBox::Ok); break;
    }
    if (r.secondDefault && r.buttons == MsgYesNo) box.setDefaultButton(QMessageBox::No);
    switch (box.exec()) {
    case QMessageBox::Cancel: return AnswerCancel;
    case QMessageBox::Yes: return AnswerYes;
    case QMessageBox::No: return AnswerNo;
    default: return AnswerOk;
    }
}
}  // namespace

void InstallWidgetMsgBox() { SetMsgBoxPresenter(Present); }
