#pragma once

#include "host/cups_server.h"
#include "host/serve/errands.h"

#include <QString>

namespace host {

/// What is waited for.
struct JobWait {
    enum class For { Nothing, Change, Finish };
    For what = For::Nothing;
    QString known{};    ///< a state's keyword: another one is a change already; null for none
    double seconds = 0; ///< how long
};

/// A job as it stands behind a wait.
struct WatchedJob {
    JobState state;
    bool hasChanged; ///< against what was known, or else against how it stood at first
};

/// Asks how a job stands, again and again until what is waited for has come, the job is finished or
/// the time is over; for a thread that may wait. @throw HostError
WatchedJob watchJob(const Reach &reach, int job, const JobWait &wait);

} // namespace host
