#include "host/serve/job_watch.h"

#include "host/host_error.h"
#include "host/serve/answers.h"
#include "host/words.h"

#include <QDeadlineTimer>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace host {
namespace {

using Pause = std::chrono::milliseconds;
constexpr Pause kFirstPause{100}, kLongestPause{1000};

/// For a server that doesn't answer one of many looks.
constexpr double kMostForALook = 10;

/// Sleeps, until it is stopped.
void sleepFor(Pause pause, const std::stop_token &stop) {
    std::mutex mutex;
    std::condition_variable_any never;
    std::unique_lock lock(mutex);
    never.wait_for(lock, stop, pause, [] { return false; });
}

bool isSame(const JobState &a, const JobState &b) {
    return a.isGone == b.isGone && a.state == b.state && a.message == b.message &&
           a.pages == b.pages;
}

} // namespace

WatchedJob watchJob(const Reach &reach, int job, const JobWait &wait) {
    const QDeadlineTimer until{qint64(wait.seconds * 1000)};
    CupsDeadlines deadlines = reach.deadlines;
    deadlines.replySeconds = deadlines.wholeSeconds = qMin(deadlines.wholeSeconds, kMostForALook);
    CupsServer server(deadlines, {}, reach.stop);
    const JobState first = server.jobState(job);
    if (first.isGone)
        throw HostError(HostWords::tr("job %1").arg(job),
                        HostWords::tr("the server doesn't know it"));
    WatchedJob now{first, !wait.known.isNull() && stateWord(first) != wait.known};
    for (Pause pause = kFirstPause;; pause = std::min(pause * 2, kLongestPause)) {
        const bool isOver = wait.what == JobWait::For::Nothing || now.state.isFinished() ||
                            (wait.what == JobWait::For::Change && now.hasChanged);
        const Pause left{until.remainingTime()};
        if (isOver || left.count() <= 0 || reach.stop.stop_requested())
            return now;
        sleepFor(std::min(pause, left), reach.stop);
        now.state = server.jobState(job);
        now.hasChanged = now.hasChanged || !isSame(now.state, first);
    }
}

} // namespace host
