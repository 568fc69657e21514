#include "store/core/formatted.h"

#include <bit>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {
template <typename Out, typename Field>
void Join(Out& out, std::initializer_list<Field> fields) {
    bool first = true;
    for (Field field : fields) {
        if (!first) out += ',';
        first = false;
        out += '"';
        out += field;
        out += '"';
    }
    out += "\r\n";
}
}  // namespace

void AppendLine(QByteArray& out, std::initializer_list<QByteArrayView> fields) { Join(out, fields); }
void AppendLine(QString& out, std::initializer_list<QStringView> fields) { Join(out, fields); }

bool FieldReader::isDelimiter(qsizetype at) const {
    const char c = bytes_[at];
    return c == ',' || c == '\r' || c == '\n';
}

void FieldReader::skipDelimiter() {
    if (atEnd()) return;
    const char c = bytes_[pos_];
    if (c == ',') {
        ++pos_;
    } else if (c == '\r') {
        ++pos_;
        if (!atEnd() && bytes_[pos_] == '\n') ++pos_;
    } else if (c == '\n') {
        ++pos_;
    }
}

bool FieldReader::read(QByteArrayView& field) {
    while (!atEnd() && (bytes_[pos_] == ' ' || bytes_[pos_] == '\t')) ++pos_;
    if (atEnd()) return false;
    if (bytes_[pos_] == '"') {
        qsizetype close = bytes_.indexOf('"', pos_ + 1);
        if (close < 0) close = bytes_.size();
        field = bytes_.sliced(pos_ + 1, close - pos_ - 1);
        pos_ = close + 1;
        // Whatever stands between the closing quote and the delimiter is dropped.
        while (!atEnd() && !isDelimiter(pos_)) ++pos_;
    } else {
        const qsizetype start = pos_;
        while (!atEnd() && !isDelimiter(pos_)) ++pos_;
        qsizetype end = pos_;
        while (end > start && bytes_[end - 1] == ' ') --end;
        field = bytes_.sliced(start, end - start);
    }
    skipDelimiter();
    return true;
}

namespace {
// The first double quote from `p` on, or `end`. Fields are a few bytes
// long: sixteen bytes are looked at in one step, with no call.
inline const char* NextQuote(const char* p, const char* end) {
#ifdef __SSE2__
    const __m128i quote = _mm_set1_epi8('"');
    for (; end - p >= 16; p += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const unsigned found = unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(block, quote)));
        if (found) return p + std::countr_zero(found);
    }
#endif
    while (p != end && *p != '"') ++p;
    return p;
}
}  // namespace

// Called once per line of files of tens of thousands of lines: it works on
// the bytes directly.
bool FieldReader::readPlainLine(QByteArrayView* fields, int count) {
    const char* const begin = bytes_.data();
    const char* const end = begin + bytes_.size();
    const char* at = begin + pos_;
    for (int i = 0; i < count; ++i) {
        if (at == end || *at != '"') return false;
        const char* close = NextQuote(at + 1, end);
        if (close == end) return false;
        fields[i] = QByteArrayView(at + 1, close - at - 1);
        at = close + 1;
        if (i < count - 1) {
            if (at == end || *at != ',') return false;
            at += 1;
        } else {
            if (end - at < 2 || at[0] != '\r' || at[1] != '\n') return false;
            at += 2;
        }
    }
    pos_ = at - begin;
    return true;
}
