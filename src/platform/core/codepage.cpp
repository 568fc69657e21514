#include "platform/core/codepage.h"

#include <QList>
#include <bit>
#include <cerrno>
#include <cstring>
#include <iconv.h>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace {

int g_ansiCodePage = 1252;

// Text in the converters is in UTF-32 of the machine's byte order, which is
// what QString::toUcs4 gives and fromUcs4 takes.
const char* const kUtf32 = std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

// One pair of conversion handles per code page, opened on first use and
// kept for the life of the process: store files are converted line by line,
// and opening a converter costs far more than one short conversion.
struct Converters {
    iconv_t encode = reinterpret_cast<iconv_t>(-1);  // UTF-32 -> code page
    iconv_t decode = reinterpret_cast<iconv_t>(-1);  // code page -> UTF-32
    // For the code pages of one byte a character, whose bytes stand alone,
    // both directions as tables, made once from the converter.
    bool tablesTried = false;
    std::vector<char16_t> byteToChar;      // 256 entries
    std::vector<unsigned char> charToByte; // 65536 entries, 0: not in the code page
};

const iconv_t kNoConverter = reinterpret_cast<iconv_t>(-1);

// Made once and kept to the process's end with the converters it holds: a
// converter is never closed, so the cache itself is never destroyed either.
std::unordered_map<int, Converters>& ConverterCache() {
    static auto* cache = new std::unordered_map<int, Converters>;
    return *cache;
}

// The cache, the tables made on first use and iconv's conversion state are
// shared by the threads that read records: one at a time. Recursive, as the
// tables are made by the decoder itself. The finished tables are only read,
// without it.
std::recursive_mutex& ConvertersLock() {
    static auto* lock = new std::recursive_mutex;
    return *lock;
}

Converters& ConvertersFor(int codePage) {
    auto& cache = ConverterCache();
    auto it = cache.find(codePage);
    if (it != cache.end()) return it->second;
    Converters c;
    const QByteArray name = "CP" + QByteArray::number(codePage);
    c.encode = iconv_open(name.constData(), kUtf32);
    c.decode = iconv_open(kUtf32, name.constData());
    return cache.emplace(codePage, c).first->second;
}

// The five bytes that Windows-1252 leaves undefined. Windows maps each to
// the C1 control of the same number, so that any byte survives a round trip
// through text; the system converter refuses them.
bool IsCp1252Gap(unsigned value) {
    return value == 0x81 || value == 0x8D || value == 0x8F || value == 0x90 || value == 0x9D;
}

bool AllAscii(const QString& text) {
    for (QChar c : text)
        if (c.unicode() >= 0x80) return false;
    return true;
}

const size_t kFailed = static_cast<size_t>(-1);

// Runs the converter over the input (or, with no input, lets it put out
// what it still holds back) into `out` from `used` on, growing `out` when it
// is full. Returns false when it stopped at a sequence it can't convert.
bool Run(iconv_t cd, char** in, size_t* inLeft, std::vector<char>& out, size_t& used) {
    for (;;) {
        if (out.size() - used < 16) out.resize(out.size() * 2 + 64);
        char* outPtr = out.data() + used;
        size_t outLeft = out.size() - used;
        const size_t r = in ? iconv(cd, in, inLeft, &outPtr, &outLeft)
                            : iconv(cd, nullptr, nullptr, &outPtr, &outLeft);
        const int err = errno;
        used = static_cast<size_t>(outPtr - out.data());
        if (r != kFailed) return true;
        if (err == E2BIG) continue;
        return false;
    }
}

void Append(std::vector<char>& out, size_t& used, const void* data, size_t size) {
    if (out.size() - used < size) out.resize(out.size() * 2 + size + 64);
    std::memcpy(out.data() + used, data, size);
    used += size;
}

}  // namespace

int CodePageForCharset(const QString& charsetId) {
    bool ok = false;
    const int charset = charsetId.trimmed().toInt(&ok);
    if (!ok) return 1252;
    switch (charset) {
    case 238: return 1250;  // Eastern Europe
    case 204: return 1251;  // Russian
    case 161: return 1253;  // Greek
    case 162: return 1254;  // Turkish
    case 177: return 1255;  // Hebrew
    case 178: return 1256;  // Arabic
    case 186: return 1257;  // Baltic
    case 163: return 1258;  // Vietnamese
    case 222: return 874;   // Thai
    case 128: return 932;   // Japanese
    case 134: return 936;   // Simplified Chinese
    case 129: return 949;   // Korean
    case 136: return 950;   // Traditional Chinese
    default: return 1252;   // 0 (ANSI), 1 (default), 2 (symbol) and the rest
    }
}

void SetAnsiCodePage(int codePage) { g_ansiCodePage = codePage; }
int AnsiCodePage() { return g_ansiCodePage; }

QByteArray ToAnsi(const QString& text) { return ToCodePage(text, g_ansiCodePage); }
QString FromAnsi(const QByteArray& bytes) { return FromCodePage(bytes, g_ansiCodePage); }

