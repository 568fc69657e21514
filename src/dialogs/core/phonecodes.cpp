#include "dialogs/core/phonecodes.h"

#include "app/core/libraries.h"

QList<PhoneCode> ScanPhoneCodes() {
    QList<PhoneCode> entries;
    int number = 200;
    while (number < 900) {
        const QString entry = GetPhoneCodeString(number);
        if (!entry.isEmpty()) {
            const qsizetype at = entry.indexOf(QStringLiteral("/="), 0, Qt::CaseInsensitive);
            if (at >= 0) entries.append({entry.left(at), entry.right(entry.size() - at - 2)});
        } else {
            const int firstDigit = QString::number(number).left(1).toInt();
            number = (QString::number(firstDigit + 1) + QStringLiteral("00")).toInt();
        }
        ++number;
    }
    return entries;
}

QString PhoneItemText(const PhoneCode& entry) {
    return entry.name.leftJustified(kPhoneNameWidth, u' ', true) + entry.code;
}
