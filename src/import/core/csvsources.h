#pragma once
// The two CSV sources: the files Yahoo! and IncrediMail export. A file is
// read whole, as text in the code page of CharsetId; its first line is the
// header, skipped unseen, and the element after its last line end is
// skipped too, so that a last row without a line end is lost. Columns are
// found by their place; the header's words are not read.
#include <QString>
#include <array>
#include "import/core/importsource.h"

enum class CsvRead {
    Read,
    NotCsv,      // the path doesn't end in ".csv", in any letter case
    BadContent,  // a Yahoo! row of fewer than 39 fields, an IncrediMail file without CR LF
    Unreadable,
};

// A Yahoo! row: the line split at the three characters "," (so a comma
// inside quotes stays in its field), every double quote removed from each
// piece. Place 0 holds the name, first, middle and last joined by blanks;
// place 27 the address, street, zip, city, state and country joined by
// blanks. False when the line has fewer than 39 fields.
using YahooRow = std::array<QString, 39>;
bool ParseYahooRow(const QString& line, YahooRow& row);

// Lines end at LF alone: a CR stays at the end of a line's last field. A
// bad row ends the read; the rows before it are the caller's to drop.
CsvRead ReadYahooFile(const QString& path, SourceSink& sink);
// Lines end at CR LF, fields at every comma: no quoting is known, and a
// short row gives empty fields.
CsvRead ReadIncrediFile(const QString& path, SourceSink& sink);
