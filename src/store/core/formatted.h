#pragma once
// Formatted reading and writing of the index files, as the streaming
// routines do it: fields in double quotes, separated by commas, CR LF after
// each line. Both work on the file's bytes: no byte of a code page's double
// byte character is a quote, a comma, a space or a line end, so the fields
// come out the same as from the decoded text, and a field read is written
// back byte for byte, whatever the code page makes of it.
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

// Writes the fields between double quotes exactly as they stand (a double
// quote inside a field is written as it is), joined by commas, and CR LF.
void AppendLine(QByteArray& out, std::initializer_list<QByteArrayView> fields);
// The same for text, in the ANSI code page.
void AppendLine(QString& out, std::initializer_list<QStringView> fields);

// Reads fields one at a time from the bytes of a file. A field in double
// quotes runs to the next double quote; a comma or a line end ends a field.
// Line ends are separators like commas, so a short line takes its missing
// fields from the next. Fields are views into the bytes.
class FieldReader {
public:
    explicit FieldReader(QByteArrayView bytes) : bytes_(bytes) {}
    bool atEnd() const { return pos_ >= bytes_.size(); }
    // False when there is nothing left to read: "input past end of file".
    bool read(QByteArrayView& field);
    // Reads `count` fields at once when they stand as formatted writing
    // puts them, "a","b","c" and CR LF, none holding a double quote: the
    // bytes read are then exactly the line AppendLine would write of the
    // fields. Otherwise false, and nothing is read.
    bool readPlainLine(QByteArrayView* fields, int count);
    qsizetype position() const { return pos_; }
private:
    bool isDelimiter(qsizetype at) const;
    void skipDelimiter();
    QByteArrayView bytes_;
    qsizetype pos_ = 0;
};
