#pragma once
// Process-wide values set at start and read everywhere.
#include <QString>

extern QString LanguageId;  // [Setting] Language, such as "0409"; names the language libraries
extern QString CharsetId;   // [Setting] Charset; the font charset of every control
extern QString OwnerName;   // the drive owner's name; replaces %username in messages
extern bool SkinEnabled;    // true when this system takes skins; set under the splash form
extern QString SkinPath;    // the skin in force; empty: none

// "0804" and "0404" (the two Chinese languages) take 9-point labels, all others 8.
int LabelFontSize();
