#pragma once

#include "host/background.h"
#include "host/cups_server.h"

#include <QTimer>

#include <atomic>
#include <memory>
#include <stop_token>

namespace host {

/// How an errand reaches the server, and how it learns that it takes too long.
struct Reach {
    CupsDeadlines deadlines;
    std::stop_token stop;
    std::shared_ptr<const std::atomic<bool>> isLate; ///< something begun is to be undone now
};

/// Does one errand at a time in the background, with a deadline for all of it: an answer comes in
/// time, whatever the server, the network or the resolver of names does. Used on the interface's
/// thread.
class Errands : public QObject {
public:
    using Failed = std::function<void(const QString &reason)>;

    Errands();
    ~Errands() override;

    /// Starts an errand. REQUIRES: the former one has ended. Either `done` or `failed` is called,
    /// once, from the event loop; what comes of an errand that was given up is dropped.
    /// @param seconds  at most a day
    /// @param doubt    for what changes something on the server: what isn't known if it has to be
    ///                 given up without an answer. It then gets some seconds more, to undo what was
    ///                 begun. Null for a mere question
    /// @param work     called with a Reach on another thread; may throw HostError
    template <typename Work, typename Done>
    void run(double seconds, const QString &doubt, Work work, Done done, Failed failed) {
        const std::shared_ptr<Errand> errand = begin(seconds, doubt, std::move(failed));
        inBackground(
            this,
            [work = std::move(work), reach = reachOf(errand, seconds)]() mutable {
                return work(reach);
            },
            [this, errand, done = std::move(done)](auto result) mutable {
                if (end(errand))
                    done(std::move(result));
            },
            [this, errand](const QString &reason) {
                if (end(errand))
                    errand->failed(errand->isLate ? lateWords(reason) : reason);
            });
    }

private:
    struct Errand {
        QString doubt;
        Failed failed;
        std::stop_source stop;
        std::atomic<bool> isLate = false;
    };

    std::shared_ptr<Errand> begin(double seconds, const QString &doubt, Failed failed);
    static Reach reachOf(const std::shared_ptr<Errand> &errand, double seconds);
    /// @return whether it is the one under way, which it then isn't any more
    bool end(const std::shared_ptr<Errand> &errand);
    void expire();
    static QString lateWords(const QString &more);

    QTimer m_timer;
    std::shared_ptr<Errand> m_now; ///< null while there is none
};

} // namespace host
