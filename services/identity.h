#pragma once

#include <QString>

// Questions to the system's user and group database (getpwnam(3), getgrnam(3)). Not thread-safe.

/// @return whether the process's real user is an administrator
bool IsUserAdmin();
/// @return whether the user is a member of the local group "admin"; false for a null name
bool checkIfAdminUser(const QString &user);
/// @return whether the user is listed in the group or has it as primary group; false for a null
///         or empty name and for a group that doesn't exist. A failing step is logged
bool isGroupMember(const QString &user, const char *group);
/// Walks all groups of that name; a user's primary group counts, too. An unknown user is told on
/// standard error.
/// @return whether the primary group is one of them, or else what the last of them said
bool CheckUserGroups(const char *user, const char *group);
