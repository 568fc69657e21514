// The tree's nodes and the list's rows worked out without a window: exact
// counts, the 16-bit limits, failures that keep what was made, and the name
// of a category from its node text.
#include <gtest/gtest.h>

#include <QDir>
#include "platform/core/tempfolder.h"
#include "main/core/categorycounts.h"
#include "main/core/contactrows.h"
#include "store/core/failure.h"
#include "store/core/record.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
QStringList Texts(const QList<CategoryNode>& nodes) {
    QStringList texts;
    for (const CategoryNode& n : nodes) texts << n.key + ":" + n.text;
    return texts;
}

QString Rows(const QString& country, const QString& category, int times) {
    QString text;
    for (int i = 0; i < times; ++i)
        text += "\"" + country + "\",\"" + category + "\",\"" + QString::number(i).rightJustified(5, '0') +
                "\"\r\n";
    return text;
}

const QString kTwo = "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n";
}  // namespace

TEST(CategoryNodes, CountsOnlyExactCountryAndCategoryInFileOrder) {
    const QString cat = "\"Norway\",\"00002\",\"00011\"\r\n\"NORWAY\",\"00001\",\"00012\"\r\n"
                        "\"Norway\",\"00002\",\"00013\"\r\n\"Norway\",\"00001\",\"00014\"\r\n";
    QList<CategoryNode> nodes;
    ASSERT_TRUE(CategoryNodesFromText(kTwo, cat, "Norway", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main (1)", "id00002:Work (2)"}));
    nodes.clear();
    ASSERT_TRUE(CategoryNodesFromText(kTwo, cat, "Sweden", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main", "id00002:Work"}));
    // A country with a comma shifts the fields of its row: it counts nothing.
    nodes.clear();
    ASSERT_TRUE(CategoryNodesFromText(kTwo, "\"Bosnia, Herz\",\"00001\",\"00011\"\r\n", "Bosnia, Herz", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main", "id00002:Work"}));
}


TEST(CategoryNodes, SixteenBitCounterHoldsUpTo32767) {
    QList<CategoryNode> nodes;
    ASSERT_TRUE(CategoryNodesFromText(kTwo, Rows("Norway", "00001", 32767), "Norway", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main (32767)", "id00002:Work"}));

    // Work comes first in the file and is made before Main's count fails.
    nodes.clear();
    const QString workFirst = "\"00002\",\"Work\"\r\n\"00001\",\"Main\"\r\n\"00003\",\"Home\"\r\n";
    EXPECT_FALSE(CategoryNodesFromText(workFirst, Rows("Norway", "00001", 32768), "Norway", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00002:Work"}));
}

TEST(CategoryNodes, FailuresKeepTheNodesMadeBefore) {
    QList<CategoryNode> nodes;
    // Without contacts the names are added as they are read.
    EXPECT_FALSE(CategoryNodesFromText(kTwo + "X,\"Bad\"\r\n\"00004\",\"Late\"\r\n", "", "Norway", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main", "id00002:Work"}));
    // A damaged cat.dat row ends the routine before any category is added.
    nodes.clear();
    EXPECT_FALSE(CategoryNodesFromText(kTwo, "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\"\r\n", "Norway", nodes));
    EXPECT_TRUE(nodes.isEmpty());
    // Two categories of one id can't both be nodes.
    nodes.clear();
    EXPECT_FALSE(CategoryNodesFromText(kTwo + "\"00001\",\"Again\"\r\n", "", "Norway", nodes));
    EXPECT_EQ(Texts(nodes), QStringList({"id00001:Main", "id00002:Work"}));
}

TEST(CategoryNodes, NameFromNodeTextCutsAtFirstParenthesis) {
    EXPECT_EQ(CategoryNameFromNodeText("  Main (12) "), QString("Main"));
    EXPECT_EQ(CategoryNameFromNodeText(" Club (old) (4) "), QString("Club"));
    EXPECT_EQ(CategoryNameFromNodeText("A(3)"), QString(""));
    EXPECT_EQ(CategoryNameFromNodeText(" Work "), QString("Work"));
    EXPECT_THROW(CategoryNameFromNodeText(" (12)"), RoutineFailure);
}

namespace {
class ListRows : public ::testing::Test {
protected:
    ScratchStore store;
    void SetUp() override {
        QDir().mkpath(store.appFile("data"));
        ClearContactBuffer();
        record("00011", "Åse Berg", "ase@example.no");
    }
    void TearDown() override { ClearContactBuffer(); }
    void record(const char* id, const char* name, const char* mail) {
        store.write(store.appFile(QString("data/addr") + id + ".b64"),
                    Cp1252("[Setting]\r\ninfoid=") + id + "\r\ninfoname=" + Cp1252(name) + "\r\nmail=" +
                        mail + "\r\ncompany=Fjord AS\r\ndesignation=\r\n");
    }
    static QStringList Shown(const QList<ContactRow>& rows) {
        QStringList shown;
        for (const ContactRow& r : rows) shown << r.contactId + ":" + r.name + ":" + r.mail;
        return shown;
    }
};
}  // namespace

TEST_F(ListRows, FailureKeepsRowsAndTheLineLimitIs32766) {
    QList<ContactRow> rows;
    EXPECT_FALSE(ContactRowsFromLines({"\"Norway\",\"00001\",\"00011\"", "\"Norway\",\"00001\""},
                                      "Norway", "00001", rows));
    EXPECT_EQ(Shown(rows), QStringList({"00011:Åse Berg:ase@example.no"}));

    QStringList lines(32766, "\"Sweden\",\"00001\",\"00014\"");
    lines << "\"Norway\",\"00001\",\"00011\"";
    rows.clear();
    EXPECT_FALSE(ContactRowsFromLines(lines, "Norway", "00001", rows));
    EXPECT_TRUE(rows.isEmpty());
    lines.removeFirst();
    EXPECT_TRUE(ContactRowsFromLines(lines, "Norway", "00001", rows));
    EXPECT_EQ(Shown(rows), QStringList({"00011:Åse Berg:ase@example.no"}));
}
