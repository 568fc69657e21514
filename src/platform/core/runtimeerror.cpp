#include "platform/core/runtimeerror.h"

#include "platform/core/msgbox.h"
#include "platform/core/stringlib.h"

QString RuntimeErrorDescription(int number) {
    switch (number) {
    case NoRuntimeError: return QString();
    case ErrOverflow: return QStringLiteral("Overflow");
    case ErrTypeMismatch: return QStringLiteral("Type mismatch");
    case ErrFileNotFound: return QStringLiteral("File not found");
    case ErrInputPastEnd: return QStringLiteral("Input past end of file");
    case ErrPermissionDenied: return QStringLiteral("Permission denied");
    case ErrPathFileAccess: return QStringLiteral("Path/File access error");
    case ErrPathNotFound: return QStringLiteral("Path not found");
    case ErrInvalidPropertyValue: return QStringLiteral("Invalid property value");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}

void ShowRuntimeError(const QString& description) {
    MsgBox(QStringLiteral("Error: ") + description, MsgCritical, LoadResString(998));
}
