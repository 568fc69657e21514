#pragma once
// The rows of the contact list, worked out without a window: the lines of
// the read snapshot addr_cat.dat that carry the country and the category
// asked for, each with the summary of its record file.
#include <QList>
#include <QString>
#include <QStringList>

struct ContactRow {
    QString name;         // infoname as stored
    QString mail;
    QString company;
    QString designation;
    QString contactId;    // as the cat.dat line gives it
};

// Walks the lines of the snapshot, read by the whole-file rule. For each line of `country` and
// `categoryId` (both compared exactly) it reads the record's summary into
// ContactBuffer, whose result isn't looked at: a line whose record is
// missing shows the values of the row before under its own id, and is left
// out only while the buffer's name is empty. A row is made when the trimmed
// name isn't empty.
// False on a failure of the routine (a line with too few fields, a
// one-character field, more lines than the 16-bit counter allows): `rows`
// then holds the rows made before it.
bool ContactRowsFromLines(const QList<QStringView>& lines, const QString& country,
                          const QString& categoryId, QList<ContactRow>& rows);

// The 16-bit row counter of the list: a snapshot of more lines fails.
constexpr int kMaxListLines = 32766;
