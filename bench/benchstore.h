#pragma once
// The store the road benches run on, made with plain C++ file calls: n
// contacts in five categories and four countries, each with a record of
// all 15 keys at realistic lengths (some addresses and notes over several
// lines), and cat.dat, cty.dat and name.dat filled and line-parallel. A
// fifth of the store is Work in Norway: the category the list shows.
#include <sys/stat.h>
#include <cctype>
#include <cstdio>
#include <string>
#include "benchfiles.h"

struct BenchCountry {
    const char* name;
    int index;  // its place in the country library's list
};
inline constexpr BenchCountry kCountries[] = {{"Norway", 161}, {"Sweden", 204}, {"Denmark", 57}, {"Finland", 72}};
inline constexpr const char* kCategoryNames[] = {"Main", "Work", "Family", "Club", "Shops"};
inline constexpr const char* kIndexNames[] = {"cat", "cty", "name"};
constexpr int kCountryCount = 4, kCategoryCount = 5;
// The cell of the list: Work in Norway.
constexpr int kListCountry = 0, kListCategory = 1;

inline std::string Id(int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%05d", number);
    return text;
}
inline std::string CategoryIdOf(int category) { return Id(category + 1); }

// What the store holds, as its maker and the writes made since tell it.
struct StoreModel {
    int counts[kCountryCount][kCategoryCount] = {};
    int lastId = 0;  // the ids 1 .. lastId are taken by the maker and the floors' saves
    int inList() const { return counts[kListCountry][kListCategory]; }
    int total() const {
        int sum = 0;
        for (const auto& row : counts)
            for (int count : row) sum += count;
        return sum;
    }
};

inline std::string ContactName(int id) {
    static const char* first[] = {"Ingrid", "Lars", "Astrid", "Magnus", "Sigrid", "Henrik", "Kari", "Olav",
                                  "Freja", "Nils", "Maja", "Erik", "Liv", "Anders", "Elin", "Jonas"};
    static const char* last[] = {"Kristiansen", "Johansson", "Nieminen", "Haugen", "Lindqvist", "Virtanen",
                                 "Berg", "Dahl", "Solberg", "Andersen", "Korhonen", "Nilsson"};
    return std::string(first[id % 16]) + " " + last[(id / 16) % 12] + "-" + std::to_string(id);
}

// A record as the contact dialogs write it: "[Setting]" and the 15 keys.
inline std::string RecordText(int id, int country, int category) {
    const std::string name = ContactName(id), number = std::to_string(1000000 + id * 37 % 8999999);
    std::string mail = name;
    for (char& c : mail) c = c == ' ' ? '.' : char(std::tolower(static_cast<unsigned char>(c)));
    const std::string addr = id % 3 == 0 ? "Storgata " + std::to_string(id % 90 + 1) + "<NextLine>0155 Oslo<NextLine>" +
                                               kCountries[country].name
                                         : "Kungsgatan " + std::to_string(id % 70 + 1) + ", 111 43 Stockholm";
    return "[Setting]\r\ninfoid=" + Id(id) + "\r\ninfoname=" + name + "\r\ncountry=" +
           std::to_string(kCountries[country].index) + "\r\ncategory=" + CategoryIdOf(category) + "\r\ntel1=+47 22 " +
           number + "\r\next1=" + (id % 2 ? "214" : "") + "\r\ntel2=+47 23 " + number + "\r\next2=\r\nmobile=+47 9" +
           number + "\r\nfax=" + (id % 5 ? "" : "+47 22 00 00 00") + "\r\ncompany=Fjord Shipping AS\r\n"
           "designation=Senior Project Manager\r\naddr=" + addr + "\r\nnotes=" +
           (id % 4 ? "" : "Met at the trade fair in Bergen.<NextLine>Prefers e-mail to telephone.") + "\r\nmail=" + mail +
           "@example.no\r\n";
}

// The three index lines of a contact.
struct IndexLines {
    std::string cat, cty, name;
};
inline IndexLines LinesOf(int id, int country, int category) {
    const std::string q = "\"", c = kCountries[country].name;
    return {q + c + "\",\"" + CategoryIdOf(category) + "\",\"" + Id(id) + "\"\r\n", q + c + "\",\"" + Id(id) + "\"\r\n",
            q + Id(id) + "\",\"" + ContactName(id) + "\"\r\n"};
}

// The cell of contact i: every fifth in the list's cell, the others spread
// over the remaining nineteen.
inline void CellOf(int i, int& country, int& category) {
    if (i % 5 == 0) {
        country = kListCountry;
        category = kListCategory;
        return;
    }
    int cell = (i * 7) % 19;
    if (cell >= kListCountry * kCategoryCount + kListCategory) ++cell;
    country = cell / kCategoryCount;
    category = cell % kCategoryCount;
}

// The store of n contacts in `app` (which holds data/ already or not).
inline StoreModel MakeStore(const std::string& app, int n) {
    std::string cat, cty, name;
    StoreModel model;
    ::mkdir((app + "/data").c_str(), 0755);
    for (int i = 1; i <= n; ++i) {
        int country, category;
        CellOf(i, country, category);
        const IndexLines lines = LinesOf(i, country, category);
        cat += lines.cat;
        cty += lines.cty;
        name += lines.name;
        WriteFile(app + "/data/addr" + Id(i) + ".b64", RecordText(i, country, category));
        ++model.counts[country][category];
    }
    model.lastId = n;
    std::string categories;
    for (int k = 0; k < kCategoryCount; ++k) categories += "\"" + CategoryIdOf(k) + "\",\"" + kCategoryNames[k] + "\"\r\n";
    WriteFile(app + "/category.dat", categories);
    WriteFile(app + "/cat.dat", cat);
    WriteFile(app + "/cty.dat", cty);
    WriteFile(app + "/name.dat", name);
    return model;
}
