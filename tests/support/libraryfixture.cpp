#include "support/libraryfixture.h"

#include <QFile>
#include "app/core/globals.h"
#include "app/core/libraries.h"

void InstallLibraries(const ScratchStore& store) {
    for (const char* name : {"langfile0409.dll", "edition0409.dll", "country.dll", "phonecode.dll"})
        QFile::copy(QString(TANDRY_APP_DIR) + "/" + name, store.appFile(name));
}

void LoadAllLibraries(const ScratchStore& store) {
    InstallLibraries(store);
    LanguageId = "0409";
    CharsetId = "0";
    LoadEditionLibrary();
    LoadLanguageLibrary();
    CopyCountryLibraries();
    LoadPhoneCodeLibrary();
    LoadCountryLibrary();
}

void UnloadAllLibraries() {
    UnloadEditionLibrary();
    UnloadLanguageLibrary();
    UnloadPhoneCodeLibrary();
    UnloadCountryLibrary();
}

int CountryIndex(const QString& name) { return int(CountryNames().indexOf(name)); }
