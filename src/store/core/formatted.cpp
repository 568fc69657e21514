#include "store/core/formatted.h"

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

bool FieldReader::readPlainLine(QByteArrayView* fields, int count) {
    qsizetype at = pos_;
    for (int i = 0; i < count; ++i) {
        if (at >= bytes_.size() || bytes_[at] != '"') return false;
        const qsizetype close = bytes_.indexOf('"', at + 1);
        if (close < 0) return false;
        fields[i] = bytes_.sliced(at + 1, close - at - 1);
        at = close + 1;
        const bool last = i == count - 1;
        const QByteArrayView after = last ? QByteArrayView("\r\n") : QByteArrayView(",");
        if (!bytes_.sliced(at).startsWith(after)) return false;
        at += after.size();
    }
    pos_ = at;
    return true;
}
