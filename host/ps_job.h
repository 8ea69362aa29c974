#pragma once

#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QString>

namespace host {

/// Writes a PostScript job: the document with the PPD's marked features around and within it.
///
/// Job control and code for outside the job come first; prolog, document and page features go into
/// the sections of their name, each section in the order of the PPD's OrderDependency; features
/// that may stand anywhere go with those of the document setup. A section that the document lacks
/// is put in. A document without structuring comments is embedded as a whole in a conforming one.
/// Bytes of the document itself never change.
/// @param ppd       with the choices marked
/// @param document  bare PostScript, in memory
/// @param title     for job control, and the embedded document's name
QByteArray writePsJob(ppd_file_t *ppd, const QByteArray &document, const QString &title);

} // namespace host
