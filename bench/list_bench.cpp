// How long the main window takes to fill ListView1 with a category of 5,000
// contacts, and to rebuild the tree from a cat.dat of 30,000 lines, each
// beside the floor: the same files read with plain C++ calls in the same
// run. The list's time is also split into the reading of the record files
// (the store's summaries) and the rest (the rows of the control).
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>
#include "benchfiles.h"
#include "main/core/contactrows.h"
#include "main/forms/frmmain.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"

using Clock = std::chrono::steady_clock;

namespace {
constexpr int kListContacts = 5000;
constexpr int kCatLines = 30000;

// The three quoted fields of a cat.dat line.
void Fields(const std::string& line, std::string& country, std::string& category, std::string& id) {
    const size_t a = line.find(','), b = line.find(',', a + 1);
    country = line.substr(1, a - 2);
    category = line.substr(a + 2, b - a - 3);
    id = line.substr(b + 2, line.size() - b - 3);
}

// Five categories; 5,000 contacts of Main in Norway with record files; the
// other lines spread over the other categories and countries.
void MakeStore(const QString& app) {
    QDir().mkpath(app + "/data");
    std::string cat;
    const char* countries[] = {"Sweden", "Denmark", "Norway"};
    for (int i = 1; i <= kCatLines; ++i) {
        const std::string id = IdText(i).toStdString();
        if (i <= kListContacts) {
            cat += "\"Norway\",\"00001\",\"" + id + "\"\r\n";
            WriteFile(app + "/data/addr" + QString::fromStdString(id) + ".b64",
                      "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact " + id +
                          "\r\ncountry=161\r\ncategory=00001\r\ntel1=+47 22 33 44 55\r\next1=\r\n"
                          "tel2=\r\next2=\r\nmobile=+47 900 00 000\r\nfax=\r\ncompany=Fjord AS\r\n"
                          "designation=Skipper\r\naddr=Storgata 1<NextLine>0155 Oslo\r\nnotes=\r\n"
                          "mail=c" + id + "@example.no\r\n");
        } else {
            cat += std::string("\"") + countries[i % 3] + "\",\"0000" + std::to_string(2 + i % 4) +
                   "\",\"" + id + "\"\r\n";
        }
    }
    WriteFile(app + "/category.dat",
              "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Family\"\r\n"
              "\"00004\",\"Club\"\r\n\"00005\",\"Shops\"\r\n");
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", "");
    WriteFile(app + "/name.dat", "");
}

// The best of some rounds: the machine is shared, and the best run is the
// one least disturbed.
template <typename F>
double BestMillis(int rounds, F f) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const auto start = Clock::now();
        f();
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return *std::min_element(times.begin(), times.end());
}

// The floor of the list: the snapshot whole, then each matching record file
// whole, with the five keys picked out.
size_t ListFloor(const std::string& snapshot, const std::string& dataFolder) {
    size_t rows = 0;
    std::string country, category, id;
    for (const std::string& line : SplitCrLf(ReadFile(snapshot))) {
        Fields(line, country, category, id);
        if (country != "Norway" || category != "00001") continue;
        const std::string record = ReadFile(dataFolder + "/addr" + id + ".b64");
        std::string values[5];
        const char* keys[] = {"infoname=", "mail=", "category=", "company=", "designation="};
        for (const std::string& l : SplitCrLf(record))
            for (int k = 0; k < 5; ++k)
                if (l.rfind(keys[k], 0) == 0) values[k] = l.substr(std::char_traits<char>::length(keys[k]));
        if (!values[0].empty()) ++rows;
    }
    return rows;
}

// The floor of the tree: both lists whole, the counts of one country.
size_t TreeFloor(const std::string& categoryFile, const std::string& catFile) {
    std::unordered_map<std::string, int> counts;
    std::string country, category, id;
    for (const std::string& line : SplitCrLf(ReadFile(catFile))) {
        Fields(line, country, category, id);
        if (country == "Norway") ++counts[category];
    }
    size_t nodes = 0;
    for (const std::string& line : SplitCrLf(ReadFile(categoryFile))) {
        const std::string idText = line.substr(1, line.find(',') - 2);
        nodes += counts.count(idText) ? 1 : 0;
    }
    return nodes;
}
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QTemporaryDir scratch;
    const QString folder = scratch.path() + "/drive/Tandry";
    QDir().mkpath(folder);
    SetAppPathForTest(folder);
    SetVellumarkFolderForTest(scratch.path() + "/cache/Vellumark");
    SetAnsiCodePage(1252);
    EnsureTempArea();
    MakeStore(folder);

    FrmMain window;
    {
        const QSignalBlocker quiet(window.cmbCountry);
        window.cmbCountry->addItem("Norway");
        window.cmbCountry->setCurrentIndex(0);
    }
    window.CopyAddrFile();
    window.LoadCategory();

    const int rounds = 9;
    int shownRows = 0;
    const double list = BestMillis(rounds, [&] {
        ClearContactBuffer();
        window.RefreshListView1("Norway", "id00001");
        shownRows = window.ListView1->topLevelItemCount();
    });
    QStringList snapshotLines;
    ReadWholeFileLines(CatSnapshot(), snapshotLines);
    const double summaries = BestMillis(rounds, [&] {
        QList<ContactRow> rows;
        ClearContactBuffer();
        ContactRowsFromLines(snapshotLines, "Norway", "00001", rows);
    });
    // The walk of the snapshot alone: a country no line has.
    const double walk = BestMillis(rounds, [&] {
        QList<ContactRow> rows;
        ContactRowsFromLines(snapshotLines, "Nowhere", "00001", rows);
    });
    size_t floorRows = 0;
    const std::string data = DataFolder().toStdString();
    const double listFloor = BestMillis(rounds, [&] { floorRows = ListFloor(CatSnapshot().toStdString(), data); });

    int children = 0;
    const double tree = BestMillis(rounds, [&] {
        window.RefreshCategory();
        children = window.TreeView1->topLevelItem(0)->childCount();
    });
    size_t floorNodes = 0;
    const double treeFloor = BestMillis(rounds, [&] {
        floorNodes = TreeFloor(CategoryFile().toStdString(), LiveIndex("cat").toStdString());
    });

    std::printf("list fill, %d contacts of %d lines: %.1f ms (%d rows); floor %.1f ms (%zu rows); ratio %.1f\n",
                kListContacts, kCatLines, list, shownRows, listFloor, floorRows, list / listFloor);
    std::printf("  the store's part alone: %.1f ms, of which the walk of the snapshot's lines %.1f ms;"
                " the record summaries read 5 keys each through the profile reader\n",
                summaries, walk);
    std::printf("tree rebuild, %d lines in cat.dat: %.1f ms (%d categories); floor %.1f ms (%zu counted); ratio %.1f\n",
                kCatLines, tree, children, treeFloor, floorNodes, tree / treeFloor);
    window.DelAddrFile();
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    return 0;
}
