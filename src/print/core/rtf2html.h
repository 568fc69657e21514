#pragma once
// RTF, as a rich text box gives it, to HTML. The converter knows bold,
// italic, underline, font colour, size and face, centre and right
// alignment, paragraph ends and \u characters; every other control word is
// dropped.
#include <QString>

// Options, found anywhere in the option text, with their case:
//   "+CR"  a CR LF behind each <br> and each line of the page
//   "+H"   a whole page rather than a fragment
//   "+T="  the rest of the option text is the page's title (one double quote
//          off each end, all spaces removed)
// ("+I" is looked for and does nothing.) A failure (the 16-bit overflow of
// ReplaceAll) passes to the caller as RoutineFailure.
QString rtf2html(const QString& rtf, const QString& options);
