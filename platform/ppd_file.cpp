#include "platform/ppd_file.h"

#include "platform/file_content.h"
#include "platform/ppd_integrity.h"

#include <QtEndian>

#include <cups/file.h>

#include <cstdio>
#include <memory>

#include <unistd.h>

namespace {

constexpr qint64 kGreatestPpd = 64 << 20;

struct CupsFileCloser {
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// What libcups reads from the file: the text, unpacked where it is gzipped. A text that is longer
/// than a PPD may be is cut there.
QByteArray unpacked(int fd) {
    const std::unique_ptr<cups_file_t, CupsFileCloser> file(cupsFileOpenFd(dup(fd), "r"));
    QByteArray text, block(64 << 10, Qt::Uninitialized);
    // At the end of the file libcups answers as at a failure; the text is judged by what it lacks.
    for (ssize_t count; file && text.size() <= kGreatestPpd &&
                        (count = cupsFileRead(file.get(), block.data(), size_t(block.size()))) > 0;)
        text.append(block.constData(), count);
    return text;
}

/// Whether a gzipped file was cut off: its last four bytes are the text's size (RFC 1952, 2.3.1).
bool isPackedFileCut(const QByteArray &content, const QByteArray &text) {
    return content.startsWith("\x1f\x8b") &&
           (content.size() < 18 ||
            qFromLittleEndian<quint32>(content.end() - 4) != static_cast<quint32>(text.size()));
}

PpdFile refused(const QString &reason) {
    return {nullptr, {}, reason};
}

PpdFile refusedAt(int line, const QString &reason) {
    return refused(QStringLiteral("line %1: %2").arg(line).arg(reason));
}

} // namespace

PpdFile parsePpdFile(const QByteArray &content) {
    if (content.isEmpty())
        return refused(QStringLiteral("is empty"));
    const std::unique_ptr<FILE, int (*)(FILE *)> file(std::tmpfile(), std::fclose);
    if (!file ||
        fwrite(content.constData(), 1, size_t(content.size()), file.get()) !=
            size_t(content.size()) ||
        fflush(file.get()) != 0)
        return refused(QStringLiteral("no room for a temporary file"));
    const int fd = fileno(file.get());
    lseek(fd, 0, SEEK_SET);
    PpdPtr ppd(ppdOpenFd(dup(fd)));
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        return refusedAt(qMax(line, 1), QString::fromUtf8(ppdErrorString(status)));
    }
    lseek(fd, 0, SEEK_SET);
    QByteArray text = unpacked(fd);
    if (text.size() > kGreatestPpd)
        return refused(QStringLiteral("is too large for a PPD file"));
    if (const auto fault = findTruncation(text))
        return refusedAt(fault->line, fault->reason);
    if (isPackedFileCut(content, text))
        return refused(QStringLiteral("the gzipped file is cut off"));
    return {std::move(ppd), std::move(text), {}};
}

PpdFile readPpdFile(const QString &path) {
    QString reason;
    const auto content = readRegularFile(path, kGreatestPpd, &reason);
    return content ? parsePpdFile(*content) : refused(reason);
}
