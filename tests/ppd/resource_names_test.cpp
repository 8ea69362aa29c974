#include "ppd/resource_names.h"

#include "support/ppd_text.h"

#include <gtest/gtest.h>

TEST(ResourceNames, PartsOfTheSetting) {
    const struct {
        const char *value;
        QString layout, help;
    } cases[] = {
        {"Default01-Foo-Bar", "Default01", "Foo-Bar"},
        {"-Foo", "", "Foo"},
        {"Default01-", "Default01", ""},
        {"Default01", "Default01", ""},
        {"", "", ""},
    };
    for (const auto &test : cases) {
        EXPECT_EQ(GetAppResourceName(test.value, 0), test.layout);
        EXPECT_EQ(GetAppResourceNameNS(test.value, 1), test.help);
        EXPECT_EQ(GetAppResourceName(test.value, 2), "");
        EXPECT_FALSE(GetAppResourceName(test.value, 1).isNull());
    }
    EXPECT_TRUE(GetAppResourceName(nullptr, 0).isNull());
    // 254 bytes at most, and no half character
    const QByteArray umlauts = QByteArray("a-") + QString(300, QChar(0xfc)).toUtf8();
    EXPECT_EQ(GetAppResourceName(umlauts.constData(), 1), QString(127, QChar(0xfc)));
    EXPECT_EQ(GetAppResourceName(("a-b" + umlauts.mid(2)).constData(), 1),
              "b" + QString(126, QChar(0xfc)));
}

TEST(ResourceNames, FullName) {
    EXPECT_EQ(GetAppFullResourceName("N", 0, "L_", "H_"), "L_N");
    EXPECT_EQ(GetAppFullResourceName("N", 1, "L_", "H_"), "H_N");
    EXPECT_EQ(GetAppFullResourceName("N", 2, "L_", "H_"), "N");
    EXPECT_EQ(GetAppFullResourceName("", 0, "L_", "H_"), "L_");
    EXPECT_TRUE(GetAppFullResourceName(QString(), 0, "L_", "H_").isNull());
    EXPECT_EQ(GetAppFullResourceName(QString(600, 'x'), 0, "L_", "H_").size(), 510);
}

TEST(ResourceNames, VendorPrefixTakesTheConstantsCase) {
    const PpdPtr ours = openPpdText({});
    ppd_file_t nobody = {};
    const struct {
        ppd_file_t *ppd;
        QByteArray keyword, expected;
    } cases[] = {
        {ours.get(), "qzThing", "QZThing"},
        {ours.get(), "QzThing", "QZThing"},
        {ours.get(), "ABThing", "ABThing"},
        {ours.get(), "q", "q"},
        {&nobody, "qzThing", "qzThing"},
        {ours.get(), "", ""},
        {ours.get(), "qz" + QByteArray(200, 'x'), "QZ" + QByteArray(97, 'x')},
    };
    for (const auto &test : cases) {
        char out[100] = {};
        FixPPDKeywordAccordingToType(test.ppd, test.keyword.constData(), out);
        EXPECT_EQ(QByteArray(out), test.expected);
    }
}
