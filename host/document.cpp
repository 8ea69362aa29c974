#include "host/document.h"

#include "host/files.h"
#include "host/host_error.h"
#include "host/words.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>

namespace host {
namespace {

constexpr qint64 kGreatestDocument = qint64(1) << 30;
constexpr int kConversionMs = 120 * 1000;
constexpr int kLookMs = 50; ///< between two looks at whether a conversion is still wanted
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
    QStringList arguments; ///< before the input
    QStringList output;    ///< behind the input
};

const Converter kConverters[] = {
    {"pdftops", {QStringLiteral("-level3")}, {QStringLiteral("-")}},
    {"gs",
     {QStringLiteral("-q"), QStringLiteral("-dNOPAUSE"), QStringLiteral("-dBATCH"),
      QStringLiteral("-dSAFER"), QStringLiteral("-sDEVICE=ps2write"),
      QStringLiteral("-sOutputFile=-"), QStringLiteral("-sstdout=%stderr"), QStringLiteral("-f")},
     {}},
};

/// For looking at, with a page size in points for documents that don't set one.
const Converter kViewers[] = {
    {"gs",
     {QStringLiteral("-q"), QStringLiteral("-dNOPAUSE"), QStringLiteral("-dBATCH"),
      QStringLiteral("-dSAFER"), QStringLiteral("-sDEVICE=pdfwrite"),
      QStringLiteral("-sOutputFile=-"), QStringLiteral("-sstdout=%stderr"),
      QStringLiteral("-dDEVICEWIDTHPOINTS=%1"), QStringLiteral("-dDEVICEHEIGHTPOINTS=%1")},
     {}},
};

bool isInstalled(const Converter &converter) {
    return !QStandardPaths::findExecutable(QString::fromLatin1(converter.program)).isEmpty();
}

/// Runs a converter. @param input  what it reads from its standard input; null for nothing
/// @throw HostError
QByteArray run(const Converter &converter, const Document &document, const QStringList &arguments,
               const QByteArray &input, const char *format, const QByteArray &signature,
               const std::atomic<bool> *givenUp) {
    const QString program = QString::fromLatin1(converter.program);
    const QTemporaryDir folder; // what a converter that is killed leaves goes with it
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (folder.isValid())
        environment.insert(QStringLiteral("TMPDIR"), folder.path());
    process.setProcessEnvironment(environment);
    if (input.isNull())
        process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!input.isNull()) {
        process.write(input);
        process.closeWriteChannel();
    }
    const QDeadlineTimer deadline(kConversionMs);
    const auto isWanted = [&] {
        return !(givenUp && *givenUp) && !deadline.hasExpired() &&
               process.bytesAvailable() <= kGreatestDocument;
    };
    while (!process.waitForFinished(kLookMs) && process.error() == QProcess::Timedout && isWanted())
        ;
    if (process.state() != QProcess::NotRunning || process.error() == QProcess::FailedToStart) {
        const QString error =
            process.error() != QProcess::Timedout ? process.errorString()
            : deadline.hasExpired() ? HostWords::tr("%1 didn't finish within %2 seconds")
                                          .arg(program)
                                          .arg(kConversionMs / 1000)
            : givenUp && *givenUp ? HostWords::tr("given up")
                                  : HostWords::tr("%1 wrote too much").arg(program);
        process.kill();
        process.waitForFinished(-1);
        throw HostError(document.path, error);
    }
    const QByteArray text = process.readAllStandardOutput();
    const QString complaint =
        QString::fromLocal8Bit(process.readAllStandardError()).section(u'\n', 0, 0);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        !text.startsWith(signature))
        throw HostError(
            document.path,
            HostWords::tr("%1 can't convert it to %2%3")
                .arg(program, QLatin1String(format),
                     complaint.isEmpty() ? complaint : QStringLiteral(": ") + complaint));
    return text;
}

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
        throw HostError(path, HostWords::tr("is empty"));
    if (QByteArray bare = barePostScript(content); !bare.isNull())
        return {Document::Type::PostScript, path, bare};
    if (content.left(kPdfWindow).contains("%PDF-"))
        return {Document::Type::Pdf, path, content};
    throw HostError(path, HostWords::tr("is neither PostScript nor PDF"));
}

QByteArray toPostScript(const Document &document) {
    if (document.type == Document::Type::PostScript)
        return document.content;
    for (const Converter &converter : kConverters)
        if (isInstalled(converter))
            return run(converter, document,
                       converter.arguments +
                           QStringList{QFileInfo(document.path).absoluteFilePath()} +
                           converter.output,
                       {}, "PostScript", "%!", nullptr);
    throw HostError(document.path,
                    HostWords::tr("a PDF needs pdftops or gs, and neither is installed"));
}

QByteArray toPdf(const Document &document, QSizeF page, const std::atomic<bool> *givenUp) {
    if (document.type == Document::Type::Pdf)
        return document.content;
    for (const Converter &converter : kViewers) {
        if (!isInstalled(converter))
            continue;
        QStringList arguments = converter.arguments;
        arguments.last() = arguments.last().arg(page.height());
        arguments[arguments.size() - 2] = arguments[arguments.size() - 2].arg(page.width());
        return run(converter, document, arguments + QStringList{QStringLiteral("-")},
                   document.content, "PDF", "%PDF-", givenUp);
    }
    throw HostError(document.path, HostWords::tr("PostScript needs gs, which isn't installed"));
}

} // namespace host
