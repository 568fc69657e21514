#include "platform/forms/printdialog.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace {
PrintDialogAnswer g_answer;
}

bool ShowPrintDialog(QPrinter& printer, QWidget* parent) {
    if (g_answer) return g_answer(printer);
    // The dialog is the desktop's own: it shows the normal pointer while the
    // program's is the hourglass.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    QPrintDialog dialog(&printer, parent);
    const bool print = dialog.exec() == QDialog::Accepted;
    QApplication::restoreOverrideCursor();
    return print;
}

void SetPrintDialogAnswerForTest(PrintDialogAnswer answer) { g_answer = std::move(answer); }
