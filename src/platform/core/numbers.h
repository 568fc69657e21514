#pragma once
// Text to number and back as the language's run time converts them: the
// settings file and the record files hold numbers as decimal text.
#include <QString>

// Rounded to a whole number, half to even. False when the text is no
// number or lies outside the range.
bool TextToInt16(const QString& text, qint16& value);
bool TextToLong(const QString& text, long& value);
// A number written back as single-precision decimal text ("2069.858", "350").
QString SingleToText(double value);
