// The tree's nodes and the list's rows worked out without a window: exact
// counts, the 16-bit limits, failures that keep what was made, and the name
// of a category from its node text.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QThread>
#include <fcntl.h>
#include <sys/stat.h>
#include "main/core/categorycounts.h"
#include "main/core/contactrows.h"
#include "platform/core/fileops.h"
#include "store/core/failure.h"
#include "store/core/record.h"
#include "support/printers.h"
#include "support/scratch.h"

const QString kTwo = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";

static QString Rows(const QString& country, const QString& category, int times) {
    QString text;
    for (int i = 0; i < times; ++i) text += "\"" + country + "\",\"" + category + "\",\"" + QString::number(i) + "\"\r\n";
    return text;
}

// The nodes as "key:text", and whether the routine reported success.
static QStringList Nodes(const QString& categories, const QString& cat, const QString& country) {
    QList<CategoryNode> nodes;
    QStringList texts{CategoryNodesFromText(categories, cat, country, nodes) ? "ok" : "failed"};
    for (const CategoryNode& n : nodes) texts << n.key + ":" + n.text;
    return texts;
}

TEST(CategoryNodes, CountsTheRowsOfTheFilterCountryExactlyAndKeepWhatWasMadeOnAFailure) {
    const QString cat = "\"Norway\",\"00002\",\"00011\"\r\n\"NORWAY\",\"00001\",\"00012\"\r\n"
                        "\"Norway\",\"00002\",\"00013\"\r\n\"Norway\",\"00001\",\"00014\"\r\n";
    const QString workFirst = "\"00002\",\"Work\"\r\n\"00001\",\"Main\"\r\n\"00003\",\"Home\"\r\n";
    // categories, cat.dat, country, nodes
    const std::tuple<QString, QString, QString, QStringList> rows[] = {
        {kTwo, cat, "Norway", {"ok", "id00001:Main (1)", "id00002:Work (2)"}},
        {kTwo, cat, "Sweden", {"ok", "id00001:Main", "id00002:Work"}},
        // a country with a comma shifts the fields of its row: it counts nothing
        {kTwo, "\"Bosnia, Herz\",\"00001\",\"00011\"\r\n", "Bosnia, Herz", {"ok", "id00001:Main", "id00002:Work"}},
        {kTwo, Rows("Norway", "00001", 32767), "Norway", {"ok", "id00001:Main (32767)", "id00002:Work"}},
        // the 16-bit counter overflows after Work was made
        {workFirst, Rows("Norway", "00001", 32768), "Norway", {"failed", "id00002:Work"}},
        // without contacts the names are added as they are read
        {kTwo + "X,\"Bad\"\r\n\"00004\",\"Late\"\r\n", "", "Norway", {"failed", "id00001:Main", "id00002:Work"}},
        // a damaged cat.dat row ends the routine before any category is added
        {kTwo, "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\"\r\n", "Norway", {"failed"}},
        // two categories of one id can't both be nodes
        {kTwo + "\"00001\",\"Again\"\r\n", "", "Norway", {"failed", "id00001:Main", "id00002:Work"}},
    };
    for (const auto& [categories, catDat, country, nodes] : rows)
        EXPECT_EQ(Nodes(categories, catDat, country), nodes) << categories.toStdString() << catDat.left(80).toStdString();
}

TEST(CategoryNodes, NameFromNodeTextCutsAtFirstParenthesis) {
    const std::pair<const char*, const char*> rows[] = {{"  Main (12) ", "Main"}, {" Club (old) (4) ", "Club"}, {"A(3)", ""}, {" Work ", "Work"}};
    for (const auto& [text, name] : rows) EXPECT_EQ(CategoryNameFromNodeText(text), QString(name)) << text;
    EXPECT_THROW(CategoryNameFromNodeText(" (12)"), RoutineFailure);
}

// The list's rows of Norway's category 00001 from snapshot lines.
static bool NorwayMainRows(const QStringList& lines, QList<ContactRow>& rows) {
    return ContactRowsFromLines(QList<QStringView>(lines.begin(), lines.end()), "Norway", "00001", rows);
}

TEST(ListRows, AFailureKeepsTheRowsAndTheSnapshotMayHoldAt32766Lines) {
    ScratchStore store;
    QDir().mkpath(store.appFile("data"));
    ClearContactBuffer();
    store.putRecord({"00011", "Åse Berg", "0", "00001", "", "", "", "", "", "", "Fjord AS", "", "", "", "ase@example.no"});
    QList<ContactRow> rows;
    EXPECT_FALSE(NorwayMainRows({"\"Norway\",\"00001\",\"00011\"", "\"Norway\",\"00001\""}, rows));
    ASSERT_EQ(rows.size(), 1);
    const ContactRow& r = rows[0];
    EXPECT_EQ(r.contactId + ":" + r.name + ":" + r.mail + ":" + r.company, U("00011:Åse Berg:ase@example.no:Fjord AS"));
    QStringList lines(32766, "\"Sweden\",\"00001\",\"00014\"");
    lines << "\"Norway\",\"00001\",\"00011\"";
    rows.clear();
    EXPECT_TRUE(!NorwayMainRows(lines, rows) && rows.isEmpty());
    lines.removeFirst();
    EXPECT_TRUE(NorwayMainRows(lines, rows) && rows.size() == 1);
    ClearContactBuffer();
}

