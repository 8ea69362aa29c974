#include "ppd/print_session.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(PrintSession, SettingsTakeTextsWithPlainBars) {
    PrintSettings settings;
    const std::pair<const char *, QString> rows[] = {
        {"a￤b￤￤", "a|b||"}, {"", ""}, {"¦ é", u"¦ é"_qs}, {"\xEF\xBB\xBFx", u"\uFEFFx"_qs}};
    for (const auto &[value, stored] : rows) {
        EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock(value, &settings, "k", false), 0);
        EXPECT_EQ(settings.find("k")->value, stored);
    }
    EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock(nullptr, &settings, "x", false), -50);
    EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock("v", nullptr, "x", false), -50);
    EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock("v", &settings, QString(), false), -50);
    EXPECT_EQ(SetValueToSettingsWithTicketKeyAndLock("a\xFF", &settings, "x", false), -108);
    EXPECT_EQ(settings.entries().size(), 1);
    EXPECT_EQ(SetIntegerValueToSettings(-12, &settings, "n", true), 0);
    EXPECT_EQ(SetIntegerValueToSettings(3, &settings, "n", true), kPMLocked);
    EXPECT_EQ(settings.find("n")->value, "-12");
}

TEST(PrintSession, NumbersAndThePpdReference) {
    PrintSession session;
    session.setData("wide", 0x1'FFFF'FFF9LL);
    session.setData("text", "12");
    const std::tuple<PMPrintSession, const char *, PMStatus, int32_t> rows[] = {
        {&session, "wide", 0, -7},
        {&session, "text", -30891, 99},
        {&session, "none", -30891, 99},
        {nullptr, "wide", -30891, 99}};
    for (const auto &[asked, key, status, number] : rows) {
        int32_t value = 99;
        EXPECT_EQ(GetTicketFromSession(asked, key, &value), status) << key;
        EXPECT_EQ(value, number) << key;
    }
    auto *ppd = reinterpret_cast<ppd_file_t *>(1);
    EXPECT_EQ(GetPPDRefFromSession(nullptr, &ppd), kPMInvalidParameter);
    EXPECT_EQ(ppd, nullptr);
    const std::pair<QVariant, uintptr_t> references[] = {
        {QVariant(), 0},
        {QByteArray("\x01\x02\x03", 3), 0},
        {QByteArray("\x01\x02\x03\xF4\x05\x06\x07\x08", 8), 0xF4030201U}}; // without a sign
    for (const auto &[data, reference] : references) {
        session.setData("kPMPPDReference", data);
        EXPECT_EQ(GetPPDRefFromSession(&session, &ppd), 0);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(ppd), reference);
    }
}

TEST(PrintSession, KeysOfAPrinter) {
    PrintSession session;
    QString printer, key;
    EXPECT_EQ(SetPrinterString(&session, nullptr), 1);
    EXPECT_EQ(SetPrinterString(&session, &printer), 1);
    session.setCurrentPrinter({"queue"});
    EXPECT_EQ(SetPrinterString(&session, &printer), 0);
    EXPECT_FALSE(CreateKeyWithCurrentPrinter(QString(), "p", &key));
    EXPECT_FALSE(CreateKeyWithCurrentPrinter("k", QString(), &key));
    EXPECT_FALSE(CreateKeyWithCurrentPrinter("k", "p", nullptr));
    EXPECT_TRUE(CreateKeyWithCurrentPrinter("k", "", &key));
    EXPECT_TRUE(CreateKeyWithCurrentPrinter(".n", printer, &key));
    EXPECT_EQ(key, "kqueue.n"); // appended
}

} // namespace
