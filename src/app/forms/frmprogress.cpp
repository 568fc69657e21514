#include "app/forms/frmprogress.h"

#include <QLabel>
#include <QVBoxLayout>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "platform/core/appfolder.h"
#include "platform/core/sysinfo.h"
#include "services/forms/skins.h"

frmprogress::frmprogress(QWidget* parent) : Form(parent) {
    setObjectName("frmprogress");
    lbcaption = new QLabel(this);
    lbcaption->setObjectName("lbcaption");
    lbcaption->setAlignment(Qt::AlignCenter);
    lbcaption->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbcaption);
    setFixedSize(360, 110);

    // Skins belong to the systems of major version 5 only. The engine is
    // set up here, before any form is loaded, so that every form opens
    // skinned; a failure it reports leaves the program without skins.
    OsVersionInfo os;
    if (GetOsVersion(os) && (os.code == -1 || os.code == 0)) {
        SkinPath = GetIniValue("Skin", "SkinFile", "", AppFile("Setting.ini"));
        if (!SkinPath.isEmpty()) {
            SkinPath = AppPath() + "/" + SkinPath;  // the setting's "\" the engine reads as "/"
            if (!SetUpSkinEngine()) return;
        }
        SkinEnabled = true;
    }
}

void frmprogress::FormLoad() {
    setWindowTitle(GetLanguageString(308));
    lbcaption->setText(WithOwnerName(GetLanguageString(536)));
    SetFontSize(lbcaption, LabelFontSize());
    SetFontCharset(lbcaption);
    if (SkinEnabled && !SkinPath.isEmpty()) ShowSkin(SkinPath);
}
