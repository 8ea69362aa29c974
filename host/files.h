#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QSaveFile;

namespace host {

/// As platform's readRegularFile(). @throw HostError with its reason
QByteArray readRegularFile(const QString &path, qint64 limit);

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
