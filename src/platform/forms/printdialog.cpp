#include "platform/forms/printdialog.h"

#include <QPrintDialog>
#include <QPrinter>

namespace {
PrintDialogAnswer g_answer;
}

bool ShowPrintDialog(QPrinter& printer, QWidget* parent) {
    if (g_answer) return g_answer(printer);
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

void SetPrintDialogAnswerForTest(PrintDialogAnswer answer) { g_answer = std::move(answer); }
