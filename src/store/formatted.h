#pragma once
// Formatted reading and writing of the index files, as the streaming
// routines do it: fields in double quotes, separated by commas, CR LF after
// each line.
#include <QByteArray>
#include <QString>
#include <QStringList>

// Writes the fields between double quotes exactly as they stand (a double
// quote inside a field is written as it is), joined by commas, and CR LF.
QString WriteLine(const QStringList& fields);

// Reads fields one at a time from the text of a file. A field in double
// quotes runs to the next double quote; a comma or a line end ends a field.
// Line ends are separators like commas, so a short line takes its missing
// fields from the next.
class FieldReader {
public:
    explicit FieldReader(const QString& text) : text_(text) {}
    bool atEnd() const { return pos_ >= text_.size(); }
    // False when there is nothing left to read: "input past end of file".
    bool read(QString& field);
private:
    void skipDelimiter();
    QString text_;
    qsizetype pos_ = 0;
};
