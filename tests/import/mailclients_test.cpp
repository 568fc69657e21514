// The mail clients' address books: the real Thunderbird book behind the
// address-book protocol in a scratch home, and frmsync's two calls; the
// Outlook import's walk over the real PST files read with libpff, and the
// cases they lack through the walk's own folder interface fed by a fake
// store (writing a PST is out of reach: libpff reads only).
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include "import/core/outlookexpress.h"
#include "import/core/outlookfolders.h"
#include "platform/core/codepage.h"
#include "platform/core/keldane.h"
#include "platform/core/msgbox.h"
#include "support/libraryfixture.h"
#include "support/scratchhome.h"

namespace {
const QString kBook = TANDRY_FIXTURES_DIR "/thunderbird/generated_tb153esr/abook.sqlite";
const QString kPst = TANDRY_FIXTURES_DIR "/pst/";

// Rows and the counter as the form would show them.
struct Sink : SourceSink {
    QStringList rows, counts;
    void ShowCount(int current, int total) override { counts << QString("%1 / %2").arg(current).arg(total); }
    void ClearCount() override { counts << ""; }
    void AddRow(const SourceRow& row) override { rows << row.join('|'); }
};

QString AddressText() {
    QByteArray buffer;
    qint32 length = 0;
    qint16 error = -1;
    GetAddress11(0, buffer, length, error);
    if (error != 0) return QString("error %1").arg(error);
    buffer = QByteArray(length, ' ');
    GetAddress11(1, buffer, length, error);
    return FromAnsi(buffer);
}
// A folder of the fake store: name, type, items (a contact's name and
// e-mail, or "LIST" for a distribution list) and sub-folders.
struct FakeFolder : MAPIFolder {
    QString name;
    int type = olContactItem;
    QStringList items;
    std::vector<std::shared_ptr<MAPIFolder>> folders;
    QString Name() const override { return name; }
    int DefaultItemType() const override { return type; }
    int ItemsCount() const override { return int(items.size()); }
    bool Item(int n, ContactItem& c) const override {
        if (items[n - 1] == "LIST") return false;
        c.FullName = items[n - 1].section('/', 0, 0);
        c.Email1Address = items[n - 1].section('/', 1);
        c.Body = " line 1\r\nline 2 ";
        return true;
    }
    int FoldersCount() const override { return int(folders.size()); }
    std::shared_ptr<MAPIFolder> Folder(int i) const override { return folders[i - 1]; }
};
std::shared_ptr<FakeFolder> Fake(const QString& name, int type, QStringList items,
                                 std::vector<std::shared_ptr<MAPIFolder>> folders = {}) {
    auto f = std::make_shared<FakeFolder>();
    f->name = name, f->type = type, f->items = items, f->folders = folders;
    return f;
}

struct Load {
    bool result;
    QString categories;
    Sink sink;
};
Load LoadFrom(const std::shared_ptr<MAPIFolder>& top) {
    ScratchStore store;
    store.put("category.dat", "\"00001\",\"Friends\"\r\n");
    Load load{};
    load.result = LoadOutlookFolders(top, load.sink, [&](const QString& names) { load.categories = names; });
    return load;
}
}  // namespace

