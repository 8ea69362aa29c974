#include "host/document.h"

#include "host/files.h"
#include "host/host_error.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QtEndian>

namespace host {
namespace {

constexpr qint64 kGreatestDocument = qint64(1) << 30;
constexpr int kConversionMs = 120 * 1000;
constexpr char kEndOfTransmission = '\x04';

/// "Universal exit language", which opens and closes the job control around a document.
constexpr QByteArrayView kUel("\x1b%-12345X");
/// DOS EPS: these four bytes, then place and length of the PostScript as 32-bit little-endian
/// numbers (Encapsulated PostScript File Format 3.0, 5.2).
constexpr QByteArrayView kDosEps("\xc5\xd0\xd3\xc6");
/// PDF readers look for the signature in the first 1024 bytes (PDF 1.7, implementation note 13).
constexpr qsizetype kPdfWindow = 1024;

struct Converter {
    const char *program;
    QStringList arguments; ///< before the file
    QStringList output;    ///< behind the file
};

const Converter kConverters[] = {
    {"pdftops", {QStringLiteral("-level3")}, {QStringLiteral("-")}},
    {"gs",
     {QStringLiteral("-q"), QStringLiteral("-dNOPAUSE"), QStringLiteral("-dBATCH"),
      QStringLiteral("-dSAFER"), QStringLiteral("-sDEVICE=ps2write"),
      QStringLiteral("-sOutputFile=-"), QStringLiteral("-sstdout=%stderr"), QStringLiteral("-f")},
     {}},
};

} // namespace

QByteArray barePostScript(const QByteArray &content) {
    QByteArray text = content;
    if (text.startsWith(kDosEps) && text.size() >= 12) {
        const qint64 at = qFromLittleEndian<quint32>(text.constData() + 4);
        const qint64 length = qFromLittleEndian<quint32>(text.constData() + 8);
        if (at + length > text.size())
            return {};
        text = text.mid(at, length);
    }
    qsizetype start = 0;
    while (start < text.size() && (text[start] == kEndOfTransmission))
        ++start;
    if (QByteArrayView(text).sliced(start).startsWith(kUel)) {
        // Job control ends with the line that enters PostScript, so the next line is the
        // document's.
        while (start < text.size() && !QByteArrayView(text).sliced(start).startsWith("%!")) {
            while (start < text.size() && text[start] != '\n' && text[start] != '\r')
                ++start;
            while (start < text.size() && (text[start] == '\n' || text[start] == '\r'))
                ++start;
        }
    }
    text = text.mid(start);
    if (!text.startsWith("%!"))
        return {};
    qsizetype end = text.size();
    const qsizetype uel = text.lastIndexOf(kUel);
    if (uel > 0 && text.size() - uel < 512 && text.indexOf("%!", uel) < 0)
        end = uel;
    while (end > 0 && text[end - 1] == kEndOfTransmission)
        --end;
    return text.left(end);
}

Document readDocument(const QString &path) {
    const QByteArray content = readRegularFile(path, kGreatestDocument);
    if (content.isEmpty())
        throw HostError(path, QStringLiteral("is empty"));
    if (QByteArray bare = barePostScript(content); !bare.isNull())
        return {Document::Type::PostScript, path, bare};
    if (content.left(kPdfWindow).contains("%PDF-"))
        return {Document::Type::Pdf, path, content};
    throw HostError(path, QStringLiteral("is neither PostScript nor PDF"));
}

QByteArray toPostScript(const Document &document) {
    if (document.type == Document::Type::PostScript)
        return document.content;
    for (const Converter &converter : kConverters) {
        const QString program = QString::fromLatin1(converter.program);
        if (QStandardPaths::findExecutable(program).isEmpty())
            continue;
        QProcess process;
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(program, converter.arguments +
                                   QStringList{QFileInfo(document.path).absoluteFilePath()} +
                                   converter.output);
        if (!process.waitForFinished(kConversionMs)) {
            const bool late = process.error() == QProcess::Timedout;
            const QString error = process.errorString();
            process.kill();
            process.waitForFinished(-1);
            throw HostError(document.path,
                            late ? QStringLiteral("%1 didn't finish within %2 seconds")
                                       .arg(program)
                                       .arg(kConversionMs / 1000)
                                 : program + QStringLiteral(": ") + error);
        }
        const QByteArray text = process.readAllStandardOutput();
        const QString complaint =
            QString::fromLocal8Bit(process.readAllStandardError()).section(u'\n', 0, 0);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
            !text.startsWith("%!"))
            throw HostError(document.path,
                            QStringLiteral("%1 can't convert it to PostScript%2")
                                .arg(program, complaint.isEmpty()
                                                  ? complaint
                                                  : QStringLiteral(": ") + complaint));
        return text;
    }
    throw HostError(document.path,
                    QStringLiteral("a PDF needs pdftops or gs, and neither is installed"));
}

} // namespace host
