#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>

namespace host {

/// Reads lines from a file descriptor, one for each that is asked for: what isn't asked for stays
/// with the writer, so that no input, however fast, fills the memory.
class LineSource {
public:
    /// @param fd    stays the caller's
    /// @param most  bytes of a line. Of a longer one the first most + 1 are handed over, the rest
    /// is
    ///              passed over
    /// @param take  called by the event loop, for each next() once: with a line without its end, or
    ///              with a null one behind the last. May call next()
    LineSource(int fd, qsizetype most, std::function<void(const QByteArray &)> take);

    /// Asks for the next line.
    void next();

private:
    void look();
    void read();

    int m_fd;
    qsizetype m_most;
    std::function<void(const QByteArray &)> m_take;
    QSocketNotifier m_notifier;
    QByteArray m_pending;    ///< read, and not handed over
    qsizetype m_from = 0;    ///< no line ends before this place of it
    bool m_skipping = false; ///< the rest of a line that was too long
    bool m_ended = false;
};

} // namespace host
