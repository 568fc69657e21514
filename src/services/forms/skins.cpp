#include "services/forms/skins.h"

#include "app/core/globals.h"
#include "platform/forms/skinengine.h"

bool SetUpSkinEngine() { return SkinEngine().SetDrawMode(2) && SkinEngine().SetEngineMode(1); }

bool ShowSkin(const QString& path) {
    return SkinEngine().SelectSkinFile(path) && SkinEngine().LoadSelectedSkin() && SkinEngine().ApplyToAllForms(0);
}

bool SkinControls(const QList<QWidget*>& controls) {
    if (!SkinEnabled) return true;
    for (QWidget* control : controls)
        if (!SkinEngine().ApplyToControl(control, 1)) return false;
    return true;
}
