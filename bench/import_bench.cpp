// How long an import of a 5,000-row Yahoo! file into a store of 10,000
// contacts takes through the real form (load, add, OK), beside its floor in
// the same run: 5,000 times the three whole-file copies, one line added to
// each, and the four moves, with plain C++ file calls. Also the load of
// the file into ListView1 alone, and the reading of the file without the
// form. Medians of a few rounds, each on a fresh copy of the store.
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
constexpr int kFileRows = 5000;
constexpr int kRounds = 3;

double Millis(Clock::time_point start) { return std::chrono::duration<double, std::milli>(Clock::now() - start).count(); }

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

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

// 5,000 rows of the Yahoo! shape, every name new to the store.
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

// The floor of one row: the three indexes copied to the staging area, a line
// added to each copy, a record written, and the four files moved back.
void FloorRow(const std::string& app, const std::string& temp, int i) {
    const std::string id = std::to_string(20000 + i);
    const char* indexes[] = {"cat", "cty", "name"};
    const std::string lines[] = {"\"Norway\",\"00001\",\"" + id + "\"\r\n", "\"Norway\",\"" + id + "\"\r\n",
                                 "\"" + id + "\",\"Imported  Person\"\r\n"};
    for (int k = 0; k < 3; ++k) {
        const std::string staged = temp + "/floor_" + indexes[k] + ".dat";
        fs::copy_file(app + "/" + indexes[k] + ".dat", staged, fs::copy_options::overwrite_existing);
        std::ofstream(staged, std::ios::binary | std::ios::app) << lines[k];
    }
    WriteFile(QString::fromStdString(temp + "/floor_record.b64"), "[Setting]\r\ninfoid=" + id + "\r\n");
    // each live file deleted, then the staged one moved in its place
    for (const char* index : indexes) {
        fs::remove(app + "/" + index + ".dat");
        fs::rename(temp + "/floor_" + index + ".dat", app + "/" + index + ".dat");
    }
    fs::rename(temp + "/floor_record.b64", app + "/data/addr" + id + ".b64");
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

    std::vector<double> reads, loads, adds, commits, imports, floors;
    int listed = 0, written = 0;
    for (int round = 0; round < kRounds; ++round) {
        const QString app = FreshStore(scratch.path(), "drive");
        SetAppPathForTest(app);
        CopyCountryLibraries();
        LoadCountryLibrary();
        CountingSink sink;
        auto start = Clock::now();
        ReadYahooFile(file, sink);
        reads.push_back(Millis(start));
        {
            ImportSession form(ImportKind::Yahoo);
            start = Clock::now();
            form.FormLoad();
            loads.push_back(Millis(start));
            listed = form.ListView1->topLevelItemCount();
            auto step = Clock::now();
            form.chkCheck->click();
            form.cbCountry->setCurrentIndex(0);
            form.cmdAdd->click();
            adds.push_back(Millis(step));
            step = Clock::now();
            form.cmdOK->click();
            commits.push_back(Millis(step));
            imports.push_back(Millis(start));
        }
        QStringList lines;
        ReadWholeFileLines(LiveIndex("cat"), lines);
        written = int(lines.size()) - kStoreContacts;

        const QString floorApp = FreshStore(scratch.path(), "floor");
        start = Clock::now();
        for (int i = 1; i <= kFileRows; ++i) FloorRow(floorApp.toStdString(), TempArea().toStdString(), i);
        floors.push_back(Millis(start));
    }
    std::printf("import of %d Yahoo! rows into %d contacts, medians of %d rounds:\n", kFileRows, kStoreContacts, kRounds);
    std::printf("  whole import (load, add, OK): %.0f ms (%d rows listed, %d contacts written)\n", Median(imports), listed,
                written);
    std::printf("    the commit (OK): %.0f ms; floor %.0f ms; ratio %.2f\n", Median(commits), Median(floors),
                Median(commits) / Median(floors));
    std::printf("    the add of all rows to the final list: %.0f ms\n", Median(adds));
    std::printf("  load into ListView1 alone: %.0f ms; the file read without the form: %.1f ms\n", Median(loads),
                Median(reads));
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    return 0;
}
