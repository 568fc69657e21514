#include "platform/core/profile.h"

#include <algorithm>
#include <optional>

#include <QByteArray>
#include <QFile>
#include <sys/stat.h>
#include <vector>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"

namespace {

long g_readCalls = 0;

bool IsBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

QString Trimmed(const QString& text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && IsBlank(text[from])) ++from;
    while (to > from && IsBlank(text[to - 1])) --to;
    return text.mid(from, to - from);
}

QByteArrayView TrimmedView(QByteArrayView v) {
    while (!v.isEmpty() && IsBlank(v.front())) v = v.sliced(1);
    while (!v.isEmpty() && IsBlank(v.back())) v.chop(1);
    return v;
}

QByteArray Trimmed(const QByteArray& bytes) { return TrimmedView(bytes).toByteArray(); }

bool SameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// One line of the file as bytes: [start, contentEnd) is its text without
// the line end, [contentEnd, end) the CR LF or LF that ends it, if any.
struct Line {
    qsizetype start = 0;
    qsizetype contentEnd = 0;
    qsizetype end = 0;
    bool hasLineEnd() const { return end > contentEnd; }
};

std::vector<Line> SplitLines(const QByteArray& bytes) {
    std::vector<Line> lines;
    qsizetype pos = 0;
    const qsizetype size = bytes.size();
    while (pos < size) {
        qsizetype lf = bytes.indexOf('\n', pos);
        Line line;
        line.start = pos;
        if (lf < 0) {
            line.contentEnd = line.end = size;
        } else {
            line.end = lf + 1;
            line.contentEnd = (lf > pos && bytes[lf - 1] == '\r') ? lf - 1 : lf;
        }
        lines.push_back(line);
        pos = line.end;
    }
    return lines;
}

enum class Kind { Other, Section, Key };

struct Parsed {
    Kind kind = Kind::Other;
    QString name;  // section name or key
};

Parsed ParseLine(const QByteArray& content) {
    Parsed p;
    const QString text = Trimmed(FromAnsi(content));
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype close = text.lastIndexOf(QLatin1Char(']'));
        if (close > 0) {
            p.kind = Kind::Section;
            p.name = Trimmed(text.mid(1, close - 1));
            return p;
        }
    }
    const qsizetype eq = text.indexOf(QLatin1Char('='));
    if (eq >= 0) {
        p.kind = Kind::Key;
        p.name = Trimmed(text.left(eq));
    }
    return p;
}

// Where a section and a key stand in the file. Only the first section of
// the name is looked at; a later section of the same name is never read nor
// written, which is how the Windows calls behave and what the settings file
// relies on.
struct Place {
    int header = -1;        // line of the section header
    int key = -1;           // first line of the key within that section
    int lastNonEmpty = -1;  // last line with text within that section
};

Place Find(const QByteArray& bytes, const std::vector<Line>& lines,
           const QString& section, const QString& key) {
    Place place;
    bool inSection = false;
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        const Line& line = lines[static_cast<size_t>(i)];
        const QByteArray content = bytes.mid(line.start, line.contentEnd - line.start);
        const Parsed p = ParseLine(content);
        if (p.kind == Kind::Section) {
            if (inSection) break;
            if (SameName(p.name, section)) {
                inSection = true;
                place.header = place.lastNonEmpty = i;
            }
            continue;
        }
        if (!inSection) continue;
        if (!Trimmed(content).isEmpty()) place.lastNonEmpty = i;
        if (p.kind == Kind::Key && place.key < 0 && SameName(p.name, key)) place.key = i;
    }
    return place;
}

QString DropQuotes(const QString& value) {
    if (value.size() >= 2 && value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"')))
        return value.mid(1, value.size() - 2);
    return value;
}

bool SomethingAt(const QString& path) {
    struct stat st;
    return ::lstat(QFile::encodeName(path).constData(), &st) == 0;
}

}  // namespace

int GetPrivateProfileString(const QString& section, const QString& key,
                            const QString& defaultValue, QString& buffer,
                            int size, const QString& file) {
    ++g_readCalls;
    // The default loses its trailing blanks, as the Windows call strips them.
    QString value = defaultValue;
    while (!value.isEmpty() && IsBlank(value.back())) value.chop(1);

    ProfileValues values;
    if (ReadProfileSection(section, file, values)) {
        auto found = values.constFind(Trimmed(key).toLower());
        if (found != values.constEnd()) value = *found;
    }

    if (size <= 0) {
        buffer.clear();
        return 0;
    }
    qsizetype count = qMin<qsizetype>(value.size(), size - 1);
    // Never end on half of a surrogate pair.
    if (count > 0 && count < value.size() && value[count - 1].isHighSurrogate()) --count;
    buffer = value.left(count);
    return static_cast<int>(count);
}

