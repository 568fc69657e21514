#include "main/core/contactrows.h"

#include "store/core/failure.h"
#include "store/core/record.h"
#include "store/core/text.h"

bool ContactRowsFromLines(const QStringList& lines, const QString& country,
                          const QString& categoryId, QList<ContactRow>& rows) {
    if (lines.size() > kMaxListLines) return false;
    try {
        for (const QString& line : lines) {
            const QStringList parts = line.split(u',');
            const QString rowCountry = StripEnds(Element(parts, 0));
            const QString rowCategory = StripEnds(Element(parts, 1));
            const QString contactId = StripEnds(Element(parts, 2));
            if (rowCountry != country || rowCategory != categoryId) continue;
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
