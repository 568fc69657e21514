#pragma once
// The address books a Linux user has, found in the home folder without
// asking: they stand where the Windows Address Book stood. Read, never
// written.
#include <QList>
#include <QString>
#include <QStringList>

struct AddressPair {
    QString name;
    QString mail;
};

// The books of the home folder, in the order they are read: Thunderbird's
// abook*.sqlite of each profile of profiles.ini, the default profile first
// and abook.sqlite first within a profile; then Evolution's contacts.db
// books, by folder name.
QStringList DesktopAddressBooks(const QString& home);

// One pair per contact of every book, in book order; mailing lists are left
// out. A book that can't be read is passed over. False when there is no book.
bool ReadDesktopAddressBooks(const QString& home, QList<AddressPair>& pairs);
