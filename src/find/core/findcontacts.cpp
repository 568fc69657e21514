#include "find/core/findcontacts.h"

#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/keeppainting.h"
#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"

namespace {
// What tells the three searches apart.
struct Search {
    QString ContactRecord::*searched;  // none: the name of the name.dat line
    bool countryFromList;              // the list entry cut to 200 and trimmed, not the drop-down's text
    bool shortCounter;                 // a 16-bit line counter
};
constexpr Search kByName{nullptr, false, false};
constexpr Search kByEmail{&ContactRecord::mail, true, true};
constexpr Search kByCompany{&ContactRecord::company, false, true};

constexpr int kShortCounterMax = 32767;

QString ReadWholeText(const QString& path) {
    QByteArray bytes;
    if (!ReadWholeFile(path, bytes)) throw RoutineFailure("File not found");
    return FromAnsi(bytes);
}

bool Matches(const QString& searched, const QString& lowerQuery) {
    return !searched.isEmpty() && searched.toLower().contains(lowerQuery);
}

// The country drop-down set to the contact's index: -1 leaves it empty, an
// index outside the list is refused.
QString CountryName(const QStringList& countries, qint16 index, bool fromList) {
    if (index < -1 || index >= countries.size()) throw RoutineFailure("Invalid property value");
    if (index == -1) return QString();
    return fromList ? TrimSpaces(countries[index].left(200)) : countries[index];
}

// The category's name from every line of category.dat but the first, up to
// the empty element behind the last line break: a category not found there
// reaches that element, which has no fields, and fails.
QString CategoryName(const QStringList& categoryLines, const QString& categoryId) {
    for (qsizetype i = 1; i < categoryLines.size(); ++i) {
        const QStringList parts = categoryLines[i].split(u',');
        const QString id = StripEnds(Element(parts, 0));
        const QString name = StripEnds(Element(parts, 1));
        if (id == categoryId) return name;
    }
    return QString();
}

void Find(const Search& search, const QString& query, const QStringList& countries, QList<FindHit>& hits) {
    const QStringList nameLines = WholeFileLines(ReadWholeText(LiveIndex(QStringLiteral("name"))));
    const QStringList categoryLines = ReadWholeText(CategoryFile()).split(QStringLiteral("\r\n"));
    ReadWholeText(LiveIndex(QStringLiteral("cty")));  // not used, but it must be there
    const QString lowerQuery = query.toLower();
    qint64 row = 1;
    for (qsizetype i = 0; i < nameLines.size(); ++i) {
        KeepWindowPainting();  // every record may be read: seconds on a stick
        const QStringList parts = nameLines[i].split(u',');
        const ContactId lineId = StripEnds(Element(parts, 0));
        const QString lineName = StripEnds(Element(parts, 1));
        bool hit = false;
        if (!search.searched) {
            hit = Matches(lineName, lowerQuery) && LoadContact(lineId);
        } else {
            LoadContact(lineId);
            hit = Matches(ContactBuffer.*search.searched, lowerQuery);
        }
        if (hit) {
            // The row stands as soon as it is added; a failure below leaves it half filled.
            FindHit& added = hits.emplaceBack();
            added.row = row;
            added.infoname = ContactBuffer.infoname;
            added.mail = ContactBuffer.mail;
            added.id = search.searched ? ContactBuffer.infoid : lineId;
            added.country = CountryName(countries, ContactBuffer.country, search.countryFromList);
            added.category = CategoryName(categoryLines, ContactBuffer.category);
            ++row;
        }
        if (search.shortCounter && i == kShortCounterMax) throw RoutineFailure("Overflow");
    }
}
}  // namespace

void FindName(const QString& query, const QStringList& countries, QList<FindHit>& hits) {
    Find(kByName, query, countries, hits);
}
void FindEmail(const QString& query, const QStringList& countries, QList<FindHit>& hits) {
    Find(kByEmail, query, countries, hits);
}
void FindCompany(const QString& query, const QStringList& countries, QList<FindHit>& hits) {
    Find(kByCompany, query, countries, hits);
}
