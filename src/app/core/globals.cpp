#include "app/core/globals.h"

QString LanguageId;
QString CharsetId;
QString OwnerName;
bool SkinEnabled = false;
QString SkinPath;

int LabelFontSize() { return LanguageId == "0804" || LanguageId == "0404" ? 9 : 8; }
