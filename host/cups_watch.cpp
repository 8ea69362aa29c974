#include "host/cups_watch.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace host {
namespace {

constexpr std::chrono::milliseconds kAgain{20};

/// Whom a socket is connected to: a local socket's path, or a port, since libcups may take another
/// address of one name. Empty for no socket, or none that is connected.
std::string peerOf(int socket) {
    sockaddr_storage address = {};
    socklen_t size = sizeof address;
    if (getpeername(socket, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return {};
    switch (address.ss_family) {
    case AF_UNIX:
        return std::string("/") + reinterpret_cast<sockaddr_un *>(&address)->sun_path;
    case AF_INET:
        return std::to_string(reinterpret_cast<sockaddr_in *>(&address)->sin_port);
    case AF_INET6:
        return std::to_string(reinterpret_cast<sockaddr_in6 *>(&address)->sin6_port);
    default:
        return {};
    }
}

/// Shuts down the socket that libcups uses now. Its own thread may close it meanwhile, and the
/// number may then belong to something else: so the socket is held under another number, and is cut
/// only if libcups still uses it and it leads to the server.
void cut(http_t *http, const std::string &peer) {
    const int socket = httpGetFd(http); // libcups may be setting it; an int is read whole
    const int held = socket < 0 ? -1 : fcntl(socket, F_DUPFD_CLOEXEC, 0);
    if (held < 0)
        return;
    const std::string found = peerOf(held);
    if (!found.empty() && (peer.empty() || found == peer) && httpGetFd(http) == socket)
        shutdown(held, SHUT_RDWR);
    close(held);
}

} // namespace

CupsWatch::CupsWatch(std::stop_token stop) : m_stop(std::move(stop)) {}

CupsWatch::~CupsWatch() {
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void CupsWatch::begin(http_t *http, double seconds) {
    {
        const std::lock_guard lock(m_mutex);
        m_http = http;
        if (std::string peer = peerOf(httpGetFd(http)); !peer.empty())
            m_peer = std::move(peer);
        m_length =
            std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
        m_until = Clock::now() + m_length;
        m_expired = m_paused = false;
    }
    if (m_thread.joinable())
        m_changed.notify_one();
    else
        m_thread = std::thread([this] { run(); });
}

void CupsWatch::end() {
    const std::lock_guard lock(m_mutex);
    m_http = nullptr;
}

void CupsWatch::restart() {
    const std::lock_guard lock(m_mutex);
    m_until = Clock::now() + m_length;
    m_paused = false;
    m_changed.notify_one();
}

void CupsWatch::pause() {
    const std::lock_guard lock(m_mutex);
    m_paused = true;
}

bool CupsWatch::hasExpired() const {
    const std::lock_guard lock(m_mutex);
    return m_expired;
}

void CupsWatch::run() {
    const std::stop_callback wake(m_stop, [this] {
        const std::lock_guard lock(m_mutex);
        m_changed.notify_one();
    });
    std::unique_lock lock(m_mutex);
    while (!m_ended) {
        const bool stopped = m_stop.stop_requested();
        const bool late = m_http && !m_paused && Clock::now() >= m_until;
        if (m_http && (stopped || late)) {
            m_expired = m_expired || late;
            cut(m_http, m_peer);
            m_changed.wait_for(lock, kAgain);
        } else if (m_http && !m_paused) {
            m_changed.wait_until(lock, m_until);
        } else {
            m_changed.wait(lock);
        }
    }
}

} // namespace host
