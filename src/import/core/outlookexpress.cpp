#include "import/core/outlookexpress.h"

#include <exception>
#include "app/core/libraries.h"
#include "platform/core/codepage.h"
#include "platform/core/msgbox.h"
#include "store/core/indexfiles.h"

namespace {
// A line of other than two pieces: the whole line, its quotes removed, is
// the name, and the e-mail stays empty.
SourceRow RowOf(const QString& line) {
    if (line.split("\",\"").size() != 2) return {QString(line).remove('"'), {}, {}, {}, {}, {}};
    const NameLine split = SplitNameLine(line);
    return {split.id, split.name, {}, {}, {}, {}};
}
}  // namespace

bool LoadOutlookExpress(SourceSink& sink, const AddressProtocol& protocol) {
    try {
        QByteArray buffer;
        qint32 length = 0;
        qint16 error = 0;
        protocol(0, buffer, length, error);
        if (error == 10) {
            MsgBox(GetLanguageString(611), MsgExclamation, GetLanguageString(300));
            return false;
        }
        if (length < 1) {
            MsgBox(GetLanguageString(614), MsgCritical, GetLanguageString(301));
            return false;
        }
        buffer = QByteArray(length, ' ');
        protocol(1, buffer, length, error);
        const QString text = FromAnsi(buffer);
        if (error != 0) {
            MsgBox(GetLanguageString(615), MsgCritical, GetLanguageString(301));
            return false;
        }
        const QStringList lines = text.split("\r\n");
        const int upper = int(lines.size()) - 1;
        // The counter's total is one below the upper bound, so that it ends
        // one above its total.
        for (int i = 0; i < upper; ++i) {
            sink.ShowCount(i + 1, upper - 1);
            sink.AddRow(RowOf(lines[i]));
        }
    } catch (const std::exception&) {
        // Every failure ends the read like its normal end: the rows so far.
    }
    sink.ClearCount();
    return true;
}
