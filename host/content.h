#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace host {

/// Takes the next bytes of something that is written piece by piece.
/// @throw HostError where it can't keep them; the writing ends then
using Sink = std::function<void(const QByteArray &)>;

/// Bytes that are read as they are needed, so that a document of any size takes little memory: a
/// part of a file that is held open, or of memory.
///
/// Copies share the file, and may be read on several threads. The file may be removed or replaced
/// meanwhile; one that is changed in its place is told as an error, never read as a mixture.
class Content {
public:
    Content() = default;
    Content(const QByteArray &bytes) : m_bytes(bytes), m_size(bytes.size()) {}
    /// @throw HostError if it isn't a regular file, or can't be opened
    static Content ofFile(const QString &path);

    qint64 size() const { return m_size; }
    /// @return bytes `at` to `at + count`, as far as there are any
    /// @throw HostError if the file can't be read, or was changed since it was opened
    QByteArray read(qint64 at, qint64 count) const;
    /// A part, cut to what there is. Reads nothing.
    Content mid(qint64 at, qint64 count) const;
    /// A name by which other programs can open the whole file while a copy of this content lives,
    /// also one that was removed or replaced (proc(5)); null for memory.
    QString fileName() const;
    bool startsWith(QByteArrayView text, qint64 at = 0) const;
    /// @return where the text stands at or behind `from`; -1 if nowhere
    qint64 indexOf(QByteArrayView text, qint64 from) const;
    /// Hands the bytes from `from` to `to` on, in pieces. @throw HostError as read() and the sink
    void copy(qint64 from, qint64 to, const Sink &sink) const;

private:
    struct File;

    std::shared_ptr<const File> m_file; ///< null for memory
    QByteArray m_bytes;
    qint64 m_start = 0; ///< in the file or the memory
    qint64 m_size = 0;
};

/// Goes through a content line by line. Lines end in LF, CR LF or CR, also mixed.
class ContentLines {
public:
    /// Bytes of a line that are looked at; the rest of a longer one is passed over.
    static constexpr qsizetype kLongestLine = 1024;

    /// @param content  outlives this object
    explicit ContentLines(const Content &content, qint64 from = 0)
        : m_content(content), m_end(from) {}

    /// Goes to the next line. @return false behind the last one @throw HostError
    bool next();
    /// The line without its end, at most kLongestLine bytes of it; valid until next().
    const QByteArray &line() const { return m_line; }
    qint64 start() const { return m_start; }
    qint64 end() const { return m_end; } ///< behind the line's end
    /// next() will begin at this place.
    void goTo(qint64 place) { m_end = place; }

    /// @return the place behind the line end that stands at a place; that place without one
    qint64 behindLineEnd(qint64 at) const;

private:
    const Content &m_content;
    QByteArray m_line;
    qint64 m_start = 0, m_end = 0;
    QByteArray m_chunk;
    qint64 m_chunkStart = 0;
};

} // namespace host
