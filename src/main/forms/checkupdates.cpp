// The Help menu's check for updates: the program sends its id and version
// to the maker's server and shows the verdict it reads back.
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/forms/frmmain.h"
#include "platform/core/appversion.h"
#include "platform/core/msgbox.h"
#include "platform/core/stringlib.h"
#include "services/core/updatecheck.h"
#include "services/forms/frmupdate.h"
#include "services/forms/modwininet.h"
#include "store/core/text.h"

void CheckForUpdates(FrmMain& window) {
    window.setCursor(Qt::WaitCursor);
    const ProgramVersion version = AppVersion();
    const QString body = UpdateRequestBody(LoadResString(997), version.major, version.minor, version.revision);
    QString status, statusText;
    const QString response = HttpRequest(LoadResString(1001), body, 80, QString(), QString(), status, statusText);
    QString code, newVersion, url;
    ParseUpdate(response, code, newVersion, url);
    const QString product = LoadResString(998);
    if (!TrimSpaces(response).isEmpty() && status.startsWith(QLatin1Char('2'))) {
        // Any code but "0" means an update, an empty one from a reply
        // without <code> too.
        if (code != QLatin1String("0"))
            ShowUpdateResult(&window, ReplaceText(GetEditionString(514), "%s", product), url);
        else
            MsgBox(ReplaceText(GetEditionString(513), "%s", product), MsgInformation, QStringLiteral("Vellumark"));
    } else {
        MsgBox("Failure connecting to internet or webserver. HTTP response code: " + status, MsgCritical,
               QStringLiteral("Error"));
    }
    window.unsetCursor();
}
