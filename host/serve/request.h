#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace host {

/// The most bytes of a request's line.
inline constexpr qsizetype kMostRequest = 1 << 20;

/// A request that has the form it must have: its command is known, and so is each member, which has
/// its type; nothing that the command needs is missing.
struct Request {
    QString command;
    QJsonObject members;
    double seconds; ///< for the answer, that asked for or else the command's own

    /// A member's text; null where it isn't given.
    QString text(const char *name) const { return members[QLatin1String(name)].toString(); }
    QJsonObject object(const char *name) const { return members[QLatin1String(name)].toObject(); }
    bool flag(const char *name) const { return members[QLatin1String(name)].toBool(); }
    int job() const { return members[QLatin1String("job")].toInt(); }
};

/// Reads a line.
/// @param why  told when nothing is returned. No value of the request is in it
std::optional<Request> readRequest(const QByteArray &line, QString *why);

} // namespace host
