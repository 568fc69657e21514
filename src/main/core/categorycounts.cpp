#include "main/core/categorycounts.h"

#include <QHash>
#include <functional>
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

qsizetype LineEndIn(QStringView text, qsizetype from) { return text.indexOf(u"\r\n", from); }
qsizetype LineEndIn(QByteArrayView bytes, qsizetype from) {
    for (qsizetype cr = bytes.indexOf('\r', from); cr >= 0; cr = bytes.indexOf('\r', cr + 1))
        if (cr + 1 < bytes.size() && bytes[cr + 1] == '\n') return cr;
    return -1;
}
qsizetype CommaIn(QStringView text, qsizetype from) { return text.indexOf(u',', from); }
qsizetype CommaIn(QByteArrayView bytes, qsizetype from) { return bytes.indexOf(',', from); }

// The rows of cat.dat (its text, or its bytes) of the filter's country, by
// category id. Every row is read before any is counted, so a damaged row
// anywhere ends the routine before the first category is added. The rows
// are many: they are read as views, not copied.
template <typename View>
QHash<View, int> CountRows(View text, View filterCountry) {
    QHash<View, int> counts;
    for (qsizetype start = 0, end; (end = LineEndIn(text, start)) >= 0; start = end + 2) {
        const View line = text.sliced(start, end - start);
        const qsizetype comma = CommaIn(line, 0);
        if (comma < 0) throw RoutineFailure("line with too few fields");
        const qsizetype next = CommaIn(line, comma + 1);
        const View country = StripEndsOfView(line.first(comma));
        const View category = StripEndsOfView(next < 0 ? line.sliced(comma + 1) : line.sliced(comma + 1, next - comma - 1));
        if (country == filterCountry) ++counts[category];
    }
    return counts;
}

// The count of a category, by its id as category.dat gives it.
using CountOf = std::function<int(const QString& categoryId)>;

void BuildNodes(const QString& categoryText, bool noContacts, const CountOf& countOf, QList<CategoryNode>& nodes) {
    QSet<QString> keys;
    const QStringList categoryLines = WholeFileLines(categoryText);
    if (noContacts) {
        // No contacts at all: bare names, and no scan.
        for (const QString& line : categoryLines) {
            const Fields f = FirstTwoFields(line);
            AddNode(nodes, keys, f.first, f.second, 0);
        }
        return;
    }
    QList<Fields> categories;
    for (const QString& line : categoryLines) categories.append(FirstTwoFields(line));
    for (const Fields& category : categories) {
        const int count = countOf(category.first);
        if (count > kCounterMax) throw RoutineFailure("category count overflow");
        AddNode(nodes, keys, category.first, category.second, count);
    }
}

bool Built(const std::function<void()>& build) {
    try {
        build();
    } catch (const RoutineFailure&) {
        return false;
    }
    return true;
}
}  // namespace

QString CategoryNodeText(const QString& name, int count) {
    if (count == 0) return name;
    return name + QStringLiteral(" (") + QString::number(count) + QStringLiteral(")");
}

bool CategoryNodesFromText(const QString& categoryText, const QString& catText,
                           const QString& filterCountry, QList<CategoryNode>& nodes) {
    return Built([&] {
        QHash<QStringView, int> counts;
        if (!catText.isEmpty()) counts = CountRows(QStringView(catText), QStringView(filterCountry));
        BuildNodes(categoryText, catText.isEmpty(), [&](const QString& id) { return counts.value(id, 0); }, nodes);
    });
}

// In Windows-1252 every byte is a character and every character one byte,
// so cat.dat, the largest file the tree reads, is counted on its bytes
// without being decoded. Other code pages go through the text.
bool LiveCategoryNodes(const QString& filterCountry, QList<CategoryNode>& nodes) {
    QByteArray categoryBytes, catBytes;
    if (!ReadWholeFile(CategoryFile(), categoryBytes)) return false;
    if (!ReadWholeFile(LiveIndex(QStringLiteral("cat")), catBytes)) return false;
    const QByteArray filterBytes = ToAnsi(filterCountry);
    if (AnsiCodePage() != 1252 || FromAnsi(filterBytes) != filterCountry)
        return CategoryNodesFromText(FromAnsi(categoryBytes), FromAnsi(catBytes), filterCountry, nodes);
    return Built([&] {
        QHash<QByteArrayView, int> counts;
        if (!catBytes.isEmpty()) counts = CountRows(QByteArrayView(catBytes), QByteArrayView(filterBytes));
        BuildNodes(FromAnsi(categoryBytes), catBytes.isEmpty(), [&](const QString& id) {
            const QByteArray idBytes = ToAnsi(id);
            return FromAnsi(idBytes) == id ? counts.value(idBytes, 0) : 0;
        }, nodes);
    });
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
