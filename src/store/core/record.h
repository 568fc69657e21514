#pragma once
// A contact's record file, data/addr<id>.b64: "[Setting]" and one key=value
// line per field, in a fixed order. Despite the name nothing in it is
// base-64: it is plain text in the code page, read key by key.
#include <initializer_list>
#include <QString>
#include "store/core/ids.h"
#include "store/core/recordsummaries.h"

// The contact in hand, shared by the forms: the main window fills it before
// a dialog opens and clears it after the dialog closes. Values stay as
// stored, still encoded.
struct ContactRecord {
    QString infoid, infoname, category, tel1, ext1, tel2, ext2, mobile, fax, company,
        designation, addr, notes, mail;
    qint16 country = -1;
};
extern ContactRecord ContactBuffer;
// Set by the three openers of the edit dialog; nothing sets it back.
extern bool ContactEditFlag;

// What the contact dialogs hold when Save is pressed, as typed.
struct ContactForm {
    QString name, tel1, ext1, tel2, ext2, mobile, fax, company, designation, addr, notes, mail;
    int countryIndex = -1;   // list index of the country drop-down
    QString countryText;     // text of the country drop-down
    CategoryId categoryId;   // trimmed id of the selected category item
};

void ClearContactBuffer();

// Where a read takes infoid from: the argument, the file, or nowhere (the
// buffer keeps its own).
enum class InfoIdFrom { Argument, File, Untouched };
enum class RecordRead { Read, Missing, CountryNoNumber };
// Reads the record's keys into ContactBuffer in the file's order. A missing
// file leaves the buffer alone; a country that is no number ends the read
// with the keys before it read.
RecordRead ReadRecordInto(const ContactId& contactId, InfoIdFrom infoId);
bool ReadContact(const ContactId& contactId);          // infoid from the argument
bool ReadContactWithId(const ContactId& contactId);    // infoid from the file
// The list's five keys, from the record in `dataFolder` (DataFolder(), looked
// up once per walk rather than once per row).
bool ReadContactSummary(const QString& dataFolder, const ContactId& contactId);
// The five keys of a summary into the buffer; the other fields stay.
void SummaryIntoBuffer(const RecordSummary& summary);
// The named text keys alone, each into its field of the buffer; the others
// stay as they were. False, and nothing read, when the file is missing.
bool ReadContactKeys(const ContactId& contactId, std::initializer_list<const char*> keys);

// Trim spaces, CR LF -> "<NextLine>", " -> "".
QString EncodeFieldText(const QString& text);
// "<NextLine>" -> CR LF, for the address and the notes only.
QString DecodeNextLine(const QString& text);

// The record lines for a save from the contact dialogs (fields encoded).
QByteArray RecordTextFromForm(const ContactId& contactId, const ContactForm& form);
// The record lines from a buffer, values written back as read; without
// `withNotes` the notes= line is left out altogether.
QByteArray RecordTextFromBuffer(const ContactId& contactId, const ContactRecord& record, bool withNotes = true);
// Opens the file for output, writes the lines, closes.
bool WriteRecordFile(const QString& path, const QByteArray& text);
