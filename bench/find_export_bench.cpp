// How long a find by e-mail and a find by name take over a store of 30,000
// contacts, and an export of a 6,000-contact category in each of the four
// shapes, each beside the floor: the same files read and the same bytes
// written with plain C++ calls in the same run. Medians of some rounds.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>
#include "benchfiles.h"
#include "export/core/exportrun.h"
#include "find/core/findcontacts.h"
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"

namespace {
constexpr int kContacts = 30000;
constexpr int kInCategory = 6000;

std::string Lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return s;
}

// The value of "key=" in a record's text.
std::string Key(const std::string& record, const std::string& key) {
    const size_t at = record.find("\r\n" + key + "=");
    if (at == std::string::npos) return {};
    const size_t start = at + key.size() + 3;
    return record.substr(start, record.find("\r\n", start) - start);
}

// Five categories, three countries; the first 6,000 contacts are Work of Norway.
void MakeStore(const std::string& app) {
    QDir().mkpath(QString::fromStdString(app + "/data"));
    std::string cat, cty, name;
    const char* countries[] = {"Sweden", "Denmark", "Norway"};
    for (int i = 1; i <= kContacts; ++i) {
        const std::string id = IdText(i).toStdString();
        const std::string country = i <= kInCategory ? "Norway" : countries[i % 3];
        const std::string category = i <= kInCategory ? "00002" : "0000" + std::to_string(3 + i % 3);
        cat += "\"" + country + "\",\"" + category + "\",\"" + id + "\"\r\n";
        cty += "\"" + country + "\",\"" + id + "\"\r\n";
        name += "\"" + id + "\",\"Contact " + id + "\"\r\n";
        WriteFile(QString::fromStdString(app + "/data/addr" + id + ".b64"),
                  "[Setting]\r\ninfoid=" + id + "\r\ninfoname=Contact " + id + "\r\ncountry=2\r\ncategory=" + category +
                      "\r\ntel1=+47 22 33 44 55\r\next1=\r\ntel2=+47 23 00 00 00\r\next2=12\r\nmobile=+47 900 00 000\r\n"
                      "fax=\r\ncompany=Fjord AS\r\ndesignation=Skipper\r\naddr=Storgata 1, 0155 Oslo\r\n"
                      "notes=Met at the fair<NextLine>Call in May\r\nmail=C" + id + "@Example.no\r\n");
    }
    WriteFile(QString::fromStdString(app + "/category.dat"), "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n\"00003\",\"Family\"\r\n"
                                     "\"00004\",\"Club\"\r\n\"00005\",\"Shops\"\r\n");
    WriteFile(QString::fromStdString(app + "/cat.dat"), cat);
    WriteFile(QString::fromStdString(app + "/cty.dat"), cty);
    WriteFile(QString::fromStdString(app + "/name.dat"), name);
}

template <typename F>
double MedianMillis(int rounds, F f) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        f();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// The floor of a find: the three indexes whole, then by name each line's
// name, and by e-mail each line's record whole with its mail picked out.
size_t FindFloor(const std::string& app, bool byMail, const std::string& query) {
    const std::vector<std::string> lines = SplitCrLf(ReadFile(app + "/name.dat"));
    ReadFile(app + "/category.dat");
    ReadFile(app + "/cty.dat");
    size_t hits = 0;
    for (const std::string& line : lines) {
        const size_t comma = line.find(',');
        const std::string id = line.substr(1, comma - 2);
        if (byMail) {
            const std::string record = ReadFile(app + "/data/addr" + id + ".b64");
            hits += Lower(Key(record, "mail")).find(query) != std::string::npos;
        } else if (Lower(line.substr(comma + 2, line.size() - comma - 3)).find(query) != std::string::npos) {
            ReadFile(app + "/data/addr" + id + ".b64");
            ++hits;
        }
    }
    return hits;
}

