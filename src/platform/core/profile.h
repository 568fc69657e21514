#pragma once
// Profile strings with the semantics of the Windows calls: the first
// section of a name wins, names compare without case, a rewrite changes the
// value in place, a missing file or key gives the default, surrounding
// double quotes of a value are dropped on reading. Texts are in the ANSI
// code page of the process.
#include <QHash>
#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <initializer_list>

// Copies at most size - 1 characters of the value (or default) into
// `buffer` and returns the count copied, as GetPrivateProfileString does.
int GetPrivateProfileString(const QString& section, const QString& key,
                            const QString& defaultValue, QString& buffer,
                            int size, const QString& file);

// Writes key=value into the first section of that name, in place when the
// key is there, at the end of the section otherwise; the section is added at
// the end of the file when missing, and the file is created when missing.
bool WritePrivateProfileString(const QString& section, const QString& key,
                               const QString& value, const QString& file);

// Number of GetPrivateProfileString calls made so far (for tests of the
// growing buffer).
long ProfileReadCallCount();

// Every key of the first section of that name, read in one pass of the
// file: what GetPrivateProfileString would give for each key, looked up by
// the key in lower case. False (and no values) when the file can't be read.
using ProfileValues = QHash<QString, QString>;
bool ReadProfileSection(const QString& section, const QString& file, ProfileValues& values);
// The same for the named keys alone (in lower case), over a file's bytes
// already read, in the order asked: empty for a key the section lacks. The
// contact list reads five keys of thousands of records, and passes the
// others over undecoded.
QStringList ProfileSectionValues(const QString& section, const QByteArray& bytes,
                                 std::initializer_list<QLatin1String> keys);
