#pragma once
// The language run time's descriptions of its error numbers, which some
// failure messages show after "Error: ".
#include <QString>

enum RuntimeError {
    NoRuntimeError = 0,
    ErrOverflow = 6,
    ErrTypeMismatch = 13,
    ErrFileNotFound = 53,
    ErrInputPastEnd = 62,
    ErrPermissionDenied = 70,
    ErrPathFileAccess = 75,
    ErrPathNotFound = 76,
    ErrInvalidPropertyValue = 380,
};

// The description of a number; empty text for 0.
QString RuntimeErrorDescription(int number);

// Shows "Error: " and the description with the critical icon, under the
// title the run time gives a box without one: the program's name.
void ShowRuntimeError(const QString& description);
