#include "ppd/print_session.h"

#include <gtest/gtest.h>

TEST(PrintSession, SettingsTakeTextsWithPlainBars) {
    PrintSettings settings;
    // clang-format off
    const std::tuple<const char *, PMStatus, QString> rows[] = {
        {"a￤b￤￤", 0, "a|b||"}, {"", 0, ""}, {nullptr, -50, ""}, {"a\xFF", -108, ""}, {"¦", 0, "¦"}};
    // clang-format on
    for (const auto &[value, status, stored] : rows) {
        EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock(value, &settings, "k", false), status);
        EXPECT_EQ(settings.find("k")->value, stored);
    }
    EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock("v", nullptr, "x", false), -50);
    EXPECT_EQ(SetIntegerValueToSettings(-12, &settings, "n", true), 0);
    EXPECT_EQ(SetIntegerValueToSettings(3, &settings, "n", true), kPMLocked);
    EXPECT_EQ(settings.find("n")->value, "-12");
}

TEST(PrintSession, NumbersThePpdReferenceAndThePrintersKeys) {
    PrintSession session;
    session.setData("wide", 0x1'FFFF'FFF9LL);
    session.setData("int64", QVariant::fromValue(int64_t{5}));
    session.setData("float", -2.9F);
    session.setData("text", "12");
    for (const auto &[key, status, number] :
         {std::tuple("wide", 0, -7), {"int64", 0, 5}, {"float", 0, -2}, {"text", -30891, 99}}) {
        int32_t value = 99;
        EXPECT_EQ(GetTicketFromSession(&session, key, &value), status) << key;
        EXPECT_EQ(value, number) << key;
    }
    using Row = std::pair<QVariant, uintptr_t>; // a reference has no sign
    for (const auto &[data, reference] : {Row({}, 0), Row(QByteArray("\x01\x02\x03"), 0),
                                          Row(QByteArray("\x01\x02\x03\xF4zzzz"), 0xF4030201U)}) {
        auto *ppd = reinterpret_cast<ppd_file_t *>(1);
        session.setData("kPMPPDReference", data);
        EXPECT_EQ(GetPPDRefFromSession(&session, &ppd), 0);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(ppd), reference);
    }
    QString printer, key;
    EXPECT_EQ(SetPrinterString(&session, &printer), 1);
    session.setCurrentPrinter({"queue"});
    EXPECT_EQ(SetPrinterString(&session, &printer), 0);
    EXPECT_TRUE(CreateKeyWithCurrentPrinter("k", "", &key) &&
                CreateKeyWithCurrentPrinter(".n", printer, &key));
    EXPECT_EQ(key, "kqueue.n"); // appended
}
