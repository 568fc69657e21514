#include "platform/core/desktopaddressbooks.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QUuid>

namespace {
// Thunderbird's profile folders, the default one first. Newer versions name
// the default in an [Install...] group, older ones with Default=1.
QStringList ThunderbirdProfiles(const QString& home) {
    const QString base = home + "/.thunderbird";
    QSettings ini(base + "/profiles.ini", QSettings::IniFormat);
    QStringList installDefaults;
    for (const QString& group : ini.childGroups())
        if (group.startsWith("Install")) installDefaults << ini.value(group + "/Default").toString();
    QStringList profiles;
    for (const QString& group : ini.childGroups()) {
        if (!group.startsWith("Profile")) continue;
        ini.beginGroup(group);
        const QString path = ini.value("Path").toString();
        const bool relative = ini.value("IsRelative", 1).toInt() != 0;
        const bool isDefault = ini.value("Default").toInt() == 1 || installDefaults.contains(path);
        ini.endGroup();
        if (path.isEmpty()) continue;
        const QString folder = relative ? base + "/" + path : path;
        if (isDefault) profiles.prepend(folder); else profiles.append(folder);
    }
    return profiles;
}

QStringList ThunderbirdBooks(const QString& profile) {
    QStringList books = QDir(profile).entryList({"abook*.sqlite"}, QDir::Files, QDir::Name);
    if (books.removeOne("abook.sqlite")) books.prepend("abook.sqlite");
    for (QString& book : books) book = profile + "/" + book;
    return books;
}

QStringList EvolutionBooks(const QString& home) {
    const QString base = home + "/.local/share/evolution/addressbook";
    QStringList books;
    for (const QString& folder : QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (QFile::exists(base + "/" + folder + "/contacts.db")) books << base + "/" + folder + "/contacts.db";
    return books;
}

// A running mail client may hold the book open: the query runs on a copy of
// the file and its write-ahead log, so that the book itself is never touched.
class BookCopy {
public:
    explicit BookCopy(const QString& book) : name_(QUuid::createUuid().toString()) {
        const QString copy = dir_.filePath("book.sqlite");
        if (!dir_.isValid() || !QFile::copy(book, copy)) return;
        if (QFile::exists(book + "-wal")) QFile::copy(book + "-wal", copy + "-wal");
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", name_);
        db.setDatabaseName(copy);
        open_ = db.open();
    }
    ~BookCopy() {
        { QSqlDatabase::database(name_, false).close(); }
        QSqlDatabase::removeDatabase(name_);
    }
    bool isOpen() const { return open_; }
    QSqlQuery query(const QString& sql) const {
        QSqlQuery q(QSqlDatabase::database(name_, false));
        q.exec(sql);
        return q;
    }

private:
    QTemporaryDir dir_;
    QString name_;
    bool open_ = false;
};

// One pair per card of the properties table, in the order the cards were
// made; mailing lists live in other tables and are not cards.
void ReadThunderbirdBook(const BookCopy& book, QList<AddressPair>& pairs) {
    QSqlQuery q = book.query(
        "SELECT card, name, value FROM properties WHERE name IN "
        "('DisplayName','FirstName','LastName','PrimaryEmail') ORDER BY rowid");
    QStringList order;
    QHash<QString, QHash<QString, QString>> cards;
    while (q.next()) {
        const QString card = q.value(0).toString();
        if (!cards.contains(card)) order << card;
        cards[card][q.value(1).toString()] = q.value(2).toString();
    }
    for (const QString& card : order) {
        const QHash<QString, QString>& p = cards[card];
        QString name = p.value("DisplayName");
        if (name.isEmpty()) name = (p.value("FirstName") + " " + p.value("LastName")).trimmed();
        pairs.append({name, p.value("PrimaryEmail")});
    }
}

// The value of a vCard property (FN, EMAIL) in a card's text, unfolded.
QString VCardValue(const QString& vcard, const QString& property) {
    const QString text = QString(vcard).replace("\r\n ", "").replace("\n ", "");
    for (const QString& line : text.split('\n')) {
        const QString head = line.section(':', 0, 0);
        if (head.section(';', 0, 0).compare(property, Qt::CaseInsensitive) == 0)
            return line.section(':', 1).trimmed();
    }
    return QString();
}

// Evolution keeps each contact's vCard beside its summary; lists are
// contacts marked X-EVOLUTION-LIST.
void ReadEvolutionBook(const BookCopy& book, QList<AddressPair>& pairs) {
    QSqlQuery folders = book.query("SELECT folder_id FROM folders");
    while (folders.next()) {
        QSqlQuery q = book.query(QString("SELECT vcard FROM \"%1\"").arg(folders.value(0).toString()));
        while (q.next()) {
            const QString vcard = q.value(0).toString();
            if (VCardValue(vcard, "X-EVOLUTION-LIST").compare("TRUE", Qt::CaseInsensitive) == 0) continue;
            pairs.append({VCardValue(vcard, "FN"), VCardValue(vcard, "EMAIL")});
        }
    }
}
}  // namespace

QStringList DesktopAddressBooks(const QString& home) {
    QStringList books;
    for (const QString& profile : ThunderbirdProfiles(home)) books << ThunderbirdBooks(profile);
    return books << EvolutionBooks(home);
}

bool ReadDesktopAddressBooks(const QString& home, QList<AddressPair>& pairs) {
    const QStringList books = DesktopAddressBooks(home);
    for (const QString& path : books) {
        const BookCopy book(path);
        if (!book.isOpen()) continue;
        if (path.endsWith("/contacts.db")) ReadEvolutionBook(book, pairs);
        else ReadThunderbirdBook(book, pairs);
    }
    return !books.isEmpty();
}
