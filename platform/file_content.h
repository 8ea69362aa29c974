#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QFileDevice;
class QSaveFile;

/// Reads a whole regular file. A FIFO, device or directory is refused at once and never waited for.
/// @param limit   the greatest size taken, in bytes
/// @param reason  told when nothing is returned: half a sentence, the system's own where it has one
PDE_PLATFORM_EXPORT std::optional<QByteArray> readRegularFile(const QString &path, qint64 limit,
                                                              QString *reason);

/// Why a file couldn't be written, in the system's words. A write that was cut short sets no error:
/// then the disk is full.
PDE_PLATFORM_EXPORT QString reasonOf(const QFileDevice &file);
/// Puts a file that was written apart in place of the one under its name. QSaveFile alone would do
/// so even if the last of the content doesn't fit on the disk.
/// @return false, with what stands under the name left alone, if not all could be written
PDE_PLATFORM_EXPORT bool commitWhole(QSaveFile &file);
/// Writes a file whole or not at all.
/// @param reason  told on failure, as above; may be null
PDE_PLATFORM_EXPORT bool writeWholeFile(const QString &path, const QByteArray &content,
                                        QString *reason = nullptr);

/// @return whether two names lead to one file that exists
PDE_PLATFORM_EXPORT bool isSameFile(const QString &first, const QString &second);
