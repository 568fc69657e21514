// The skin menu: a skin chosen by the caption of its entry, or none. The
// menu stays out of sight in this product, and nothing fills its captions;
// the handlers stand ready behind it.
#include <QAction>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "main/forms/frmmain.h"
#include "platform/core/appfolder.h"
#include "services/forms/skins.h"

namespace {
void SetChecked(QAction* entry, bool checked) {
    entry->setCheckable(true);
    entry->setChecked(checked);
}

void ClearSkinChecks(FrmMain& window) {
    for (QAction* entry : window.findChildren<QAction*>("mnuSkinList")) SetChecked(entry, false);
}

QAction* SkinEntry(FrmMain& window, int index) {
    for (QAction* entry : window.findChildren<QAction*>("mnuSkinList"))
        if (entry->property("Index").toInt() == index) return entry;
    return nullptr;
}
}  // namespace

// The running skin is looked up by the bare caption, while the value saved
// is relative to the application folder: that asymmetry is kept on purpose.
void ChooseSkin(FrmMain& window, int index) {
    QAction* chosen = SkinEntry(window, index);
    ClearSkinChecks(window);
    SetChecked(window.Entry("mnuNoSkin"), false);
    // An empty path: the engine has had no set-up in this run.
    if (SkinPath.isEmpty() && !SetUpSkinEngine()) return;
    SkinPath = chosen->text();
    if (!ShowSkin(SkinPath)) return;
    SetChecked(chosen, true);
    PutIniValue("Skin", "SkinFile", "Skins\\" + chosen->text(), AppFile("Setting.ini"));
}

// setting.ini is left alone: the saved skin comes back at the next start.
void ChooseNoSkin(FrmMain& window) {
    ClearSkinChecks(window);
    SetChecked(window.Entry("mnuNoSkin"), true);
    SkinPath.clear();
    ShowSkin(QString());
}
