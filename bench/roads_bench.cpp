// The main window's roads in stores of 1,000, 10,000 and 30,000 contacts,
// each beside its floor (floors.h) in the same run, alternating round by
// round: a new contact saved, a contact edited, the list filled with a
// category of a fifth of the store, the tree rebuilt, the country changed,
// the refresh every dialog runs after a save, and the start of the program
// to its filled window against a bare Qt window with the same tree and list.
// Each result is checked: a save that failed, a list or a tree that is not
// what the store holds, stop the bench.
//
// The application folder and the staging area lie on /dev/shm (tmpfs), so
// the flushes of each file leaving the staging area cost nothing here: this
// measures the program's own work against the floor's. What the flushes
// cost on a drive is durable_bench's business.
//
//   roads_bench               the table's rows (and its header, unless --no-header)
//   roads_bench slow-drive    a refill after a save with each file open slowed
//   roads_bench paint-gaps    how long each road keeps the window from painting
// The modes start-real, start-bare and refill-opens are the children this
// bench starts of itself.
// Run it with QT_QPA_PLATFORM=offscreen.
#include <QAction>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include "benchwindow.h"
#include "floors.h"
#include "app/forms/general.h"
#include "paintgap.h"
#include "platform/core/fileops.h"
#include "platform/core/instance.h"
#include "platform/forms/msgbox_widgets.h"

namespace {
constexpr int kRuns = 3, kRounds = 11;

// A scratch store: the program's folders and the floor's, on tmpfs.
struct Scratch {
    QTemporaryDir dir{QDir("/dev/shm").exists() ? "/dev/shm/tandry-roads-XXXXXX" : QDir::tempPath() + "/tandry-roads-XXXXXX"};
    QString app = dir.path() + "/drive/Tandry", vellumark = dir.path() + "/cache/Vellumark";
    FloorFolders floor{(dir.path() + "/floor").toStdString(), (dir.path() + "/floor-temp").toStdString()};
    StoreModel model, floorModel;  // what each store holds

    explicit Scratch(int contacts) {
        for (const QString& folder : {app, QString::fromStdString(floor.app), QString::fromStdString(floor.temp)})
            QDir().mkpath(folder);
        model = MakeStore(app.toStdString(), contacts);
        floorModel = MakeStore(floor.app, contacts);
        LayProgramFiles(app.toStdString());
    }
};

// What the contact dialogs hand a save: a contact of the list's category.
ContactForm NewContactForm(const QString& name, const QString& notes) {
    ContactForm form;
    form.name = name;
    form.tel1 = "+47 22 33 44 55";
    form.mobile = "+47 912 34 567";
    form.company = "Fjord Shipping AS";
    form.designation = "Senior Project Manager";
    form.addr = "Storgata 12\r\n0155 Oslo";
    form.notes = notes;
    form.mail = "new.contact@example.no";
    form.countryIndex = kCountries[kListCountry].index;
    form.countryText = kCountries[kListCountry].name;
    form.categoryId = QString::fromStdString(CategoryIdOf(kListCategory));
    return form;
}

void SaveInList(StoreModel& model) {
    Check(bool(SaveNewContact(NewContactForm("Benedikte Fjeldstad", "Saved by the bench"))), "the new contact is saved");
    ++model.counts[kListCountry][kListCategory];
}

const QString kListCountryText = kCountries[kListCountry].name;
QString ListKey() { return "id" + QString::fromStdString(CategoryIdOf(kListCategory)); }

// What every dialog runs when it closes after a change.
void RefreshAfterSave(FrmMain& w) {
    w.CopyAddrFile();
    ClearContactBuffer();
    w.RefreshListView1(w.strCountry, w.strNodeKey);
    w.RefreshCategory();
}

void CheckWindow(const FrmMain& w, const StoreModel& model, int country, int rows, const char* road) {
    Check(w.ListView1->topLevelItemCount() == rows,
          QString("%1: %2 rows listed, %3 expected").arg(road).arg(w.ListView1->topLevelItemCount()).arg(rows));
    Check(NodeTexts(w) == ExpectedNodeTexts(model, country),
          QString("%1: the tree shows %2").arg(road, NodeTexts(w).join(", ")));
}

void CheckFloorTree(const std::vector<int>& counts, const StoreModel& model, int country) {
    for (int k = 0; k < kCategoryCount; ++k) Check(counts[k] == model.counts[country][k], "the floor's tree counts");
}

// ---- the start, measured from the spawn of a child to its first paint ----

// Prints the time of the window's first paint and ends the process there.
class FirstPaint : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        std::printf("%lld\n", (long long)std::chrono::duration_cast<std::chrono::nanoseconds>(
                                  BenchClock::now().time_since_epoch()).count());
        std::fflush(stdout);
        std::_Exit(0);
    }
};

