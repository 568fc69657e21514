// The name-clash test of the duplicate and move batches, on the store's own
// lists: names compared without regard to case, ids and categories exactly,
// and the country the taken contact stands in now.
#include <gtest/gtest.h>

#include "main/core/clashes.h"
#include "support/printers.h"
#include "support/scratch.h"

TEST(Clashes, ASameNamedContactOfAnotherIdInTheTargetAndTheSourcesCountryClashes) {
    ScratchStore store;
    store.put("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
    store.put("name.dat", Cp1252("\"00011\",\"Åse\"\r\n\"00012\",\"Per\"\r\n\"00013\",\"Bo\"\r\n\"00021\",\"ÅSE\"\r\n"
                                 "\"00022\",\"per\"\r\n\"00023\",\"Bo\"\r\n\"00024\",\"Liv\"\r\n"));
    store.put("cat.dat", "\"Norway\",\"00001\",\"00011\"\r\n\"Norway\",\"00001\",\"00012\"\r\n"
                         "\"Norway\",\"00001\",\"00013\"\r\n\"Norway\",\"00002\",\"00021\"\r\n"
                         "\"Sweden\",\"00002\",\"00022\"\r\n\"Norway\",\"00001\",\"00023\"\r\n");
    WindowArrays a;
    ASSERT_TRUE(a.Fill());
    EXPECT_EQ(a.CategoryIdOf("Work"), "00002");
    EXPECT_EQ(a.arrRowCountry.first(), "\"Norway\"");  // quotes still on
    // 00024 has no cat.dat row and drops out; 00013 is the same contact in
    // its own category, not a clash with itself.
    a.arrSelId = {"00011", "00012", "00013", "00024", "00023"};
    a.arrSelName = {U("åse"), "Per", "Bo", "Liv", "Bo"};
    a.TakeRows();
    EXPECT_EQ(a.strIds, "00011\r\n00012\r\n00013\r\n00023\r\n");
    const std::tuple<const char*, QString, QString, QString> rows[] = {
        // target, clash names, old ids, free ids
        {"00002", U("åse\r\n"), "00021\r\n", "00012\r\n00013\r\n00023\r\n"},  // Per's twin is in Sweden
        {"00001", "Bo\r\nBo\r\n", "00023\r\n00013\r\n", U("00011\r\n00012\r\n")},
    };
    for (const auto& [target, names, oldIds, freeIds] : rows) {
        a.CheckClashes(target);
        EXPECT_EQ(a.strClashNames + "|" + a.strClashOldIds + "|" + a.strFreeIds, names + "|" + oldIds + "|" + freeIds) << target;
    }
    EXPECT_EQ(a.strClashIds, "00013\r\n00023\r\n");
}
