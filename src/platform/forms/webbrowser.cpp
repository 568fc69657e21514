#include "platform/forms/webbrowser.h"

#include <QPrinter>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/forms/printdialog.h"

WebBrowser::WebBrowser(QWidget* parent) : QTextBrowser(parent) {}

void WebBrowser::Navigate(const QString& address) {
    if (address == u"about:blank") {
        clear();
        return;
    }
    QByteArray page;
    if (!ReadWholeFile(address, page)) page.clear();  // a page that can't be read shows empty
    setHtml(FromAnsi(page));
}

void WebBrowser::PrintWithDialog() {
    QPrinter printer(QPrinter::HighResolution);
    if (ShowPrintDialog(printer, window())) document()->print(&printer);
}