// The child that starts the program as its entry does, on the scratch
// store, and clicks the list's category as the user's first act.
int StartReal(const QString& app, const QString& vellumark, int rows) {
    SetAppPathForTest(app);
    SetVellumarkFolderForTest(vellumark);
    SetInstanceNameForTest(QString("tandry-roads-bench-%1").arg(QCoreApplication::applicationPid()));
    InstallWidgetMsgBox();
    FrmMain* window = nullptr;
    Check(Main(&window) == StartResult::Started, "the program starts");
    QTreeWidgetItem* root = window->TreeView1->topLevelItem(0);
    for (int i = 0; i < root->childCount(); ++i)
        if (NodeKey(root->child(i)) == ListKey()) {
            window->TreeView1->setCurrentItem(root->child(i));
            emit window->TreeView1->itemClicked(root->child(i), 0);
        }
    Check(window->ListView1->topLevelItemCount() == rows, "the started window lists the category");
    FirstPaint paint;
    window->installEventFilter(&paint);
    return QApplication::exec();
}

// The child that shows the bare window with the floors' tree and list.
int StartBare(const QString& app, const QString& temp, int rows) {
    const FloorFolders f{app.toStdString(), temp.toStdString()};
    BareWindow bare;
    CopyFloor(f);
    TreeFloor(f, kListCountry, bare.tree, bare.icon);
    Check(ListFloor(f, kListCountry, kListCategory, bare.list) == rows, "the bare window lists the category");
    bare.window.show();
    FirstPaint paint;
    bare.window.installEventFilter(&paint);
    return QApplication::exec();
}

// Spawns this bench in a child mode; the ms from the spawn to its first paint.
double SpawnToFirstPaint(const QStringList& arguments) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto spawn = BenchClock::now();
    child.start(QCoreApplication::applicationFilePath(), arguments);
    Check(child.waitForFinished(60000) && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0,
          "the child " + arguments.value(0) + " shows its window");
    const long long painted = child.readAllStandardOutput().trimmed().toLongLong();
    return double(painted - std::chrono::duration_cast<std::chrono::nanoseconds>(spawn.time_since_epoch()).count()) / 1e6;
}

// ---- the table's rows for one size ----

