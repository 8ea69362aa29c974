#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Reads a whole regular file. A FIFO, device or directory is refused at once and never waited for.
/// @param limit   the greatest size taken, in bytes
/// @param reason  told when nothing is returned: half a sentence, the system's own where it has one
PDE_PLATFORM_EXPORT std::optional<QByteArray> readRegularFile(const QString &path, qint64 limit,
                                                              QString *reason);

/// @return whether two names lead to one file that exists
PDE_PLATFORM_EXPORT bool isSameFile(const QString &first, const QString &second);
