#include "app/frmprogress.h"

#include <QLabel>
#include <QVBoxLayout>
#include "app/captionrule.h"
#include "app/globals.h"
#include "app/inifile.h"
#include "app/libraries.h"
#include "app/placeholders.h"
#include "platform/appfolder.h"
#include "platform/sysinfo.h"

frmprogress::frmprogress(QWidget* parent) : Form(parent) {
    setObjectName("frmprogress");
    lbcaption = new QLabel(this);
    lbcaption->setObjectName("lbcaption");
    lbcaption->setAlignment(Qt::AlignCenter);
    lbcaption->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbcaption);
    setFixedSize(360, 110);

    // Skins belong to the systems of major version 5 only.
    OsVersionInfo os;
    if (GetOsVersion(os) && (os.code == -1 || os.code == 0)) {
        QString skinFile = GetIniValue("Skin", "SkinFile", "", AppFile("Setting.ini"));
        if (!skinFile.isEmpty()) skinPath_ = AppPath() + "/" + skinFile;
        SkinEnabled = true;
    }
}

void frmprogress::formLoad() {
    setWindowTitle(GetLanguageString(308));
    lbcaption->setText(WithOwnerName(GetLanguageString(536)));
    SetFontSize(lbcaption, LabelFontSize());
    SetFontCharset(lbcaption);
}
