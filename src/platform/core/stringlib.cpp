#include "platform/core/stringlib.h"

#include <QByteArray>
#include <map>
#include <unordered_map>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"

namespace {

using StringTable = std::unordered_map<int, QString>;

std::map<LibraryHandle, StringTable>& Libraries() {
    static std::map<LibraryHandle, StringTable> libraries;
    return libraries;
}

LibraryHandle g_lastHandle = 0;

// "\n" stands for a line break, "\\" for one backslash; any other
// backslash stays as it is.
QString Unescape(const QString& text) {
    if (!text.contains(QLatin1Char('\\'))) return text;
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\\') && i + 1 < text.size()) {
            const QChar next = text[i + 1];
            if (next == QLatin1Char('n')) {
                out += QLatin1String("\r\n");
                ++i;
                continue;
            }
            if (next == QLatin1Char('\\')) {
                out += QLatin1Char('\\');
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}

StringTable Parse(const QByteArray& bytes) {
    StringTable table;
    QByteArray data = bytes;
    if (data.startsWith("\xEF\xBB\xBF")) data.remove(0, 3);
    const QList<QByteArray> lines = data.split('\n');
    for (QByteArray line : lines) {
        if (line.endsWith('\r')) line.chop(1);
        const QByteArray head = line.trimmed();
        if (head.isEmpty() || head.startsWith('#')) continue;
        const qsizetype eq = line.indexOf('=');
        if (eq < 0) continue;
        bool ok = false;
        const int id = line.left(eq).trimmed().toInt(&ok);
        if (!ok) continue;
        // The first line of a number counts; the text after '=' is taken as
        // it stands, spaces included.
        table.emplace(id, Unescape(QString::fromUtf8(line.mid(eq + 1))));
    }
    return table;
}

bool IsDoubleByteCodePage(int codePage) {
    return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950;
}

bool IsLeadByte(unsigned char b, int codePage) {
    if (codePage == 932) return (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC);
    return b >= 0x81 && b <= 0xFE;  // 936, 949, 950
}

// The longest prefix of at most `room` bytes that doesn't end on the lead
// byte of a double-byte character.
qsizetype CutLength(const QByteArray& bytes, qsizetype room, int codePage) {
    if (bytes.size() <= room) return bytes.size();
    if (!IsDoubleByteCodePage(codePage)) return room;
    qsizetype pos = 0;
    while (pos < room) {
        const qsizetype step = IsLeadByte(static_cast<unsigned char>(bytes[pos]), codePage) ? 2 : 1;
        if (pos + step > room) break;
        pos += step;
    }
    return pos;
}

}  // namespace

LibraryHandle LoadLibrary(const QString& path) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) return 0;
    const LibraryHandle handle = ++g_lastHandle;
    Libraries().emplace(handle, Parse(bytes));
    return handle;
}

void FreeLibrary(LibraryHandle handle) { Libraries().erase(handle); }

int LoadStringA(LibraryHandle handle, int id, QByteArray& buffer, int limit) {
    buffer.clear();
    if (handle == 0 || limit <= 0) return 0;
    const auto library = Libraries().find(handle);
    if (library == Libraries().end()) return 0;
    const auto entry = library->second.find(id);
    if (entry == library->second.end()) return 0;
    const int codePage = AnsiCodePage();
    const QByteArray text = ToCodePage(entry->second, codePage);
    buffer = text.left(CutLength(text, limit - 1, codePage));
    return static_cast<int>(buffer.size());
}

QString LoadResString(int id) {
    switch (id) {
    case 997: return QStringLiteral("TA");
    case 998: return QStringLiteral("Tandry");
    case 1000: return QStringLiteral("https://tandry.example.org/support/");
    case 1001: return QStringLiteral("https://tandry.example.org/support/checkupdates.php");
    default: return QString();
    }
}
