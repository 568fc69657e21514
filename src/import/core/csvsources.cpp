#include "import/core/csvsources.h"

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/record.h"
#include "store/core/text.h"

namespace {
// The extension is the last four characters of the path.
bool HasCsvExtension(const QString& path) { return path.right(4).toUpper() == QStringLiteral(".CSV"); }

// The file's lines split at `lineEnd`; false when it can't be read.
CsvRead ReadLines(const QString& path, const QString& lineEnd, QStringList& lines) {
    if (!HasCsvExtension(path)) return CsvRead::NotCsv;
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return CsvRead::Unreadable;
    lines = FromAnsi(bytes).split(lineEnd);
    return CsvRead::Read;
}

QString Joined(std::initializer_list<QString> parts) { return QStringList(parts).join(u' '); }

// A part of an IncrediMail address, with its mark behind it when it has text.
QString Marked(const QString& part, char mark) { return part.isEmpty() ? part : part + QLatin1Char(mark); }
}  // namespace

bool ParseYahooRow(const QString& line, YahooRow& row) {
    QStringList pieces = line.split(QStringLiteral("\",\""));
    if (pieces.size() < int(row.size())) return false;
    for (size_t i = 0; i < row.size(); ++i) row[i] = pieces[int(i)].remove(u'"');
    row[0] = Joined({row[0], row[1], row[2]});
    row[27] = Joined({row[27], row[30], row[28], row[29], row[31]});
    return true;
}

CsvRead ReadYahooFile(const QString& path, SourceSink& sink) {
    QStringList lines;
    const CsvRead read = ReadLines(path, QStringLiteral("\n"), lines);
    if (read != CsvRead::Read) return read;
    const int total = int(lines.size()) - 2;
    for (int i = 1; i <= total; ++i) {
        sink.ShowCount(i, total);
        YahooRow f;
        if (!ParseYahooRow(lines[i], f)) return CsvRead::BadContent;
        // A contact with only an e-mail address is named by it.
        const QString name = TrimSpaces(f[0]).isEmpty() ? f[4] : TrimSpaces(f[0]);
        sink.AddRow({name, f[4], f[8], EncodeFieldText(f[38]), f[21], f[20], f[9], f[12], f[11], EncodeFieldText(f[27])});
    }
    return CsvRead::Read;
}

CsvRead ReadIncrediFile(const QString& path, SourceSink& sink) {
    QStringList lines;
    const CsvRead read = ReadLines(path, QStringLiteral("\r\n"), lines);
    if (read != CsvRead::Read) return read;
    if (lines.size() == 1) return CsvRead::BadContent;
    const int total = int(lines.size()) - 2;
    for (int i = 1; i <= total; ++i) {
        sink.ShowCount(i, total);
        const QStringList f = lines[i].split(u',');
        auto at = [&f](int j) { return f.value(j); };
        // Fields stand as they are, untrimmed, but for the note, which gets
        // a point, and the address, built from five parts without blanks.
        const QString note = TrimSpaces(at(6));
        const QString address = TrimSpaces(at(9) + at(10) + Marked(at(12), ',') + Marked(at(11), '.') + Marked(at(13), '.'));
        // The name of a row without a display name is its e-mail address.
        const QString name = at(3).isEmpty() ? at(4) : at(3);
        sink.AddRow({name, at(4), at(8), Marked(note, '.'), at(18), at(24), at(17), at(15), at(14), address});
    }
    return CsvRead::Read;
}
