#pragma once
// The program's texts are 16-bit characters, its pages single bytes of the
// code page. A wide character (a code unit above 255) crosses that border
// written out as "\u", its code and "?", which the page composer later turns
// into a numeric character reference.
#include <QChar>
#include <QString>

bool IsWideChar(QChar c);
// Every wide character as "\u<code>?", the code always unsigned.
QString EncodeWide(const QString& text);