TEST(MailClients, ThunderbirdBookOfTheDefaultProfileThroughTheProtocol) {
    QFile real(kBook);
    if (!real.open(QIODevice::ReadOnly)) GTEST_SKIP() << "no real Thunderbird book at " << TANDRY_FIXTURES_DIR;
    ScratchHome home;
    home.put(".thunderbird/profiles.ini",
             "[Profile0]\nName=old\nIsRelative=1\nPath=old.x\n\n[Profile1]\nName=main\nIsRelative=1\nPath=main.y\n\n"
             "[Install4F96D1932A9F858E]\nDefault=main.y\n");
    const QByteArray book = real.readAll();
    home.put(".thunderbird/main.y/abook.sqlite", book);
    {  // a book of the other profile, one card without a display name
        QDir().mkpath(home.dir.filePath(".thunderbird/old.x"));
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "old");
        db.setDatabaseName(home.dir.filePath(".thunderbird/old.x/abook-1.sqlite"));
        ASSERT_TRUE(db.open());
        QSqlQuery(db).exec("CREATE TABLE properties(card, name, value)");
        QSqlQuery(db).exec("INSERT INTO properties VALUES ('c','LastName','Lee'),('c','DisplayName',''),"
                           "('c','FirstName','Bo'),('c','PrimaryEmail','bo@x')");
        db.close();
    }
    QSqlDatabase::removeDatabase("old");
    SetAnsiCodePage(1252);
    const QString four = QString::fromUtf8(
        "\"Jürgen Müller-Lüdenscheidt\",\"juergen.mueller@example.com\"\r\n"
        "\"Anna O'Neil\",\"anna.oneil@example.net\"\r\n\"?? ??\",\"taro.yamada@example.jp\"\r\n"
        "\"only-email@example.com\",\"only-email@example.com\"\r\n");
    EXPECT_EQ(AddressText(), four + "\"Bo Lee\",\"bo@x\"\r\n");  // the default profile first, the list left out
    EXPECT_EQ(QFileInfo(home.dir.filePath(".thunderbird/main.y/abook.sqlite")).size(), book.size());
    EXPECT_FALSE(QFile::exists(home.dir.filePath(".thunderbird/main.y/abook.sqlite-wal")));
}

TEST(MailClients, EvolutionBooksAndError10) {
    ScratchHome home;
    EXPECT_EQ(AddressText(), "error 10");
    const QString db = home.dir.filePath(".local/share/evolution/addressbook/system/contacts.db");
    QDir().mkpath(QFileInfo(db).path());
    {  // a contact with a folded name and two addresses, and a list
        QSqlDatabase evo = QSqlDatabase::addDatabase("QSQLITE", "evo");
        evo.setDatabaseName(db);
        ASSERT_TRUE(evo.open());
        for (const char* sql : {"CREATE TABLE folders(folder_id)", "INSERT INTO folders VALUES ('folder_id')",
                                "CREATE TABLE folder_id(uid, vcard)",
                                "INSERT INTO folder_id VALUES (1, 'BEGIN:VCARD\r\nFN:Ann\r\n  Lee\r\nEMAIL;TYPE=HOME:a@x\r\nEMAIL:b@x\r\nEND:VCARD')",
                                "INSERT INTO folder_id VALUES (2, 'BEGIN:VCARD\r\nFN:Club\r\nX-EVOLUTION-LIST:TRUE\r\nEND:VCARD')"})
            QSqlQuery(evo).exec(sql);
        evo.close();
    }
    QSqlDatabase::removeDatabase("evo");
    EXPECT_EQ(AddressText(), "\"Ann Lee\",\"a@x\"\r\n");
}

// LoadOutlookExpress over a protocol of the table's answers.
TEST(MailClients, LoadOutlookExpressCallsTheProtocolTwice) {
    ScratchStore store;
    LoadAllLibraries(store);
    struct Case {
        qint16 error0;
        qint32 length;
        qint16 error1;
        QByteArray text;
        bool result;
        QString boxes, rows, lastCounts;
    } cases[] = {
        {10, 5, 0, "", false, "Tandry|48|No contacts were found in the Outlook Express address book.", "", ""},
        {0, 0, 0, "", false, "Tandry - Error|16|The Outlook Express address book could not be read.", "", ""},
        {0, 9, 3, "", false, "Tandry - Error|16|An error occurred while reading the Outlook Express address book.", "", ""},
        {0, 0, 0, "\"A, B\",\"a@x\"\r\n\"C\",\"D\",\"c@x\"\r\n\"E\",\"e@x\"\r\n", true, "",
         "A, B|a@x||||;C,D,c@x|||||;E|e@x||||", "2 / 2;3 / 2;"},
    };
    for (const Case& c : cases) {
        QStringList boxes;
        SetMsgBoxPresenter([&](const MsgBoxRequest& r) {
            boxes << QString("%1|%2|%3").arg(r.title).arg(r.icon).arg(r.prompt);
            return int(AnswerOk);
        });
        Sink sink;
        QList<int> modes;
        const bool result = LoadOutlookExpress(sink, [&](qint32 mode, QByteArray& buffer, qint32& length, qint16& error) {
            modes << mode;
            length = c.text.isEmpty() ? c.length : qint32(c.text.size());
            error = mode == 0 ? c.error0 : c.error1;
            if (mode == 1 && !c.text.isEmpty()) buffer = c.text;
        });
        SetMsgBoxPresenter(nullptr);
        EXPECT_EQ(result, c.result) << c.boxes.toStdString();
        EXPECT_EQ(boxes.join(';'), c.boxes);
        EXPECT_EQ(sink.rows.join(';'), c.rows);
        EXPECT_EQ(sink.counts.mid(qMax(0, int(sink.counts.size()) - 3)).join(';'), c.lastCounts);
        EXPECT_EQ(modes.size(), c.result || c.error1 ? 2 : 1);
    }
    UnloadAllLibraries();
}

