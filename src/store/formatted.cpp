#include "store/formatted.h"

QString WriteLine(const QStringList& fields) {
    QString line;
    for (int i = 0; i < fields.size(); ++i) {
        if (i > 0) line += u',';
        line += u'"' + fields[i] + u'"';
    }
    return line + QStringLiteral("\r\n");
}

void FieldReader::skipDelimiter() {
    if (atEnd()) return;
    QChar c = text_[pos_];
    if (c == u',') {
        ++pos_;
    } else if (c == u'\r') {
        ++pos_;
        if (!atEnd() && text_[pos_] == u'\n') ++pos_;
    } else if (c == u'\n') {
        ++pos_;
    }
}

bool FieldReader::read(QString& field) {
    while (!atEnd() && (text_[pos_] == u' ' || text_[pos_] == u'\t')) ++pos_;
    if (atEnd()) return false;
    field.clear();
    if (text_[pos_] == u'"') {
        qsizetype close = text_.indexOf(u'"', pos_ + 1);
        if (close < 0) close = text_.size();
        field = text_.mid(pos_ + 1, close - pos_ - 1);
        pos_ = close + 1;
        // Whatever stands between the closing quote and the delimiter is dropped.
        while (!atEnd() && text_[pos_] != u',' && text_[pos_] != u'\r' && text_[pos_] != u'\n') ++pos_;
    } else {
        qsizetype start = pos_;
        while (!atEnd() && text_[pos_] != u',' && text_[pos_] != u'\r' && text_[pos_] != u'\n') ++pos_;
        field = text_.mid(start, pos_ - start);
        while (field.endsWith(u' ')) field.chop(1);
    }
    skipDelimiter();
    return true;
}
