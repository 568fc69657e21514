#pragma once
// The harness all benches share: a road beside its floor, alternating round
// by round (the one that goes first changes every round, so that neither
// is favoured by a warm cache or the other's leftovers), in several runs;
// the medians, and the spread of the runs; and the one table `make bench`
// prints: road, size, time, floor, ratio, spread.
#include <QCoreApplication>
#include <QString>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

using BenchClock = std::chrono::steady_clock;

inline double MillisSince(BenchClock::time_point start) {
    return std::chrono::duration<double, std::milli>(BenchClock::now() - start).count();
}

// The time a call takes, in ms.
template <typename F>
double Millis(F&& work) {
    const auto start = BenchClock::now();
    work();
    return MillisSince(start);
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// A bench that measured a failure measures nothing: it stops there.
inline void Check(bool ok, const std::string& what) {
    if (ok) return;
    std::fprintf(stderr, "bench check failed: %s\n", what.c_str());
    std::fflush(stdout);
    std::exit(1);
}
inline void Check(bool ok, const char* what) { Check(ok, std::string(what)); }
inline void Check(bool ok, const QString& what) { Check(ok, what.toStdString()); }

struct BenchResult {
    double time = NAN, floor = NAN;          // medians of the run medians, ms
    double ratioLow = NAN, ratioHigh = NAN;  // the lowest and highest ratio of one run's medians
    double ratio() const { return time / floor; }
};

// Each of `road` and `floor` does one round and gives the ms it measured
// (so that a round may prepare itself untimed).
using TimedRound = std::function<double()>;

// One round, and then, untimed, what it left for the event loop (the
// repaints of the rows it put in a window), so that the next round, the
// other's, doesn't pay for it.
inline double Settled(const TimedRound& round) {
    const double ms = round();
    QCoreApplication::processEvents();
    return ms;
}

inline BenchResult Alternate(int runs, int rounds, const TimedRound& road, const TimedRound& floor) {
    std::vector<double> roadMedians, floorMedians, ratios;
    for (int run = 0; run < runs; ++run) {
        std::vector<double> roadTimes, floorTimes;
        for (int round = 0; round < rounds; ++round) {
            if (round % 2 == 0) {
                roadTimes.push_back(Settled(road));
                floorTimes.push_back(Settled(floor));
            } else {
                floorTimes.push_back(Settled(floor));
                roadTimes.push_back(Settled(road));
            }
        }
        roadMedians.push_back(Median(roadTimes));
        floorMedians.push_back(Median(floorTimes));
        ratios.push_back(roadMedians.back() / floorMedians.back());
    }
    return {Median(roadMedians), Median(floorMedians), *std::min_element(ratios.begin(), ratios.end()),
            *std::max_element(ratios.begin(), ratios.end())};
}

// One measure of each, for the roads that change the store too much to be
// run many times (a batch of 500): no spread.
inline BenchResult Once(const TimedRound& road, const TimedRound& floor) {
    const double time = Settled(road);
    return {time, Settled(floor)};
}

inline void PrintTableHeader() {
    std::printf("%-46s %7s %10s %10s %7s  %s\n", "road", "size", "time (ms)", "floor (ms)", "ratio", "spread");
    std::printf("%s\n", std::string(98, '-').c_str());
}

// `size` is the number of contacts in the store.
// A part of a road with no floor of its own shows "-" there.
inline void PrintTableRow(const std::string& road, int size, const BenchResult& r) {
    const auto number = [](double value) {
        char text[24] = "-";
        if (!std::isnan(value)) std::snprintf(text, sizeof text, value < 10 ? "%.2f" : "%.1f", value);
        return std::string(text);
    };
    char spread[40] = "-";
    if (!std::isnan(r.ratioLow)) std::snprintf(spread, sizeof spread, "%.2f..%.2f", r.ratioLow, r.ratioHigh);
    const std::string ratio = std::isnan(r.floor) ? "-" : number(r.ratio());
    std::printf("%-46s %7d %10s %10s %7s  %s\n", road.c_str(), size, number(r.time).c_str(), number(r.floor).c_str(),
                ratio.c_str(), spread);
    std::fflush(stdout);
}

// The table's header is printed once, by the first bench `make bench` runs;
// the others are given --no-header.
inline bool WantsHeader(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::string(argv[i]) == "--no-header") return false;
    return true;
}
