#pragma once

#include "host/cups_server.h"
#include "host/presets/preset_store.h"
#include "host/queues/queue_info.h"
#include "host/serve/wanted_job.h"

#include <QJsonObject>

namespace host {

/// A queue as an element of "queues".
QJsonObject queueJson(const QueueInfo &queue);

/// All that can be chosen on a queue, as the command "queue" answers it, with what the request has
/// chosen: panel, groups of options, common settings, presets, instances.
/// @throw HostError where the presets can't be looked at
QJsonObject offersJson(WantedJob &wanted, const PresetStore &store);

/// Whether a job can be printed as it is wanted, as the commands "check" and "print" answer it:
/// "fits", "conflicts", "resolution", "problems", "notes".
QJsonObject verdictJson(const WantedJob &wanted);
/// The first reason of a verdict that isn't fine, for a person; null for one that is.
/// @param anyway  conflicts don't count
QString refusalOf(const WantedJob &wanted, bool anyway);

/// How a job stands: "state", "finished", "pages", "message".
QJsonObject jobStateJson(const JobState &state);
/// The state's keyword (RFC 8011, 5.3.7).
QString stateWord(const JobState &state);

} // namespace host
