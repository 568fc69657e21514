#pragma once
// Text crosses every file of the store as bytes in a Windows code page, so
// that a drive written by the Windows program reads the same here. The code
// page follows the font charset number of [Setting] Charset.
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// Windows code page for a GDI charset number ("0" -> 1252). Unknown -> 1252.
int CodePageForCharset(const QString& charsetId);

// The code page in force for the whole process (default 1252).
void SetAnsiCodePage(int codePage);
int AnsiCodePage();

// Characters that the code page lacks become '?', as the Windows
// conversion does with its default character.
QByteArray ToAnsi(const QString& text);
QString FromAnsi(const QByteArray& bytes);

// Bytes of plain ASCII read the same in every code page in use.
bool AllAscii(QByteArrayView bytes);

// Same, for an explicit code page.
QByteArray ToCodePage(const QString& text, int codePage);
QString FromCodePage(const QByteArray& bytes, int codePage);
