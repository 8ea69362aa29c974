#pragma once

#include <cups/http.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

namespace host {

/// Ends requests of one connection that take too long as a whole, or that nobody wants any more.
///
/// libcups' own timeout starts anew with each byte that comes, so that a server which drips is
/// never late. The watch shuts the socket down from a thread of its own; libcups then sees a
/// connection that the server closed. The socket is shut down again and again until the request
/// ends, since libcups may connect once more.
class CupsWatch {
public:
    /// @param stop  ends requests at once; may be one that nothing ever stops
    explicit CupsWatch(std::stop_token stop);
    ~CupsWatch();
    CupsWatch(const CupsWatch &) = delete;
    CupsWatch &operator=(const CupsWatch &) = delete;

    /// Watches one request from here to the span's end. Spans of one watch don't nest.
    class Span {
    public:
        Span(CupsWatch &watch, http_t *http, double seconds) : m_watch(watch) {
            watch.begin(http, seconds);
        }
        ~Span() { m_watch.end(); }
        Span(const Span &) = delete;
        Span &operator=(const Span &) = delete;

    private:
        CupsWatch &m_watch;
    };

    /// Grants the request that is watched its whole time anew, behind something that doesn't count,
    /// such as a person's answer. Nothing happens without one.
    void restart();
    /// While a person is asked the request isn't late.
    void pause();

    /// Whether the last span ran out of time.
    bool hasExpired() const;
    bool isStopped() const { return m_stop.stop_requested(); }
    const std::stop_token &stopToken() const { return m_stop; }

private:
    using Clock = std::chrono::steady_clock;

    void begin(http_t *http, double seconds);
    void end();
    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    http_t *m_http = nullptr; ///< of the span; null outside
    std::string m_peer;       ///< whom the connection leads to; empty before it stands
    Clock::duration m_length{};
    Clock::time_point m_until;
    bool m_paused = false;
    bool m_expired = false;
    bool m_ended = false;
    std::stop_token m_stop;
    std::thread m_thread; ///< started by the first span
};

} // namespace host
