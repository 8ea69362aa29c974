#pragma once

#include <array>
#include <istream>
#include <streambuf>

/// Reads a regular file. Opening never waits: a FIFO, a device or a directory counts as unreadable,
/// and the stream is then in error from the start.
class RegularFileStream : public std::istream {
public:
    /// @param path  null counts as unreadable
    explicit RegularFileStream(const char *path);

private:
    class Buffer : public std::streambuf {
    public:
        explicit Buffer(const char *path);
        ~Buffer() override;
        Buffer(const Buffer &) = delete;
        Buffer &operator=(const Buffer &) = delete;
        bool isOpen() const { return m_descriptor >= 0; }

    protected:
        int_type underflow() override;

    private:
        int m_descriptor = -1;
        std::array<char, 65536> m_bytes;
    };
    Buffer m_buffer;
};
