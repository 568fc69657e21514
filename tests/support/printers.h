#pragma once
// Readable failure messages for Qt values in GoogleTest.
#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
inline void PrintTo(const QByteArray& b, std::ostream* os) {
    *os << '"';
    for (char c : b) {
        if (c == '\r') *os << "\\r";
        else if (c == '\n') *os << "\\n";
        else if (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x7f)
            *os << "\\x" << std::hex << (static_cast<unsigned char>(c) & 0xff) << std::dec;
        else *os << c;
    }
    *os << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* os) {
    *os << "{";
    for (const QString& s : list) *os << " \"" << s.toStdString() << "\"";
    *os << " }";
}
inline void PrintTo(const QMap<QString, QByteArray>& map, std::ostream* os) {
    *os << "{";
    for (auto it = map.begin(); it != map.end(); ++it) {
        *os << " " << it.key().toStdString() << "=";
        PrintTo(it.value(), os);
    }
    *os << " }";
}
