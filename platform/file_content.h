#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

class QFileDevice;
class QSaveFile;

/// Opens a file for reading. A FIFO, device or directory is refused at once and never waited for.
/// @param path    as the file system has it
/// @param reason  told on failure: half a sentence, the system's own where it has one
/// @return a descriptor that the caller closes; -1 on failure
PDE_PLATFORM_EXPORT int openRegularFile(const char *path, QString *reason);

/// Reads a whole file that openRegularFile() opens.
/// @param limit   the greatest size taken, in bytes
/// @param reason  told when nothing is returned, as above
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

/// Why a command may not write under a name: half a sentence; null where it may.
/// @param inputs  the files that the command reads; empty names are passed over
PDE_PLATFORM_EXPORT QString refusalToReplace(const QString &path, const QStringList &inputs);
