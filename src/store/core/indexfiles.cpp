#include "store/core/indexfiles.h"

#include <functional>
#include <array>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/formatted.h"
#include "store/core/paths.h"
#include "store/core/text.h"

namespace {
bool g_fileNumberOpen[3] = {false, false, false};

bool Claim(int number) {
    if (g_fileNumberOpen[number]) return false;  // "file already open"
    g_fileNumberOpen[number] = true;
    return true;
}
void Release(int number) { g_fileNumberOpen[number] = false; }

// Adds one line to the work copy, then renames it to the staged file. An
// append to a missing work copy makes a file of the one new line.
bool Append(const QString& index, std::initializer_list<QStringView> fields) {
    const QString staged = StagedIndex(index);
    if (!KillIfExists(staged)) return false;
    if (g_fileNumberOpen[1]) return false;
    OutputFile file;
    if (!file.openForAppend(WorkCopy(index))) return false;
    Claim(1);
    QString line;
    AppendLine(line, fields);
    if (!file.write(ToAnsi(line)) || !file.close()) return false;
    Release(1);
    if (!MoveFile(WorkCopy(index), staged)) return false;
    return FileExists(staged);
}

enum class PastEnd { Fails, EndsFile };

// Writes the line to keep for a line read (or nothing, to leave it out).
using Fields = std::array<QStringView, 3>;
using LineRule = std::function<void(QString& out, const Fields& fields)>;

// Streams the work copy (file number 2) into the staged file (number 1),
// line by line, by formatted reading and writing.
bool Stream(const QString& index, int fieldCount, const LineRule& rule, PastEnd pastEnd,
            const std::function<void(QString& out)>& tail = {}) {
    const QString staged = StagedIndex(index);
    if (g_fileNumberOpen[1]) return false;
    OutputFile output;
    if (!output.openForOutput(staged)) return false;
    Claim(1);
    if (g_fileNumberOpen[2]) return false;
    QByteArray input;
    if (!ReadWholeFile(WorkCopy(index), input)) return false;
    Claim(2);
    const QString text = FromAnsi(input);
    FieldReader reader(text);
    QString out;
    out.reserve(text.size() + 64);
    bool endedEarly = false;
    while (!reader.atEnd() && !endedEarly) {
        Fields fields;
        for (int i = 0; i < fieldCount && !endedEarly; ++i) {
            if (reader.read(fields[i])) continue;
            if (pastEnd == PastEnd::Fails) return false;
            endedEarly = true;
        }
        if (!endedEarly) rule(out, fields);
    }
    if (!endedEarly && tail) tail(out);
    if (!output.write(ToAnsi(out)) || !output.close()) return false;
    Release(1);
    Release(2);
    if (endedEarly) return true;
    return FileExists(staged);
}

LineRule RemoveWhere(int field, const ContactId& contactId, int fieldCount) {
    return [=](QString& out, const Fields& f) {
        if (f[field] == contactId) return;
        if (fieldCount == 3) AppendLine(out, {f[0], f[1], f[2]});
        else AppendLine(out, {f[0], f[1]});
    };
}
}  // namespace

bool AppendCatLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId) {
    return Append("cat", {country, categoryId, contactId});
}

bool AppendCtyLine(const ContactId& contactId, const QString& country) {
    return Append("cty", {country, contactId});
}

bool AppendNameLine(const ContactId& contactId, const QString& name) {
    return Append("name", {contactId, name});
}

bool ReplaceCatLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId) {
    return Stream("cat", 3, [&](QString& out, const Fields& f) {
        if (f[2] != contactId) AppendLine(out, {f[0], f[1], f[2]});
        else AppendLine(out, {country, categoryId, contactId});
    }, PastEnd::Fails);
}

bool ReplaceCtyLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId,
                    CtyReplace mode) {
    const QString& second = mode == CtyReplace::CategoryIdInPlaceOfContact ? categoryId : contactId;
    return Stream("cty", 2, [&](QString& out, const Fields& f) {
        if (f[1] != contactId) AppendLine(out, {f[0], f[1]});
        else AppendLine(out, {country, second});
    }, PastEnd::Fails);
}

bool ReplaceNameLine(const ContactId& contactId, const QString& name, NameReplace mode) {
    bool matched = false;
    return Stream("name", 2, [&](QString& out, const Fields& f) {
        if (f[0] != contactId) {
            AppendLine(out, {f[0], f[1]});
            return;
        }
        matched = true;
        AppendLine(out, {f[0], name});
    }, PastEnd::Fails, [&](QString& out) {
        if (!matched && mode == NameReplace::AppendWhenMissing) AppendLine(out, {contactId, name});
    });
}

bool RemoveCatLine(const ContactId& contactId) {
    return Stream("cat", 3, RemoveWhere(2, contactId, 3), PastEnd::Fails);
}

bool RemoveCtyLine(const ContactId& contactId) {
    return Stream("cty", 2, RemoveWhere(1, contactId, 2), PastEnd::Fails);
}

bool RemoveNameLine(const ContactId& contactId) {
    return Stream("name", 2, RemoveWhere(0, contactId, 2), PastEnd::EndsFile);
}

CatLine SplitCatLine(const QString& line) {
    const QStringList parts = line.split(u',');
    return {StripEnds(Element(parts, 0)), StripEnds(Element(parts, 1)), StripEnds(Element(parts, 2))};
}

NameLine SplitNameLine(const QString& line) {
    QStringList pieces = line.split(QStringLiteral("\",\""));
    for (QString& piece : pieces) piece.remove(u'"');
    if (pieces.size() == 2) return {pieces[0], pieces[1]};
    return {pieces.value(0), QString()};
}

bool FileNumberInUse(int number) { return number >= 1 && number <= 2 && g_fileNumberOpen[number]; }

void ReleaseFileNumbersForTest() {
    Release(1);
    Release(2);
}
