#include "ppd/constraint_table.h"

#include "entries.h"
#include "support/ppd_text.h"

#include <gtest/gtest.h>

#include <chrono>

/// Two watched options in a group, and two that aren't in another.
const QByteArray kOptions =
    "*OpenGroup: First/First\n" + ppdOption("QZColorMode", {"None", "X", "Y"}) +
    ppdOption("QZOutputMode", {"Draft", "Fine", "Best", "OFF"}) + "*CloseGroup: First\n" +
    "*OpenGroup: Second/Second\n" + ppdOption("Other", {"On", "Off"}) +
    ppdOption("Another", {"On", "Off"}) + "*CloseGroup: Second\n";

TEST(ConstraintTable, EachFormGivesItsEntries) {
    const std::string product = "QZOutputMode:Best@0@0@1 QZOutputMode:Best@0@0@2 "
                                "QZOutputMode:Fine@0@0@1 QZOutputMode:Fine@0@0@2";
    const std::pair<ppd_const_t, std::string> cases[] = {
        // No choice named: never the first of an option, never an idle one.
        {{"QZColorMode", "", "QZOutputMode", ""}, product},
        {{"qzcolormode", "", "QZOUTPUTMODE", ""}, ""},      // spelled otherwise, it isn't watched
        {{"QZColorMode", "", "qzoutputmode", ""}, product}, // with the options' own spelling
        {{"Other", "", "QZColorMode", ""}, ""},             // nothing of the first half counts
        {{"QZColorMode", "", "other", "OFF"}, "other:OFF@0@0@1 other:OFF@0@0@2"},
        {{"QZColorMode", "", "NoSuch", "Thing"}, "NoSuch:Thing@0@0@1 NoSuch:Thing@0@0@2"},
        {{"Other", "off", "QZColorMode", ""}, "QZColorMode:X@1@0@1 QZColorMode:Y@1@0@1"},
        {{"Other", "NoSuch", "QZColorMode", ""}, ""},
        // Named choices count whatever they are.
        {{"QZOutputMode", "Draft", "Other", "Off"}, "Other:Off@0@1@0"},
        {{"QZColorMode", "NONE", "Other", "Off"}, "Other:Off@0@0@0"},
        {{"NoSuch", "Thing", "QZColorMode", "X"}, ""},
        {{"Other", "On", "Another", "On"}, ""}, // neither is watched
    };
    const PpdPtr ppd = openPpdText(kOptions + "*UIConstraints: *Other On *Another On\n");
    for (const auto &[constraint, expected] : cases) {
        ppd->consts[0] = constraint;
        hash_multimap table;
        EXPECT_EQ(xSetxppd(ppd.get(), &table), 0);
        for (auto *form :
             {xConst2Hash_O1O2, xConst2Hash_O1C1O2, xConst2Hash_O1O2C2, xConst2Hash_O1C1O2C2})
            for (int index : {-1, 1}) // no constraints
                form(ppd.get(), &table, index);
        EXPECT_EQ(entries(table), expected) << constraint.option1 << " " << constraint.option2;
    }
}

TEST(ConstraintTable, RepeatsAreCountedAndCostNothing) {
    QList<QByteArray> choices;
    for (int i = 0; i < 300; ++i)
        choices.append("Choice" + QByteArray::number(i));
    QByteArray text = ppdOption("QZColorMode", choices) + ppdOption("QZOutputMode", choices);
    for (int i = 0; i < 1000; ++i)
        text += "*UIConstraints: *QZColorMode *QZOutputMode\n";
    text += "*UIConstraints: *QZColorMode Choice7 *QZOutputMode Choice0\n";
    const PpdPtr ppd = openPpdText(text);
    hash_multimap table;
    const auto start = std::chrono::steady_clock::now();
    xSetxppd(ppd.get(), &table);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    EXPECT_EQ(table.size(), 299u * 299 * 1000 + 1);
    EXPECT_EQ(table.bucket_count(), 100663319u);
    EXPECT_EQ(table.equal_range("QZOutputMode:Choice1").size(), 299u * 1000);
    int asked = 0;
    EXPECT_FALSE(table.anyOf("QZOutputMode:Choice1", [&](x_constraints) { return ++asked < 0; }));
    EXPECT_LE(asked, 600);

    xSetxppd(ppd.get(), &table); // adds to what is there
    EXPECT_EQ(table.equal_range("QZOutputMode:Choice0"), std::deque<x_constraints>(2, {0, 0, 7}));
}