// The floor of an export: the snapshot whole, each record of the category
// whole with its keys picked out, the rows built by plain replacement, and
// one write of the bytes.
size_t ExportFloor(const std::string& app, const std::string& snapshot, const std::string& file, const ExportShape& shape) {
    const bool text = shape.mode == ExportFileMode::Text;
    const std::string eol = text ? "\r\n" : "\n";
    std::string out = std::string(shape.header) + eol;
    const std::string comma = shape.addrComma ? QString::fromUtf16(shape.addrComma).toStdString() : ",";
    for (const std::string& line : SplitCrLf(ReadFile(snapshot))) {
        if (line.compare(0, 18, "\"Norway\",\"00002\",\"") != 0) continue;
        const std::string record = ReadFile(app + "/data/addr" + line.substr(18, 5) + ".b64");
        std::string addr = Key(record, "addr");
        for (size_t at = 0; (at = addr.find(',', at)) != std::string::npos; at += comma.size()) addr.replace(at, 1, comma);
        const std::pair<const char*, std::string> values[] = {
            {"<NAME>", Key(record, "infoname")}, {"<EMAIL>", Key(record, "mail")}, {"<COMMENT>", Key(record, "notes")},
            {"<HOMETEL>", Key(record, "tel1")}, {"<HOMESTREET>", addr}, {"<HOMEFAX>", Key(record, "fax")},
            {"<MOBILE>", Key(record, "mobile")}, {"<BUSINESSPHONE>", Key(record, "tel2")},
            {"<COMPANY>", Key(record, "company")}, {"<JOBTITLE>", Key(record, "designation")}, {"<DC>", "\"\""},
            {"<SC>", "\""}};
        std::string row = shape.row;
        for (const auto& [placeholder, value] : values) {
            const std::string p = placeholder;
            for (size_t at = 0; (at = row.find(p, at)) != std::string::npos; at += value.size()) row.replace(at, p.size(), value);
        }
        out += row + eol;
    }
    WriteFile(QString::fromStdString(file), out);
    return out.size();
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir scratch;
    const QString folder = scratch.path() + "/drive/Tandry";
    SetAppPathForTest(folder);
    SetVellumarkFolderForTest(scratch.path() + "/cache/Vellumark");
    SetAnsiCodePage(1252);
    EnsureTempArea();
    MakeStore(folder.toStdString());
    CopyAddrFile();
    const std::string dir = folder.toStdString();
    const int rounds = 7;
    QStringList countries{"Sweden", "Denmark", "Norway"};

    std::printf("%-34s %10s %10s %7s\n", "operation", "ms", "floor ms", "ratio");
    const struct {
        const char* what;
        bool byMail;
        const char* query;
    } finds[] = {{"find by e-mail, 30,000 contacts", true, "C12345@"}, {"find by name, 30,000 contacts", false, "CONTACT 1234"}};
    for (const auto& f : finds) {
        size_t hits = 0, floorHits = 0;
        const double ms = MedianMillis(rounds, [&] {
            QList<FindHit> found;
            ClearContactBuffer();
            (f.byMail ? FindEmail : FindName)(QString::fromLatin1(f.query), countries, found);
            hits = size_t(found.size());
        });
        const double floor = MedianMillis(rounds, [&] { floorHits = FindFloor(dir, f.byMail, Lower(f.query)); });
        std::printf("%-34s %10.1f %10.1f %7.1f   (%zu hits, floor %zu)\n", f.what, ms, floor, ms / floor, hits, floorHits);
    }

    ExportCountry = "Norway";
    ExportCategoryName = "Work";
    ExportCategoryId = ExportCategoryIdOf("Work");
    const char* names[] = {"export OE, 6,000 of 30,000", "export MSO, 6,000 of 30,000", "export Yahoo, 6,000 of 30,000",
                           "export Incredible, 6,000 of 30,000"};
    for (int k = 0; k < 4; ++k) {
        const ExportShape& shape = ExportShapeOf(ExportKind(k));
        const QString file = folder + "/export.csv", floorFile = folder + "/floor.csv";
        const double ms = MedianMillis(rounds, [&] {
            QFile::remove(file);
            WriteExportFile(shape, file, [] { QCoreApplication::processEvents(); });
        });
        size_t floorBytes = 0;
        const double floor = MedianMillis(rounds, [&] {
            floorBytes = ExportFloor(dir, CatSnapshot().toStdString(), floorFile.toStdString(), shape);
        });
        const bool same = ReadFile(file.toStdString()) == ReadFile(floorFile.toStdString());
        std::printf("%-34s %10.1f %10.1f %7.1f   (%zu bytes%s)\n", names[k], ms, floor, ms / floor, floorBytes,
                    same ? ", the same as the floor's" : ", NOT the floor's bytes");
    }
    DelAddrFile();
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    return 0;
}
