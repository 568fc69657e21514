#pragma once
// The source each import form reads, and the way a test hands a form
// another.
#include <QString>
#include <functional>
#include <memory>
#include "import/core/importdesigns.h"
#include "import/core/importsource.h"

class QWidget;

// The desktop's open-file dialog for one CSV file, titled with string 303:
// the path chosen, trimmed, or empty text when the user cancels.
QString ChooseCsvFile(QWidget* owner);

// The source of a form of that kind; `form` is the form that reads it.
std::unique_ptr<ImportSource> SourceFor(ImportKind kind, QWidget* form);

// ---- for tests: the sources the forms get, until set to null ----
using SourceFactory = std::function<std::unique_ptr<ImportSource>(ImportKind kind)>;
void SetImportSourcesForTest(SourceFactory factory);
