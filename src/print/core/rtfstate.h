#pragma once
// The state of the RTF to HTML converter. It lives in module variables from
// one call to the next: one conversion runs at a time, the entry routine
// resets the lists and the output, and the font scalars carry over until a
// brace, \pard or \plain resets them.
//
// The four format lists are addressed from 1 in the converter's rules;
// position i is element i - 1 here, and an empty list has the highest
// position 0.
#include <QString>
#include <QStringList>

struct RtfState {
    QStringList Codes;         // closing tags of the current formats, oldest first
    QStringList BegCodes;      // their opening tags; an empty text marks a format as ended
    QStringList NextCodes;     // closing tags of formats that take effect at the next text
    QStringList NextBegCodes;  // their opening tags

    QString Output;      // the HTML so far
    QString BeforeText;  // closing tags waiting for the next text
    QString BreakText;   // line breaks waiting for the next text
    QString OpenText;    // opening tags waiting for the next text
    QString LineEnd;     // CR LF with the option "+CR"
    bool AtLineStart = true;
    qint32 SkipTokens = 0;  // tokens still to be ignored

    QStringList ColorTable;  // "RRGGBB", colour n at element n - 1
    QStringList FontTable;   // font names, font n at element n
    QString FontColor;       // "#RRGGBB" or empty
    QString FontSize;        // "1" to "8" or empty
    QString FontFace;
    QString FontTag;   // the last font tag built
    QString AlignTag;  // the last alignment tag built
};
extern RtfState RtfModule;
