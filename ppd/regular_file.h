#pragma once

#include <QString>

#include <array>
#include <istream>
#include <streambuf>

/// Reads a regular file. Opening never waits: a FIFO, a device or a directory counts as unreadable,
/// and the stream is then in error from the start.
class RegularFileStream : public std::istream {
public:
    /// @param path  null counts as unreadable
    explicit RegularFileStream(const char *path);

    /// Why the file could not be opened, half a sentence; null for an open one and for a null path.
    const QString &reason() const { return m_reason; }

private:
    class Buffer : public std::streambuf {
    public:
        Buffer(const char *path, QString *reason);
        ~Buffer() override;
        Buffer(const Buffer &) = delete;
        Buffer &operator=(const Buffer &) = delete;
        bool isOpen() const { return m_descriptor >= 0; }

    protected:
        int_type underflow() override;

    private:
        int m_descriptor;
        std::array<char, 65536> m_bytes;
    };
    QString m_reason;
    Buffer m_buffer;
};
