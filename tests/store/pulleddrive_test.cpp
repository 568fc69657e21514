// Every write road, with the drive pulled at every point of it: the changes
// after the point never made, what was not flushed lost or half written.
// The store the next start reads must then hold whole lines or no file, and
// every contact and category it held before, unless the road takes it out
// or a row of the staged write's failure table allows the loss at that step.
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <functional>
#include "app/core/inifile.h"
#include "platform/core/codepage.h"
#include "platform/core/tempfolder.h"
#include "store/core/failure.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/pulldrive.h"
#include "support/scratch.h"

namespace {
using Files = QMap<QString, QByteArray>;

struct Road {
    const char* name;
    std::function<bool()> run;
    QStringList gone;  // the contacts or categories the road takes out
};

void PrintTo(const Road& road, std::ostream* os) { *os << road.name; }

// The files the next start reads, and whether the failure table lets each
// be missing after the road deleted it (a commit's or the category install's move).
const std::pair<const char*, bool> kFiles[] = {
    {"cat.dat", true}, {"cty.dat", true}, {"name.dat", true}, {"category.dat", true}, {"setting.ini", false}};

QList<QByteArray> Lines(const QByteArray& bytes) {
    QList<QByteArray> lines = bytes.split('\n');
    lines.removeLast();
    for (QByteArray& line : lines) line.chop(1);
    return lines;
}

bool WholeLines(const QByteArray& bytes, const QSet<QByteArray>& known) {
    if (bytes.contains('\0') || (!bytes.isEmpty() && !bytes.endsWith("\r\n"))) return false;
    for (const QByteArray& line : Lines(bytes))
        if (!known.contains(line + "\r\n")) return false;
    return true;
}

// The ids a file lists, read as the program reads it.
QStringList Ids(const Files& files, const QString& name) {
    QStringList ids;
    for (const QByteArray& line : Lines(files.value(name))) {
        const QString text = FromAnsi(line);
        try {
            if (name == "cat.dat") ids << SplitCatLine(text).contactId;
            else if (name == "name.dat") ids << SplitNameLine(text).id;
            else ids << StripEnds(text.section(u',', 0, 0));
        } catch (const RoutineFailure&) {}
    }
    return ids;
}

QString Record(const QString& id) { return "data/addr" + id + ".b64"; }

bool Listed(const Files& files, const QString& id) {
    return Ids(files, "cat.dat").contains(id) && Ids(files, "name.dat").contains(id) &&
           files.value(Record(id)).startsWith("[Setting]\r\n");
}

class PulledDriveRoads : public ::testing::TestWithParam<Road> {
protected:
    ScratchStore store;
    void SetUp() override {
        store.readyForWrites();
        EnsureStoreFiles();
        store.put("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
        QByteArray cat, cty, name;
        for (const char* id : {"00010", "00020", "00030"}) {
            cat += QByteArray("\"Norway\",\"00001\",\"") + id + "\"\r\n";
            cty += QByteArray("\"Norway\",\"") + id + "\"\r\n";
            name += QByteArray("\"") + id + "\"," + Cp1252("\"Åse ") + id + "\"\r\n";
            store.putRecord({id, U("Åse ") + id, "3", "00001", "+47 22"});
        }
        store.put("cat.dat", cat), store.put("cty.dat", cty), store.put("name.dat", name);
        CopyAddrFile();
    }
    void TearDown() override { ReleaseFileNumbersForTest(); }
};

ContactForm Form() {
    ContactForm f;
    f.name = "Ola Nordmann", f.countryIndex = 4, f.countryText = "Sweden", f.categoryId = "00002";
    return f;
}
}  // namespace

TEST_P(PulledDriveRoads, LeaveWholeLinesAndEveryContactAtEveryPoint) {
    const Road& road = GetParam();
    PulledDrive drive(store.app(), {store.temp()});
    const Files before = drive.at(0, Loss::Lost);
    ASSERT_TRUE(road.run());
    const Files after = drive.now();
    ASSERT_GT(drive.points(), 0);
    for (int point = 0; point <= drive.points(); ++point) {
        for (Loss loss : {Loss::Lost, Loss::HalfWritten}) {
            SCOPED_TRACE(QString("point %1 of %2, %3").arg(point).arg(drive.points())
                             .arg(loss == Loss::Lost ? "lost" : "half written").toStdString());
            const Files files = drive.at(point, loss);
            for (auto it = files.cbegin(); it != files.cend(); ++it) {
                if (!it.key().endsWith(".new")) {
                    EXPECT_TRUE(WholeLines(it.value(), drive.knownLines())) << it.key().toStdString();
                }
            }
            for (const auto& [name, row] : kFiles) {
                if (files.contains(name)) continue;
                if (!row || !drive.deletedBefore(point, name)) {
                    ADD_FAILURE() << name << " missing";
                }
            }
            for (const QString& id : Ids(before, "cat.dat")) {
                if (road.gone.contains(id) || Listed(files, id)) continue;
                if (!files.contains("cat.dat") || !files.contains("name.dat")) continue;  // counted above
                if (files.contains(Record(id)) || !drive.deletedBefore(point, Record(id))) {
                    ADD_FAILURE() << "contact " << id.toStdString() << " lost";
                }
            }
            if (files.contains("category.dat")) {
                for (const QString& id : Ids(before, "category.dat")) {
                    EXPECT_TRUE(road.gone.contains(id) || Ids(files, "category.dat").contains(id)) << "category " << id.toStdString();
                }
            }
            if (point == drive.points()) {
                EXPECT_EQ(files, after);  // what the road reported done lasts
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Roads, PulledDriveRoads,
    ::testing::Values(
        Road{"new contact", [] { return bool(SaveNewContact(Form())); }, {}},
        Road{"edit", [] { return bool(SaveEditedContact(Form(), "00020", true)); }, {}},
        Road{"removal", [] { return ReadContactWithId("00020") && RemoveContactFiles("00020"); }, {"00020"}},
        Road{"delete batch", [] { return DeleteContactFiles("00010") && DeleteContactFiles("00020"); }, {"00010", "00020"}},
        Road{"duplicate", [] { return CopyContactFiles("00010", "00002", "Sweden", 4); }, {}},
        Road{"move", [] { return MoveContactFiles("00030", "00002", "Sweden", 4); }, {}},
        Road{"category add", [] { return AddCategoryLine("Friends"); }, {}},
        Road{"category delete", [] { return RemoveCategoryLine("00002"); }, {"00002"}},
        Road{"setting.ini at shut-down", [] {
                 bool ok = PutIniValue("Setting", "Country", "7", SettingFile());
                 for (const char* key : {"Height", "Width"}) ok = PutIniValue("Size", key, "8000", SettingFile()) && ok;
                 for (int i = 0; i < 5; ++i) ok = PutIniValue("Grid", QString("ColWidth%1").arg(i), "1500", SettingFile()) && ok;
                 return PutIniValue("VSplitter", "Left", "3000", SettingFile()) && ok; }, {}}),
    [](const auto& info) { return QString(info.param.name).replace(QRegularExpression("[^A-Za-z]"), "_").toStdString(); });
