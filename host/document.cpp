#include "host/document.h"

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

constexpr qint64 kGreatestConversion = qint64(4) << 30;
constexpr qint64 kMostWaiting = 1 << 20; ///< bytes on their way to a converter
constexpr qint64 kUelWindow = 512;       ///< bytes at the end that may be job control
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

/// Runs a converter. @param input  what it reads from its standard input; empty for nothing
/// @throw HostError
Content run(const Converter &converter, const Document &document, const QStringList &arguments,
            const Content &input, const char *format, const QByteArray &signature,
            const std::atomic<bool> *givenUp) {
    const QString program = QString::fromLatin1(converter.program);
    const QTemporaryDir folder; // what a converter that is killed leaves goes with it
    if (!folder.isValid())
        throw HostError(document.path, folder.errorString());
    const QString result = folder.filePath(QStringLiteral("result"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), folder.path());
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(result);
    if (input.size() == 0)
        process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    const QDeadlineTimer deadline(kConversionMs);
    const auto isWanted = [&] {
        return !(givenUp && *givenUp) && !deadline.hasExpired() &&
               QFileInfo(result).size() <= kGreatestConversion;
    };
    process.waitForStarted(kConversionMs);
    for (qint64 at = 0; at < input.size() && process.state() == QProcess::Running && isWanted();) {
        if (process.bytesToWrite() < kMostWaiting) {
            const QByteArray piece = input.read(at, kMostWaiting);
            process.write(piece);
            at += piece.size();
        }
        process.waitForBytesWritten(kLookMs);
    }
    process.closeWriteChannel();
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
    document.content.read(0, 1);                     // is what it was
    const Content content = Content::ofFile(result); // which is kept while this is
    const QString complaint =
        QString::fromLocal8Bit(process.readAllStandardError()).section(u'\n', 0, 0);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        !content.startsWith(signature))
        throw HostError(
            document.path,
            HostWords::tr("%1 can't convert it to %2%3")
                .arg(program, QLatin1String(format),
                     complaint.isEmpty() ? complaint : QStringLiteral(": ") + complaint));
    return content;
}

/// Job control ends with the line that enters PostScript, so the next line is the document's.
qint64 behindJobControl(const Content &content, qint64 start) {
    ContentLines lines(content, start);
    while (lines.next())
        if (lines.line().startsWith("%!"))
            return lines.start();
    return content.size();
}

} // namespace

Content barePostScript(const Content &content) {
    Content text = content;
    if (const QByteArray head = content.read(0, 12);
        head.startsWith(kDosEps) && head.size() == 12) {
        const qint64 at = qFromLittleEndian<quint32>(head.constData() + 4);
        const qint64 length = qFromLittleEndian<quint32>(head.constData() + 8);
        if (at + length > content.size())
            return {};
        text = content.mid(at, length);
    }
    qint64 start = 0;
    while (text.startsWith(QByteArrayView(&kEndOfTransmission, 1), start))
        ++start;
    if (text.startsWith(kUel, start))
        start = behindJobControl(text, start);
    text = text.mid(start, text.size());
    if (!text.startsWith("%!"))
        return {};
    qint64 end = text.size();
    const qint64 tailAt = qMax<qint64>(1, end - kUelWindow);
    const QByteArray tail = text.read(tailAt, kUelWindow);
    const qsizetype uel = tail.lastIndexOf(kUel);
    if (uel >= 0 && tail.indexOf("%!", uel) < 0)
        end = tailAt + uel;
    while (end > 0 && text.startsWith(QByteArrayView(&kEndOfTransmission, 1), end - 1))
        --end;
    return text.mid(0, end);
}

Document readDocument(const QString &path) {
    const Content content = Content::ofFile(path);
    if (content.size() == 0)
        throw HostError(path, HostWords::tr("is empty"));
    if (const Content bare = barePostScript(content); bare.size() > 0)
        return {Document::Type::PostScript, path, bare};
    if (content.read(0, kPdfWindow).contains("%PDF-"))
        return {Document::Type::Pdf, path, content};
    throw HostError(path, HostWords::tr("is neither PostScript nor PDF"));
}

Content toPostScript(const Document &document, const std::atomic<bool> *givenUp) {
    if (document.type == Document::Type::PostScript)
        return document.content;
    for (const Converter &converter : kConverters)
        if (isInstalled(converter))
            return run(converter, document,
                       converter.arguments + QStringList{document.content.fileName()} +
                           converter.output,
                       {}, "PostScript", "%!", givenUp);
    throw HostError(document.path,
                    HostWords::tr("a PDF needs pdftops or gs, and neither is installed"));
}

Content toPdf(const Document &document, QSizeF page, const std::atomic<bool> *givenUp) {
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