namespace {

QByteArray IconvEncode(const QString& text, int codePage) {
    const std::lock_guard lock(ConvertersLock());
    QList<uint> points = text.toUcs4();
    Converters& conv = ConvertersFor(codePage);
    if (conv.encode == kNoConverter) {
        QByteArray out;
        out.reserve(points.size());
        for (uint p : points) out.append(p < 0x80 ? static_cast<char>(p) : '?');
        return out;
    }

    std::vector<char> out(static_cast<size_t>(points.size()) * 2 + 16);
    size_t used = 0;
    char* in = reinterpret_cast<char*>(points.data());
    size_t inLeft = static_cast<size_t>(points.size()) * 4;
    iconv(conv.encode, nullptr, nullptr, nullptr, nullptr);
    while (!Run(conv.encode, &in, &inLeft, out, used)) {
        if (inLeft < 4) break;
        // The code page lacks the character: one '?' for it, as Windows puts
        // its default character.
        uint point;
        std::memcpy(&point, in, 4);
        Run(conv.encode, nullptr, nullptr, out, used);
        iconv(conv.encode, nullptr, nullptr, nullptr, nullptr);
        const char replacement = (codePage == 1252 && IsCp1252Gap(point)) ? static_cast<char>(point) : '?';
        Append(out, used, &replacement, 1);
        in += 4;
        inLeft -= 4;
    }
    Run(conv.encode, nullptr, nullptr, out, used);
    return QByteArray(out.data(), static_cast<qsizetype>(used));
}

QString IconvDecode(const QByteArray& bytes, int codePage) {
    const std::lock_guard lock(ConvertersLock());
    Converters& conv = ConvertersFor(codePage);
    if (conv.decode == kNoConverter) {
        QString out;
        out.reserve(bytes.size());
        for (char b : bytes)
            out.append(static_cast<unsigned char>(b) < 0x80 ? QLatin1Char(b) : QChar(0xFFFD));
        return out;
    }

    std::vector<char> out(static_cast<size_t>(bytes.size()) * 4 + 16);
    size_t used = 0;
    char* in = const_cast<char*>(bytes.constData());
    size_t inLeft = static_cast<size_t>(bytes.size());
    iconv(conv.decode, nullptr, nullptr, nullptr, nullptr);
    while (inLeft > 0 && !Run(conv.decode, &in, &inLeft, out, used)) {
        // A byte the code page doesn't define, or a lead byte without its
        // trail byte: the byte is skipped and stands as U+FFFD, except the
        // five gaps of 1252, which Windows maps to C1 controls. What a
        // composing converter (1255, 1258) held back comes out first.
        const unsigned char bad = static_cast<unsigned char>(*in);
        Run(conv.decode, nullptr, nullptr, out, used);
        iconv(conv.decode, nullptr, nullptr, nullptr, nullptr);
        const char32_t replacement = (codePage == 1252 && IsCp1252Gap(bad)) ? char32_t(bad) : char32_t(0xFFFD);
        Append(out, used, &replacement, 4);
        ++in;
        --inLeft;
    }
    Run(conv.decode, nullptr, nullptr, out, used);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(out.data()),
                             static_cast<qsizetype>(used / 4));
}

// Single-byte code pages whose converter neither composes nor splits
// characters (1255 and 1258 do both, so they keep the converter).
bool HasByteTables(int codePage) {
    switch (codePage) {
    case 874: case 1250: case 1251: case 1252: case 1253: case 1254: case 1256: case 1257:
        return true;
    default:
        return false;
    }
}

const Converters* TablesFor(int codePage) {
    if (!HasByteTables(codePage)) return nullptr;
    const std::lock_guard lock(ConvertersLock());
    Converters& conv = ConvertersFor(codePage);
    if (!conv.tablesTried) {
        conv.tablesTried = true;
        if (conv.decode == kNoConverter) return nullptr;
        std::vector<char16_t> byteToChar(256);
        std::vector<unsigned char> charToByte(65536, 0);
        for (int b = 0; b < 256; ++b) {
            const QString one = IconvDecode(QByteArray(1, static_cast<char>(b)), codePage);
            if (one.size() != 1) return nullptr;
            byteToChar[static_cast<size_t>(b)] = one[0].unicode();
        }
        for (int b = 255; b >= 0x80; --b) {
            const char16_t c = byteToChar[static_cast<size_t>(b)];
            if (c != 0xFFFD && c >= 0x80) charToByte[c] = static_cast<unsigned char>(b);
        }
        conv.byteToChar = std::move(byteToChar);
        conv.charToByte = std::move(charToByte);
    }
    return conv.byteToChar.empty() ? nullptr : &conv;
}

}  // namespace

QByteArray ToCodePage(const QString& text, int codePage) {
    // Every code page in use keeps ASCII as it is.
    if (AllAscii(text)) return text.toLatin1();
    const Converters* tables = TablesFor(codePage);
    if (!tables) return IconvEncode(text, codePage);

    const qsizetype size = text.size();
    const QChar* src = text.constData();
    QByteArray out(size, Qt::Uninitialized);
    char* dst = out.data();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = src[i].unicode();
        if (c < 0x80) {
            *dst++ = static_cast<char>(c);
            continue;
        }
        // A character beyond the first plane is two units and one '?'.
        if (QChar::isHighSurrogate(c) && i + 1 < size && src[i + 1].isLowSurrogate()) ++i;
        const unsigned char b = tables->charToByte[c];
        *dst++ = b ? static_cast<char>(b) : '?';
    }
    out.truncate(dst - out.constData());
    return out;
}

bool AllAscii(QByteArrayView bytes) {
    for (char b : bytes)
        if (static_cast<unsigned char>(b) >= 0x80) return false;
    return true;
}

QString FromCodePage(const QByteArray& bytes, int codePage) {
    if (AllAscii(QByteArrayView(bytes))) return QString::fromLatin1(bytes);
    const Converters* tables = TablesFor(codePage);
    if (!tables) return IconvDecode(bytes, codePage);

    QString out(bytes.size(), Qt::Uninitialized);
    QChar* dst = out.data();
    for (char b : bytes) *dst++ = QChar(tables->byteToChar[static_cast<unsigned char>(b)]);
    return out;
}
