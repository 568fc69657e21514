#pragma once
// The four string libraries. None is read from the drive in place: each is
// copied to the staging area first and the copy is what is loaded, so that
// a busy or slow drive does not slow down string look-up.
#include <QString>

void LoadLanguageLibrary();
void LoadEditionLibrary();
void CopyCountryLibraries();
void LoadCountryLibrary();
void LoadPhoneCodeLibrary();
void UnloadLanguageLibrary();
void UnloadEditionLibrary();
void UnloadCountryLibrary();
void UnloadPhoneCodeLibrary();
void DeleteCountryLibraries();

// A string by number, or empty text for 0 and for numbers the library
// doesn't hold.
QString GetLanguageString(int id);
QString GetEditionString(int id);
QString GetCountryString(int id);
QString GetPhoneCodeString(int id);

// Working copies in the staging area.
QString LanguageLibraryCopy();
QString EditionLibraryCopy();
