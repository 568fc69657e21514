#pragma once
// The three searches of the find dialog, without the window: each walks
// name.dat and gives its hits in the order of the file. The dialog puts the
// hits in its list; its country drop-down is only a look-up, and its items
// come here as `countries`.
//
// A hit is a hit when the query, in lower case, stands anywhere in the
// searched text, in lower case; an empty searched text is never a hit, an
// empty query a hit for every other.
//
// A failure ends a search through RoutineFailure, with the run time's words
// ("File not found", "Subscript out of range", "Invalid property value",
// "Overflow"); the hits found before it, the last perhaps half filled, are
// in `hits` then.
#include <QList>
#include <QString>
#include <QStringList>
#include "store/core/record.h"

struct FindHit {
    qint64 row = 0;   // the running number given when it was found
    QString infoname;
    QString mail;
    QString category; // the category's name
    QString country;  // the country's name
    ContactId id;
};

// By the name in name.dat; only a matching line's record is read, and a
// line whose record is missing is skipped.
void FindName(const QString& query, const QStringList& countries, QList<FindHit>& hits);
// By the e-mail address and by the company in the record. Every line's
// record is read, and the result isn't looked at: a line whose record is
// missing is tested, and listed, with the contact read before it. Their
// line counter is 16 bits wide: name.dat of 32,768 lines or more overflows
// it after line 32,768.
void FindEmail(const QString& query, const QStringList& countries, QList<FindHit>& hits);
void FindCompany(const QString& query, const QStringList& countries, QList<FindHit>& hits);

// The dialog's names for the store's routines: LoadContact reads a record
// into ContactBuffer with the infoid the file holds, ClearContact empties it.
inline bool LoadContact(const ContactId& contactId) { return ReadContactWithId(contactId); }
inline void ClearContact() { ClearContactBuffer(); }
