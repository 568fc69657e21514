// How long an import of a 1,000-row Yahoo! file into a store of 10,000
// contacts takes through the real form (load, add, OK), its commit beside
// its floor in the same run, alternating (benchtable.h): 1,000 staged writes
// of a new contact with plain C++ file calls (floors.h). Also the parts of
// the road: the load of the file into ListView1, the reading of the file
// without the form. Each round on a fresh copy of the store.
// Run it with QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "benchfiles.h"
#include "benchtable.h"
#include "floors.h"
#include "dialogs/forms/itemcombo.h"
#include "import/core/csvsources.h"
#include "import/forms/importsession.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/msgbox.h"
#include "platform/core/tempfolder.h"
#include "platform/forms/getopenfilename.h"
#include "store/core/store.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {
constexpr int kStoreContacts = 10000;
// Each row is one staged write of the whole store, some 30 ms here: 1,000
// rows in three runs keep the bench within a few minutes.
constexpr int kFileRows = 1000;
constexpr int kRounds = 3;

// 10,000 contacts of Main and Work in three countries, with their records.
void MakeStore(const QString& app) {
    QDir().mkpath(app + "/data");
    std::string cat, cty, name;
    const char* countries[] = {"Norway", "Sweden", "Denmark"};
    for (int i = 1; i <= kStoreContacts; ++i) {
        const std::string id = IdText(i).toStdString(), country = countries[i % 3];
        const std::string category = i % 2 ? "00001" : "00002";
        cat += "\"" + country + "\",\"" + category + "\",\"" + id + "\"\r\n";
        cty += "\"" + country + "\",\"" + id + "\"\r\n";
        name += "\"" + id + "\",\"Contact number " + id + "\"\r\n";
        WriteFile(app + "/data/addr" + QString::fromStdString(id) + ".b64",
                  "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact number " + id + "\r\ncountry=0\r\ncategory=" +
                      category + "\r\nmail=c" + id + "@example.org\r\n");
    }
    WriteFile(app + "/category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", cty);
    WriteFile(app + "/name.dat", name);
    WriteFile(app + "/country.dll", "100=Norway\n101=Sweden\n102=Denmark\n");
}

// The rows of the Yahoo! shape, every name new to the store.
void MakeYahooFile(const QString& path) {
    std::string text = "\"First\",\"Middle\",\"Last\"\n";
    for (int i = 1; i <= kFileRows; ++i) {
        std::vector<std::string> fields(55);
        fields[0] = "Imported";
        fields[2] = "Person " + std::to_string(i);
        fields[4] = "p" + std::to_string(i) + "@example.org";
        fields[8] = "+47 22 33 44 55";
        fields[21] = "Fjord AS";
        fields[27] = "Storgata 1";
        fields[28] = "Oslo";
        std::string row;
        for (const std::string& field : fields) row += (row.empty() ? "\"" : ",\"") + field + "\"";
        text += row + "\n";
    }
    WriteFile(path, text);
}

// The floor of one row: the staged write of one new contact, a line added
// to each index and a record of the 15 keys an import writes.
void FloorRow(const FloorFolders& f, int i) {
    const int id = 20000 + i;
    const std::string name = "Imported  Person " + std::to_string(i);
    const std::string lines[] = {"\"Norway\",\"00001\",\"" + Id(id) + "\"\r\n", "\"Norway\",\"" + Id(id) + "\"\r\n",
                                 "\"" + Id(id) + "\",\"" + name + "\"\r\n"};
    const std::string record = "[Setting]\r\ninfoid=" + Id(id) + "\r\ninfoname=" + name +
                               "\r\ncountry=0\r\ncategory=00001\r\ntel1=+47 22 33 44 55\r\next1=\r\ntel2=\r\next2=\r\n"
                               "mobile=\r\nfax=\r\ncompany=Fjord AS\r\ndesignation=\r\naddr=Storgata 1 Oslo\r\nnotes=\r\n"
                               "mail=p" + std::to_string(i) + "@example.org\r\n";
    StagedWrite(f, id, record, [&](int k, std::string& bytes) { bytes += lines[k]; });
}

// A fresh copy of the store as the application folder.
QString FreshStore(const QString& scratch, const QString& name) {
    const QString app = scratch + "/" + name;
    fs::remove_all(app.toStdString());
    fs::copy((scratch + "/template").toStdString(), app.toStdString(), fs::copy_options::recursive);
    return app;
}

// Reads the file without the form: rows counted.
struct CountingSink : SourceSink {
    int rows = 0;
    void ShowCount(int, int) override {}
    void ClearCount() override {}
    void AddRow(const SourceRow&) override { ++rows; }
};
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTemporaryDir scratch;
    SetAnsiCodePage(1252);
    MakeStore(scratch.path() + "/template");
    const QString file = scratch.path() + "/contacts.csv";
    MakeYahooFile(file);
    SetOpenFileNameHandlerForTest([&](const QString&, const QString&) { return file; });
    SetMsgBoxPresenter([](const MsgBoxRequest&) { return int(AnswerOk); });
    SetVellumarkFolderForTest(scratch.path() + "/cache/Vellumark");
    EnsureTempArea();

    std::vector<double> reads, loads, adds, imports;
    const BenchResult commit = Alternate(kRounds, 1,
        [&] {
            const QString app = FreshStore(scratch.path(), "drive");
            SetAppPathForTest(app);
            CopyCountryLibraries();
            LoadCountryLibrary();
            CountingSink sink;
            reads.push_back(Millis([&] { ReadYahooFile(file, sink); }));
            double ms = 0;
            {
                ImportSession form(ImportKind::Yahoo);
                loads.push_back(Millis([&] { form.FormLoad(); }));
                Check(form.ListView1->topLevelItemCount() == kFileRows, "the import lists every row");
                adds.push_back(Millis([&] {
                    form.chkCheck->click();
                    form.cbCountry->setCurrentIndex(0);
                    form.cmdAdd->click();
                }));
                ms = Millis([&] { form.cmdOK->click(); });
                imports.push_back(loads.back() + adds.back() + ms);
            }
            QStringList lines;
            ReadWholeFileLines(LiveIndex("cat"), lines);
            Check(lines.size() - kStoreContacts == kFileRows, "the import writes every row");
            return ms;
        },
        [&] {
            const FloorFolders floor{FreshStore(scratch.path(), "floor").toStdString(), TempArea().toStdString()};
            return Millis([&] {
                for (int i = 1; i <= kFileRows; ++i) FloorRow(floor, i);
            });
        });
    if (WantsHeader(argc, argv)) PrintTableHeader();
    PrintTableRow("import of 1,000 Yahoo! rows: the commit (OK)", kStoreContacts, commit);
    PrintTableRow("  the whole import (load, add, OK)", kStoreContacts, {Median(imports)});
    PrintTableRow("  the add of all rows to the final list", kStoreContacts, {Median(adds)});
    PrintTableRow("  the load of the file into ListView1", kStoreContacts, {Median(loads)});
    PrintTableRow("  the file read without the form", kStoreContacts, {Median(reads)});
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    return 0;
}
