#include "platform/file_content.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int openRegularFile(const char *path, QString *reason) {
    const auto systemReason = [] { return QString::fromLocal8Bit(std::strerror(errno)); };
    const int fd = ::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat info = {};
    if (fd < 0 || ::fstat(fd, &info) != 0)
        *reason = systemReason();
    else if (!S_ISREG(info.st_mode))
        *reason = S_ISDIR(info.st_mode) ? QStringLiteral("is a directory")
                                        : QStringLiteral("is not a regular file");
    else
        return fd;
    if (fd >= 0)
        ::close(fd);
    return -1;
}

std::optional<QByteArray> readRegularFile(const QString &path, qint64 limit, QString *reason) {
    const int fd = openRegularFile(QFile::encodeName(path).constData(), reason);
    if (fd < 0)
        return std::nullopt;
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        *reason = file.errorString();
        return std::nullopt;
    }
    if (file.size() > limit) {
        *reason = QStringLiteral("is larger than %1 MB").arg(limit >> 20);
        return std::nullopt;
    }
    QByteArray content = file.read(limit);
    if (file.error() != QFileDevice::NoError) {
        *reason = file.errorString();
        return std::nullopt;
    }
    return content;
}

QString reasonOf(const QFileDevice &file) {
    return file.error() == QFileDevice::NoError ? QString::fromLocal8Bit(std::strerror(ENOSPC))
                                                : file.errorString();
}

bool commitWhole(QSaveFile &file) {
    if (file.flush())
        return file.commit();
    file.cancelWriting();
    return false;
}

bool writeWholeFile(const QString &path, const QByteArray &content, QString *reason) {
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
                         commitWhole(file);
    if (!written && reason)
        *reason = reasonOf(file);
    return written;
}

bool isSameFile(const QString &first, const QString &second) {
    const QString path = QFileInfo(first).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(second).canonicalFilePath();
}

QString refusalToReplace(const QString &path, const QStringList &inputs) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return QStringLiteral("is not a regular file");
    for (const QString &input : inputs)
        if (isSameFile(path, input))
            return QStringLiteral("is read by this command; name another file");
    return {};
}
