#include "main/core/contactrows.h"

#include "platform/core/keeppainting.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/text.h"

bool ContactRowsFromLines(const QList<QStringView>& lines, const QString& country,
                          const QString& categoryId, QList<ContactRow>& rows) {
    if (lines.size() > kMaxListLines) return false;
    const QString dataFolder = DataFolder();
    try {
        for (QStringView line : lines) {
            KeepWindowPainting();
            const auto [rowCountry, rowCategory, rowContact] = SplitCatLineViews(line);
            if (rowCountry != country || rowCategory != categoryId) continue;
            const ContactId contactId = rowContact.toString();
            ReadContactSummary(dataFolder, contactId);
            if (TrimSpaces(ContactBuffer.infoname).isEmpty()) continue;
            rows.append({ContactBuffer.infoname, ContactBuffer.mail, ContactBuffer.company,
                         ContactBuffer.designation, contactId});
        }
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}
