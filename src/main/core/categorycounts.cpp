#include "main/core/categorycounts.h"

#include <QHash>
#include <QSet>
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

namespace {
// The counter of a category is a 16-bit signed number.
constexpr int kCounterMax = 32767;

struct Fields {
    QString first;
    QString second;
};

// A line split at every comma, its first two elements stripped of their ends.
Fields FirstTwoFields(const QString& line) {
    const QStringList parts = line.split(u',');
    return {StripEnds(Element(parts, 0)), StripEnds(Element(parts, 1))};
}

// Node keys are unique in the tree: a second category of the same id can't
// be added.
void AddNode(QList<CategoryNode>& nodes, QSet<QString>& keys, const QString& id,
             const QString& name, int count) {
    const QString key = QStringLiteral("id") + id;
    if (keys.contains(key)) throw RoutineFailure("node key is not unique");
    keys.insert(key);
    nodes.append({key, CategoryNodeText(name, count), count});
}

void BuildNodes(const QString& categoryText, const QString& catText, const QString& filterCountry,
                QList<CategoryNode>& nodes) {
    QSet<QString> keys;
    const QStringList categoryLines = WholeFileLines(categoryText);
    if (catText.isEmpty()) {
        // No contacts at all: bare names, and no scan.
        for (const QString& line : categoryLines) {
            const Fields f = FirstTwoFields(line);
            AddNode(nodes, keys, f.first, f.second, 0);
        }
        return;
    }
    QList<Fields> categories;
    for (const QString& line : categoryLines) categories.append(FirstTwoFields(line));
    // Every row of cat.dat is read before any is counted, so a damaged row
    // anywhere ends the routine before the first category is added. The
    // rows are many: they are read as views of the text, not copied.
    QHash<QStringView, int> countsInCountry;
    const QStringView text(catText);
    for (qsizetype start = 0, end; (end = text.indexOf(u"\r\n", start)) >= 0; start = end + 2) {
        const QStringView line = text.mid(start, end - start);
        const qsizetype comma = line.indexOf(u',');
        if (comma < 0) throw RoutineFailure("line with too few fields");
        const qsizetype next = line.indexOf(u',', comma + 1);
        const QStringView country = StripEndsOfView(line.left(comma));
        const QStringView category =
            StripEndsOfView(line.mid(comma + 1, next < 0 ? -1 : next - comma - 1));
        if (country == filterCountry) ++countsInCountry[category];
    }
    for (const Fields& category : categories) {
        const int count = countsInCountry.value(QStringView(category.first), 0);
        if (count > kCounterMax) throw RoutineFailure("category count overflow");
        AddNode(nodes, keys, category.first, category.second, count);
    }
}
}  // namespace

QString CategoryNodeText(const QString& name, int count) {
    if (count == 0) return name;
    return name + QStringLiteral(" (") + QString::number(count) + QStringLiteral(")");
}

bool CategoryNodesFromText(const QString& categoryText, const QString& catText,
                           const QString& filterCountry, QList<CategoryNode>& nodes) {
    try {
        BuildNodes(categoryText, catText, filterCountry, nodes);
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}

bool LiveCategoryNodes(const QString& filterCountry, QList<CategoryNode>& nodes) {
    QByteArray categoryBytes, catBytes;
    if (!ReadWholeFile(CategoryFile(), categoryBytes)) return false;
    if (!ReadWholeFile(LiveIndex(QStringLiteral("cat")), catBytes)) return false;
    return CategoryNodesFromText(FromAnsi(categoryBytes), FromAnsi(catBytes), filterCountry, nodes);
}

bool TreeTextLess(const QString& a, const QString& b) {
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}

QString CategoryNameFromNodeText(const QString& text) {
    const QString trimmed = TrimSpaces(text);
    const qsizetype p = trimmed.indexOf(u'(') + 1;  // 1-based, 0 when there is none
    if (p == 0) return trimmed;
    if (p == 1) throw RoutineFailure("node text begins with \"(\"");
    return TrimSpaces(trimmed.left(p - 2));
}
