#include "export/core/exportrow.h"

#include "store/core/record.h"
#include "store/core/text.h"

namespace {
struct Placeholder {
    const char* text;
    QString ContactRecord::*field;  // none: the literal stands in its place
    const char* literal;
};

// In the order of replacement.
const Placeholder kPlaceholders[] = {
    {"<NAME>", &ContactRecord::infoname, nullptr},
    {"<EMAIL>", &ContactRecord::mail, nullptr},
    {"<COMMENT>", &ContactRecord::notes, nullptr},
    {"<HOMETEL>", &ContactRecord::tel1, nullptr},
    {"<HOMESTREET>", &ContactRecord::addr, nullptr},
    {"<HOMEFAX>", &ContactRecord::fax, nullptr},
    {"<MOBILE>", &ContactRecord::mobile, nullptr},
    {"<BUSINESSPHONE>", &ContactRecord::tel2, nullptr},
    {"<COMPANY>", &ContactRecord::company, nullptr},
    {"<JOBTITLE>", &ContactRecord::designation, nullptr},
    {"<DC>", nullptr, "\"\""},
    {"<SC>", nullptr, "\""},
};
}  // namespace

bool FetchExportContact(const ContactId& contactId) {
    return ReadContactKeys(contactId, {"infoname", "mail", "category", "company", "designation", "notes",
                                       "tel1", "tel2", "mobile", "fax", "addr"});
}

QString FillExportRow(const QString& rowTemplate) {
    QString row = rowTemplate;
    for (const Placeholder& p : kPlaceholders) {
        const QString value = p.field ? TrimSpaces(ContactBuffer.*p.field) : QString::fromLatin1(p.literal);
        row.replace(QString::fromLatin1(p.text), value, Qt::CaseInsensitive);
    }
    return row;
}

QString BuildExportRow(const ExportShape& shape) {
    if (shape.addrComma) ContactBuffer.addr.replace(u',', QString::fromUtf16(shape.addrComma));
    return FillExportRow(QString::fromLatin1(shape.row));
}
