// How long the main window's batches take for 500 contacts in stores of
// 10,000 and 30,000 contacts: a delete of 500 checked rows, a duplicate of
// 500 into another category, a move of 500 by a drop. Each beside its floor
// in the same run: 500 times the three whole-file copies of the indexes and
// the four moves back, made with plain C++ file calls.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "benchfiles.h"
#include "main/forms/frmmain.h"
#include "platform/core/appfolder.h"
#include "platform/core/msgbox.h"
#include "platform/core/pause.h"
#include "platform/core/tempfolder.h"
#include "store/core/ids.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

void DropContacts(FrmMain& window);  // movecontacts.cpp

namespace {
constexpr int kBatch = 500;

// A store of n contacts in five categories and three countries, every
// record with its 15 keys. Category 00001 in Norway holds n / 15 contacts.
void MakeStore(const QString& app, int n) {
    QDir().mkpath(app + "/data");
    std::string cat, cty, name;
    const char* countries[] = {"Norway", "Sweden", "Denmark"};
    for (int i = 1; i <= n; ++i) {
        const std::string id = IdText(i).toStdString(), country = countries[i % 3];
        const std::string category = "0000" + std::to_string(1 + (i / 3) % 5);
        cat += "\"" + country + "\",\"" + category + "\",\"" + id + "\"\r\n";
        cty += "\"" + country + "\",\"" + id + "\"\r\n";
        name += "\"" + id + "\",\"Contact " + id + "\"\r\n";
        WriteFile(app + "/data/addr" + QString::fromStdString(id) + ".b64",
                  "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact " + id + "\r\ncountry=160\r\ncategory=" + category +
                      "\r\ntel1=+47 22 00\r\next1=\r\ntel2=\r\next2=\r\nmobile=\r\nfax=\r\ncompany=Fjord AS\r\n"
                      "designation=\r\naddr=Street 1<NextLine>Oslo\r\nnotes=\r\nmail=c" + id + "@example.org\r\n");
    }
    WriteFile(app + "/category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Home\"\r\n"
                                     "\"00004\",\"Club\"\r\n\"00005\",\"Other\"\r\n");
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", cty);
    WriteFile(app + "/name.dat", name);
}

// The floor: per contact three whole-file copies to the staging area and
// four moves back (delete, then rename), as the staged write makes them.
double Floor(const QString& app, const QString& temp) {
    const auto start = Clock::now();
    for (int i = 0; i < kBatch; ++i) {
        for (const char* index : {"cat", "cty", "name"}) {
            const std::string live = (app + "/" + index + ".dat").toStdString();
            const std::string staged = (temp + "/floor_" + index + ".dat").toStdString();
            WriteFile(QString::fromStdString(staged), ReadFile(live));
            fs::remove(live);
            fs::rename(staged, live);
        }
        WriteFile(temp + "/floor.b64", "[Setting]\r\ninfoid=00000\r\n");
        fs::rename((temp + "/floor.b64").toStdString(), (app + "/data/floor.b64").toStdString());
        fs::remove((app + "/data/floor.b64").toStdString());
    }
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// The first 500 rows of the list, checked and selected.
void Take(FrmMain& w) {
    for (int i = 0; i < kBatch && i < w.ListView1->topLevelItemCount(); ++i) {
        w.ListView1->topLevelItem(i)->setCheckState(0, Qt::Checked);
        w.ListView1->topLevelItem(i)->setSelected(true);
    }
}

template <typename Road>
double Time(Road road) {
    const auto start = Clock::now();
    road();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    SetSleepDisabledForTest(true);
    SetMsgBoxPresenter([](const MsgBoxRequest& r) { return r.buttons == MsgYesNo ? int(AnswerYes) : int(AnswerOk); });
    std::printf("%-34s %8s %10s %10s %7s\n", "batch of 500", "contacts", "ms", "floor ms", "ratio");
    for (int n : {10000, 30000}) {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/drive";
        SetAppPathForTest(folder);
        SetVellumarkFolderForTest(dir.path() + "/cache/Vellumark");
        MakeStore(folder, n);
        for (const char* library : {"langfile0409.dll", "edition0409.dll", "country.dll", "phonecode.dll"})
            QFile::copy(QCoreApplication::applicationDirPath() + "/../app/" + library, folder + "/" + library);
        LanguageId = "0409";
        CharsetId = "0";
        LoadEditionLibrary();
        LoadLanguageLibrary();
        CopyCountryLibraries();
        LoadCountryLibrary();
        const QByteArray norway = QByteArray::number(CountryNames().indexOf("Norway"));
        WriteFile(folder + "/setting.ini", FirstRunSettingText().replace("Country=113", "Country=" + norway).toStdString());
        EnsureStoreFiles();
        FrmMain w;
        w.FormLoad();
        w.show();
        auto open = [&](const char* category) {
            w.TreeView1->setCurrentItem(w.TreeView1->topLevelItem(0)->child(0));  // Club, first in text order
            for (int i = 0; i < w.TreeView1->topLevelItem(0)->childCount(); ++i)
                if (w.TreeView1->topLevelItem(0)->child(i)->text(0).startsWith(category))
                    w.TreeView1->setCurrentItem(w.TreeView1->topLevelItem(0)->child(i));
            w.strNodeKey = w.TreeView1->currentItem()->data(0, Qt::UserRole).toString();
            w.strCountry = w.cmbCountry->currentText();
            w.RefreshListView1(w.strCountry, w.strNodeKey);
        };
        const double floor = Floor(folder, TempArea());
        open("Main");
        Take(w);
        const double duplicate = Time([&] { w.Duplicate("00002", "", "Norway"); });
        open("Main");
        Take(w);
        w.SetDropHighlight(w.TreeView1->topLevelItem(0)->child(0));
        const double move = Time([&] { DropContacts(w); });
        open("Home");
        Take(w);
        const double remove = Time([&] { w.Entry("mnuDelete_info")->trigger(); });
        const std::pair<const char*, double> rows[] = {
            {"delete (mnuDelete_info)", remove}, {"duplicate into another category", duplicate}, {"move by a drop", move}};
        for (const auto& [road, ms] : rows) std::printf("%-34s %8d %10.0f %10.0f %7.2f\n", road, n, ms, floor, ms / floor);
        w.close();
    }
    return 0;
}