void RunRoads(int contacts) {
    Scratch s(contacts);
    OpenProgramOn(s.app, s.vellumark);
    std::unique_ptr<FrmMain> window = OpenMainWindow();
    FrmMain& w = *window;
    BareWindow bare;
    bare.window.show();
    QApplication::processEvents();
    const auto row = [contacts](const char* road, const BenchResult& r) { PrintTableRow(road, contacts, r); };
    const int sweden = 1;

    w.CopyAddrFile();
    CopyFloor(s.floor);
    row(("list fill (" + std::to_string(s.model.inList()) + " rows)").c_str(),
        Alternate(kRuns, kRounds,
                  [&] {
                      const double ms = Millis([&] { w.RefreshListView1(kListCountryText, ListKey()); });
                      CheckWindow(w, s.model, kListCountry, s.model.inList(), "list fill");
                      return ms;
                  },
                  [&] {
                      int rows = 0;
                      const double ms = Millis([&] { rows = ListFloor(s.floor, kListCountry, kListCategory, bare.list); });
                      Check(rows == s.floorModel.inList(), "the floor's list");
                      return ms;
                  }));

    row("tree rebuild", Alternate(kRuns, kRounds,
                                  [&] {
                                      const double ms = Millis([&] { w.RefreshCategory(); });
                                      CheckWindow(w, s.model, kListCountry, s.model.inList(), "tree rebuild");
                                      return ms;
                                  },
                                  [&] {
                                      std::vector<int> counts;
                                      const double ms = Millis([&] { counts = TreeFloor(s.floor, kListCountry, bare.tree, bare.icon); });
                                      CheckFloorTree(counts, s.floorModel, kListCountry);
                                      return ms;
                                  }));

    // From a filled list of the first country to the second; back untimed.
    row("country switch", Alternate(kRuns, kRounds,
                                    [&] {
                                        w.RefreshListView1(kListCountryText, ListKey());
                                        const double ms = Millis([&] { w.cmbCountry->setCurrentIndex(kCountries[sweden].index); });
                                        CheckWindow(w, s.model, sweden, 0, "country switch");
                                        w.cmbCountry->setCurrentIndex(kCountries[kListCountry].index);
                                        return ms;
                                    },
                                    [&] {
                                        ListFloor(s.floor, kListCountry, kListCategory, bare.list);
                                        std::vector<int> counts;
                                        const double ms = Millis([&] {
                                            bare.list->clear();
                                            counts = TreeFloor(s.floor, sweden, bare.tree, bare.icon);
                                        });
                                        CheckFloorTree(counts, s.floorModel, sweden);
                                        return ms;
                                    }));

    // A new contact of the list's category saved untimed, then the refresh.
    row("refresh after a save", Alternate(kRuns, kRounds,
                                          [&] {
                                              SaveInList(s.model);
                                              const double ms = Millis([&] { RefreshAfterSave(w); });
                                              CheckWindow(w, s.model, kListCountry, s.model.inList(), "refresh after a save");
                                              return ms;
                                          },
                                          [&] {
                                              int rows = 0;
                                              std::vector<int> counts;
                                              const double ms = Millis([&] {
                                                  CopyFloor(s.floor);
                                                  rows = ListFloor(s.floor, kListCountry, kListCategory, bare.list);
                                                  counts = TreeFloor(s.floor, kListCountry, bare.tree, bare.icon);
                                              });
                                              Check(rows == s.floorModel.inList(), "the floor's list");
                                              CheckFloorTree(counts, s.floorModel, kListCountry);
                                              return ms;
                                          }));

    row("new-contact save (SaveNewContact)",
        Alternate(kRuns, kRounds,
                  [&] {
                      bool saved = false;
                      const ContactForm form = NewContactForm("Benedikte Fjeldstad", "Saved by the bench");
                      const double ms = Millis([&] { saved = bool(SaveNewContact(form)); });
                      Check(saved, "the new contact is saved");
                      ++s.model.counts[kListCountry][kListCategory];
                      return ms;
                  },
                  [&] { return Millis([&] { SaveFloor(s.floor, s.floorModel, kListCountry, kListCategory); }); }));

    // A contact of the list, its notes changed each round.
    const int edited = contacts / 2 / 5 * 5;
    int edits = 0;
    row("edit (SaveEditedContact)",
        Alternate(kRuns, kRounds,
                  [&] {
                      bool saved = false;
                      const ContactForm form = NewContactForm(QString::fromStdString(ContactName(edited)),
                                                              QString("Edit number %1").arg(++edits));
                      const double ms = Millis([&] { saved = bool(SaveEditedContact(form, QString::fromStdString(Id(edited)), true)); });
                      Check(saved, "the edit is saved");
                      return ms;
                  },
                  [&] {
                      const std::string record = RecordText(edited, kListCountry, kListCategory);
                      return Millis([&] { EditFloor(s.floor, edited, kListCountry, kListCategory, record); });
                  }));
    Check(ReadContact(QString::fromStdString(Id(edited))) && ContactBuffer.notes == QString("Edit number %1").arg(edits),
          "the last edit is in the record");

    w.CopyAddrFile();
    const QString rows = QString::number(s.model.inList());
    const QString childCache = s.dir.path() + "/child-cache/Vellumark", bareTemp = s.dir.path() + "/bare-temp";
    QDir().mkpath(bareTemp);
    row("start to the filled window, against a bare one",
        Alternate(kRuns, kRounds, [&] { return SpawnToFirstPaint({"start-real", s.app, childCache, rows}); },
                  [&] { return SpawnToFirstPaint({"start-bare", s.app, bareTemp, rows}); }));
    window.reset();  // its unload frees the libraries
}

// ---- the refill of a category on a slow drive ----

constexpr int kSlowOpenMicros = 2000;

