#pragma once
// frmprint: prints the contacts of the print list. It shows only a progress
// bar: the job starts by itself when the dialog becomes active, writes the
// page Temp5.html to the system's temporary folder, loads it, opens the
// print dialog, and the dialog closes by itself at the end.
#include "platform/forms/modal.h"

class QGroupBox;
class QPushButton;
class RichTextBox;
class StrictProgressBar;
class WebBrowser;

class frmprint : public Form {
    Q_OBJECT
public:
    explicit frmprint(QWidget* parent = nullptr);
    void FormLoad() override;
    void FormActivate() override;

    // The print job (cmdPrint). Any failure hides the bar and ends the job
    // in silence; the bar's refusal of its last value is the usual way out.
    void PrintJob();
    // The second composer, which no control starts: Temp2.html from the RTF
    // converter on sample text.
    void ComposeRtfPage();

    QGroupBox* Frame1;
    StrictProgressBar* ProgressBar;
    QPushButton* cmdPrint;
    QPushButton* cmdCancel;
    WebBrowser* Browser;
    RichTextBox* rtfMail;

private:
    void RunPrintJob();
    void DoEvents();
};
