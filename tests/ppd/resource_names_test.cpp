#include "ppd/resource_names.h"

#include "support/ppd_text.h"

#include <gtest/gtest.h>

TEST(ResourceNames, PartsOfTheSetting) {
    // clang-format off
    const std::tuple<const char *, QString, QString> cases[] = {
        {"Default01-Foo-Bar", "Default01", "Foo-Bar"}, {"-Foo", "", "Foo"},
        {"Default01-", "Default01", ""},               {"Default01", "Default01", ""}};
    // clang-format on
    for (const auto &[value, layout, help] : cases) {
        EXPECT_EQ(GetAppResourceName(value, 0), layout);
        EXPECT_EQ(GetAppResourceNameNS(value, 1), help);
    }
    // 254 bytes at most, and no half character
    const QByteArray umlauts = "a-b" + QString(300, QChar(0xfc)).toUtf8();
    EXPECT_EQ(GetAppResourceName(umlauts.constData(), 1), "b" + QString(126, QChar(0xfc)));
    EXPECT_EQ(GetAppFullResourceName("N", 0, "L_", "H_"), "L_N");
    EXPECT_EQ(GetAppFullResourceName("N", 1, "L_", "H_"), "H_N");
    EXPECT_EQ(GetAppFullResourceName("N", 2, "L_", "H_"), "N");
    EXPECT_EQ(GetAppFullResourceName(QString(600, 'x'), 0, "L_", "H_").size(), 510);
}

TEST(ResourceNames, VendorPrefixTakesTheConstantsCase) {
    const PpdPtr ours = openPpdText({});
    // clang-format off
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"qzThing", "QZThing"}, {"ABThing", "ABThing"}, {"q", "q"}, {"", ""},
        {"qz" + QByteArray(200, 'x'), "QZ" + QByteArray(97, 'x')}};
    // clang-format on
    for (const auto &[keyword, expected] : cases) {
        char out[100] = {};
        FixPPDKeywordAccordingToType(ours.get(), keyword.constData(), out);
        EXPECT_EQ(QByteArray(out), expected);
    }
    char out[100] = {};
    FixPPDKeywordAccordingToType(nullptr, "qzThing", out);
    EXPECT_STREQ(out, "qzThing") << "a PPD of nobody keeps the spelling";
}
