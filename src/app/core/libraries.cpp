#include "app/core/libraries.h"

#include "app/core/globals.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/stringlib.h"
#include "platform/core/tempfolder.h"

namespace {
LibraryHandle g_language = 0;
LibraryHandle g_edition = 0;
LibraryHandle g_country = 0;
LibraryHandle g_phoneCode = 0;

// Makes the staging folders when missing, replaces the working copy by a
// fresh copy of the source. Every failure is passed over.
void RefreshWorkingCopy(const QString& source, const QString& copy) {
    EnsureTempArea();
    KillIfExists(copy);
    CopyFile(AppFile(source), copy);
}

void Unload(LibraryHandle& handle, const QString& copy) {
    FreeLibrary(handle);
    handle = 0;
    KillIfExists(copy);
}

QString Lookup(LibraryHandle handle, int id) {
    if (handle == 0) return QString();
    QByteArray buffer(500, '\0');
    int count = LoadStringA(handle, id, buffer, 383);  // 382 bytes at most
    buffer.truncate(count);
    int nul = buffer.indexOf('\0');
    if (nul >= 0) buffer.truncate(nul);
    return FromAnsi(buffer);
}
}  // namespace

QString LanguageLibraryCopy() { return TempFile("ma_langfile" + LanguageId + ".dll"); }
QString EditionLibraryCopy() { return TempFile("ma_edition_" + LanguageId + ".dll"); }

void LoadLanguageLibrary() {
    RefreshWorkingCopy("langfile" + LanguageId + ".dll", LanguageLibraryCopy());
    g_language = LoadLibrary(LanguageLibraryCopy());
}

void LoadEditionLibrary() {
    RefreshWorkingCopy("edition" + LanguageId + ".dll", EditionLibraryCopy());
    g_edition = LoadLibrary(EditionLibraryCopy());
}

void CopyCountryLibraries() {
    RefreshWorkingCopy("country.dll", TempFile("addr_country.dll"));
    RefreshWorkingCopy("phonecode.dll", TempFile("addr_phonecode.dll"));
}

void LoadCountryLibrary() { g_country = LoadLibrary(TempFile("addr_country.dll")); }
void LoadPhoneCodeLibrary() { g_phoneCode = LoadLibrary(TempFile("addr_phonecode.dll")); }

void UnloadLanguageLibrary() { Unload(g_language, LanguageLibraryCopy()); }
void UnloadEditionLibrary() { Unload(g_edition, EditionLibraryCopy()); }
void UnloadCountryLibrary() { Unload(g_country, TempFile("addr_country.dll")); }
void UnloadPhoneCodeLibrary() { Unload(g_phoneCode, TempFile("addr_phonecode.dll")); }

// Runs while the two libraries are still loaded. On Windows that deletion
// fails; here the loaded table lives on in memory, so the copies go now.
void DeleteCountryLibraries() {
    KillIfExists(TempFile("addr_country.dll"));
    KillIfExists(TempFile("addr_phonecode.dll"));
}

QString GetLanguageString(int id) { return Lookup(g_language, id); }
QString GetEditionString(int id) { return Lookup(g_edition, id); }
QString GetCountryString(int id) { return Lookup(g_country, id); }
QString GetPhoneCodeString(int id) { return Lookup(g_phoneCode, id); }

QStringList CountryNames() {
    QStringList names;
    for (int number = 100; number <= 999; ++number) {
        const QString country = GetCountryString(number);
        if (country.isEmpty()) break;
        names << country;
    }
    return names;
}
