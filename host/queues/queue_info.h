#pragma once

#include "platform/cups_ppd.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <span>

namespace host {

enum class QueueState { Unknown, Idle, Printing, Paused };

/// What is known of a queue.
struct QueueInfo {
    QString name;
    bool isDefault = false;
    QString instance{}; ///< of the default: the named set of the person's own defaults that belongs
                        ///< to it; null without one
    QString description{}; ///< the server's texts are single lines; empty where it has none
    QString location{};
    QString makeAndModel{};
    QueueState state = QueueState::Unknown;
    QStringList reasons{}; ///< why it is in that state, in words, the worst first
    bool acceptsJobs = true;
    QString message{}; ///< the printer's or the backend's own words; may be empty
    QString uri{};

    bool operator==(const QueueInfo &) const = default;
};

/// The attributes of a queue that queuesOf() reads.
std::span<const char *const> queueAttributes();

/// The queues in a reply that tells a group of attributes for each, in its order, at most
/// kMostQueues. What is of a wrong type counts as missing; a queue without a proper name, or told
/// before, is left out. Texts are made safeLine()s of a few hundred characters.
QList<QueueInfo> queuesOf(ipp_t *reply);
constexpr int kMostQueues = 10000;

/// A foreign text as a line that can stand beside others: without line breaks and control
/// characters, also those that turn the direction of what follows.
QString safeLine(QString text);

/// "Idle", "Printing", "Paused", with the reasons behind it: "Paused: out of paper"; and whether
/// the queue refuses jobs: "Idle, takes no jobs". What an administrator has said of a queue that is
/// paused, or takes none, is a reason.
QString stateLine(const QueueInfo &queue);

/// What stands between a person and their job.
struct QueueProblem {
    QString sentence;              ///< for a person; null where there is nothing to say
    bool preventsPrinting = false; ///< else the job will wait
};
QueueProblem queueProblem(const QueueInfo &queue);

} // namespace host

Q_DECLARE_METATYPE(host::QueueInfo)
