#include "export/core/exportrun.h"

#include <memory>
#include <vector>
#include "export/core/exportrow.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

QString ExportCountry;
QString ExportCategoryName;
CategoryId ExportCategoryId;
bool bCancelExport = false;

namespace {
// Files of cancelled runs: never closed by the program.
std::vector<std::unique_ptr<OutputFile>>& LeftOpen() {
    static std::vector<std::unique_ptr<OutputFile>> files;
    return files;
}

void Put(OutputFile& file, const QString& text) {
    if (!file.write(ToAnsi(text))) throw RoutineFailure("Path/File access error");
}
}  // namespace

CategoryId ExportCategoryIdOf(const QString& name) {
    QList<CategoryLine> lines;
    if (!ReadCategoryLines(CategoryFile(), lines)) throw RoutineFailure("category.dat could not be read");
    for (const CategoryLine& line : lines)
        if (line.name == name) return line.id;
    return CategoryId();
}

QString ExportFilePath(const QString& folder, const ExportShape& shape) {
    return folder + "/" + ExportCountry + "-" + ExportCategoryName + QString::fromLatin1(shape.suffix) + ".csv";
}

ExportEnd WriteExportFile(const ExportShape& shape, const QString& path, const std::function<void()>& yield) {
    QStringList snapshot;
    if (!ReadWholeFileLines(CatSnapshot(), snapshot)) throw RoutineFailure("File not found");
    const bool text = shape.mode == ExportFileMode::Text;
    const QString lineEnd = text ? QStringLiteral("\r\n") : QStringLiteral("\n");
    auto file = std::make_unique<OutputFile>();
    if (!(text ? file->openForOutput(path) : file->openForBinary(path)))
        throw RoutineFailure("Path/File access error");
    // The binary shape keeps its whole text until the end.
    QString whole = QString::fromLatin1(shape.header) + lineEnd;
    if (text) Put(*file, whole);
    for (const QString& line : snapshot) {
        yield();
        if (bCancelExport) {
            LeftOpen().push_back(std::move(file));
            return ExportEnd::Cancelled;
        }
        const CatLine cat = SplitCatLine(line);
        if (cat.country != ExportCountry || cat.categoryId != ExportCategoryId) continue;
        // A missing record leaves the buffer with the contact before.
        FetchExportContact(cat.contactId);
        if (TrimSpaces(ContactBuffer.infoname).isEmpty()) continue;
        const QString row = BuildExportRow(shape) + lineEnd;
        if (text) Put(*file, row);
        else whole += row;
    }
    if (!text) Put(*file, whole);
    if (!file->close()) throw RoutineFailure("Path/File access error");
    return ExportEnd::Done;
}
