// The Help menu's about box.
#include "main/forms/frmmain.h"
#include "services/forms/frmabout.h"

void ShowAbout(FrmMain& window) {
    frmAbout about(&window);
    ShowModal(&about, &window);
}
