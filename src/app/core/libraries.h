#pragma once
// The four string libraries. None is read from the drive in place: each is
// copied to the staging area first and the copy is what is loaded, so that
// a busy or slow drive does not slow down string look-up.
#include <QString>
#include <QStringList>

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

// The countries in string order, from number 100 to the first empty one (999
// at the most): a country's list index is its number minus 100.
QStringList CountryNames();

// Working copies in the staging area.
QString LanguageLibraryCopy();
QString EditionLibraryCopy();
