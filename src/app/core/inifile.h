#pragma once
// setting.ini, and the store's base files that must exist before anything
// reads or writes the store.
#include <QString>

QString SettingFile();  // <application folder>/setting.ini

// A value of any length: the buffer grows until the value fits.
QString GetIniValue(const QString& section, const QString& key, const QString& defaultValue,
                    const QString& file);
// True when the write succeeded; the file is made when missing.
bool PutIniValue(const QString& section, const QString& key, const QString& value,
                 const QString& file);

QString ReadLanguageId();
QString ReadCharsetId();

// The first-run text of setting.ini, with both [VSplitter] sections.
QByteArray FirstRunSettingText();

// Makes the missing ones of setting.ini, category.dat, cat.dat, cty.dat and
// name.dat, and clears three work copies of the staging area.
bool EnsureStoreFiles();
