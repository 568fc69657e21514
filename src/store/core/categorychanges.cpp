#include "store/core/categorychanges.h"

#include <QHash>

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/categories.h"
#include "store/core/failure.h"
#include "store/core/formatted.h"
#include "store/core/genid.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

namespace {
bool AnyLine(bool (*match)(const CategoryLine&, const QString&), const QString& value) {
    QList<CategoryLine> lines;
    ReadCategoryLines(CategoryFile(), lines);
    for (const CategoryLine& line : lines)
        if (match(line, value)) return true;
    return false;
}
}  // namespace

bool CategoryNameExists(const QString& name) {
    return AnyLine([](const CategoryLine& line, const QString& n) { return line.name.toLower() == n.toLower(); },
                   name);
}

bool CategoryIdExists(const CategoryId& id) {
    return AnyLine([](const CategoryLine& line, const QString& i) { return line.id == i; }, id);
}

qint16 NewCategoryId() {
    return qint16(DrawUnused([](int candidate) { return CategoryIdExists(IdText(candidate)); }));
}

bool CategoryBackup() {
    const QString backup = CategoryBackupFile();
    return KillIfExists(backup) && CopyFile(CategoryFile(), backup) && FileExists(backup);
}

void CategoryCleanup() { KillIfExists(CategoryBackupFile()); }

bool AppendCategory(const CategoryId& id, const QString& name) {
    QString line;
    AppendLine(line, {id, name});
    OutputFile file;
    return file.openForAppend(CategoryBackupFile()) && file.write(ToAnsi(line)) && file.close() &&
           MoveFile(CategoryBackupFile(), CategoryStagedFile()) && FileExists(CategoryStagedFile());
}

bool RewriteCategoryLines(const QString& target, const CategoryId& id, const std::optional<QString>& newName) {
    OutputFile file;
    if (!file.openForOutput(target)) return false;
    QList<CategoryLine> lines;
    if (!ReadCategoryLines(CategoryBackupFile(), lines)) return false;
    QString text;
    for (const CategoryLine& line : lines) {
        if (line.id != id) AppendLine(text, {line.id, line.name});
        else if (newName) AppendLine(text, {line.id, *newName});
    }
    return file.write(ToAnsi(text)) && file.close() && FileExists(target);
}

bool InstallCategoryFile(const QString& staged) {
    const QString live = CategoryFile();
    if (Kill(live) && MoveFile(staged, live) && FileExists(live)) return true;
    KillIfExists(staged);
    return false;
}

bool AddCategoryLine(const QString& name, CategoryId* newId) {
    CategoryBackup();
    if (!FileExists(CategoryBackupFile())) return false;
    const CategoryId id = IdText(NewCategoryId());
    if (newId) *newId = id;
    return AppendCategory(id, name) && InstallCategoryFile(CategoryStagedFile());
}

bool RenameCategoryLine(const CategoryId& id, const QString& name) {
    CategoryBackup();
    return FileExists(CategoryBackupFile()) && RewriteCategoryLines(CategoryStagedFile(), id, name) &&
           InstallCategoryFile(CategoryStagedFile());
}

bool RemoveCategoryLine(const CategoryId& id) {
    CategoryBackup();
    if (!FileExists(CategorySnapshot()) || !RewriteCategoryLines(CategorySnapshot(), id, std::nullopt)) return false;
    InstallCategoryFile(CategorySnapshot());
    return true;
}

void AddCategories(const QString& names) {
    for (const QString& element : names.split(QStringLiteral("\r\n"))) {
        const QString name = TrimSpaces(element);
        if (!CategoryNameExists(name)) AddCategoryLine(name);
    }
    CategoryCleanup();
}

bool CategoryContacts(const CategoryId& id, QStringList& contactIds) {
    QStringList lines;
    if (!ReadWholeFileLines(LiveIndex("cat"), lines)) return false;
    try {
        for (const QString& line : lines) {
            const QStringList fields = line.split(u',');
            if (StripEnds(Element(fields, 1)) == id) contactIds << StripEnds(Element(fields, 2));
        }
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}

bool ContactNames(const QStringList& contactIds, QStringList& names) {
    QStringList lines;
    if (!ReadWholeFileLines(LiveIndex("name"), lines)) return false;
    // The first line of each id is the one that names it.
    QHash<QString, QString> nameOf;
    nameOf.reserve(lines.size());
    for (const QString& line : lines) {
        const NameLine name = SplitNameLine(line);
        if (!nameOf.contains(name.id)) nameOf.insert(name.id, name.name);
    }
    for (const QString& id : contactIds) {
        const auto found = nameOf.constFind(id);
        if (found != nameOf.constEnd()) names << *found;
    }
    return true;
}
