#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// What a keyword of "printer-state-reasons" (RFC 8011, 5.4.12; CUPS' own ones, too) says to a
/// person: a few words without a capital or a full stop. The ending "-report", "-warning" or
/// "-error" may stand. A keyword that isn't known is told by its own words.
/// @return null for one that tells nothing beyond the state ("none", "paused")
QString reasonInWords(const QString &keyword);

/// Several reasons in words: errors before warnings before reports, nothing said twice.
QStringList reasonsInWords(const QStringList &keywords);

} // namespace host
