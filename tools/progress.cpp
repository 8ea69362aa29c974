#include "tools/progress.h"

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace cdf {
namespace {

constexpr std::chrono::milliseconds kMoment{500};

bool onTerminal = false; ///< a line of progress stands there now

} // namespace

Progress::Progress(const char *work, uint64_t total, bool asked)
    : m_work(work), m_total(total), m_terminal(isatty(STDERR_FILENO)) {
    m_next = m_terminal || asked ? 0 : UINT64_MAX;
}

Progress::~Progress() {
    wipe();
}

void Progress::wipe() {
    if (onTerminal)
        std::fputs("\r\x1b[K", stderr);
    onTerminal = false;
}

void Progress::show(uint64_t done) {
    const uint64_t parts = m_terminal ? 100 : 10;
    const uint64_t part = m_total ? std::min(done, m_total) * parts / m_total : parts;
    m_next = part == parts ? UINT64_MAX : (m_total * (part + 1) + parts - 1) / parts;
    if (m_terminal && std::chrono::steady_clock::now() - m_start < kMoment)
        return;
    std::fprintf(stderr, m_terminal ? "\r%s: %d %%" : "cdf-tool: %s: %d %%\n", m_work,
                 static_cast<int>(part * 100 / parts));
    onTerminal = m_terminal;
}

} // namespace cdf
