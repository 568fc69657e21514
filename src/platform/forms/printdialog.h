#pragma once
// The desktop's default print dialog (Qt Print Support): the system's
// printers and printing to a PDF file.
#include <functional>

class QPrinter;
class QWidget;

// Shows the dialog over `parent`. True when the user chose to print; the
// printer is then set up as chosen.
bool ShowPrintDialog(QPrinter& printer, QWidget* parent);

// ---- for tests ----
// While set, the answer stands in for the dialog: it sets up the printer (a
// PDF file, say) and gives true to print or false to cancel.
using PrintDialogAnswer = std::function<bool(QPrinter&)>;
void SetPrintDialogAnswerForTest(PrintDialogAnswer answer);