bool WritePrivateProfileString(const QString& section, const QString& key,
                               const QString& value, const QString& file) {
    const QString sectionName = Trimmed(section);
    const QString keyName = Trimmed(key);

    QByteArray old;
    if (!ReadWholeFile(file, old)) {
        // A file that is there but can't be read is not replaced by a new one.
        if (SomethingAt(file)) return false;
        old.clear();
    }

    const std::vector<Line> lines = SplitLines(old);
    const Place place = Find(old, lines, sectionName, keyName);
    const QByteArray encodedValue = ToAnsi(value);
    QByteArray fresh;

    if (place.key >= 0) {
        // In place: the line keeps its key as spelled in the file, every other
        // byte of the file stays as it was.
        const Line& line = lines[static_cast<size_t>(place.key)];
        const QByteArray content = old.mid(line.start, line.contentEnd - line.start);
        const QByteArray storedKey = Trimmed(content.left(content.indexOf('=')));
        fresh = old.left(line.start) + storedKey + '=' + encodedValue + old.mid(line.contentEnd);
    } else if (place.header >= 0) {
        // After the section's last line of text, before the blank lines that
        // part it from the next section.
        const Line& last = lines[static_cast<size_t>(place.lastNonEmpty)];
        QByteArray insert;
        if (!last.hasLineEnd()) insert += "\r\n";
        insert += ToAnsi(keyName) + '=' + encodedValue + "\r\n";
        fresh = old.left(last.end) + insert + old.mid(last.end);
    } else {
        fresh = old;
        if (!fresh.isEmpty() && !fresh.endsWith('\n')) fresh += "\r\n";
        fresh += '[' + ToAnsi(sectionName) + "]\r\n" + ToAnsi(keyName) + '=' + encodedValue + "\r\n";
    }

    if (fresh == old && !old.isEmpty()) return true;  // nothing changes
    return ReplaceFileContent(file, fresh);
}

long ProfileReadCallCount() { return g_readCalls; }

namespace {
QString Decoded(QByteArrayView v) { return FromAnsi(QByteArray::fromRawData(v.data(), v.size())); }

// For a header line, whether it names `wanted`; nothing for any other line.
std::optional<bool> HeaderNames(QByteArrayView line, const QString& wanted) {
    if (!line.startsWith('[')) return std::nullopt;
    const QString text = Decoded(line);
    const qsizetype close = text.lastIndexOf(u']');
    if (close <= 0) return std::nullopt;
    return Trimmed(text.mid(1, close - 1)).compare(wanted, Qt::CaseInsensitive) == 0;
}

// A key as the values are looked up by: in lower case.
QString KeyName(QByteArrayView key) { return Decoded(key).toLower(); }

// Which of `keys` (in lower case) a key of the file is, or -1. A key of
// plain letters compares as bytes; any other as text, where case folding
// may match more than the letters.
int KeyIndex(QByteArrayView key, std::initializer_list<QLatin1String> keys) {
    const bool ascii = AllAscii(key);
    const QString text = ascii ? QString() : Decoded(key);
    int i = 0;
    for (QLatin1String wanted : keys) {
        if (ascii ? key.size() == wanted.size() && qstrnicmp(key.data(), wanted.data(), size_t(key.size())) == 0
                  : text.compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
        ++i;
    }
    return -1;
}

QString ValueText(QByteArrayView value) { return DropQuotes(Decoded(TrimmedView(value))); }

// Calls `onKey(key, value)` for each key line of the first section of that
// name, the key trimmed, the value as it stands after the '='. The lines
// are walked as bytes and only what is kept is decoded: no line end, blank,
// '[' at a line's start or '=' stands inside a character of the code pages
// in use, so a line's parts decode as the whole file would.
template <typename OnKey>
void WalkSection(const QString& section, QByteArrayView all, OnKey onKey) {
    const QString wanted = Trimmed(section);
    bool inSection = false;
    qsizetype pos = 0;
    while (pos < all.size()) {
        qsizetype lf = all.indexOf('\n', pos);
        if (lf < 0) lf = all.size();
        QByteArrayView line = all.sliced(pos, lf - pos);
        pos = lf + 1;
        if (line.endsWith('\r')) line.chop(1);
        line = TrimmedView(line);
        if (const std::optional<bool> named = HeaderNames(line, wanted)) {
            if (inSection) break;  // only the first section of the name counts
            inSection = *named;
            continue;
        }
        if (!inSection) continue;
        const qsizetype eq = line.indexOf('=');
        if (eq >= 0) onKey(TrimmedView(line.first(eq)), line.sliced(eq + 1));
    }
}
}  // namespace

bool ReadProfileSection(const QString& section, const QString& file, ProfileValues& values) {
    values.clear();
    QByteArray bytes;
    if (!ReadWholeFile(file, bytes)) return false;
    WalkSection(section, bytes, [&](QByteArrayView key, QByteArrayView value) {
        const QString name = KeyName(key);
        if (!values.contains(name)) values.insert(name, ValueText(value));  // the first line of a key wins
    });
    return true;
}

QStringList ProfileSectionValues(const QString& section, const QByteArray& bytes,
                                 std::initializer_list<QLatin1String> keys) {
    QStringList values(qsizetype(keys.size()));
    std::vector<bool> found(keys.size());
    WalkSection(section, bytes, [&](QByteArrayView key, QByteArrayView value) {
        const int i = KeyIndex(key, keys);
        if (i >= 0 && !found[size_t(i)]) {  // the first line of a key wins
            found[size_t(i)] = true;
            values[i] = ValueText(value);
        }
    });
    return values;
}
