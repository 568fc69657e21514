#pragma once
// The longest time each of the window's roads keeps it from repainting, at
// 30,000 contacts, each road run three times from inside the event loop
// (paintgap.h).
#include <QAction>
#include "paintgap.h"
#include "roadstore.h"

inline int PaintGaps() {
    WindowOnStore b(30000);
    FrmMain& w = b.w();
    StoreModel& model = b.s.model;
    const bool paints = PaintsArrive(&w);
    std::printf("\nthe longest time the main window could not repaint, %d contacts, 3 runs (%s)\n", b.contacts,
                paints ? "its paint events timed" : "no paint events arrive here: the repaint timer's firings timed");
    std::printf("%-46s %14s %10s %10s\n", "road", "longest gap", "worst", "road (ms)");
    // Each run: `prepare` untimed, `road` measured, `check` after.
    const auto measure = [&](const char* name, const std::function<void()>& prepare, const std::function<void()>& road,
                             const std::function<void()>& check) {
        std::vector<double> gaps, times;
        for (int run = 0; run < 3; ++run) {
            prepare();
            double ms = 0;
            gaps.push_back(LongestPaintGap(&w, paints, [&] { ms = Millis(road); }));
            times.push_back(ms);
            check();
        }
        std::printf("%-46s %11.0f ms %7.0f ms %10.0f\n", name, Median(gaps), *std::max_element(gaps.begin(), gaps.end()),
                    Median(times));
        std::fflush(stdout);
    };
    const auto nothing = [] {};
    const auto listed = [&] { CheckWindow(w, model, kListCountry, model.inList(), "paint gap"); };
    const auto fillList = [&] { w.RefreshListView1(kListCountryText, ListKey()); };
    measure("list fill", [&] { w.CopyAddrFile(); }, fillList, listed);
    measure("tree rebuild", nothing, [&] { w.RefreshCategory(); }, listed);
    measure("country switch", fillList, [&] { w.cmbCountry->setCurrentIndex(kCountries[1].index); },
            [&] {
                CheckWindow(w, model, 1, 0, "paint gap of the country switch");
                w.cmbCountry->setCurrentIndex(kCountries[kListCountry].index);
            });
    measure("refresh after a save", [&] { SaveInList(model); }, [&] { RefreshAfterSave(w); }, listed);
    measure("new-contact save and its refresh", nothing,
            [&] {
                SaveInList(model);
                RefreshAfterSave(w);
            },
            listed);
    // The first 500 rows checked; the delete's question is answered Yes.
    measure("delete of 500 (mnuDelete_info)",
            [&] {
                fillList();
                for (int i = 0; i < 500; ++i) w.ListView1->topLevelItem(i)->setCheckState(0, Qt::Checked);
            },
            [&] { w.Entry("mnuDelete_info")->trigger(); },
            [&] {
                model.counts[kListCountry][kListCategory] -= 500;
                listed();
            });
    return 0;
}
