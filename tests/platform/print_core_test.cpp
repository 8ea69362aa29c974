#include "platform/preferences.h"
#include "platform/print_core.h"

#include <QDir>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

TEST(PrintCore, KeepsLockedValuesAndRefusesNothingElse) {
    PrintSettings settings;
    const struct {
        PMPrintSettings settings;
        QString key, value;
        bool locked;
        PMStatus status;
    } cases[] = {
        {&settings, "a", "1", false, kPMNoError},
        {&settings, "a", "2", true, kPMNoError},
        {&settings, "a", "3", false, kPMLocked},
        {&settings, "b", "", false, kPMNoError},
        {&settings, "b", QString(), false, kPMInvalidParameter},
        {&settings, "", "1", false, kPMInvalidParameter},
        {nullptr, "a", "1", false, kPMInvalidParameter},
    };
    for (const auto &row : cases)
        EXPECT_EQ(row.status, PMPrintSettingsSetValue(row.settings, row.key, row.value, row.locked))
            << row.key.toStdString() << '=' << row.value.toStdString();

    QString value = "before";
    EXPECT_EQ(kPMNoSuchEntry, PMPrintSettingsGetValue(&settings, "c", &value));
    EXPECT_EQ("before", value);
    EXPECT_EQ(kPMNoError, PMPrintSettingsGetValue(&settings, "a", &value));
    EXPECT_EQ("2", value);
    EXPECT_EQ(kPMNoError, PMPrintSettingsGetValue(&settings, "b", &value));
    EXPECT_TRUE(value.isEmpty() && !value.isNull());
    EXPECT_EQ(kPMInvalidParameter, PMPrintSettingsGetValue(&settings, "a", nullptr));
}

TEST(Preferences, AreKeptApartByDomainAndReachTheDisk) {
    using namespace preferences;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                           "/pde-preferences";
    QDir(folder).removeRecursively();
    const QString users[] = {kCFPreferencesCurrentUser, kCFPreferencesAnyUser, "../someone"};
    for (const QString &user : users)
        CFPreferencesSetValue("a/b.c", "of " + user, "app", user, kCFPreferencesCurrentHost);
    for (const QString &user : users) {
        EXPECT_TRUE(CFPreferencesSynchronize("app", user, kCFPreferencesCurrentHost));
        EXPECT_EQ("of " + user,
                  CFPreferencesCopyValue("a/b.c", "app", user, kCFPreferencesCurrentHost));
    }
    EXPECT_EQ(3, QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
    EXPECT_TRUE(CFPreferencesCopyValue("a/b.c", kCFPreferencesAnyApplication, users[0],
                                       kCFPreferencesCurrentHost)
                    .isNull());
    CFPreferencesSetValue("a/b.c", "", "app", users[0], kCFPreferencesCurrentHost);
    EXPECT_FALSE(
        CFPreferencesCopyValue("a/b.c", "app", users[0], kCFPreferencesCurrentHost).isNull());
    CFPreferencesSetValue("a/b.c", {}, "app", users[0], kCFPreferencesCurrentHost);
    EXPECT_TRUE(
        CFPreferencesCopyValue("a/b.c", "app", users[0], kCFPreferencesCurrentHost).isNull());
    QDir(folder).removeRecursively();
}

} // namespace
