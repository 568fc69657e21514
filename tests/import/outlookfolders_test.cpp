// The Outlook import's walk: the real PST files read with libpff, and the
// cases they lack through the walk's own folder interface fed by a fake
// store (writing a PST is out of reach: libpff reads only).
#include <gtest/gtest.h>
#include <QFile>
#include "import/core/outlookfolders.h"
#include "support/scratch.h"

namespace {
const QString kPst = TANDRY_FIXTURES_DIR "/pst/";

struct Sink : SourceSink {
    QStringList rows, counts;
    void ShowCount(int current, int total) override { counts << QString("%1 / %2").arg(current).arg(total); }
    void ClearCount() override { counts << ""; }
    void AddRow(const SourceRow& row) override { rows << row.join('|'); }
};

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

TEST(OutlookFolders, RealFiles) {
    if (!QFile::exists(kPst + "aspose_SampleContacts.pst")) GTEST_SKIP() << "no real PST files at " << TANDRY_FIXTURES_DIR;
    Load sample = LoadFrom(OpenOutlookDataFile(kPst + "aspose_SampleContacts.pst"));
    EXPECT_TRUE(sample.result);
    EXPECT_EQ(sample.categories, "Contacts\r\n");
    // Some numbers stand twice in the file's own values.
    EXPECT_EQ(sample.sink.rows,
              QStringList({"Sebastian Wright|SebastianWright@dayrep.com|||||Contacts||||",
                           "Wichert Kroos|WichertKroos@teleworm.us|||Grade A Investment||Contacts||||",
                           "Christoffer van de Meeberg|ChristoffervandeMeeberg@teleworm.us|||Krauses Sofa Factory||Contacts||||",
                           "Margaret J. Tolle|MargaretJTolle@dayrep.com|(08)9080-1183||Adaptaz|Recording engineer|"
                           "Contacts||(925)599-3355(925)599-3355||",
                           "Matthew R. Wilcox||0650 675 73 300650 675 73 30||Briazz|Psychiatric aide|Contacts|"
                           "(661)387-5382(661)387-5382|||",
                           "Bertha A. Buell|BerthaABuell@armyspy.com|||Awthentikz|Social work assistant|Contacts||||"}));
    Load list = LoadFrom(OpenOutlookDataFile(kPst + "javalibpst_dist-list.pst"));
    EXPECT_FALSE(list.result);
    EXPECT_EQ(list.categories, "Contacts\r\n");
    EXPECT_TRUE(list.sink.rows.isEmpty());
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
