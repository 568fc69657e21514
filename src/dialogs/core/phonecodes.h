#pragma once
// The phone code library read as the phone code look-up reads it.
#include <QList>
#include <QString>

struct PhoneCode {
    QString name;
    QString code;
};

// The entries from number 200 upward. The library holds runs per hundred,
// each starting at X00 or X01 and ending at the first number without a
// string; after an empty number the scan goes on at X01 of the next hundred,
// so X00 is looked at only for the first hundred, and a gap in 8XX ends it.
// An entry without "/=" is passed over.
QList<PhoneCode> ScanPhoneCodes();

// An item of the look-up's list: the name padded or cut to 100 characters,
// then the code.
QString PhoneItemText(const PhoneCode& entry);
constexpr int kPhoneNameWidth = 100;
