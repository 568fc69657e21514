#pragma once
// Placeholders in library strings: %username, %contact and %s. Every
// occurrence is replaced, found without regard to case.
#include <QString>

QString ReplaceText(const QString& text, const QString& placeholder, const QString& value);
// The string with every %username replaced by the owner's name.
QString WithOwnerName(const QString& text);
