#pragma once
// Pop-up menus of the main window. Every pop-up goes through PopupMenu, so
// that a test can see which menu would open instead of running its loop.
#include <functional>

class QMenu;

// Opens the menu at the mouse pointer and returns when it has closed.
void PopupMenu(QMenu* menu);

// ---- for tests: the handler sees each pop-up instead of the screen ----
using PopupHandler = std::function<void(QMenu*)>;
void SetPopupHandlerForTest(PopupHandler handler);
