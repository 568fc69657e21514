#include "store/core/record.h"

#include <optional>

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/numbers.h"
#include "platform/core/profile.h"
#include "store/core/paths.h"
#include "store/core/summaryreads.h"
#include "store/core/text.h"

ContactRecord ContactBuffer;
bool ContactEditFlag = false;

void ClearContactBuffer() { ContactBuffer = ContactRecord(); }

namespace {
// A record is read in one pass of its file; each key is then what the
// profile call would give for it, or empty when missing.
class RecordKeys {
public:
    explicit RecordKeys(const QString& path) { ReadProfileSection("Setting", path, values_); }
    QString operator()(const char* key) const { return values_.value(QString::fromLatin1(key)); }
private:
    ProfileValues values_;
};
}  // namespace

RecordRead ReadRecordInto(const ContactId& contactId, InfoIdFrom infoId) {
    const QString path = RecordPath(contactId);
    if (!FileExists(path)) return RecordRead::Missing;
    const RecordKeys Key(path);
    ContactRecord& b = ContactBuffer;
    if (infoId != InfoIdFrom::Untouched) b.infoid = infoId == InfoIdFrom::File ? Key("infoid") : contactId;
    b.infoname = Key("infoname");
    b.category = Key("category");
    if (!TextToInt16(Key("country"), b.country)) return RecordRead::CountryNoNumber;
    b.tel1 = Key("tel1");
    b.ext1 = Key("ext1");
    b.tel2 = Key("tel2");
    b.ext2 = Key("ext2");
    b.mobile = Key("mobile");
    b.fax = Key("fax");
    b.company = Key("company");
    b.designation = Key("designation");
    b.addr = Key("addr");
    b.notes = Key("notes");
    b.mail = Key("mail");
    return RecordRead::Read;
}

namespace {
QByteArray Lines(const QList<std::pair<const char*, QString>>& pairs) {
    QString text = QStringLiteral("[Setting]\r\n");
    for (const auto& [key, value] : pairs) text += QString::fromLatin1(key) + "=" + value + "\r\n";
    return ToAnsi(text);
}
}  // namespace

bool ReadContact(const ContactId& contactId) {
    return ReadRecordInto(contactId, InfoIdFrom::Argument) == RecordRead::Read;
}
bool ReadContactWithId(const ContactId& contactId) {
    return ReadRecordInto(contactId, InfoIdFrom::File) == RecordRead::Read;
}

namespace {
// The text keys of a record and the buffer's field for each.
struct TextKey {
    const char* key;
    QString ContactRecord::*field;
};
constexpr TextKey kTextKeys[] = {
    {"infoid", &ContactRecord::infoid},     {"infoname", &ContactRecord::infoname},
    {"category", &ContactRecord::category}, {"tel1", &ContactRecord::tel1},
    {"ext1", &ContactRecord::ext1},         {"tel2", &ContactRecord::tel2},
    {"ext2", &ContactRecord::ext2},         {"mobile", &ContactRecord::mobile},
    {"fax", &ContactRecord::fax},           {"company", &ContactRecord::company},
    {"designation", &ContactRecord::designation}, {"addr", &ContactRecord::addr},
    {"notes", &ContactRecord::notes},       {"mail", &ContactRecord::mail},
};
}  // namespace

bool ReadContactKeys(const ContactId& contactId, std::initializer_list<const char*> keys) {
    const QString path = RecordPath(contactId);
    if (!FileExists(path)) return false;
    const RecordKeys Key(path);
    for (const char* key : keys)
        for (const TextKey& k : kTextKeys)
            if (qstrcmp(k.key, key) == 0) ContactBuffer.*k.field = Key(key);
    return true;
}

void SummaryIntoBuffer(const RecordSummary& summary) {
    ContactBuffer.infoname = summary.infoname;
    ContactBuffer.mail = summary.mail;
    ContactBuffer.category = summary.category;
    ContactBuffer.company = summary.company;
    ContactBuffer.designation = summary.designation;
}

bool ReadContactSummary(const QString& dataFolder, const ContactId& contactId) {
    const std::optional<RecordSummary> summary = ReadRecordSummaries({RecordPathIn(dataFolder, contactId)}).front();
    if (summary) SummaryIntoBuffer(*summary);
    return summary.has_value();
}

QString EncodeFieldText(const QString& text) {
    QString result = TrimSpaces(text);
    result.replace(QStringLiteral("\r\n"), QStringLiteral("<NextLine>"));
    result.replace(u'"', QStringLiteral("\"\""));
    return result;
}

QString DecodeNextLine(const QString& text) {
    QString result = text;
    return result.replace(QStringLiteral("<NextLine>"), QStringLiteral("\r\n"), Qt::CaseInsensitive);
}

// The same lines as from a buffer, with every typed field encoded.
QByteArray RecordTextFromForm(const ContactId& contactId, const ContactForm& f) {
    ContactRecord r;
    r.infoname = EncodeFieldText(f.name);
    r.country = qint16(f.countryIndex);
    r.category = f.categoryId;
    r.tel1 = EncodeFieldText(f.tel1);
    r.ext1 = EncodeFieldText(f.ext1);
    r.tel2 = EncodeFieldText(f.tel2);
    r.ext2 = EncodeFieldText(f.ext2);
    r.mobile = EncodeFieldText(f.mobile);
    r.fax = EncodeFieldText(f.fax);
    r.company = EncodeFieldText(f.company);
    r.designation = EncodeFieldText(f.designation);
    r.addr = EncodeFieldText(f.addr);
    r.notes = EncodeFieldText(f.notes);
    r.mail = EncodeFieldText(f.mail);
    return RecordTextFromBuffer(contactId, r);
}

QByteArray RecordTextFromBuffer(const ContactId& contactId, const ContactRecord& r, bool withNotes) {
    QList<std::pair<const char*, QString>> keys = {
        {"infoid", contactId},        {"infoname", r.infoname},
        {"country", QString::number(r.country)},
        {"category", r.category},     {"tel1", r.tel1},
        {"ext1", r.ext1},             {"tel2", r.tel2},
        {"ext2", r.ext2},             {"mobile", r.mobile},
        {"fax", r.fax},               {"company", r.company},
        {"designation", r.designation}, {"addr", r.addr},
        {"notes", r.notes},           {"mail", r.mail}};
    if (!withNotes) keys.removeAt(13);
    return Lines(keys);
}

bool WriteRecordFile(const QString& path, const QByteArray& text) {
    OutputFile file;
    return file.openForOutput(path) && file.write(text) && file.close();
}
