#pragma once
// Formatted reading and writing of the index files, as the streaming
// routines do it: fields in double quotes, separated by commas, CR LF after
// each line.
#include <QString>
#include <QStringView>

// Writes the fields between double quotes exactly as they stand (a double
// quote inside a field is written as it is), joined by commas, and CR LF.
void AppendLine(QString& out, std::initializer_list<QStringView> fields);

// Reads fields one at a time from the text of a file. A field in double
// quotes runs to the next double quote; a comma or a line end ends a field.
// Line ends are separators like commas, so a short line takes its missing
// fields from the next. Fields are views into the text.
class FieldReader {
public:
    explicit FieldReader(QStringView text) : text_(text) {}
    bool atEnd() const { return pos_ >= text_.size(); }
    // False when there is nothing left to read: "input past end of file".
    bool read(QStringView& field);
private:
    bool isDelimiter(qsizetype at) const;
    void skipDelimiter();
    QStringView text_;
    qsizetype pos_ = 0;
};
