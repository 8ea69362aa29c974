#include "ppd/conflicts.h"

#include "ppd/constraint_table.h"
#include "ppd/ppd_query.h"
#include "support/ppd_text.h"

#include <gtest/gtest.h>

namespace {

const QByteArray kText = ppdOption("QZColorMode", {"None", "X", "Y"}) +
                         ppdOption("QZOutputMode", {"None", "P", "Q"}) +
                         "*UIConstraints: *QZOutputMode P *QZColorMode X\n"
                         "*UIConstraints: *QZOutputMode Q *QZColorMode X\n"
                         "*UIConstraints: *QZColorMode Y *QZColorMode Y\n"
                         "*UIConstraints: *QZOutputMode P *QZColorMode y\n";

QString conflicts(const ChoiceRows &rows) {
    QString flags;
    for (const ChoiceRow &row : rows)
        flags += row.conflicted() ? u'1' : u'0';
    return flags;
}

} // namespace

TEST(Conflicts, FollowTheMarks) {
    const PpdPtr ppd = openPpdText(kText);
    ASSERT_TRUE(ppd);
    hash_multimap table;
    xSetxppd(ppd.get(), &table);
    const struct {
        const char *colorMode, *outputMode;
        QString flags;
    } cases[] = {
        {"None", "None", "000"},
        {"None", "P", "010"}, // "y" is another text than "Y"
        {"X", "Q", "010"},    // the second entry of a key counts too
        {"Y", "None", "001"}, // a choice may forbid itself
    };
    for (const auto &test : cases) {
        ppdMarkOption(ppd.get(), "QZColorMode", test.colorMode);
        ppdMarkOption(ppd.get(), "QZOutputMode", test.outputMode);
        ChoiceRows rows;
        EXPECT_TRUE(InitializeValueFromPPD(ppd.get(), &table, &rows, "QZColorMode"));
        EXPECT_EQ(conflicts(rows), test.flags) << test.colorMode << " " << test.outputMode;
    }
}

TEST(Conflicts, RowsAreAppendedAndCounted) {
    const PpdPtr ppd = openPpdText(kText);
    ASSERT_TRUE(ppd);
    const hash_multimap table;
    ChoiceRows rows{{"kept", "kept", "kept", kConflictFalse}};
    short count = 5;
    EXPECT_EQ(GetUIListFromPPD(ppd.get(), &table, "QZColorMode", &rows, &count), 0);
    EXPECT_EQ(count, 8);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0][0], "kept");
    const QStringList expected{"QZColorMode", "X", "X label", "ConflictFalse"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(rows[2][i], expected[i]);
    EXPECT_TRUE(rows[2][4].isNull());

    for (const char *key : {"NoSuch", static_cast<const char *>(nullptr)})
        EXPECT_EQ(GetUIListFromPPD(ppd.get(), &table, key, &rows, &count), 0);
    ppdFindOption(ppd.get(), "QZOutputMode")->num_choices = 0;
    EXPECT_EQ(GetUIListFromPPD(ppd.get(), &table, "QZOutputMode", &rows, &count), 0);
    EXPECT_EQ(GetUIListFromPPD(ppd.get(), &table, "QZColorMode", nullptr, &count), 0);
    EXPECT_EQ(rows.size(), 4);
    EXPECT_EQ(count, 8);
    ppdFindOption(ppd.get(), "QZOutputMode")->num_choices = 3;
}

TEST(Conflicts, LabelsComeInThePpdsEncoding) {
    const PpdPtr ppd = openPpdText(kText);
    ASSERT_TRUE(ppd);
    ppd_choice_t &choice = ppdFindOption(ppd.get(), "QZColorMode")->choices[1];
    char *const declared = ppd->lang_encoding;
    const struct {
        const char *encoding;
        unsigned int number;
        const char *text;
        QString label;
    } cases[] = {
        {"ISOLatin1", 513, "gr\xfcn", "grün"},
        {"WindowsANSI", 1280, "5\x80", "5€"},
        {"JIS83-RKSJ", 1, "\x82\xa0", "あ"},
        {"JIS83-RKSJ", 1, "a\x82", "a"}, // a character cut off at the end goes
        {"UTF-8", 0x08000100, "gr\xc3\xbcn", "grün"},
        {"UTF8", 0x08000100, "\xe6\x97\xa5\xe6\x9c", "日"},
        {"UTF-8", 0x08000100, "\xe6\x97", "X"}, // nothing left: the keyword
        {"utf-8", 0, "\x8a", "ä"},
        {nullptr, 0, "\x8a", "ä"},
    };
    for (const auto &test : cases) {
        ppd->lang_encoding = const_cast<char *>(test.encoding);
        unsigned int number = 99;
        GetCFStringEncodingFromPPD(ppd.get(), &number);
        EXPECT_EQ(number, test.number);
        qstrncpy(choice.text, test.text, sizeof choice.text);
        ChoiceRows rows;
        InitializeValueFromPPD(ppd.get(), nullptr, &rows, "QZColorMode");
        ASSERT_EQ(rows.size(), 3);
        EXPECT_EQ(rows[1].label, test.label) << number;
    }
    ppd->lang_encoding = declared;
}
