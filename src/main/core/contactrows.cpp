#include "main/core/contactrows.h"

#include "platform/core/keeppainting.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/summaryreads.h"
#include "store/core/text.h"

bool ContactRowsFromLines(const QList<QStringView>& lines, const QString& country,
                          const QString& categoryId, QList<ContactRow>& rows) {
    if (lines.size() > kMaxListLines) return false;
    const QString dataFolder = DataFolder();
    QStringList ids, paths;
    ids.reserve(lines.size());
    paths.reserve(lines.size());
    bool whole = true;
    try {
        for (QStringView line : lines) {
            KeepWindowPainting();
            const auto [rowCountry, rowCategory, rowContact] = SplitCatLineViews(line);
            if (rowCountry != country || rowCategory != categoryId) continue;
            ids.append(rowContact.toString());
            paths.append(RecordPathIn(dataFolder, ids.last()));
        }
    } catch (const RoutineFailure&) {
        whole = false;  // the lines before the failing one still make their rows
    }
    // All records are read first, so that their openings may be shared out.
    const std::vector<std::optional<RecordSummary>> summaries = ReadRecordSummaries(paths);
    for (qsizetype i = 0; i < ids.size(); ++i) {
        if (summaries[size_t(i)]) SummaryIntoBuffer(*summaries[size_t(i)]);
        if (TrimSpaces(ContactBuffer.infoname).isEmpty()) continue;
        rows.append({ContactBuffer.infoname, ContactBuffer.mail, ContactBuffer.company, ContactBuffer.designation, ids[i]});
    }
    return whole;
}
