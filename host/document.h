#pragma once

#include "host/content.h"

#include <QSizeF>
#include <QString>

#include <atomic>

namespace host {

/// A document to print, told apart by its content, never by its name.
struct Document {
    enum class Type { PostScript, Pdf };

    Type type;
    QString path;    ///< as the user wrote it
    Content content; ///< PostScript bare of job control around it; a PDF as it is
};

/// Opens a document. Job control of another printer, end-of-file marks and the binary header of a
/// DOS EPS file are taken off PostScript.
/// @throw HostError for a file that can't be read or is neither PostScript nor PDF
Document readDocument(const QString &path);

/// The document as PostScript: a PDF is converted by pdftops, or by gs where that is missing, into
/// a temporary file. Meant for a thread of its own.
/// @param givenUp  the conversion is killed soon after this turns true; may be null
/// @throw HostError if neither is there, or it fails, writes over 4 GiB, needs longer than two
///        minutes or is given up
Content toPostScript(const Document &document, const std::atomic<bool> *givenUp = nullptr);

/// The document as PDF, to be looked at: PostScript is converted by gs, which needs no showpage
/// behind the last page. Else as toPostScript().
/// @param page  the size in points of pages that don't set their own
Content toPdf(const Document &document, QSizeF page, const std::atomic<bool> *givenUp = nullptr);

/// The part of a PostScript file that is PostScript, see readDocument(); empty without one.
/// @throw HostError as Content::read()
Content barePostScript(const Content &content);

} // namespace host
