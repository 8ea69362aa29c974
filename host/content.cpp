#include "host/content.h"

#include "host/host_error.h"
#include "host/words.h"
#include "platform/file_content.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

constexpr qint64 kPiece = 256 << 10;

bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

bool isSameTime(const timespec &a, const timespec &b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

} // namespace

struct Content::File {
    File(int descriptor, QString name) : fd(descriptor), path(std::move(name)) { fstat(fd, &info); }
    ~File() { ::close(fd); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    QByteArray read(qint64 at, qint64 count) const {
        QByteArray bytes(count, Qt::Uninitialized);
        for (qint64 done = 0; done < count;) {
            const ssize_t got = pread(fd, bytes.data() + done, size_t(count - done), at + done);
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0)
                throw HostError(path, QString::fromLocal8Bit(std::strerror(errno)));
            if (got == 0)
                break; // which changes its size, too
            done += got;
        }
        struct stat now = {};
        if (fstat(fd, &now) != 0 || now.st_size != info.st_size ||
            !isSameTime(now.st_mtim, info.st_mtim))
            throw HostError(path, HostWords::tr("was changed since it was opened"));
        return bytes;
    }

    int fd;
    QString path;
    struct stat info = {};
};

Content Content::ofFile(const QString &path) {
    QString reason;
    const int fd = openRegularFile(QFile::encodeName(path).constData(), &reason);
    if (fd < 0)
        throw HostError(path, reason);
    Content content;
    content.m_file = std::make_shared<const File>(fd, path);
    content.m_size = content.m_file->info.st_size;
    return content;
}

QByteArray Content::read(qint64 at, qint64 count) const {
    const Content part = mid(at, count);
    return m_file ? m_file->read(part.m_start, part.m_size)
                  : m_bytes.mid(part.m_start, part.m_size);
}

Content Content::mid(qint64 at, qint64 count) const {
    Content part = *this;
    at = std::clamp<qint64>(at, 0, m_size);
    part.m_start = m_start + at;
    part.m_size = std::clamp<qint64>(count, 0, m_size - at);
    return part;
}

QString Content::fileName() const {
    return m_file ? QStringLiteral("/proc/%1/fd/%2").arg(getpid()).arg(m_file->fd) : QString();
}

bool Content::startsWith(QByteArrayView text, qint64 at) const {
    return read(at, text.size()) == text;
}

qint64 Content::indexOf(QByteArrayView text, qint64 from) const {
    for (qint64 at = from; at + text.size() <= m_size; at += kPiece) {
        const qsizetype found = read(at, kPiece + text.size() - 1).indexOf(text);
        if (found >= 0)
            return at + found;
    }
    return -1;
}

void Content::copy(qint64 from, qint64 to, const Sink &sink) const {
    for (qint64 at = from; at < to; at += kPiece)
        sink(read(at, std::min(kPiece, to - at)));
}

bool ContentLines::next() {
    m_start = m_end;
    m_line.resize(0);
    for (qint64 at = m_start; at < m_content.size();) {
        if (at < m_chunkStart || at >= m_chunkStart + m_chunk.size()) {
            m_chunk = m_content.read(at, kPiece);
            m_chunkStart = at;
        }
        const char *const from = m_chunk.constData() + (at - m_chunkStart);
        const char *const chunkEnd = m_chunk.constData() + m_chunk.size();
        const char *const end = std::find_if(from, chunkEnd, isLineEnd);
        m_line.append(from, std::min<qsizetype>(end - from, kLongestLine - m_line.size()));
        at += end - from;
        m_end = at;
        if (end < chunkEnd) {
            m_end = end + 1 < chunkEnd ? at + (*end == '\r' && end[1] == '\n' ? 2 : 1)
                                       : behindLineEnd(at);
            break;
        }
    }
    return m_start < m_content.size();
}

qint64 ContentLines::behindLineEnd(qint64 at) const {
    const QByteArray ahead = m_content.read(at, 2);
    if (ahead == "\r\n")
        return at + 2;
    return at + (!ahead.isEmpty() && isLineEnd(ahead[0]) ? 1 : 0);
}

} // namespace host
