#pragma once

#include "host/content.h"

#include <QByteArray>
#include <QJsonObject>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QSaveFile;

namespace host {

/// The files that one command writes: all of them appear together, or none does.
class Outputs {
public:
    /// @param inputs  files that the command reads, which no output may replace
    explicit Outputs(const QStringList &inputs = {});
    ~Outputs();

    /// Takes a file's content. The file itself, or an older one under its name, is left alone until
    /// the commit.
    /// @throw HostError if the name can't be written: an input or another output of the command, no
    ///        such folder, not a regular file, disk full
    void add(const QString &path, const QByteArray &content);
    /// The same for content that is written piece by piece. @throw HostError also as `write`
    void add(const QString &path, const std::function<void(const Sink &)> &write);
    /// Puts all files in place. @throw HostError
    void commit();

private:
    QStringList m_inputs;
    std::vector<std::unique_ptr<QSaveFile>> m_files;
};

/// A JSON object as indented text with a line end.
QByteArray jsonText(const QJsonObject &object);
/// A picture as a PNG file's content.
QByteArray pngContent(const QPixmap &picture);

} // namespace host
