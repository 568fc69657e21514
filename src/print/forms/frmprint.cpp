#include "print/forms/frmprint.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <exception>
#include "app/core/libraries.h"
#include "app/forms/captionrule.h"
#include "main/core/mainwindowlink.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/pause.h"
#include "platform/core/tempfolder.h"
#include "platform/forms/pointer.h"
#include "platform/forms/richtextbox.h"
#include "platform/forms/strictprogressbar.h"
#include "platform/forms/webbrowser.h"
#include "print/core/printlist.h"
#include "print/core/printpage.h"
#include "print/core/rtfroute.h"
#include "store/core/failure.h"
#include "store/core/record.h"

namespace {
const QString kCrLf = QStringLiteral("\r\n");

// The page in the code page, on a file of the user's own.
void WritePage(const QString& path, const QString& page) {
    if (!WritePrivateFile(path, ToAnsi(page))) throw RoutineFailure("the page can't be written");
}

MainWindowLink& Window() {
    if (!TheMainWindow()) throw RoutineFailure("no main window");
    return *TheMainWindow();
}
}  // namespace

frmprint::frmprint(QWidget* parent) : Form(parent) {
    setObjectName("frmprint");
    Frame1 = new QGroupBox(this);
    Frame1->setObjectName("Frame1");
    ProgressBar = new StrictProgressBar(Frame1);
    ProgressBar->setObjectName("ProgressBar");
    ProgressBar->setTextVisible(false);
    ProgressBar->setVisible(false);
    cmdPrint = new QPushButton(this);
    cmdPrint->setObjectName("cmdPrint");
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    // The page and the RTF only pass through these two: the dialog shows the bar.
    Browser = new WebBrowser(this);
    Browser->setObjectName("Browser");
    Browser->setVisible(false);
    rtfMail = new RichTextBox(this);
    rtfMail->setObjectName("rtfMail");
    rtfMail->setVisible(false);

    auto* frame = new QVBoxLayout(Frame1);
    frame->addWidget(ProgressBar);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdPrint);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Frame1);
    layout->addLayout(buttons);
    setMinimumWidth(360);

    connect(cmdPrint, &QPushButton::clicked, this, &frmprint::PrintJob);
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

void frmprint::FormLoad() {
    setWindowTitle(GetLanguageString(317));
    cmdPrint->setText(GetLanguageString(114));
    cmdCancel->setText(GetLanguageString(101));
    SetFontCharset(cmdPrint);
    SetFontCharset(cmdCancel);
    Sleep(200);
}

void frmprint::FormActivate() {
    SetScreenPointer(11);
    PrintJob();
    Unload();
    SetScreenPointer(0);
}

void frmprint::PrintJob() {
    try {
        RunPrintJob();
    } catch (const std::exception&) {
        // The one failure path: no message, and Temp5.html keeps the page of
        // the last run when the failure came before the write.
        ProgressBar->setVisible(false);
        SetScreenPointer(0);
    }
}

void frmprint::RunPrintJob() {
    const int n = ThePrintList.count();
    SetScreenPointer(11);
    ProgressBar->setVisible(true);
    ProgressBar->setRange(0, n + 4);
    ProgressBar->SetValue(0);
    DoEvents();
    const QString nodeText = Window().SelectedNodeText();
    if (nodeText.isNull()) throw RoutineFailure("no node is selected");
    const QString page = ComposePrintPage(Window().SelectedCountryName(), nodeText, [this](int position) {
        ProgressBar->SetValue(position);
        DoEvents();
    });
    const int counter = n + 1;  // where the loop's counter stands after the last contact
    const QString path = GetWindowTemp() + QStringLiteral("Temp5.html");
    WritePage(path, page + kCrLf);
    ProgressBar->SetValue(counter + 1);
    Browser->Navigate(QStringLiteral("about:blank"));
    Browser->Navigate(path);
    ProgressBar->SetValue(counter + 2);
    // The page is laid out when Navigate returns, so no wait for the loading
    // stands before the print command.
    DoEvents();
    Browser->PrintWithDialog();
    // n + 5, one above the maximum: the bar refuses it, and the job leaves
    // through its failure path. That is the usual way out.
    ProgressBar->SetValue(counter + 4);
    SetScreenPointer(0);
    Unload();
}

// Lets the window queue run, where cmdCancel can be reached; a cancelled
// dialog ends the job there, before anything is printed.
void frmprint::DoEvents() {
    QCoreApplication::processEvents();
    if (IsUnloaded()) throw RoutineFailure("cancelled");
}

void frmprint::ComposeRtfPage() {
    const QString plainText = RtfRoutePlainText(ContactBuffer.infoname);
    const QString sample = RtfRouteSample();
    rtfMail->SetTextRTF(RtfRouteDocument(sample));
    const QString page = RtfRoutePage(plainText, sample, rtfMail->TextRTF());
    const QString path = GetWindowTemp() + QStringLiteral("Temp2.html");
    WritePage(path, page);
    Browser->Navigate(QStringLiteral("about:blank"));
    Browser->Navigate(path);
}