// The files a refill opens, counted by the file seam: opens and existence look-ups.
struct SeamCount {
    int opens = 0, lookUps = 0;
};
SeamCount CountRefill(FrmMain& w) {
    SetFileOperationLogging(true);
    ClearFileOperationLog();
    w.CopyAddrFile();
    ClearContactBuffer();
    w.RefreshListView1(w.strCountry, w.strNodeKey);
    SetFileOperationLogging(false);
    SeamCount count;
    for (const QString& operation : FileOperationTrace()) {
        const QString kind = operation.section(' ', 0, 0);
        if (kind == "exists") ++count.lookUps;
        else if (kind == "copy") count.opens += 2;  // the source and the target
        else if (QStringList{"read", "write", "output", "append", "binary", "replace", "private"}.contains(kind))
            ++count.opens;
    }
    ClearFileOperationLog();
    return count;
}

// The child that, under strace, opens the window, saves one contact, and
// refills the list `refills` times.
int RefillOpens(const QString& app, const QString& vellumark, int refills) {
    OpenProgramOn(app, vellumark);
    AnswerQuestionsYes();
    std::unique_ptr<FrmMain> w = OpenMainWindow();
    StoreModel unused;
    SaveInList(unused);
    for (int i = 0; i < refills; ++i) {
        w->CopyAddrFile();
        ClearContactBuffer();
        w->RefreshListView1(w->strCountry, w->strNodeKey);
    }
    std::_Exit(0);
}

// The openat calls of a child that refills `refills` times, by strace -c; -1
// when strace can't run here. The store is put back as it was after, so
// that two children start from the same store.
long StraceOpens(const QString& app, const QString& vellumark, int refills) {
    const std::string folder = app.toStdString();
    const QStringList records = QDir(app + "/data").entryList(QDir::Files);
    std::string indexes[3];
    for (int k = 0; k < 3; ++k) indexes[k] = ReadFile(folder + "/" + kIndexNames[k] + ".dat");
    QProcess strace;
    strace.start("strace", {"-f", "-c", "-e", "trace=open,openat", QCoreApplication::applicationFilePath(),
                            "refill-opens", app, vellumark, QString::number(refills)});
    const bool ran = strace.waitForFinished(300000) && strace.exitCode() == 0;
    for (int k = 0; k < 3; ++k) WriteFile(folder + "/" + kIndexNames[k] + ".dat", indexes[k]);
    for (const QString& record : QDir(app + "/data").entryList(QDir::Files))
        if (!records.contains(record)) QFile::remove(app + "/data/" + record);
    if (!ran) return -1;
    long calls = 0;
    for (const QByteArray& line : strace.readAllStandardError().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= 5 && (fields.last() == "openat" || fields.last() == "open")) calls += fields[3].toLong();
    }
    return calls;
}

int SlowDrive(bool header) {
    const int contacts = 30000;
    Scratch s(contacts);
    OpenProgramOn(s.app, s.vellumark);
    std::unique_ptr<FrmMain> window = OpenMainWindow();
    FrmMain& w = *window;
    BareWindow bare;
    bare.window.show();
    if (header) PrintTableHeader();
    PrintTableRow("list refill after a save, 2 ms an open", contacts,
                  Alternate(kRuns, 1,
                            [&] {
                                SaveInList(s.model);
                                SetOpenDelayForBench(kSlowOpenMicros);
                                const double ms = Millis([&] {
                                    w.CopyAddrFile();
                                    ClearContactBuffer();
                                    w.RefreshListView1(w.strCountry, w.strNodeKey);
                                });
                                SetOpenDelayForBench(0);
                                Check(w.ListView1->topLevelItemCount() == s.model.inList(), "the slow refill's rows");
                                return ms;
                            },
                            [&] {
                                FloorOpenDelayMicros() = kSlowOpenMicros;
                                int rows = 0;
                                const double ms = Millis([&] {
                                    CopyFloor(s.floor);
                                    rows = ListFloor(s.floor, kListCountry, kListCategory, bare.list);
                                });
                                FloorOpenDelayMicros() = 0;
                                Check(rows == s.floorModel.inList(), "the slow floor's rows");
                                return ms;
                            }));
    SaveInList(s.model);
    const SeamCount seam = CountRefill(w);
    Check(w.ListView1->topLevelItemCount() == s.model.inList(), "the counted refill's rows");
    window.reset();
    const QString childCache = s.dir.path() + "/strace-cache/Vellumark";
    // A run with the refill less a run without: the same preparation in both.
    const long without = StraceOpens(s.app, childCache, 0), with = StraceOpens(s.app, childCache, 1);
    std::printf("\nfiles opened by a refill of the list (%d rows) after one save: %d by the file seam (and %d existence look-ups)",
                s.model.inList(), seam.opens, seam.lookUps);
    if (without < 0 || with < 0) std::printf("; strace could not run here\n");
    else std::printf("; %ld openat calls by strace -c\n", with - without);
    return 0;
}

