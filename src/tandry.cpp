// Tandry: a personal contact manager that lives on a removable drive.
#include <QApplication>
#include "app/forms/general.h"
#include "platform/forms/msgbox_widgets.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(true);
    InstallWidgetMsgBox();
    if (Main() != StartResult::Started) return 0;
    return app.exec();
}
