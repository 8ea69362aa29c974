#include "ppd/constraint_table.h"

#include "entries.h"
#include "support/ppd_text.h"

#include <QList>

#include <gtest/gtest.h>

#include <chrono>

namespace {

/// Two watched options in a group, and two that aren't in another.
const QByteArray kOptions =
    "*OpenGroup: First/First\n" + ppdOption("QZColorMode", {"None", "X", "Y"}) +
    ppdOption("QZOutputMode", {"Draft", "Fine", "Best", "OFF"}) + "*CloseGroup: First\n" +
    "*OpenGroup: Second/Second\n" + ppdOption("Other", {"On", "Off"}) +
    ppdOption("Another", {"On", "Off"}) + "*CloseGroup: Second\n";

struct Halves {
    const char *option1, *choice1, *option2, *choice2;
};

void fill(ppd_const_t &constraint, const Halves &halves) {
    qstrncpy(constraint.option1, halves.option1, sizeof constraint.option1);
    qstrncpy(constraint.choice1, halves.choice1, sizeof constraint.choice1);
    qstrncpy(constraint.option2, halves.option2, sizeof constraint.option2);
    qstrncpy(constraint.choice2, halves.choice2, sizeof constraint.choice2);
}

} // namespace

TEST(ConstraintTable, EachFormGivesItsEntries) {
    const std::string product = "QZOutputMode:Best@0@0@1 QZOutputMode:Best@0@0@2 "
                                "QZOutputMode:Fine@0@0@1 QZOutputMode:Fine@0@0@2";
    const std::pair<Halves, std::string> cases[] = {
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
    ASSERT_TRUE(ppd && ppd->num_consts == 1);
    for (const auto &[halves, expected] : cases) {
        fill(ppd->consts[0], halves);
        hash_multimap table;
        EXPECT_EQ(xSetxppd(ppd.get(), &table), 0);
        EXPECT_EQ(entries(table), expected) << halves.option1 << " " << halves.option2;
    }
}

TEST(ConstraintTable, OptionsOfOneNameAndSubgroups) {
    // libcups joins options of one keyword and dissolves subgroups, so these are made by hand.
    const PpdPtr ppd =
        openPpdText(ppdOption("QZColorMode", {"Idle", "A"}) +
                    ppdOption("Second", {"Idle", "a", "B"}) + ppdOption("Other", {"Idle", "On"}) +
                    ppdOption("Hidden", {"Idle", "On"}) + "*UIConstraints: *Other *Hidden\n");
    ASSERT_TRUE(ppd && ppd->num_groups == 1 && ppd->num_consts == 1);
    ppd_group_t &group = ppd->groups[0];
    qstrncpy(group.options[1].keyword, "QZCOLORMODE", sizeof group.options[1].keyword);
    ppd_group_t subgroup = {};
    subgroup.options = &group.options[3];
    subgroup.num_options = 1;
    group.num_options = 3;
    group.subgroups = &subgroup;
    group.num_subgroups = 1;

    using Form = void (*)(ppd_file_t *, hash_multimap *, int);
    const struct {
        Form form;
        Halves halves;
        std::string entries;
    } cases[] = {
        // The search goes on to the next option for a choice, but not for the choices of a half.
        {xConst2Hash_O1C1O2C2, {"QZColorMode", "b", "Z", "z"}, "Z:z@0@1@2"},
        {xConst2Hash_O1C1O2C2, {"QZColorMode", "a", "Z", "z"}, "Z:z@0@0@1"},
        {xConst2Hash_O1O2C2, {"QZColorMode", "", "Z", "z"}, "Z:z@0@0@1"},
        {xConst2Hash_O1C1O2, {"Other", "On", "QZColorMode", ""}, "QZColorMode:A@0@2@1"},
        {xConst2Hash_O1O2,
         {"QZColorMode", "", "Other", ""},
         "Other:On@0@0@1 Other:On@0@1@1 Other:On@0@1@2"},
        {xConst2Hash_O1O2,
         {"Other", "", "QZColorMode", ""},
         "QZCOLORMODE:B@0@2@1 QZCOLORMODE:a@0@2@1 QZColorMode:A@0@2@1"},
        {xConst2Hash_O1C1O2C2, {"Hidden", "On", "Z", "z"}, ""},
        {xConst2Hash_O1O2, {"Other", "", "Hidden", ""}, ""},
    };
    for (const auto &test : cases) {
        fill(ppd->consts[0], test.halves);
        hash_multimap table;
        for (int index : {-1, 0, 1}) // two of them are no constraint
            test.form(ppd.get(), &table, index);
        test.form(nullptr, &table, 0);
        test.form(ppd.get(), nullptr, 0);
        EXPECT_EQ(entries(table), test.entries) << test.halves.option1 << test.halves.option2;
    }
    group.num_options = 4;
    group.subgroups = nullptr;
    group.num_subgroups = 0;
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
    ASSERT_TRUE(ppd);
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
    EXPECT_EQ(xSetxppd(nullptr, &table), 0);
    EXPECT_EQ(xSetxppd(ppd.get(), nullptr), 0);
}
