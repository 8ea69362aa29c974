#pragma once

#include "host/content.h"
#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QString>

namespace host {

/// What a PPD's marked features add to a document, in the order of the PPD's OrderDependency.
struct PsCode {
    QByteArray before; ///< job control, and code for outside the job
    QByteArray prolog, setup, page;
    QByteArray after; ///< job control
};

/// @param ppd    with the choices marked
/// @param title  for job control
PsCode psCode(ppd_file_t *ppd, const QString &title);

/// Writes a PostScript job: the document with the features' code around and within it.
///
/// Job control and code for outside the job come first; prolog, document and page features go into
/// the sections of their name; features that may stand anywhere go with those of the document
/// setup. A section that the document lacks is put in. A document without structuring comments is
/// embedded as a whole in a conforming one. Bytes of the document itself never change. Needs no
/// PPD, and so may run on any thread.
/// @param document  bare PostScript
/// @param title     the embedded document's name
/// @throw HostError as Content::read() and the sink
void writePsJob(const PsCode &code, const Content &document, const QString &title,
                const Sink &sink);

} // namespace host
