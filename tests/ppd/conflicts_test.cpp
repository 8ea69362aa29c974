#include "ppd/conflicts.h"

#include "ppd/constraint_table.h"
#include "ppd/ppd_query.h"
#include "support/ppd_text.h"

#include <gtest/gtest.h>

struct Conflicts : testing::Test {
    const PpdPtr owner = openPpdText(ppdOption("QZColorMode", {"None", "X", "Y"}) +
                                     ppdOption("QZOutputMode", {"None", "P", "Q"}) +
                                     "*UIConstraints: *QZOutputMode P *QZColorMode X\n"
                                     "*UIConstraints: *QZOutputMode Q *QZColorMode X\n"
                                     "*UIConstraints: *QZColorMode Y *QZColorMode Y\n"
                                     "*UIConstraints: *QZOutputMode P *QZColorMode y\n");
    ppd_file_t *const ppd = owner.get();
    ChoiceRows rows;
};

TEST_F(Conflicts, FollowTheMarks) {
    hash_multimap table;
    xSetxppd(ppd, &table);
    const std::tuple<const char *, const char *, QString> cases[] = {
        {"None", "None", "000"},
        {"None", "P", "010"}, // "y" is another text than "Y"
        {"X", "Q", "010"},    // the second entry of a key counts too
        {"Y", "None", "001"}, // a choice may forbid itself
    };
    for (const auto &[colorMode, outputMode, expected] : cases) {
        ppdMarkOption(ppd, "QZColorMode", colorMode);
        ppdMarkOption(ppd, "QZOutputMode", outputMode);
        rows.clear();
        EXPECT_TRUE(InitializeValueFromPPD(ppd, &table, &rows, "QZColorMode"));
        QString flags;
        for (const ChoiceRow &row : rows)
            flags += row.conflicted() ? u'1' : u'0';
        EXPECT_EQ(flags, expected) << colorMode << " " << outputMode;
    }
}

TEST_F(Conflicts, RowsAreAppendedAndCounted) {
    const hash_multimap table;
    rows = {{"kept", "kept", "kept", kConflictFalse}};
    short count = 5;
    for (const char *key : {"QZColorMode", "NoSuch", static_cast<const char *>(nullptr)})
        EXPECT_EQ(GetUIListFromPPD(ppd, &table, key, &rows, &count), 0);
    EXPECT_EQ(count, 8);
    ASSERT_EQ(rows.size(), 4);
    const QStringList expected{"QZColorMode", "X", "X label", "ConflictFalse", QString()};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(rows[2][i], expected[i]);
}

TEST_F(Conflicts, LabelsComeInThePpdsEncoding) {
    ppd_choice_t &choice = ppdFindOption(ppd, "QZColorMode")->choices[1];
    char *const declared = ppd->lang_encoding;
    const std::tuple<const char *, unsigned int, const char *, QString> cases[] = {
        {"ISOLatin1", 513, "gr\xfcn", "grün"},
        {"WindowsANSI", 1280, "5\x80", "5€"},
        {"JIS83-RKSJ", 1, "\x82\xa0", "あ"},
        {"JIS83-RKSJ", 1, "a\x82", "a"}, // a character cut off at the end goes
        {"UTF8", 0x08000100, "\xe6\x97\xa5\xe6\x9c", "日"},
        {"UTF-8", 0x08000100, "\xe6\x97", "X"}, // nothing left: the keyword
        {"utf-8", 0, "\x8a", "ä"},
    };
    for (const auto &[encoding, expected, text, label] : cases) {
        ppd->lang_encoding = const_cast<char *>(encoding);
        unsigned int number = 99;
        GetCFStringEncodingFromPPD(ppd, &number);
        EXPECT_EQ(number, expected);
        qstrncpy(choice.text, text, sizeof choice.text);
        rows.clear();
        InitializeValueFromPPD(ppd, nullptr, &rows, "QZColorMode");
        EXPECT_EQ(rows.value(1).label, label) << number;
    }
    ppd->lang_encoding = declared;
}
