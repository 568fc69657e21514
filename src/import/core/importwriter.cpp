#include "import/core/importwriter.h"

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/numbers.h"
#include "store/core/batchwrites.h"
#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/text.h"

namespace {
bool ReadLines(const QString& path, QStringList& lines) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    lines = FromAnsi(bytes).split(QStringLiteral("\r\n"));
    lines.last().clear();  // the element past the last CR LF is the tables' empty one
    return true;
}

// A cat.dat field without its quotes, or no text where the field is
// missing or too short to strip: such a line never matches.
std::optional<QString> Field(const QStringList& fields, int i) {
    if (i >= fields.size() || fields[i].size() == 1) return std::nullopt;
    return StripEnds(fields[i]);
}
}  // namespace

bool ReadCommitTables(const ImportDesign& design, CommitTables& tables) {
    QStringList names, cat;
    if (!ReadLines(LiveIndex("name"), names) || !ReadLines(LiveIndex("cat"), cat)) return false;
    for (const QString& line : names) {
        const NameLine split = SplitNameLine(line);
        tables.idsByName[split.name.toUpper()] << split.id;
    }
    for (const QString& line : cat) {
        const QStringList fields = line.split(u',');
        const auto country = Field(fields, 0), category = Field(fields, 1), id = Field(fields, 2);
        if (country && category && id) tables.placesById[*id].append({*category, *country});
    }
    if (!design.categoryFromFolder) return true;
    if (!ReadCategoryLines(CategoryFile(), tables.categories)) return false;
    tables.categories.append(CategoryLine());
    return true;
}

std::optional<ContactId> FindClash(const CommitTables& tables, const QString& name, const CategoryId& category,
                                   const QString& country) {
    for (const ContactId& id : tables.idsByName.value(name.toUpper()))
        for (const auto& place : tables.placesById.value(id))
            if (place.first == category && place.second == country) return id;
    return std::nullopt;
}

ContactRecord ImportRecordOf(const QStringList& row, const ImportDesign& design) {
    auto at = [&](int i) { return design.categoryFromFolder ? TrimSpaces(row.value(i)) : row.value(i); };
    ContactRecord r;
    r.infoname = at(3);
    r.mail = at(4);
    r.tel1 = at(5);
    r.notes = at(6);
    r.company = at(7);
    r.designation = at(8);
    TextToInt16(at(9), r.country);
    r.category = at(10);
    r.tel2 = at(11);
    r.mobile = at(12);
    r.fax = at(13);
    r.addr = at(14);
    return r;
}

StoreResult WriteImportedContact(ContactRecord record, WriterLists& lists, const CommitTables& tables,
                                 const ImportDesign& design) {
    const QString lastCountry = TrimSpaces(lists.countries.value(lists.country));
    if (design.categoryFromFolder)
        for (const CategoryLine& category : tables.categories)
            if (category.name == record.category) record.category = category.id;
    const std::optional<ContactId> clash = FindClash(tables, record.infoname, record.category, lastCountry);

    // The lists move to the row's values, and the record takes them back.
    if (record.country >= 0 && record.country < lists.countries.size()) lists.country = record.country;
    record.country = qint16(lists.country);
    if (!design.categoryFromFolder) {
        lists.category = FindCategoryIndex(lists.categories, record.category);
        record.category = CategoryIdFromItem(lists.categories.value(lists.category));
    }
    if (design.recordKeys == RecordKeys::NameMailPhone) {
        const ContactRecord row = record;
        record = ContactRecord();
        record.infoname = row.infoname;
        record.country = row.country;
        record.category = row.category;
        record.tel1 = row.tel1;
        record.mobile = row.mobile;
        record.mail = row.mail;
    }
    return WriteImportedRecord(record, lists.countries.value(lists.country), clash,
                               design.recordKeys == RecordKeys::All);
}
