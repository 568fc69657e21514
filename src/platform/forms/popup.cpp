#include "platform/forms/popup.h"

#include <QCursor>
#include <QMenu>

namespace {
PopupHandler g_handler;
}

void PopupMenu(QMenu* menu) {
    if (g_handler) {
        g_handler(menu);
        return;
    }
    menu->exec(QCursor::pos());
}

void SetPopupHandlerForTest(PopupHandler handler) { g_handler = std::move(handler); }
