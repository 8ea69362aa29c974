#include "services/identity.h"

#include "platform/log.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace {

constexpr char kAdminGroup[] = "admin";

// A look-up without a result leaves one of these, or nothing, in errno; all else is a failure.
bool isMiss(int error) {
    return error == 0 || error == ENOENT || error == ESRCH || error == EBADF || error == EPERM;
}

bool isListed(const QByteArray &user, char *const *members) {
    for (; members && *members; ++members)
        if (user == *members)
            return true;
    return false;
}

/// Logs the step of a look-up that failed; a look-up that only found nothing is silent.
void logFailure(int error) {
    if (isMiss(error))
        return;
    const char *step = "CSIdentityQueryExecute"; // the database doesn't answer
    if (error == EMFILE || error == ENFILE)
        step = "CSIdentityQueryCreateForName"; // no descriptor to ask it with
    else if (error == ENOMEM || error == ERANGE)
        step = "CSIdentityQueryCopyResults"; // no room for its answer
    qCWarning(panelLog, "UtilityService - %s failed.", step);
}

} // namespace

bool isGroupMember(const QString &user, const char *group) {
    const QByteArray name = user.toLocal8Bit();
    if (name.isEmpty() || !group)
        return false;
    errno = 0;
    const struct group *entry = getgrnam(group);
    if (!entry) {
        logFailure(errno);
        return false;
    }
    if (isListed(name, entry->gr_mem))
        return true;
    const gid_t id = entry->gr_gid;
    errno = 0;
    const passwd *account = getpwnam(name.constData());
    if (!account && !isMiss(errno))
        qCWarning(panelLog, "UtilityService - CSIdentityCreateGroupMembershipQuery failed.");
    return account && account->pw_gid == id;
}

bool checkIfAdminUser(const QString &user) {
    return isGroupMember(user, kAdminGroup);
}

bool IsUserAdmin() {
    const passwd *account = getpwuid(getuid());
    return account && checkIfAdminUser(QString::fromLocal8Bit(account->pw_name));
}

bool CheckUserGroups(const char *user, const char *group) {
    setgrent();
    const passwd *account = user ? getpwnam(user) : nullptr;
    if (!account) {
        std::fputs("groups: no such user.\n", stderr);
        endgrent();
        return false;
    }
    const gid_t primary = account->pw_gid;
    bool found = false;
    while (const struct group *entry = group ? getgrent() : nullptr) {
        if (std::strcmp(entry->gr_name, group) != 0)
            continue;
        if (entry->gr_gid == primary) {
            found = true;
            break;
        }
        found = isListed(user, entry->gr_mem);
    }
    endgrent();
    return found;
}
