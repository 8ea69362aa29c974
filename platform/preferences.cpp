#include "platform/preferences.h"

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>

#include <pwd.h>
#include <unistd.h>

namespace preferences {

namespace {

/// A name that is safe as one part of a path and as one key of QSettings.
QString encoded(const QString &name) {
    return QString::fromLatin1(QUrl::toPercentEncoding(name, QByteArray(), "."));
}

QString userFolder(const QString &user) {
    const passwd *entry = getpwuid(getuid());
    if (entry && user == QString::fromLocal8Bit(entry->pw_name))
        return kCFPreferencesCurrentUser;
    return user;
}

QString domainPath(const QString &application, const QString &user, const QString &host) {
    const bool ofSystem = user == kCFPreferencesAnyUser && !QStandardPaths::isTestModeEnabled();
    const QString root =
        ofSystem ? QStringLiteral("/etc/xdg")
                 : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QString hostName = host == kCFPreferencesCurrentHost ? QSysInfo::machineHostName() : host;
    return QStringList{root, QStringLiteral("pde-preferences"), encoded(userFolder(user)),
                       encoded(hostName), encoded(application) + QStringLiteral(".ini")}
        .join(u'/');
}

/// The open settings of a domain; they live as long as the application.
QSettings &domain(const QString &application, const QString &user, const QString &host) {
    static QHash<QString, QPointer<QSettings>> open;
    const QString path = domainPath(application, user, host);
    QPointer<QSettings> &settings = open[path];
    if (!settings)
        settings = new QSettings(path, QSettings::IniFormat, QCoreApplication::instance());
    return *settings;
}

} // namespace

QString CFPreferencesCopyValue(const QString &key, const QString &application, const QString &user,
                               const QString &host) {
    const QSettings &settings = domain(application, user, host);
    if (key.isEmpty() || !settings.contains(encoded(key)))
        return {};
    const QString value = settings.value(encoded(key)).toString();
    return value.isNull() ? QStringLiteral("") : value;
}

void CFPreferencesSetValue(const QString &key, const QString &value, const QString &application,
                           const QString &user, const QString &host) {
    if (key.isEmpty())
        return;
    QSettings &settings = domain(application, user, host);
    if (value.isNull())
        settings.remove(encoded(key));
    else
        settings.setValue(encoded(key), value);
}

bool CFPreferencesSynchronize(const QString &application, const QString &user,
                              const QString &host) {
    QSettings &settings = domain(application, user, host);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace preferences
