#include "platform/preferences.h"
#include "platform/print_core.h"

#include <QDir>
#include <QStandardPaths>

#include <gtest/gtest.h>

TEST(PrintCore, KeepsLockedValuesAndRefusesNothingElse) {
    PrintSettings settings;
    const std::tuple<QString, QString, bool, PMStatus> cases[] = {
        {"a", "1", false, kPMNoError}, {"a", "2", true, kPMNoError},
        {"a", "3", false, kPMLocked},  {"b", {}, false, kPMInvalidParameter},
        {"b", "", false, kPMNoError},  {"", "1", false, kPMInvalidParameter}};
    for (const auto &[key, value, locked, status] : cases)
        EXPECT_EQ(status, PMPrintSettingsSetValue(&settings, key, value, locked))
            << key.toStdString() << '=' << value.toStdString();
    QString value;
    EXPECT_EQ(kPMNoError, PMPrintSettingsGetValue(&settings, "a", &value));
    EXPECT_EQ("2", value);
}

TEST(Preferences, AreKeptApartByDomainAndReachTheDisk) {
    using namespace preferences;
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                "/pde-preferences");
    folder.removeRecursively();
    const auto get = [](const QString &user) {
        return CFPreferencesCopyValue("a/b.c", "app", user, kCFPreferencesCurrentHost);
    };
    const auto set = [](const QString &value, const QString &user) {
        CFPreferencesSetValue("a/b.c", value, "app", user, kCFPreferencesCurrentHost);
    };
    const QString users[] = {kCFPreferencesCurrentUser, kCFPreferencesAnyUser, "../someone"};
    for (const QString &user : users)
        set("of " + user, user);
    for (const QString &user : users) {
        EXPECT_TRUE(CFPreferencesSynchronize("app", user, kCFPreferencesCurrentHost));
        EXPECT_EQ("of " + user, get(user));
    }
    EXPECT_EQ(3, folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
    set("", users[0]);
    EXPECT_FALSE(get(users[0]).isNull());
    set({}, users[0]);
    EXPECT_TRUE(get(users[0]).isNull());
    folder.removeRecursively();
}
