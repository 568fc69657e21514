#pragma once
// The floors of the window's roads: exactly the file work the store's rules
// ask of each road, with plain C++ calls (one read of a whole file, one
// write, unlink then rename), and the same rows put into a QTreeWidget.
// Nothing more: no existence test, no conversion beyond Latin-1 to the
// widget's text, no copy that the rules don't ask for.
#include <QIcon>
#include <QTreeWidget>
#include <cstdio>
#include <string>
#include <string_view>
#include "benchfiles.h"
#include "benchstore.h"

struct FloorFolders {
    std::string app, temp;  // the floor's own application folder and staging area
};

// How an index reaches its staged file. A new contact's line is appended
// to the copy of the index made in the staging area, which is then renamed
// to the staged file: one read and one write of each index. A changed or
// removed line is streamed from that copy into the staged file, and the
// copies are deleted after the commit: the copy is written, read again and
// written once more.
enum class Staging { Append, Stream };

// The staged write of one contact's files: each index read whole, changed
// in memory, written to the staging area; the record written there; then
// for each the live file unlinked and the staged one renamed in its place,
// in the order cat.dat, cty.dat, name.dat, record.
template <typename Change>
void StagedWrite(const FloorFolders& f, int id, const std::string& record, Change change,
                 Staging staging = Staging::Append) {
    for (int k = 0; k < 3; ++k) {
        std::string bytes = ReadFile(f.app + "/" + kIndexNames[k] + ".dat");
        if (staging == Staging::Stream) {
            const std::string copy = f.temp + "/floor_" + kIndexNames[k] + ".tmp";
            WriteFile(copy, bytes);
            bytes = ReadFile(copy);
        }
        change(k, bytes);
        WriteFile(f.temp + "/floor_" + kIndexNames[k] + ".dat", bytes);
    }
    const std::string stagedRecord = f.temp + "/addr" + Id(id) + ".b64", liveRecord = f.app + "/data/addr" + Id(id) + ".b64";
    WriteFile(stagedRecord, record);
    for (const char* index : kIndexNames) {
        const std::string live = f.app + "/" + index + ".dat";
        ::unlink(live.c_str());
        ::rename((f.temp + "/floor_" + index + ".dat").c_str(), live.c_str());
    }
    ::unlink(liveRecord.c_str());
    ::rename(stagedRecord.c_str(), liveRecord.c_str());
    if (staging == Staging::Stream)
        for (const char* index : kIndexNames) ::unlink((f.temp + "/floor_" + index + ".tmp").c_str());
}

// A new contact: a line added to each index.
inline void SaveFloor(const FloorFolders& f, StoreModel& model, int country, int category) {
    const int id = ++model.lastId;
    const IndexLines lines = LinesOf(id, country, category);
    StagedWrite(f, id, RecordText(id, country, category),
                [&](int k, std::string& bytes) { bytes += k == 0 ? lines.cat : k == 1 ? lines.cty : lines.name; });
    ++model.counts[country][category];
}

// Where the line of contact `id` stands in index k (cat, cty, name): its
// first character and its length with its CR LF; npos when it has none.
// (The first line of a file is never a bench's contact.)
inline std::pair<size_t, size_t> LineOf(const std::string& bytes, int k, int id) {
    const std::string end = k < 2 ? "\"" + Id(id) + "\"\r\n" : "\r\n\"" + Id(id) + "\",";
    const size_t at = bytes.find(end);
    if (at == std::string::npos) return {at, 0};
    const size_t start = k == 2 ? at + 2 : bytes.rfind("\r\n", at) + 2;
    return {start, bytes.find("\r\n", start) + 2 - start};
}

// A changed contact: its line taken out of each index and the new one put
// in its place.
inline void EditFloor(const FloorFolders& f, int id, int country, int category, const std::string& record) {
    const IndexLines lines = LinesOf(id, country, category);
    StagedWrite(f, id, record, [&](int k, std::string& bytes) {
        const auto [start, length] = LineOf(bytes, k, id);
        if (start != std::string::npos) bytes.replace(start, length, k == 0 ? lines.cat : k == 1 ? lines.cty : lines.name);
    }, Staging::Stream);
}

// A removed contact: its lines taken out, the record moved in as the staged
// write does for a removal, then deleted.
inline void RemoveFloor(const FloorFolders& f, int id, const std::string& record) {
    StagedWrite(f, id, record, [&](int k, std::string& bytes) {
        const auto [start, length] = LineOf(bytes, k, id);
        if (start != std::string::npos) bytes.erase(start, length);
    }, Staging::Stream);
    ::unlink((f.app + "/data/addr" + Id(id) + ".b64").c_str());
}

