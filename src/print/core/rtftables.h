#pragma once
// The groups the converter cuts out of the RTF text before it reads tokens:
// the colour and font tables, which it reads, and the style sheet, the info
// and the list tables, which it drops.
#include <QString>

// Cuts the group around the control word at index `at` out of the text and
// returns it, braces included (the table readers look for the closing
// brace). The start is the "{" that balances the walk back (the text's start
// without one), the end the position behind the "}" that balances the walk
// forward, held to the text's length. In what is left, each CR LF CR LF
// becomes CR LF.
QString CutGroup(QString& text, qsizetype at);
// Fills RtfModule.ColorTable from "\colortbl" to the first ";}" behind it:
// one "RRGGBB" per "\red", in upper-case hexadecimal.
void ReadColorTable(const QString& group);
// Fills RtfModule.FontTable from "\fonttbl" to the first ";}}" behind it:
// font n's name stands between the first space behind "\f<n>" and the next
// ";". Numbers that do not run from 0 without a gap end the table.
void ReadFontTable(const QString& group);
