#include "store/core/formatted.h"

void AppendLine(QString& out, std::initializer_list<QStringView> fields) {
    bool first = true;
    for (QStringView field : fields) {
        if (!first) out += u',';
        first = false;
        out += u'"';
        out += field;
        out += u'"';
    }
    out += QStringLiteral("\r\n");
}

bool FieldReader::isDelimiter(qsizetype at) const {
    const QChar c = text_[at];
    return c == u',' || c == u'\r' || c == u'\n';
}

void FieldReader::skipDelimiter() {
    if (atEnd()) return;
    const QChar c = text_[pos_];
    if (c == u',') {
        ++pos_;
    } else if (c == u'\r') {
        ++pos_;
        if (!atEnd() && text_[pos_] == u'\n') ++pos_;
    } else if (c == u'\n') {
        ++pos_;
    }
}

bool FieldReader::read(QStringView& field) {
    while (!atEnd() && (text_[pos_] == u' ' || text_[pos_] == u'\t')) ++pos_;
    if (atEnd()) return false;
    if (text_[pos_] == u'"') {
        qsizetype close = text_.indexOf(u'"', pos_ + 1);
        if (close < 0) close = text_.size();
        field = text_.mid(pos_ + 1, close - pos_ - 1);
        pos_ = close + 1;
        // Whatever stands between the closing quote and the delimiter is dropped.
        while (!atEnd() && !isDelimiter(pos_)) ++pos_;
    } else {
        const qsizetype start = pos_;
        while (!atEnd() && !isDelimiter(pos_)) ++pos_;
        qsizetype end = pos_;
        while (end > start && text_[end - 1] == u' ') --end;
        field = text_.mid(start, end - start);
    }
    skipDelimiter();
    return true;
}