// The read snapshots: each target unlinked, the source read whole and written.
inline void CopyFloor(const FloorFolders& f) {
    const std::pair<const char*, const char*> copies[] = {{"/cat.dat", "/addr_cat.dat"},
                                                          {"/category.dat", "/addr_category.dat"}};
    for (const auto& [source, target] : copies) {
        ::unlink((f.temp + target).c_str());
        WriteFile(f.temp + target, ReadFile(f.app + source));
    }
}

// The value of `key` in a record's text ("\r\nkey=" ... "\r\n").
inline std::string_view RecordValue(std::string_view record, std::string_view key) {
    for (size_t at = record.find(key); at != std::string_view::npos; at = record.find(key, at + 1)) {
        if (at < 2 || record.substr(at - 2, 2) != "\r\n" || record.substr(at + key.size(), 1) != "=") continue;
        const size_t start = at + key.size() + 1;
        return record.substr(start, record.find("\r\n", start) - start);
    }
    return {};
}

inline QString Latin1(std::string_view text) { return QString::fromLatin1(text.data(), qsizetype(text.size())); }

// The list: the snapshot read whole and split; for each line of the country
// and category, the record read whole and its five keys taken; the rows,
// five columns and a check box, put into the list at once. The rows before
// go first, as the list's own refill clears them. Gives the rows made.
inline int ListFloor(const FloorFolders& f, int country, int category, QTreeWidget* list) {
    list->clear();
    const std::string snapshot = ReadFile(f.temp + "/addr_cat.dat");
    const std::string prefix = std::string("\"") + kCountries[country].name + "\",\"" + CategoryIdOf(category) + "\",\"";
    QList<QTreeWidgetItem*> items;
    for (std::string_view line : SplitCrLf(snapshot)) {
        if (line.substr(0, prefix.size()) != prefix) continue;
        const std::string_view id = line.substr(prefix.size(), line.size() - prefix.size() - 1);
        const std::string record = ReadFile(f.app + "/data/addr" + std::string(id) + ".b64");
        const std::string_view name = RecordValue(record, "infoname");
        RecordValue(record, "category");  // the fifth key the list reads
        auto* item = new QTreeWidgetItem(QStringList{Latin1(name), Latin1(RecordValue(record, "mail")),
                                                     Latin1(RecordValue(record, "company")),
                                                     Latin1(RecordValue(record, "designation")), Latin1(id)});
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(0, Qt::Unchecked);
        items.append(item);
    }
    list->addTopLevelItems(items);
    return int(items.size());
}

// The tree: category.dat and cat.dat read whole, the rows of each category
// in the country counted, the root and a node per category, each with its
// picture, put into the tree. Gives the counts in the order of category.dat.
inline std::vector<int> TreeFloor(const FloorFolders& f, int country, QTreeWidget* tree, const QIcon& icon) {
    tree->clear();
    const std::string categories = ReadFile(f.app + "/category.dat"), cat = ReadFile(f.app + "/cat.dat");
    std::vector<std::string_view> ids, names;
    for (std::string_view line : SplitCrLf(categories)) {
        const size_t comma = line.find(',');
        ids.push_back(line.substr(1, comma - 2));
        names.push_back(line.substr(comma + 2, line.size() - comma - 3));
    }
    std::vector<int> counts(ids.size());
    const std::string prefix = std::string("\"") + kCountries[country].name + "\",\"";
    for (std::string_view line : SplitCrLf(cat)) {
        if (line.substr(0, prefix.size()) != prefix) continue;
        const std::string_view id = line.substr(prefix.size(), 5);
        for (size_t k = 0; k < ids.size(); ++k)
            if (ids[k] == id) ++counts[k];
    }
    auto* root = new QTreeWidgetItem(QStringList{QStringLiteral("Categories")});
    root->setIcon(0, icon);
    for (size_t k = 0; k < ids.size(); ++k) {
        const QString name = Latin1(names[k]);
        auto* node = new QTreeWidgetItem(QStringList{counts[k] ? name + " (" + QString::number(counts[k]) + ")" : name});
        node->setIcon(0, icon);
        root->addChild(node);
    }
    root->sortChildren(0, Qt::AscendingOrder);
    tree->addTopLevelItem(root);
    root->setExpanded(true);
    tree->setCurrentItem(root);
    return counts;
}

// The floor's window: a tree and a list side by side, as bare as Qt makes them.
struct BareWindow {
    QWidget window;
    QTreeWidget* tree = new QTreeWidget(&window);
    QTreeWidget* list = new QTreeWidget(&window);
    QIcon icon;
    BareWindow() {
        QPixmap picture(16, 16);
        picture.fill(Qt::darkYellow);
        icon = QIcon(picture);
        tree->setHeaderHidden(true);
        list->setColumnCount(5);
        window.resize(700, 500);
        tree->setGeometry(0, 0, 200, 500);
        list->setGeometry(200, 0, 500, 500);
    }
};
