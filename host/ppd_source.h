#pragma once

#include "platform/cups_ppd.h"
#include "platform/print_core.h"

#include <QList>
#include <QPair>
#include <QString>

namespace host {

class CupsServer;

/// The queue that a command works on: its PPD with the defaults marked, and its name.
///
/// Outlives every panel that was made for it, since their controls point into the PPD.
struct PpdSource {
    PpdPtr ppd;
    Printer printer;
    QString path{}; ///< the file; null for a queue of CUPS
};

/// Opens a PPD file, plain or gzipped. @throw HostError with the line where libcups refuses the
/// file or where it is cut off
PpdSource openPpdFile(const QString &path);
/// A queue whose PPD was taken from CUPS. @throw HostError where libcups refuses it
PpdSource openPpdText(const QByteArray &text, const QString &queue);
/// Takes a queue's PPD from CUPS. @throw HostError
PpdSource openQueue(CupsServer &server, const QString &queue);

/// Marks choices in order. @throw HostError for an option or choice that the PPD doesn't have
void markChoices(const PpdSource &source, const QList<QPair<QString, QString>> &marks);

/// Every marked choice by its option, in the order of the PPD; several choices of one option that
/// allows it are several rows. A custom value is told as CUPS takes it, "Custom.WIDTHxHEIGHT" (in
/// points) for a page size.
QList<QPair<QString, QString>> markedChoices(ppd_file_t *ppd);

} // namespace host
