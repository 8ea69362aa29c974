#include "ppd/regular_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

RegularFileStream::RegularFileStream(const char *path) : std::istream(nullptr), m_buffer(path) {
    if (m_buffer.isOpen())
        rdbuf(&m_buffer);
}

RegularFileStream::Buffer::Buffer(const char *path) {
    m_descriptor = path ? ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1;
    struct stat status;
    if (m_descriptor >= 0 && (fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

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
