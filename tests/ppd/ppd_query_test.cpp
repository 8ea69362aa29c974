#include "ppd/ppd_query.h"

#include "support/ppd_text.h"

#include <gtest/gtest.h>

namespace {

const QByteArray kText = ppdOption("QZScreen", {"A", "b", "B", "C4to8", "E"}, "B", "Bildschirm") +
                         ppdOption("QZNumber", {"4to8", "None"}) +
                         "*QZXCDFSettingOld: \"abc12\"\n*QZXCDFSetting: \"x\"\n"
                         "*QZZero: \"0\"\n*QZMinus: \"a-5b\"\n*QZBlank: \" 7\"\n*QZNone: \"abc\"\n"
                         "*QZMixed: \"1a2b\"\n*QZLong: \"12345\"\n*QZShort: \"7\"\n"
                         "*QZUmlaut: \"\303\2741234\"\n*QZEuro: \"1\342\202\2542\"\n";

struct PpdQuery : testing::Test {
    PpdPtr owner = openPpdText(kText);
    ppd_file_t *ppd = owner.get();
    ppd_option_t *screen = ppdFindOption(ppd, "QZScreen");
    void setDefault(const char *keyword) {
        qstrncpy(screen->defchoice, keyword, sizeof screen->defchoice);
    }
};

} // namespace

TEST_F(PpdQuery, AttributesAreFoundByPrefixAndCase) {
    EXPECT_STREQ(ppdFindAttr_ALT(ppd, "QZXCDFSetting", nullptr)->name, "QZXCDFSettingOld");
    EXPECT_EQ(ppdFindAttr_ALT(ppd, "", "no part"), ppd->attrs[0]);
    EXPECT_EQ(ppdFindAttr_ALT(ppd, "qzxcdf", nullptr), nullptr);
    EXPECT_TRUE(CDFKeyExist(ppd, "QZXCDF"));
    EXPECT_FALSE(CDFKeyExist(ppd, "QZXCDFSettingOldAndLonger"));
    ppd_file_t empty = {};
    EXPECT_EQ(ppdFindAttr_ALT(&empty, "", nullptr), nullptr);
    EXPECT_TRUE(CheckPPDKeyIsExist(ppd, "qzscreen"));
    EXPECT_FALSE(CheckPPDKeyIsExist(ppd, "QZXCDFSetting"));
}

TEST_F(PpdQuery, EachLookupMissesInItsOwnWay) {
    const QString values[] = {"b", "B"};
    EXPECT_EQ(GetPPDKeyOptionCount(ppd, "QZScreen"), 5);
    EXPECT_EQ(GetValueFromPPD(ppd, "QZScreen", values, 2), 1);
    EXPECT_EQ(GetUIDefaultValueFromPPD(ppd, "QZScreen"), 2);
    EXPECT_EQ(GetChoiceIndex(ppd, "QZScreen", "B"), 2);
    EXPECT_EQ(GetIndexFromPPDByKeyword(screen, "B"), 2);

    // no such choice
    setDefault("Nowhere");
    EXPECT_EQ(GetValueFromPPD(ppd, "QZScreen", values, 2), -1);
    EXPECT_EQ(GetUIDefaultValueFromPPD(ppd, "QZScreen"), -1);
    EXPECT_EQ(GetChoiceIndex(ppd, "QZScreen", "e"), 5);
    EXPECT_EQ(GetIndexFromPPDByKeyword(screen, "e"), 0);

    // no such option, no PPD
    for (ppd_file_t *file : {ppd, static_cast<ppd_file_t *>(nullptr)}) {
        EXPECT_EQ(GetPPDKeyOptionCount(file, "NoSuch"), 0);
        EXPECT_EQ(GetValueFromPPD(file, "NoSuch", values, 2), -1);
        EXPECT_EQ(GetUIDefaultValueFromPPD(file, "NoSuch"), -1);
        EXPECT_EQ(GetChoiceIndex(file, "NoSuch", "B"), 0);
    }
    EXPECT_EQ(GetIndexFromPPDByKeyword(nullptr, "B"), 0);
    EXPECT_EQ(GetIndexFromPPDByKeyword(screen, nullptr), 0);
    EXPECT_EQ(GetPPDKeyOptionCount(ppd, nullptr), 0);
}