// ---- the longest time each road keeps the window from painting ----

int PaintGaps() {
    const int contacts = 30000;
    Scratch s(contacts);
    OpenProgramOn(s.app, s.vellumark);
    std::unique_ptr<FrmMain> window = OpenMainWindow();
    FrmMain& w = *window;
    const bool paints = PaintsArrive(&w);
    std::printf("\nthe longest time the main window could not repaint, %d contacts, 3 runs (%s)\n", contacts,
                paints ? "its paint events timed" : "no paint events arrive here: the repaint timer's firings timed");
    std::printf("%-46s %14s %10s %10s\n", "road", "longest gap", "worst", "road (ms)");
    const auto measure = [&](const char* road, const std::function<void()>& prepare, const std::function<void()>& work,
                             const std::function<void()>& check) {
        std::vector<double> gaps, times;
        for (int run = 0; run < 3; ++run) {
            prepare();
            double ms = 0;
            gaps.push_back(LongestPaintGap(&w, paints, [&] { ms = Millis(work); }));
            times.push_back(ms);
            check();
        }
        std::printf("%-46s %11.0f ms %7.0f ms %10.0f\n", road, Median(gaps), *std::max_element(gaps.begin(), gaps.end()),
                    Median(times));
        std::fflush(stdout);
    };
    const auto none = [] {};
    const auto listed = [&] { CheckWindow(w, s.model, kListCountry, s.model.inList(), "paint gap"); };
    measure("list fill", [&] { w.CopyAddrFile(); }, [&] { w.RefreshListView1(kListCountryText, ListKey()); }, listed);
    measure("tree rebuild", none, [&] { w.RefreshCategory(); }, listed);
    measure("country switch", [&] { w.RefreshListView1(kListCountryText, ListKey()); },
            [&] { w.cmbCountry->setCurrentIndex(kCountries[1].index); },
            [&] {
                CheckWindow(w, s.model, 1, 0, "paint gap of the country switch");
                w.cmbCountry->setCurrentIndex(kCountries[kListCountry].index);
            });
    measure("refresh after a save", [&] { SaveInList(s.model); }, [&] { RefreshAfterSave(w); }, listed);
    measure("new-contact save and its refresh", none,
            [&] {
                SaveInList(s.model);
                RefreshAfterSave(w);
            },
            listed);
    // The first 500 rows checked, the delete's question answered Yes.
    AnswerQuestionsYes();
    measure("delete of 500 (mnuDelete_info)",
            [&] {
                w.RefreshListView1(kListCountryText, ListKey());
                for (int i = 0; i < 500; ++i) w.ListView1->topLevelItem(i)->setCheckState(0, Qt::Checked);
            },
            [&] { w.Entry("mnuDelete_info")->trigger(); },
            [&] {
                s.model.counts[kListCountry][kListCategory] -= 500;
                listed();
            });
    return 0;
}
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList args = QCoreApplication::arguments();
    const QString mode = args.value(1);
    if (mode == "start-real") return StartReal(args.value(2), args.value(3), args.value(4).toInt());
    if (mode == "start-bare") return StartBare(args.value(2), args.value(3), args.value(4).toInt());
    if (mode == "refill-opens") return RefillOpens(args.value(2), args.value(3), args.value(4).toInt());
    AnswerQuestionsYes();
    if (mode == "slow-drive") return SlowDrive(WantsHeader(argc, argv));
    if (mode == "paint-gaps") return PaintGaps();
    if (WantsHeader(argc, argv)) PrintTableHeader();
    for (int contacts : {1000, 10000, 30000}) RunRoads(contacts);
    return 0;
}
