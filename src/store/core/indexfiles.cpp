#include "store/core/indexfiles.h"

#include <functional>
#include <array>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/failure.h"
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

// The fields of a line read, as the file's bytes.
using Fields = std::array<QByteArrayView, 3>;

// Which lines a routine changes: those whose field `field` is `id`. A line
// that matches is handed to onMatch, which writes what stands in its place
// (or nothing, to leave it out); every other line is kept.
struct LineRule {
    int field;
    QByteArray id;
    std::function<void(QByteArray& out, const Fields& fields)> onMatch;
};

// Compared on every line of an index: ids differ most often in their last
// digits, so those are compared first, without a call.
bool SameId(QByteArrayView field, const QByteArray& id) {
    if (field.size() != id.size()) return false;
    for (qsizetype i = id.size() - 1; i >= 0; --i)
        if (field[i] != id[i]) return false;
    return true;
}

// A piece of a streamed file: bytes of the input, or of the lines written anew.
struct Piece {
    bool fresh;
    qsizetype start, length;
};

std::vector<QByteArrayView> Views(const std::vector<Piece>& pieces, const QByteArray& input, const QByteArray& fresh) {
    std::vector<QByteArrayView> views;
    views.reserve(pieces.size());
    for (const Piece& p : pieces)
        if (p.length > 0) views.push_back(QByteArrayView(p.fresh ? fresh : input).sliced(p.start, p.length));
    return views;
}

// A line kept that didn't stand as formatted writing puts it is written
// anew from its fields.
void Keep(QByteArray& out, const Fields& f, int fieldCount) {
    if (fieldCount == 3) AppendLine(out, {f[0], f[1], f[2]});
    else AppendLine(out, {f[0], f[1]});
}

// Streams the work copy (file number 2) into the staged file (number 1),
// line by line, by formatted reading and writing. The lines are read and
// compared as bytes: a line kept leaves as it came, and only a line the
// routine writes anew is converted to the code page. The kept lines that
// already stand as formatted writing would put them are copied in runs, so
// that a change of one line in a large file costs little more than the
// copy of the file.
bool Stream(const QString& index, int fieldCount, const LineRule& rule, PastEnd pastEnd,
            const std::function<void(QByteArray& out)>& tail = {}) {
    const QString staged = StagedIndex(index);
    if (g_fileNumberOpen[1]) return false;
    OutputFile output;
    if (!output.openForOutput(staged)) return false;
    Claim(1);
    if (g_fileNumberOpen[2]) return false;
    QByteArray input;
    if (!ReadWholeFile(WorkCopy(index), input)) return false;
    Claim(2);
    FieldReader reader(input);
    // The output as pieces, written in one go: runs of the input and the
    // lines written anew, so that the kept bytes are never copied in memory.
    QByteArray fresh;
    std::vector<Piece> pieces;
    const auto written = [&](auto write) {
        const qsizetype before = fresh.size();
        write(fresh);
        pieces.push_back({true, before, fresh.size() - before});
    };
    qsizetype runStart = 0;  // the plain lines kept from here on are not yet copied
    bool endedEarly = false;
    while (!reader.atEnd() && !endedEarly) {
        const qsizetype lineStart = reader.position();
        Fields fields;
        const bool plain = reader.readPlainLine(fields.data(), fieldCount);
        for (int i = 0; !plain && i < fieldCount && !endedEarly; ++i) {
            if (reader.read(fields[i])) continue;
            if (pastEnd == PastEnd::Fails) return false;
            endedEarly = true;
        }
        const bool matches = !endedEarly && SameId(fields[rule.field], rule.id);
        if (plain && !matches) continue;
        pieces.push_back({false, runStart, lineStart - runStart});
        runStart = reader.position();
        if (endedEarly) break;
        if (matches) written([&](QByteArray& out) { rule.onMatch(out, fields); });
        else written([&](QByteArray& out) { Keep(out, fields, fieldCount); });
    }
    if (!endedEarly) pieces.push_back({false, runStart, reader.position() - runStart});
    if (!endedEarly && tail) written(tail);
    if (!output.write(Views(pieces, input, fresh)) || !output.close()) return false;
    Release(1);
    Release(2);
    if (endedEarly) return true;
    return FileExists(staged);
}

LineRule RemoveWhere(int field, const ContactId& contactId) {
    return {field, contactId.toLatin1(), [](QByteArray&, const Fields&) {}};
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
    const QByteArray id = contactId.toLatin1();
    return Stream("cat", 3, {2, id, [&](QByteArray& out, const Fields&) {
        AppendLine(out, {ToAnsi(country), ToAnsi(categoryId), id});
    }}, PastEnd::Fails);
}

bool ReplaceCtyLine(const ContactId& contactId, const QString& country, const CategoryId& categoryId,
                    CtyReplace mode) {
    const QByteArray id = contactId.toLatin1();
    const QByteArray second = ToAnsi(mode == CtyReplace::CategoryIdInPlaceOfContact ? categoryId : contactId);
    return Stream("cty", 2, {1, id, [&](QByteArray& out, const Fields&) {
        AppendLine(out, {ToAnsi(country), second});
    }}, PastEnd::Fails);
}

bool ReplaceNameLine(const ContactId& contactId, const QString& name, NameReplace mode) {
    const QByteArray id = contactId.toLatin1();
    bool matched = false;
    return Stream("name", 2, {0, id, [&](QByteArray& out, const Fields& f) {
        matched = true;
        AppendLine(out, {f[0], ToAnsi(name)});
    }}, PastEnd::Fails, [&](QByteArray& out) {
        if (!matched && mode == NameReplace::AppendWhenMissing) AppendLine(out, {ToAnsi(contactId), ToAnsi(name)});
    });
}

bool RemoveCatLine(const ContactId& contactId) {
    return Stream("cat", 3, RemoveWhere(2, contactId), PastEnd::Fails);
}

bool RemoveCtyLine(const ContactId& contactId) {
    return Stream("cty", 2, RemoveWhere(1, contactId), PastEnd::Fails);
}

bool RemoveNameLine(const ContactId& contactId) {
    return Stream("name", 2, RemoveWhere(0, contactId), PastEnd::EndsFile);
}

CatLine SplitCatLine(const QString& line) {
    const auto [country, categoryId, contactId] = SplitCatLineViews(line);
    return {country.toString(), categoryId.toString(), contactId.toString()};
}

// Each field is stripped before the next is looked for, so a one-character
// field fails before a missing one after it, as a split of the whole line
// and its elements taken in order would.
std::array<QStringView, 3> SplitCatLineViews(QStringView line) {
    std::array<QStringView, 3> fields;
    qsizetype start = 0;
    for (QStringView& field : fields) {
        if (start > line.size()) throw RoutineFailure("Subscript out of range");
        qsizetype comma = line.indexOf(u',', start);
        if (comma < 0) comma = line.size();
        field = StripEndsOfView(line.sliced(start, comma - start));
        start = comma + 1;
    }
    return fields;
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
