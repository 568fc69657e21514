#pragma once
// One run of an export without the window: the values the run keeps, the
// id of the category, the file's name, and the file itself. The store is
// only read: the snapshot of cat.dat, the record files and category.dat.
#include <QString>
#include <functional>
#include "export/core/exportshapes.h"
#include "store/core/ids.h"

// The values of a run, set by its routine before the file is written.
extern QString ExportCountry;       // the main window's country text, trimmed
extern QString ExportCategoryName;  // the selected node's text without its count
extern CategoryId ExportCategoryId; // empty when no line of category.dat has that name
extern bool bCancelExport;          // set by Cancel of the progress dialog

// The id of the first line of category.dat whose name equals `name`
// exactly, or empty text. A category.dat that can't be read or holds a
// damaged line is a failure (RoutineFailure).
CategoryId ExportCategoryIdOf(const QString& name);

// Folder, country, "-", category, suffix, ".csv". Nothing is cleaned: a
// name a file can't have makes the open fail.
QString ExportFilePath(const QString& folder, const ExportShape& shape);

enum class ExportEnd { Done, Cancelled };

// Walks the snapshot of cat.dat and writes the file at `path`: the header,
// then a row for each line of ExportCountry and ExportCategoryId whose
// contact has a name. `yield` runs once per line, and bCancelExport is
// looked at after it. A cancelled file is left as far as it got, open until
// the process ends. A failure (the snapshot unread, a damaged line, the
// file not opened or not written) ends the walk through RoutineFailure.
ExportEnd WriteExportFile(const ExportShape& shape, const QString& path, const std::function<void()>& yield);
