#include "app/core/placeholders.h"

#include "app/core/globals.h"

QString ReplaceText(const QString& text, const QString& placeholder, const QString& value) {
    QString result = text;
    return result.replace(placeholder, value, Qt::CaseInsensitive);
}

QString WithOwnerName(const QString& text) { return ReplaceText(text, "%username", OwnerName); }
