// The Help menu's online support.
#include "app/core/libraries.h"
#include "main/forms/frmmain.h"
#include "platform/core/msgbox.h"
#include "platform/core/pause.h"
#include "platform/core/stringlib.h"
#include "platform/forms/shell.h"
#include "store/core/text.h"

// The support web site, opened by the desktop's browser.
void OnlineSupport(FrmMain& window) {
    window.setCursor(Qt::WaitCursor);
    const QString address = LoadResString(1000);
    if (TrimSpaces(address).isEmpty()) {
        MsgBox(GetEditionString(515), MsgExclamation, GetLanguageString(300));
    } else {
        const long result = ShellExecute(&window, QStringLiteral("open"), address, 1);
        Sleep(1000);
        if (result < 33)
            MsgBox(GetEditionString(524) + ShellFailureDescription(result), MsgCritical,
                   GetLanguageString(301));
    }
    window.unsetCursor();
}
