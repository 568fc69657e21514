#pragma once
// What the converter does with one token: text goes out with the tags that
// wait for it; the control words it knows change the formats; every other
// control word (\'hh, \tab, \li, \lang, ...) is dropped with whatever stuck
// to it, its number unread.
#include <QString>

// A token of at least 7 characters that begins with "\u" (and is not
// "\ulnone") is a Unicode character: every "\" becomes "&", every "u" "#",
// every "?" ";", also in text that stuck to it.
bool IsUnicodeToken(const QString& token);
void ProcessToken(const QString& token);