// Whatever stands under a record's name that the existence test does not
// find as a regular file is missing: its line shows the row before under
// its own id. A record reached through a link is found but not read, and
// its row is left out for its empty name. A pipe is never waited on. The
// same holds in a category long enough for its records to be read by more
// than one thread, in the lines' order.
TEST(ListRows, WhatStandsUnderARecordsNameIsMissingOrUnread) {
    for (const int around : {0, 150}) {
        ScratchStore store;
        QDir().mkpath(store.appFile("data"));
        QStringList ids, expected;
        for (int i = 0; i < around; ++i) {
            ids << QString::number(20000 + i);
            store.putRecord({ids.last(), "Name " + ids.last()});
            expected << ids.last() + ":Name " + ids.last();
        }
        store.putRecord({"00011", "Åse Berg"});
        store.putRecord({"00019", "Target"});
        const auto at = [&](const char* id) { return QFile::encodeName(store.appFile(QString("data/addr%1.b64").arg(id))); };
        ASSERT_EQ(::mkdir(at("00012"), 0755), 0);
        ASSERT_EQ(::mkfifo(at("00013"), 0644), 0);
        ASSERT_EQ(::symlink(at("00019").constData(), at("00014")), 0);
        ASSERT_EQ(::symlink("nowhere.b64", at("00015")), 0);
        ids << "00011" << "00012" << "00013" << "00014" << "00015";
        expected << "00011:Åse Berg" << "00012:Åse Berg" << "00013:Åse Berg";
        for (int i = 0; i < around; ++i) {
            ids << QString::number(30000 + i);
            store.putRecord({ids.last(), "Name " + ids.last()});
            expected << ids.last() + ":Name " + ids.last();
        }
        QStringList lines;
        for (const QString& id : ids) lines << QString("\"Norway\",\"00001\",\"%1\"").arg(id);
        ClearContactBuffer();
        QList<ContactRow> rows;
        ASSERT_TRUE(NorwayMainRows(lines, rows));
        QStringList shown;
        for (const ContactRow& row : rows) shown << row.contactId + ":" + row.name;
        EXPECT_EQ(shown, expected) << around;
        ClearContactBuffer();
    }
}

// A refill opens only the records that changed since it last read them, and
// sees every change: the program's own, one made in place with the old
// modification time put back, and a file renamed over the record.
TEST(ListRows, ARefillReadsAgainOnlyTheRecordsThatChanged) {
    ScratchStore store;
    QDir().mkpath(store.appFile("data"));
    const QStringList ids = {"00011", "00012", "00013", "00014"};
    QStringList lines;
    for (const QString& id : ids) {
        store.putRecord({id, "Name " + id});
        lines << "\"Norway\",\"00001\",\"" + id + "\"";
    }
    // What a store holds has aged past the file system's time step.
    QThread::msleep(2100);
    const auto refill = [&](QStringList& names) {
        ClearContactBuffer();
        QList<ContactRow> rows;
        SetFileOperationLogging(true);
        ClearFileOperationLog();
        EXPECT_TRUE(NorwayMainRows(lines, rows));
        SetFileOperationLogging(false);
        names.clear();
        for (const ContactRow& row : rows) names << row.name;
        return FileOperationTrace().filter(QStringLiteral("read ")).size();
    };
    QStringList names;
    refill(names);
    EXPECT_EQ(refill(names), 0);
    const QString path = store.appFile("data/addr00012.b64");
    const QString other = store.appFile("data/addr00013.b64");
    struct stat old;
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &old), 0);
    QByteArray bytes = store.read(path);
    bytes.replace("Name 00012", "Eman 00012");
    store.write(path, bytes);  // in place, the same size
    const timespec times[2] = {old.st_atim, old.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    store.write(store.appFile("data/new.b64"), RecordBytes({"00013", "Mane 00013"}));
    ASSERT_TRUE(QFile::remove(other) && QFile::rename(store.appFile("data/new.b64"), other));
    ASSERT_TRUE(WriteWholeFile(store.appFile("data/addr00014.b64"), RecordBytes({"00014", "Own 00014"})));
    EXPECT_EQ(refill(names), 3);
    EXPECT_EQ(names, QStringList({"Name 00011", "Eman 00012", "Mane 00013", "Own 00014"}));
    ClearContactBuffer();
}
