#include "ppd/ppd_query.h"

#include "support/ppd_text.h"

#include <gtest/gtest.h>

struct PpdQuery : testing::Test {
    PpdPtr owner =
        openPpdText(ppdOption("QZScreen", {"A", "b", "B", "C4to8", "E"}, "B", "Bildschirm") +
                    ppdOption("QZNumber", {"4to8", "None"}) +
                    "*QZXCDFSettingOld: \"abc12\"\n*QZXCDFSetting: \"x\"\n"
                    "*QZAttributeOf20Bytes: \"x\"\n"
                    "*QZZero: \"0\"\n*QZMinus: \"a-5b\"\n*QZBlank: \" 7\"\n*QZNone: \"abc\"\n"
                    "*QZMixed: \"1a2b\"\n*QZLong: \"12345\"\n*QZUmlaut: \"\303\2741234\"\n");
    ppd_file_t *ppd = owner.get();
    ppd_option_t *screen = ppdFindOption(ppd, "QZScreen");
};

TEST_F(PpdQuery, AttributesAreFoundByPrefixAndCase) {
    EXPECT_STREQ(ppdFindAttr_ALT(ppd, "QZXCDFSetting", nullptr)->name, "QZXCDFSettingOld");
    EXPECT_EQ(ppdFindAttr_ALT(ppd, "", "no part"), ppd->attrs[0]);
    EXPECT_EQ(ppdFindAttr_ALT(ppd, "qzxcdf", nullptr), nullptr);
    EXPECT_TRUE(CDFKeyExist(ppd, "QZAttributeOf20Byte")) << "19 bytes";
    EXPECT_FALSE(CDFKeyExist(ppd, "QZAttributeOf20Bytes")) << "too long to be asked for";
    EXPECT_FALSE(CDFKeyExist(ppd, QString()));
    EXPECT_TRUE(CheckPPDKeyIsExist(ppd, "qzscreen"));
    EXPECT_FALSE(CheckPPDKeyIsExist(ppd, "QZXCDFSetting"));
}

TEST_F(PpdQuery, EachLookupMissesInItsOwnWay) {
    const QString values[] = {"b", "B"};
    const auto ask = [&](ppd_file_t *file, const char *key, const char *choice) {
        return std::vector{GetPPDKeyOptionCount(file, key), GetValueFromPPD(file, key, values, 2),
                           GetUIDefaultValueFromPPD(file, key), GetChoiceIndex(file, key, choice)};
    };
    EXPECT_EQ(ask(ppd, "QZScreen", "B"), (std::vector{5, 1, 2, 2}));
    EXPECT_EQ(ask(ppd, "NoSuch", "B"), (std::vector{0, -1, -1, 0}));
    EXPECT_EQ(ask(nullptr, "NoSuch", "B"), (std::vector{0, -1, -1, 0}));
    EXPECT_EQ(GetIndexFromPPDByKeyword(screen, "B"), 2);
    EXPECT_EQ(GetIndexFromPPDByKeyword(screen, "e"), 0);
    qstrncpy(screen->defchoice, "Nowhere", sizeof screen->defchoice);
    EXPECT_EQ(ask(ppd, "QZScreen", "e"), (std::vector{5, -1, -1, 5}));
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "NoSuch"), -1);
}

TEST_F(PpdQuery, MarkedChoiceOrElseTheDefault) {
    ppdMarkOption(ppd, "QZScreen", "E");
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "QZScreen"), 4);
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "QZNumber"), -1); // another option's
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "NoSuch"), 1); // libcups takes "b" for "B"
}

TEST_F(PpdQuery, TextsAndLists) {
    QString text = "before";
    EXPECT_EQ(GetUIDefaultFromPPD(ppd, "QZScreen", text), 0);
    EXPECT_EQ(text, "B");
    GetUIDefaultFromPPD(ppd, "NoSuch", text);
    EXPECT_TRUE(text.isNull());
    GetUITitleFromPPD(ppd, "QZScreen", text);
    EXPECT_EQ(text, "Bildschirm");
    char keyword[41] = "before";
    for (int index : {-1, 5})
        GetValueFromPPDByIndex(ppd, "QZScreen", keyword, index);
    EXPECT_STREQ(keyword, "before");
    GetValueFromPPDByIndex(ppd, "QZScreen", keyword, 3);
    EXPECT_STREQ(keyword, "C4to8");

    const std::unique_ptr<PDEChoiceArray> choices = ArrayFromPPDOption(screen);
    ASSERT_EQ(choices->size(), 5u);
    EXPECT_EQ((*choices)[3].choice(), &screen->choices[3]);
    EXPECT_EQ((*choices)[3].description(), "C4to8/C4to8 label");
    ppd_choice_t umlaut{};
    strcpy(umlaut.text, "\xC3\xBC"); // bytes of UTF-8, and still one character each
    EXPECT_EQ(PDEChoiceKRVImageOptions(&umlaut).userTitle(), u"\u00C3\u00BC"_qs);

    const ChoiceRows rows{{"O", "a", "", ""}, {"O", "b", "", ""}, {"O", "b", "", ""}};
    EXPECT_EQ(FindPPDKeyPairsMatch(rows, "O", "b"), 1);
    EXPECT_EQ(FindPPDKeyPairsMatch(rows, "o", "b"), -1);
}

TEST_F(PpdQuery, NumbersOutOfTexts) {
    EXPECT_EQ(getIntFromString("-1\0002", 4), 12);
    EXPECT_EQ(getIntFromString(std::string(400, '9').c_str(), 400), INT_MAX);

    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "QZNumber"), 48);
    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "NoSuch"), -1);
    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "QZScreen"), 0); // no digit is no miss

    // clang-format off
    const std::tuple<const char *, int, int> cases[] = {
        {"QZXCDFSettingOld", 12, 0}, {"QZZero", 0, 0},   {"QZMinus", -5, 5},
        {"QZBlank", 7, 7},           {"QZNone", -1, 0},  {"QZUmlaut", 1234, 1},
        {"QZLong", 12345, 123},      {"QZMixed", 1, 12}, {"NoSuch", -1, 0}};
    // clang-format on
    for (const auto &[name, first, mailbox] : cases) {
        EXPECT_EQ(GetSorvaniPWMiniIntValueFromPPD(ppd, name), first) << name;
        EXPECT_EQ(GetMBMaxNumberFromPPD(ppd, name), mailbox) << name;
    }
    const QByteArray latin1("ISOLatin1");
    char *const declared = std::exchange(ppd->lang_encoding, const_cast<char *>(latin1.data()));
    EXPECT_EQ(GetMBMaxNumberFromPPD(ppd, "QZUmlaut"), 12); // one byte, not two
    ppd->lang_encoding = declared;
}
