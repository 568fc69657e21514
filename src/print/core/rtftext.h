#pragma once
// How the converter cuts an RTF text: into lines at CR LF, and each line into
// tokens. There is no parse into a tree.
#include <QString>

// Spaces off both ends, then one CR and one LF off each end, again and again
// until the length stops changing.
QString TrimCRLF(QString text);
// Takes the text up to the first CR of a CR LF (all of it without one) and
// returns it through TrimCRLF; the rest stays, through TrimCRLF too.
QString GetLine(QString& text);
// Takes the next token off the line. A control word runs to the next space or
// delimiter (\ { }); text runs to the next delimiter and keeps its spaces; a
// delimiter followed by a backslash does not end a token. Braces come off
// both ends of the token, and one space off the front of the line behind it.
// "}" at the front is a token of its own; a lone "{" gives an empty token.
QString GetToken(QString& line);
// Replaces every occurrence in one pass, going on behind each replacement.
// Positions are 16-bit: a hit past position 32767 fails (RoutineFailure).
QString ReplaceAll(const QString& text, const QString& find, const QString& with);
