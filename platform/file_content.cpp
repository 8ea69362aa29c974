#include "platform/file_content.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::optional<QByteArray> readRegularFile(const QString &path, qint64 limit, QString *reason) {
    const auto refuse = [reason](const QString &why) {
        *reason = why;
        return std::nullopt;
    };
    const auto systemReason = [] { return QString::fromLocal8Bit(std::strerror(errno)); };
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return refuse(systemReason());
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return refuse(file.errorString());
    }
    struct stat info = {};
    if (::fstat(fd, &info) != 0)
        return refuse(systemReason());
    if (!S_ISREG(info.st_mode))
        return refuse(S_ISDIR(info.st_mode) ? QStringLiteral("is a directory")
                                            : QStringLiteral("is not a regular file"));
    if (info.st_size > limit)
        return refuse(QStringLiteral("is larger than %1 MB").arg(limit >> 20));
    QByteArray content = file.read(limit);
    if (file.error() != QFileDevice::NoError)
        return refuse(file.errorString());
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
