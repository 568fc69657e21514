// The main window's roads in stores of 1,000, 10,000 and 30,000 contacts,
// each beside its floor (floors.h) in the same run, alternating round by
// round: a new contact saved, a contact edited, the list filled with a
// category of a fifth of the store, the tree rebuilt, the country changed,
// the refresh every dialog runs after a save, and the start of the program
// to its filled window against a bare Qt window with the same tree and list
// (startroad.h). Each result is checked: a save that failed, a list or a
// tree that is not what the store holds, stop the bench.
//
// The application folder and the staging area lie on /dev/shm (tmpfs), so
// the flushes of each file leaving the staging area cost nothing here: this
// measures the program's own work against the floor's. What the flushes
// cost on a drive is durable_bench's business.
//
//   roads_bench               the table's rows (and its header, unless --no-header)
//   roads_bench slow-drive    a refill after a save with each file open slowed (slowdrive.h)
//   roads_bench paint-gaps    how long each road keeps the window from painting (gaproads.h)
// The modes start-real, start-bare and refill-opens are the children this
// bench starts of itself.
// Run it with QT_QPA_PLATFORM=offscreen.
#include "gaproads.h"
#include "roadstore.h"
#include "slowdrive.h"
#include "startroad.h"

namespace {
constexpr int kRuns = 3;
// ROUNDS=51 steadies a figure on a busy machine, at five times the wait.
const int kRounds = qEnvironmentVariableIntValue("ROUNDS") > 0 ? qEnvironmentVariableIntValue("ROUNDS") : 11;

// One size's roads, each a row of the table.
class Roads {
public:
    explicit Roads(int contacts) : b_(contacts) {}

    void ListFill() {
        w().CopyAddrFile();
        CopyFloor(s().floor);
        Row("list fill (" + std::to_string(s().model.inList()) + " rows)",
            [&] {
                const double ms = Millis([&] { w().RefreshListView1(kListCountryText, ListKey()); });
                CheckWindow(w(), s().model, kListCountry, s().model.inList(), "list fill");
                return ms;
            },
            [&] {
                int rows = 0;
                const double ms = Millis([&] { rows = ListFloor(s().floor, kListCountry, kListCategory, list()); });
                Check(rows == s().floorModel.inList(), "the floor's list");
                return ms;
            });
    }

    void TreeRebuild() {
        Row("tree rebuild",
            [&] {
                const double ms = Millis([&] { w().RefreshCategory(); });
                CheckWindow(w(), s().model, kListCountry, s().model.inList(), "tree rebuild");
                return ms;
            },
            [&] { return TreeRound(kListCountry, [] {}); });
    }

    // From a filled list of the list's country to the next; back untimed.
    void CountrySwitch() {
        const int next = kListCountry + 1;
        Row("country switch",
            [&] {
                w().RefreshListView1(kListCountryText, ListKey());
                const double ms = Millis([&] { w().cmbCountry->setCurrentIndex(kCountries[next].index); });
                CheckWindow(w(), s().model, next, 0, "country switch");
                w().cmbCountry->setCurrentIndex(kCountries[kListCountry].index);
                return ms;
            },
            [&] {
                ListFloor(s().floor, kListCountry, kListCategory, list());
                return TreeRound(next, [&] { list()->clear(); });
            });
    }

    // A new contact of the list's category saved untimed, then the refresh.
    void RefreshAfterASave() {
        Row("refresh after a save",
            [&] {
                SaveInList(s().model);
                const double ms = Millis([&] { RefreshAfterSave(w()); });
                CheckWindow(w(), s().model, kListCountry, s().model.inList(), "refresh after a save");
                return ms;
            },
            [&] {
                int rows = 0;
                const double ms = TreeRound(kListCountry, [&] {
                    CopyFloor(s().floor);
                    rows = ListFloor(s().floor, kListCountry, kListCategory, list());
                });
                Check(rows == s().floorModel.inList(), "the floor's list");
                return ms;
            });
    }

