#include "host/presets/preset_files.h"

#include "host/host_error.h"
#include "host/words.h"
#include "platform/file_content.h"
#include "platform/utf8.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QUrl>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace host {
namespace {

// A file's name has at most 255 bytes, and what is written beside it has a longer one.
constexpr qsizetype kLongestFileName = 200;
constexpr qsizetype kHashedBeginning = 150;
constexpr qsizetype kHashDigits = 32;

constexpr int kLockTries = 100;
constexpr int kLockPauseMs = 10;

} // namespace

QString fileNameFor(const QString &name) {
    QByteArray encoded = QUrl::toPercentEncoding(name, " ", ".~");
    if (encoded.size() > kLongestFileName) {
        const QByteArray hash =
            QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex();
        qsizetype end = kHashedBeginning;
        while (encoded[end - 1] == '%' || encoded[end - 2] == '%')
            --end;
        encoded = encoded.left(end) + '~' + hash.left(kHashDigits);
    }
    return QString::fromLatin1(encoded);
}

std::optional<QString> nameFromFile(const QString &fileName) {
    const QByteArray decoded = QByteArray::fromPercentEncoding(fileName.toUtf8());
    if (fileName.contains(u'~') || decoded.contains('\0'))
        return std::nullopt;
    return strictUtf8(decoded.constData());
}

void makeFolder(const QString &folder) {
    if (!QDir().mkpath(folder))
        throw HostError(folder, HostWords::tr("can't be made"));
}

void writeFile(const QString &path, const QByteArray &content) {
    QString reason;
    if (!writeWholeFile(path, content, &reason))
        throw HostError(path, HostWords::tr("can't be written: %1").arg(reason));
}

FolderLock::FolderLock(const QString &folder) {
    makeFolder(folder);
    const QString path = folder + QStringLiteral("/.lock");
    m_file = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK,
                    0600);
    if (m_file < 0)
        throw HostError(path, HostWords::tr("can't be written: %1")
                                  .arg(QString::fromLocal8Bit(std::strerror(errno))));
    for (int tries = 0; ::flock(m_file, LOCK_EX | LOCK_NB) != 0; ++tries) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return;
        if (tries == kLockTries) {
            ::close(m_file);
            throw HostError(folder, HostWords::tr("is in use by another program"));
        }
        QThread::msleep(kLockPauseMs);
    }
}

FolderLock::~FolderLock() {
    ::close(m_file);
}

} // namespace host
