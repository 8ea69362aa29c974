#include "platform/kernel_release.h"
#include "services/identity.h"
#include "services/system_version.h"

#include <gtest/gtest.h>

#include <grp.h>

TEST(Identity, MembersByListAndByPrimaryGroup) {
    // clang-format off
    std::vector<std::tuple<std::string, std::string, bool>> rows = {
        {"root", "root", true}, // its primary group, which doesn't list it
        {"root", "daemon", false}, {"no-such-user", "root", false}, {"", "root", false}};
    // clang-format on
    setgrent();
    while (const group *entry = getgrent()) // and what this machine's database lists
        for (char **member = entry->gr_mem; *member; ++member)
            rows.emplace_back(*member, entry->gr_name, true);
    endgrent();
    for (const auto &[user, group, member] : rows) {
        EXPECT_EQ(isGroupMember(user.c_str(), group.c_str()), member) << user << " in " << group;
        EXPECT_EQ(CheckUserGroups(user.c_str(), group.c_str()), member) << user << " in " << group;
    }
}

TEST(SystemVersion, FromTheKernelRelease) {
    const std::tuple<std::optional<std::string>, std::vector<int32_t>> rows[] = {
        {std::nullopt, {0x1000, 10, 0, 0}}, {"16.0.0", {0x10C0, 10, 12, 0}},
        {"10.8.0", {0x1068, 10, 6, 8}},     {"19.17.0", {0x10F1, 10, 15, 1}},
        {"20.1.0", {0x1001, 10, 0, 1}},     {"-1.x", {0x1000, 10, 0, 0}}};
    for (const auto &[release, answers] : rows) {
        setKernelRelease(release); // drops the version of the row before
        std::vector<int32_t> out(4, -7);
        int32_t *next = out.data();
        for (auto selector : {kSelectorSysv, kSelectorSys1, kSelectorSys2, kSelectorSys3})
            EXPECT_EQ(Gestalt_ALT(selector, next++), 0);
        EXPECT_EQ(out, answers) << release.value_or("unreadable");
    }
}
