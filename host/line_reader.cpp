#include "host/line_reader.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace host {
namespace {

/// Calls `line` with each line of the input.
template <class Line>
void readLines(int fd, Line line) {
    QByteArray pending;
    char block[65536];
    for (;;) {
        const ssize_t count = ::read(fd, block, sizeof block);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        qsizetype from = pending.size();
        pending.append(block, count);
        qsizetype done = 0;
        for (qsizetype end; (end = pending.indexOf('\n', from)) >= 0; from = done = end + 1)
            line(pending.mid(done, end - done));
        pending.remove(0, done);
    }
    if (!pending.isEmpty())
        line(pending);
}

} // namespace

LineReader::LineReader(int fd, std::function<void(const QByteArray &)> take)
    : m_thread([this, fd, take = std::move(take)] {
          const auto post = [&](const QByteArray &line) {
              QMetaObject::invokeMethod(
                  &m_receiver, [take, line] { take(line); }, Qt::QueuedConnection);
          };
          // A line that is empty isn't null: that tells the end.
          readLines(fd,
                    [&](const QByteArray &line) { post(line.isNull() ? QByteArray("") : line); });
          post({});
      }) {}

LineReader::~LineReader() {
    m_thread.join();
}

} // namespace host
