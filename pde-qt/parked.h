#pragma once

#include "host/dialog/queue_job.h"

#include <memory>

namespace pdeqt {

/// Keeps the job of a panel whose window runs while the dialog goes, until the run has ended: the
/// panel is in the middle of an act. Its views are taken out of the dialog.
void park(std::unique_ptr<host::QueueJob> job);

} // namespace pdeqt
