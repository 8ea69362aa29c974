#include "host/files.h"

#include "host/host_error.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

QByteArray readRegularFile(const QString &path, qint64 limit) {
    const auto systemReason = [] { return QString::fromLocal8Bit(std::strerror(errno)); };
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        throw HostError(path, systemReason());
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        throw HostError(path, file.errorString());
    }
    struct stat info = {};
    if (::fstat(fd, &info) != 0)
        throw HostError(path, systemReason());
    if (!S_ISREG(info.st_mode))
        throw HostError(path, S_ISDIR(info.st_mode) ? QStringLiteral("is a directory")
                                                    : QStringLiteral("is not a regular file"));
    if (info.st_size > limit)
        throw HostError(path, QStringLiteral("is larger than %1 MB").arg(limit >> 20));
    const QByteArray content = file.read(limit);
    if (file.error() != QFileDevice::NoError)
        throw HostError(path, file.errorString());
    return content;
}

bool isSameFile(const QString &first, const QString &second) {
    const QString path = QFileInfo(first).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(second).canonicalFilePath();
}

Outputs::Outputs(const QStringList &inputs) : m_inputs(inputs) {}
Outputs::~Outputs() = default;

void Outputs::add(const QString &path, const QByteArray &content) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw HostError(path, QStringLiteral("is not a regular file"));
    for (const QString &input : m_inputs)
        if (isSameFile(path, input))
            throw HostError(path, QStringLiteral("is read by this command; name another file"));
    for (const auto &other : m_files)
        if (QFileInfo(other->fileName()).absoluteFilePath() == info.absoluteFilePath())
            throw HostError(path, QStringLiteral("is named for two outputs"));
    auto file = std::make_unique<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly) || file->write(content) != content.size() ||
        !file->flush())
        throw HostError(path, QStringLiteral("can't be written: ") + file->errorString());
    m_files.push_back(std::move(file));
}

void Outputs::commit() {
    for (const auto &file : m_files)
        if (!file->commit())
            throw HostError(file->fileName(),
                            QStringLiteral("can't be written: ") + file->errorString());
    m_files.clear();
}

QByteArray jsonText(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QByteArray pngContent(const QPixmap &picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace host
