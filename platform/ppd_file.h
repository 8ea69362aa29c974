#pragma once

#include "platform/cups_ppd.h"
#include "platform/export.h"

#include <QByteArray>
#include <QString>

/// A PPD file as the programs take it: whole, plain or gzipped.
struct PpdFile {
    PpdPtr ppd;      ///< nothing marked; null when the file is refused
    QByteArray text; ///< as libcups reads it, unpacked where the file is gzipped
    QString reason;  ///< why it is refused, half a sentence; null when it isn't
};

/// Takes the content of a PPD file. Refused is what libcups refuses, with the line, and what was
/// cut off, which libcups loads without a word.
PDE_PLATFORM_EXPORT PpdFile parsePpdFile(const QByteArray &content);
/// Reads a PPD file of at most 64 MB and takes its content.
PDE_PLATFORM_EXPORT PpdFile readPpdFile(const QString &path);
