// Menus, pop-up menus and toolbar of the main window.
#include "main/frmmain.h"

void FrmMain::buildMenus() {}
void FrmMain::buildToolbar() {}
void FrmMain::LoadMenuCaptions() {}
