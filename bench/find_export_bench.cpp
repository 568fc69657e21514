// How long a find by e-mail and a find by name take over a store of 30,000
// contacts, and an export of a 6,000-contact category in each of the four
// shapes, each beside the floor: the same files read and the same bytes
// written with plain C++ calls, alternating round by round (benchtable.h).
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
#include "benchtable.h"
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

// The floor of a find: the three indexes whole, then by name each line's
// name, and by e-mail each line's record whole with its mail picked out.
size_t FindFloor(const std::string& app, bool byMail, const std::string& query) {
    const std::string names = ReadFile(app + "/name.dat");
    ReadFile(app + "/category.dat");
    ReadFile(app + "/cty.dat");
    size_t hits = 0;
    for (std::string_view view : SplitCrLf(names)) {
        const std::string line(view);
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
    const std::string lines = ReadFile(snapshot);
    for (std::string_view line : SplitCrLf(lines)) {
        if (line.compare(0, 18, "\"Norway\",\"00002\",\"") != 0) continue;
        const std::string record = ReadFile(app + "/data/addr" + std::string(line.substr(18, 5)) + ".b64");
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
    const int runs = 3, rounds = 5;
    QStringList countries{"Sweden", "Denmark", "Norway"};

    if (WantsHeader(argc, argv)) PrintTableHeader();
    const struct {
        const char* what;
        bool byMail;
        const char* query;
    } finds[] = {{"find by e-mail", true, "C12345@"}, {"find by name", false, "CONTACT 1234"}};
    for (const auto& f : finds) {
        // The floor's hits are what the find must give.
        const size_t expected = FindFloor(dir, f.byMail, Lower(f.query));
        Check(expected > 0, std::string(f.what) + ": the query finds something");
        const BenchResult r = Alternate(
            runs, rounds,
            [&] {
                QList<FindHit> found;
                const double ms = Millis([&] {
                    ClearContactBuffer();
                    (f.byMail ? FindEmail : FindName)(QString::fromLatin1(f.query), countries, found);
                });
                Check(size_t(found.size()) == expected, std::string(f.what) + ": the hits");
                return ms;
            },
            [&] {
                size_t hits = 0;
                const double ms = Millis([&] { hits = FindFloor(dir, f.byMail, Lower(f.query)); });
                Check(hits == expected, std::string(f.what) + ": the floor's hits");
                return ms;
            });
        PrintTableRow(f.what, kContacts, r);
    }

    ExportCountry = "Norway";
    ExportCategoryName = "Work";
    ExportCategoryId = ExportCategoryIdOf("Work");
    const char* names[] = {"export OE, 6,000 rows", "export MSO, 6,000 rows", "export Yahoo, 6,000 rows",
                           "export Incredible, 6,000 rows"};
    for (int k = 0; k < 4; ++k) {
        const ExportShape& shape = ExportShapeOf(ExportKind(k));
        const QString file = folder + "/export.csv", floorFile = folder + "/floor.csv";
        const BenchResult r = Alternate(
            runs, rounds,
            [&] {
                return Millis([&] {
                    QFile::remove(file);
                    WriteExportFile(shape, file, [] { QCoreApplication::processEvents(); });
                });
            },
            [&] { return Millis([&] { ExportFloor(dir, CatSnapshot().toStdString(), floorFile.toStdString(), shape); }); });
        Check(ReadFile(file.toStdString()) == ReadFile(floorFile.toStdString()), std::string(names[k]) + ": the floor's bytes");
        PrintTableRow(names[k], kContacts, r);
    }
    DelAddrFile();
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    return 0;
}
