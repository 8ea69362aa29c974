#include "host/files.h"

#include "host/host_error.h"
#include "host/words.h"
#include "platform/file_content.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace host {

Outputs::Outputs(const QStringList &inputs) : m_inputs(inputs) {}
Outputs::~Outputs() = default;

void Outputs::add(const QString &path, const QByteArray &content) {
    add(path, [&content](const Sink &sink) { sink(content); });
}

void Outputs::add(const QString &path, const std::function<void(const Sink &)> &write) {
    if (const QString refusal = refusalToReplace(path, m_inputs); !refusal.isNull())
        throw HostError(path, refusal);
    for (const auto &other : m_files)
        if (QFileInfo(other->fileName()).absoluteFilePath() == QFileInfo(path).absoluteFilePath())
            throw HostError(path, QStringLiteral("is named for two outputs"));
    auto file = std::make_unique<QSaveFile>(path);
    const auto require = [&](bool done) {
        if (!done)
            throw HostError(path, HostWords::tr("can't be written: %1").arg(reasonOf(*file)));
    };
    require(file->open(QIODevice::WriteOnly));
    write([&](const QByteArray &bytes) { require(file->write(bytes) == bytes.size()); });
    require(file->flush());
    m_files.push_back(std::move(file));
}

void Outputs::commit() {
    for (const auto &file : m_files)
        if (!file->commit())
            throw HostError(file->fileName(),
                            HostWords::tr("can't be written: %1").arg(file->errorString()));
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