TEST(OutlookFolders, RealFiles) {
    if (!QFile::exists(kPst + "aspose_SampleContacts.pst")) GTEST_SKIP() << "no real PST files at " << TANDRY_FIXTURES_DIR;
    Load sample = LoadFrom(OpenOutlookDataFile(kPst + "aspose_SampleContacts.pst"));
    EXPECT_TRUE(sample.result);
    EXPECT_EQ(sample.categories, "Contacts\r\n");
    // Some numbers stand twice in the file's own values.
    ASSERT_EQ(sample.sink.rows.size(), 6);
    EXPECT_EQ(sample.sink.rows.mid(3, 2),
              QStringList({"Margaret J. Tolle|MargaretJTolle@dayrep.com|(08)9080-1183||Adaptaz|Recording engineer|"
                           "Contacts||(925)599-3355(925)599-3355||",
                           "Matthew R. Wilcox||0650 675 73 300650 675 73 30||Briazz|Psychiatric aide|Contacts|"
                           "(661)387-5382(661)387-5382|||"}));
    EXPECT_FALSE(LoadFrom(OpenOutlookDataFile(kPst + "../SOURCES.md")).result);
}

TEST(OutlookFolders, TheWalkOverAFakeStore) {
    // Top: a contact folder "Friends" with a sub-folder of mail type "Club"
    // and an empty one holding "Deep"; a mail folder "Inbox" with a contact
    // folder inside (not walked); a second "Club" of one contact.
    auto top = Fake("Top", 0, {},
                    {Fake("Inbox", 0, {}, {Fake("Hidden", olContactItem, {"X/x@y"})}),
                     Fake("Friends", olContactItem, {"Ann/ann@x", " / ", "/bo@x"},
                          {Fake("Club", 0, {"Cy/cy@x", "Di/di@x"}), Fake("Empty", olContactItem, {}, {Fake("Deep", 0, {"Ed/"})})}),
                     Fake("Club", olContactItem, {"Fay/fay@x"})});
    Load load = LoadFrom(top);
    EXPECT_TRUE(load.result);
    EXPECT_EQ(load.categories, "Friends\r\nClub\r\nDeep\r\nClub\r\n");
    const QString note = "line 1\r\nline 2";
    EXPECT_EQ(load.sink.rows, QStringList({"Ann|ann@x||" + note + "|||Friends||||", "|||" + note + "|||Friends||||",
                                           "bo@x|bo@x||" + note + "|||Friends||||", "Cy|cy@x||" + note + "|||Club||||",
                                           "Di|di@x||" + note + "|||Club||||", "Ed|||" + note + "|||Deep||||",
                                           "Fay|fay@x||" + note + "|||Club||||"}));
    EXPECT_EQ(load.sink.counts, QStringList({"0 / 3", "2 / 2", "1 / 1", "1 / 1"}));
    // A distribution list after a contact ends the load.
    EXPECT_FALSE(LoadFrom(Fake("Top", 0, {}, {Fake("C", olContactItem, {"Ann/a", "LIST"})})).result);
}
