#pragma once
// What the roads of roads_bench share: a store of one size on tmpfs with
// the program's window open on it, a copy of the store for the floors with
// their bare window, and the checks of what the window shows.
#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <thread>
#include "benchwindow.h"
#include "floors.h"

// Two stores alike on tmpfs: the program's (with its libraries and
// setting.ini) and the floors' own, so that neither writes into the other.
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
        // A store in use holds files written long ago; the list trusts what
        // it kept of a record only once the file is older than the file
        // system's time step, so a store made a moment ago would be read
        // whole at every refill.
        std::this_thread::sleep_for(std::chrono::milliseconds(2100));
    }
};

// The stores, the main window on the program's with the list's category
// clicked, and the floors' bare window beside it.
struct WindowOnStore {
    int contacts;
    Scratch s;
    std::unique_ptr<FrmMain> window;
    BareWindow bare;

    explicit WindowOnStore(int n) : contacts(n), s(n) {
        OpenProgramOn(s.app, s.vellumark);
        window = OpenMainWindow();
        bare.window.show();
        QApplication::processEvents();
    }
    // The unload of the window frees the libraries, as at the end of a run.
    ~WindowOnStore() { window->close(); }
    FrmMain& w() const { return *window; }
};

inline const QString kListCountryText = kCountries[kListCountry].name;
inline QString ListKey() { return "id" + QString::fromStdString(CategoryIdOf(kListCategory)); }

// What the contact dialogs hand a save: a contact of the list's category.
inline ContactForm NewContactForm(const QString& name, const QString& notes) {
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

inline void SaveInList(StoreModel& model) {
    Check(bool(SaveNewContact(NewContactForm("Benedikte Fjeldstad", "Saved by the bench"))), "the new contact is saved");
    ++model.counts[kListCountry][kListCategory];
}

// What every dialog runs when it closes after a change.
inline void RefreshAfterSave(FrmMain& w) {
    w.CopyAddrFile();
    ClearContactBuffer();
    w.RefreshListView1(w.strCountry, w.strNodeKey);
    w.RefreshCategory();
}

inline void CheckWindow(const FrmMain& w, const StoreModel& model, int country, int rows, const char* road) {
    Check(w.ListView1->topLevelItemCount() == rows,
          QString("%1: %2 rows listed, %3 expected").arg(road).arg(w.ListView1->topLevelItemCount()).arg(rows));
    Check(NodeTexts(w) == ExpectedNodeTexts(model, country), QString("%1: the tree shows %2").arg(road, NodeTexts(w).join(", ")));
}

inline void CheckFloorTree(const std::vector<int>& counts, const StoreModel& model, int country) {
    for (int k = 0; k < kCategoryCount; ++k) Check(counts[k] == model.counts[country][k], "the floor's tree counts");
}
