#pragma once
// Readable failure messages for Qt text in GoogleTest; lists and maps of
// them print through these element by element.
#include <QByteArray>
#include <QString>
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
