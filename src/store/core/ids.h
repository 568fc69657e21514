#pragma once
// Contact and category ids: five-digit, zero-padded decimal text. Record
// file names, index lines, tree node keys and drop-down items all use it.
#include <QString>

using ContactId = QString;
using CategoryId = QString;

// The text form of an id: 42 -> "00042".
QString IdText(int number);
