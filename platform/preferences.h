#pragma once

#include "platform/export.h"

#include <QString>

/// Preferences by application, user and host, kept with QSettings. The constants stand for the
/// domains that the controls use; an application, a user or a host may also be named.
///
/// One file for each domain: `pde-preferences/<user>/<host>/<application>.ini` in the user's
/// configuration folder, and for any user in the system's, which only an administrator can write.
namespace preferences {

inline const QString kCFPreferencesAnyApplication = QStringLiteral("AnyApplication");
inline const QString kCFPreferencesCurrentUser = QStringLiteral("CurrentUser");
inline const QString kCFPreferencesAnyUser = QStringLiteral("AnyUser");
inline const QString kCFPreferencesCurrentHost = QStringLiteral("CurrentHost");

/// @return the value, or a null text without one
PDE_PLATFORM_EXPORT QString CFPreferencesCopyValue(const QString &key, const QString &application,
                                                   const QString &user, const QString &host);
/// Sets a value; a null text removes it. Written to disk by the synchronise call at the latest.
PDE_PLATFORM_EXPORT void CFPreferencesSetValue(const QString &key, const QString &value,
                                               const QString &application, const QString &user,
                                               const QString &host);
/// Writes the domain's changes to disk and takes up those of other programs.
/// @return whether everything reached the disk
PDE_PLATFORM_EXPORT bool CFPreferencesSynchronize(const QString &application, const QString &user,
                                                  const QString &host);

} // namespace preferences
