#include "main/core/contactrows.h"

#include <array>

#include "platform/core/keeppainting.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/record.h"
#include "store/core/text.h"

namespace {
// SplitCatLine without copies: the list walks every line of the snapshot
// and keeps a few.
std::array<QStringView, 3> CatFields(QStringView line) {
    std::array<QStringView, 3> fields;
    qsizetype start = 0;
    for (int i = 0; i < 3; ++i) {
        if (start > line.size()) throw RoutineFailure("Subscript out of range");
        qsizetype comma = line.indexOf(u',', start);
        if (comma < 0) comma = line.size();
        fields[i] = line.mid(start, comma - start);
        start = comma + 1;
    }
    for (QStringView& field : fields) field = StripEndsOfView(field);
    return fields;
}
}  // namespace

bool ContactRowsFromLines(const QStringList& lines, const QString& country,
                          const QString& categoryId, QList<ContactRow>& rows) {
    if (lines.size() > kMaxListLines) return false;
    try {
        for (const QString& line : lines) {
            KeepWindowPainting();
            const auto [rowCountry, rowCategory, rowContact] = CatFields(line);
            if (rowCountry != country || rowCategory != categoryId) continue;
            const ContactId contactId = rowContact.toString();
            ReadContactSummary(contactId);
            if (TrimSpaces(ContactBuffer.infoname).isEmpty()) continue;
            rows.append({ContactBuffer.infoname, ContactBuffer.mail, ContactBuffer.company,
                         ContactBuffer.designation, contactId});
        }
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}
