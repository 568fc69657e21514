#pragma once
// The program on a bench store: the folders pointed at the scratch store,
// the string libraries laid beside it and loaded as the start loads them,
// setting.ini with the list's country, and the main window opened on it.
// A warning or a failure shown to the user stops the bench.
#include <QApplication>
#include <QComboBox>
#include <QTreeWidget>
#include <filesystem>
#include <memory>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "benchstore.h"
#include "benchtable.h"
#include "main/forms/frmmain.h"
#include "main/forms/treeitems.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/msgbox.h"
#include "platform/core/pause.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"

// The libraries of the build's application folder, and setting.ini with the
// list's country chosen, laid into the application folder `app`.
inline void LayProgramFiles(const std::string& app) {
    namespace fs = std::filesystem;
    const std::string built = QCoreApplication::applicationDirPath().toStdString() + "/../app/";
    for (const char* library : {"langfile0409.dll", "edition0409.dll", "country.dll", "phonecode.dll"})
        fs::copy_file(built + library, app + "/" + library, fs::copy_options::overwrite_existing);
    std::string setting = FirstRunSettingText().toStdString();
    const size_t at = setting.find("Country=");
    setting.replace(at, setting.find("\r\n", at) - at, "Country=" + std::to_string(kCountries[kListCountry].index));
    WriteFile(app + "/setting.ini", setting);
}

// Points the program at the store and loads the libraries, as the start does.
inline void OpenProgramOn(const QString& app, const QString& vellumark) {
    SetAppPathForTest(app);
    SetVellumarkFolderForTest(vellumark);
    SetSleepDisabledForTest(true);
    EnsureStoreFiles();
    LanguageId = ReadLanguageId();
    CharsetId = ReadCharsetId();
    SetAnsiCodePage(CodePageForCharset(CharsetId));
    LoadEditionLibrary();
    LoadLanguageLibrary();
    CopyCountryLibraries();
    LoadPhoneCodeLibrary();
    LoadCountryLibrary();
    for (const BenchCountry& country : kCountries)
        Check(CountryNames().indexOf(country.name) == country.index, std::string("the country list has ") + country.name);
}

// Every question is answered Yes and a notice taken; a warning or a failure
// shown to the user stops the bench.
inline void AnswerQuestionsYes() {
    SetMsgBoxPresenter([](const MsgBoxRequest& box) {
        if (box.buttons == MsgYesNo) return int(AnswerYes);
        Check(box.icon == 0 || box.icon == MsgInformation, "a box no road may show: " + box.prompt);
        return int(AnswerOk);
    });
}

// The main window, loaded and shown, with the list's category clicked.
inline std::unique_ptr<FrmMain> OpenMainWindow() {
    auto window = std::make_unique<FrmMain>();
    window->FormLoad();
    window->show();
    QApplication::processEvents();
    QTreeWidgetItem* root = window->TreeView1->topLevelItem(0);
    const QString key = "id" + QString::fromStdString(CategoryIdOf(kListCategory));
    for (int i = 0; root && i < root->childCount(); ++i)
        if (NodeKey(root->child(i)) == key) {
            window->TreeView1->setCurrentItem(root->child(i));
            emit window->TreeView1->itemClicked(root->child(i), 0);
        }
    Check(window->strNodeKey == key && window->strCountry == kCountries[kListCountry].name,
          "the list's category is clicked");
    return window;
}

// The category nodes' texts, sorted, and what they must be for a country.
inline QStringList NodeTexts(const FrmMain& window) {
    QStringList texts;
    QTreeWidgetItem* root = window.TreeView1->topLevelItem(0);
    for (int i = 0; root && i < root->childCount(); ++i) texts << root->child(i)->text(0);
    texts.sort();
    return texts;
}
inline QStringList ExpectedNodeTexts(const StoreModel& model, int country) {
    QStringList texts;
    for (int k = 0; k < kCategoryCount; ++k) {
        const int count = model.counts[country][k];
        texts << (count ? QString("%1 (%2)").arg(kCategoryNames[k]).arg(count) : QString(kCategoryNames[k]));
    }
    texts.sort();
    return texts;
}
