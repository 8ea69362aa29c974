#pragma once

#include <cstdint>

#include <chrono>

namespace cdf {

/// Tells on standard error how far a long work has come: on a terminal in one line that is wiped
/// away in the end, and only when the work takes longer than a moment; elsewhere, if it is asked
/// for, in a line for every tenth.
class Progress {
public:
    /// @param work   what is done, such as "writing"; kept as it stands
    /// @param total  steps of the whole work
    /// @param asked  also where standard error is no terminal
    Progress(const char *work, uint64_t total, bool asked);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// @param done  steps done so far, never fewer than before
    void reach(uint64_t done) {
        if (done >= m_next)
            show(done);
    }

    /// Takes the line off the terminal, so that other text can be printed there.
    static void wipe();

private:
    void show(uint64_t done);

    const char *m_work;
    uint64_t m_total;
    uint64_t m_next; ///< the step that is shown next
    bool m_terminal;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace cdf
