#include "app/forms/general.h"

#include <QApplication>
#include <exception>
#include <stdexcept>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "app/forms/frmprogress.h"
#include "main/forms/frmmain.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/drive.h"
#include "platform/core/fileops.h"
#include "platform/core/instance.h"
#include "platform/core/msgbox.h"
#include "platform/core/tempfolder.h"

const char* const kAlreadyRunningMessage =
    "Application already found running on the system. It may be running on the background. "
    "Please make sure you close the application before launching another instance again.";
const char* const kNoLanguageIdMessage =
    "Fail to determine language id. Setting.ini file may be missing or corrupted. Operation aborted.";
const char* const kNoLanguageFileMessage =
    "The language file required may be missing or corrupted. Operation aborted.";
const char* const kNoCharsetMessage =
    "Fail to determine character set to be used. Setting.ini file may be missing or corrupted. "
    "Operation aborted.";

namespace {
StartResult Refuse(const char* message) {
    MsgBox(QString::fromLatin1(message), MsgCritical, MsgOkOnly, "Error");
    return StartResult::Refused;
}

// The one failure path after the prior-instance test: no message.
StartResult Fail(frmprogress* splash) {
    UnloadEditionLibrary();
    UnloadLanguageLibrary();
    delete splash;
    return StartResult::Failed;
}
}  // namespace

StartResult Main(FrmMain** mainWindow) {
    // Nothing may be touched before this test.
    if (PrevInstance()) return Refuse(kAlreadyRunningMessage);
    frmprogress* splash = nullptr;
    try {
        // A staging folder that is not the user's own is never written to.
        if (TempAreaRefused()) throw std::runtime_error("the staging area is not the user's own");
        EnsureStoreFiles();
        LanguageId = ReadLanguageId();
        CharsetId = ReadCharsetId();
        if (LanguageId.isEmpty()) return Refuse(kNoLanguageIdMessage);
        // The language file is tested before the charset.
        if (!FileExists(AppFile("langfile" + LanguageId + ".dll"))) return Refuse(kNoLanguageFileMessage);
        if (CharsetId.isEmpty()) return Refuse(kNoCharsetMessage);
        SetAnsiCodePage(CodePageForCharset(CharsetId));

        LoadEditionLibrary();
        LoadLanguageLibrary();
        OwnerName = GetIniValue("OwnerInfo", "Name", "User", OwnerInfoPath(AppPath()));

        splash = new frmprogress;
        splash->FormLoad();
        splash->show();
        splash->repaint();
        QApplication::processEvents();

        // The slow step: two copies from the drive, under the splash.
        CopyCountryLibraries();
        LoadPhoneCodeLibrary();
        LoadCountryLibrary();
        delete splash;
        splash = nullptr;

        auto* window = new FrmMain;
        window->setAttribute(Qt::WA_DeleteOnClose);
        try {
            window->FormLoad();
        } catch (...) {
            delete window;
            throw;
        }
        window->show();
        if (mainWindow) *mainWindow = window;
        return StartResult::Started;
    } catch (const std::exception&) {
        return Fail(splash);
    }
}