    void NewContactSave() {
        Row("new-contact save (SaveNewContact)",
            [&] {
                bool saved = false;
                const ContactForm form = NewContactForm("Benedikte Fjeldstad", "Saved by the bench");
                const double ms = Millis([&] { saved = bool(SaveNewContact(form)); });
                Check(saved, "the new contact is saved");
                ++s().model.counts[kListCountry][kListCategory];
                return ms;
            },
            [&] { return Millis([&] { SaveFloor(s().floor, s().floorModel, kListCountry, kListCategory); }); });
    }

    // A contact of the list, its notes changed each round.
    void Edit() {
        const int edited = b_.contacts / 2 / 5 * 5;
        const QString id = QString::fromStdString(Id(edited));
        int edits = 0;
        Row("edit (SaveEditedContact)",
            [&] {
                bool saved = false;
                const ContactForm form =
                    NewContactForm(QString::fromStdString(ContactName(edited)), QString("Edit number %1").arg(++edits));
                const double ms = Millis([&] { saved = bool(SaveEditedContact(form, id, true)); });
                Check(saved, "the edit is saved");
                return ms;
            },
            [&] {
                const std::string record = RecordText(edited, kListCountry, kListCategory);
                return Millis([&] { EditFloor(s().floor, edited, kListCountry, kListCategory, record); });
            });
        Check(ReadContact(id) && ContactBuffer.notes == QString("Edit number %1").arg(edits), "the last edit is in the record");
    }

    void Start() {
        PrintTableRow("start to the filled window, against a bare one", b_.contacts, StartAgainstBare(b_, kRuns, kRounds));
    }

private:
    WindowOnStore b_;
    FrmMain& w() { return b_.w(); }
    Scratch& s() { return b_.s; }
    QTreeWidget* list() { return b_.bare.list; }

    void Row(const std::string& road, const TimedRound& time, const TimedRound& floor) {
        PrintTableRow(road, b_.contacts, Alternate(kRuns, kRounds, time, floor));
    }

    // The tree floor of a country, after `before` in the same time, checked.
    template <typename Before>
    double TreeRound(int country, Before before) {
        std::vector<int> counts;
        const double ms = Millis([&] {
            before();
            counts = TreeFloor(s().floor, country, b_.bare.tree, b_.bare.icon);
        });
        CheckFloorTree(counts, s().floorModel, country);
        return ms;
    }
};
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList args = QCoreApplication::arguments();
    const QString mode = args.value(1);
    if (mode == "start-real") return StartReal(args.value(2), args.value(3), args.value(4).toInt());
    if (mode == "start-bare") return StartBare(args.value(2), args.value(3), args.value(4).toInt());
    AnswerQuestionsYes();
    if (mode == "refill-opens") return RefillOpens(args.value(2), args.value(3), args.value(4).toInt());
    if (mode == "slow-drive") return SlowDrive(WantsHeader(argc, argv), kRuns);
    if (mode == "paint-gaps") return PaintGaps();
    if (WantsHeader(argc, argv)) PrintTableHeader();
    // ROADS=start,edit and SIZES=10000 narrow a run to the roads being worked on.
    const QStringList only = qEnvironmentVariable("ROADS").split(',', Qt::SkipEmptyParts);
    const auto wanted = [&](const char* road) { return only.isEmpty() || only.contains(road); };
    QList<int> sizes{1000, 10000, 30000};
    if (qEnvironmentVariableIsSet("SIZES")) {
        sizes.clear();
        for (const QString& size : qEnvironmentVariable("SIZES").split(',')) sizes << size.toInt();
    }
    for (int contacts : sizes) {
        Roads roads(contacts);
        if (wanted("list")) roads.ListFill();
        if (wanted("tree")) roads.TreeRebuild();
        if (wanted("country")) roads.CountrySwitch();
        if (wanted("refresh")) roads.RefreshAfterASave();
        if (wanted("save")) roads.NewContactSave();
        if (wanted("edit")) roads.Edit();
        if (wanted("start")) roads.Start();
    }
    return 0;
}
