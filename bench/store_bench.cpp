// How long one save and one edit take in stores of 1,000 and 10,000
// contacts, beside the floor: the same three whole-file copies and four
// moves done with plain C++ file calls in the same run.
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include "app/core/inifile.h"
#include "platform/core/appfolder.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {
void WriteFile(const QString& path, const QByteArray& bytes) {
    std::ofstream out(path.toStdString(), std::ios::binary | std::ios::trunc);
    out.write(bytes.constData(), bytes.size());
}

// A store of n contacts in two categories and three countries.
void MakeStore(const QString& app, int n) {
    QDir().mkpath(app + "/data");
    QByteArray cat, cty, name;
    const char* countries[] = {"Norway", "Sweden", "Denmark"};
    for (int i = 1; i <= n; ++i) {
        const QByteArray id = IdText(i).toLatin1();
        const QByteArray country = countries[i % 3];
        const QByteArray category = i % 2 ? "00001" : "00002";
        cat += "\"" + country + "\",\"" + category + "\",\"" + id + "\"\r\n";
        cty += "\"" + country + "\",\"" + id + "\"\r\n";
        name += "\"" + id + "\",\"Contact number " + id + "\"\r\n";
        WriteFile(app + "/data/addr" + id + ".b64",
                  "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact number " + id +
                      "\r\ncountry=3\r\ncategory=" + category + "\r\nmail=c" + id + "@example.org\r\n");
    }
    WriteFile(app + "/category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", cty);
    WriteFile(app + "/name.dat", name);
    EnsureStoreFiles();
}

template <typename F>
double MedianMicros(int rounds, F f) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        auto start = Clock::now();
        f();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// The floor: three whole-file copies to the staging area and four moves back.
void Floor(const QString& app, const QString& temp, const QString& id) {
    for (const char* index : {"cat", "cty", "name"}) {
        std::ifstream in((app + "/" + index + ".dat").toStdString(), std::ios::binary);
        std::ofstream out((temp + "/floor_" + index + ".dat").toStdString(), std::ios::binary | std::ios::trunc);
        out << in.rdbuf();
    }
    WriteFile(temp + "/floor_record.b64", "[Setting]\r\ninfoid=" + id.toLatin1() + "\r\n");
    for (const char* index : {"cat", "cty", "name"})
        fs::rename((temp + "/floor_" + index + ".dat").toStdString(),
                   (app + "/floor_" + index + ".dat").toStdString());
    fs::rename((temp + "/floor_record.b64").toStdString(), (app + "/data/floor_record.b64").toStdString());
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    std::printf("%-28s %8s %12s %12s %8s\n", "operation", "contacts", "store (us)", "floor (us)", "ratio");
    for (int n : {1000, 10000}) {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/drive";
        SetAppPathForTest(folder);
        SetVellumarkFolderForTest(dir.path() + "/cache/Vellumark");
        EnsureTempArea();
        MakeStore(folder, n);
        const int rounds = n >= 10000 ? 15 : 40;

        ContactForm form;
        form.name = "Benchmark Person";
        form.countryIndex = 5;
        form.countryText = "Norway";
        form.categoryId = "00001";
        form.addr = "Street 1\r\nTown";
        QString lastId;
        const double save = MedianMicros(rounds, [&] { SaveNewContact(form, {}, &lastId); });
        const double floor = MedianMicros(rounds, [&] { Floor(folder, TempArea(), lastId); });
        std::printf("%-28s %8d %12.0f %12.0f %8.2f\n", "new contact (SaveNewContact)", n, save, floor, save / floor);

        ReadContact("00500");
        const double edit = MedianMicros(rounds, [&] { SaveEditedContact(form, "00500", true); });
        std::printf("%-28s %8d %12.0f %12.0f %8.2f\n", "edit (SaveEditedContact)", n, edit, floor, edit / floor);
    }
    return 0;
}
