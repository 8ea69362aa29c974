#include "ppd/regular_file.h"

#include "platform/file_content.h"

#include <cerrno>

#include <unistd.h>

RegularFileStream::RegularFileStream(const char *path)
    : std::istream(nullptr), m_buffer(path, &m_reason) {
    if (m_buffer.isOpen())
        rdbuf(&m_buffer);
}

RegularFileStream::Buffer::Buffer(const char *path, QString *reason)
    : m_descriptor(path ? openRegularFile(path, reason) : -1) {}

RegularFileStream::Buffer::~Buffer() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

RegularFileStream::Buffer::int_type RegularFileStream::Buffer::underflow() {
    ssize_t count;
    do
        count = ::read(m_descriptor, m_bytes.data(), m_bytes.size());
    while (count < 0 && errno == EINTR);
    if (count <= 0)
        return traits_type::eof();
    setg(m_bytes.data(), m_bytes.data(), m_bytes.data() + count);
    return traits_type::to_int_type(m_bytes[0]);
}