TEST_F(PpdQuery, MarkedChoiceOrElseTheDefault) {
    ppdMarkOption(ppd, "QZScreen", "E");
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "QZScreen"), 4);
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "QZNumber"), -1); // another option's
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "NoSuch"), 1); // libcups takes "b" for "B"
    setDefault("Nowhere");
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(screen, ppd, "NoSuch"), -1);
    EXPECT_EQ(GetIndexOfMarkedOptionWithKey(nullptr, ppd, "QZScreen"), -1);
}

TEST_F(PpdQuery, TextsAndLists) {
    QString text = "before";
    EXPECT_EQ(GetUIDefaultFromPPD(ppd, "QZScreen", text), 0);
    EXPECT_EQ(text, "B");
    GetUITitleFromPPD(ppd, "QZScreen", text);
    EXPECT_EQ(text, "Bildschirm");
    GetUITitleFromPPD(ppd, "NoSuch", text);
    EXPECT_TRUE(text.isNull());
    GetUIDefaultFromPPD(ppd, "NoSuch", text = "before");
    EXPECT_TRUE(text.isNull());

    char keyword[41] = "before";
    for (int index : {-1, 5})
        GetValueFromPPDByIndex(ppd, "QZScreen", keyword, index);
    GetValueFromPPDByIndex(ppd, "NoSuch", keyword, 0);
    EXPECT_STREQ(keyword, "before");
    GetValueFromPPDByIndex(ppd, "QZScreen", keyword, 3);
    EXPECT_STREQ(keyword, "C4to8");

    EXPECT_FALSE(ArrayFromPPDOption(nullptr));
    const std::unique_ptr<PDEChoiceArray> choices = ArrayFromPPDOption(screen);
    ASSERT_EQ(choices->size(), 5u);
    EXPECT_EQ((*choices)[3].choice(), &screen->choices[3]);
    EXPECT_EQ((*choices)[3].description(), "C4to8/C4to8 label");

    const ChoiceRows rows{{"O", "a", "", ""}, {"O", "b", "", ""}, {"O", "b", "", ""}};
    EXPECT_EQ(FindPPDKeyPairsMatch(rows, "O", "b"), 1);
    EXPECT_EQ(FindPPDKeyPairsMatch(rows, "o", "b"), -1);
    EXPECT_EQ(FindPPDKeyPairsMatch({}, "O", "b"), -1);
}

TEST_F(PpdQuery, NumbersOutOfTexts) {
    EXPECT_EQ(getIntFromString("4to8", 4), 48);
    EXPECT_EQ(getIntFromString("-1\0002", 4), 12);
    EXPECT_EQ(getIntFromString("12", 0), 0);
    EXPECT_EQ(getIntFromString(std::string(400, '9').c_str(), 400), INT_MAX);

    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "QZNumber"), 48);
    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "NoSuch"), -1);
    EXPECT_EQ(GetPWMiniIntValueFromPPD(ppd, "QZScreen"), 0); // no digit is no miss

    const std::pair<const char *, int> first[] = {{"QZXCDFSettingOld", 12}, {"QZZero", 0},
                                                  {"QZMinus", -5},          {"QZBlank", 7},
                                                  {"QZNone", -1},           {"NoSuch", -1}};
    for (const auto &[name, number] : first)
        EXPECT_EQ(GetSorvaniPWMiniIntValueFromPPD(ppd, name), number) << name;

    const std::pair<const char *, int> mailbox[] = {{"QZMixed", 12}, {"QZLong", 123},
                                                    {"QZShort", 7},  {"QZNone", 0},
                                                    {"NoSuch", 0},   {"QZUmlaut", 1}};
    for (const auto &[name, number] : mailbox)
        EXPECT_EQ(GetMBMaxNumberFromPPD(ppd, name), number) << name;
    char *const declared = ppd->lang_encoding;
    QByteArray latin1("ISOLatin1");
    ppd->lang_encoding = latin1.data();
    EXPECT_EQ(GetMBMaxNumberFromPPD(ppd, "QZUmlaut"), 12); // one byte, not two
    EXPECT_EQ(GetMBMaxNumberFromPPD(ppd, "QZEuro"), 0);    // doesn't convert
    ppd->lang_encoding = declared;
}
