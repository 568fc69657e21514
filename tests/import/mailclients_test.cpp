// The mail clients' address books: the real Thunderbird book behind the
// address-book protocol in a scratch home, and frmsync's two calls.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include "import/core/outlookexpress.h"
#include "platform/core/codepage.h"
#include "platform/core/keldane.h"
#include "platform/core/msgbox.h"
#include "support/libraryfixture.h"

namespace {
const QString kBook = TANDRY_FIXTURES_DIR "/thunderbird/generated_tb153esr/abook.sqlite";

// Rows and the counter as the form would show them.
struct Sink : SourceSink {
    QStringList rows, counts;
    void ShowCount(int current, int total) override { counts << QString("%1 / %2").arg(current).arg(total); }
    void ClearCount() override { counts << ""; }
    void AddRow(const SourceRow& row) override { rows << row.join('|'); }
};

// A scratch home with the given files; HOME points at it while it lives.
struct ScratchHome {
    QTemporaryDir dir;
    QByteArray oldHome = qgetenv("HOME");
    ScratchHome() { qputenv("HOME", dir.path().toUtf8()); }
    ~ScratchHome() { qputenv("HOME", oldHome); }
    void put(const QString& name, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(dir.filePath(name)).path());
        QFile f(dir.filePath(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
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

TEST(MailClients, NoBookOrAnEmptyOneIsError10) {
    ScratchHome home;
    EXPECT_EQ(AddressText(), "error 10");
    home.put(".local/share/evolution/addressbook/system/contacts.db", "");
    EXPECT_EQ(AddressText(), "error 10");
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
