#pragma once

#include <QByteArray>
#include <QString>

namespace host {

/// A document to print, told apart by its content, never by its name.
struct Document {
    enum class Type { PostScript, Pdf };

    Type type;
    QString path;       ///< as the user wrote it
    QByteArray content; ///< PostScript bare of job control around it; a PDF as it is
};

/// Reads a document. Job control of another printer, end-of-file marks and the binary header of a
/// DOS EPS file are taken off PostScript.
/// @throw HostError for a file that can't be read or is neither PostScript nor PDF
Document readDocument(const QString &path);

/// The document as PostScript: a PDF is converted by pdftops, or by gs where that is missing.
/// @throw HostError if neither is there, or it fails or needs longer than two minutes
QByteArray toPostScript(const Document &document);

/// The part of a PostScript file that is PostScript, see readDocument; null without one.
QByteArray barePostScript(const QByteArray &content);

} // namespace host
