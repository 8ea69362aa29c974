#include "host/serve/line_source.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace host {

LineSource::LineSource(int fd, qsizetype most, std::function<void(const QByteArray &)> take)
    : m_fd(fd), m_most(most), m_take(std::move(take)), m_notifier(fd, QSocketNotifier::Read) {
    m_notifier.setEnabled(false);
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { read(); });
}

void LineSource::next() {
    QMetaObject::invokeMethod(
        &m_notifier, [this] { look(); }, Qt::QueuedConnection);
}

void LineSource::look() {
    for (qsizetype end; (end = m_pending.indexOf('\n', m_from)) >= 0; m_from = 0) {
        const QByteArray line = m_pending.left(qMin(end, m_most + 1));
        m_pending.remove(0, end + 1);
        if (!std::exchange(m_skipping, false)) {
            m_from = 0;
            return m_take(line.isNull() ? QByteArray("") : line);
        }
    }
    m_from = m_pending.size();
    if (m_skipping || m_pending.size() > m_most) {
        const QByteArray line = m_pending.left(m_most + 1);
        m_pending.clear();
        m_from = 0;
        if (!std::exchange(m_skipping, true))
            return m_take(line);
    }
    if (!m_ended)
        return m_notifier.setEnabled(true);
    m_from = 0;
    const QByteArray last = std::exchange(m_pending, {});
    m_take(last.isEmpty() ? QByteArray() : last);
}

void LineSource::read() {
    char block[65536];
    const ssize_t count = ::read(m_fd, block, sizeof block);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    m_notifier.setEnabled(false);
    if (count > 0)
        m_pending.append(block, count);
    else
        m_ended = true;
    look();
}

} // namespace host
