#pragma once

#include "host/cups_server.h"
#include "host/ppd_source.h"
#include "host/queues/queue_defaults.h"
#include "host/queues/queue_info.h"

#include <QObject>
#include <QSet>
#include <QTimer>

#include <memory>
#include <stop_token>

namespace host {

/// What a dialog needs of one queue.
struct QueueDetails {
    PpdSource
        source; ///< without a PPD for a queue that has none; nothing is marked but its defaults
    OptionList serverDefaults{};
    UserOptions userOptions{};
};

/// Asks a server for its queues and waits for the answer; for a thread that may wait. One queue at
/// most is the default: that of the person, of the machine, or of the server. @throw HostError
QList<QueueInfo> readQueues(CupsServer &server);
/// Asks a server for a queue's details and waits for the answer, as above. @throw HostError
std::shared_ptr<QueueDetails> readDetails(CupsServer &server, const QString &queue);

/// The queues of the CUPS server, asked for in the background and followed for as long as this
/// object lives. Used on the interface's thread; never waits for the server, not even at its end.
class QueueDirectory : public QObject {
    Q_OBJECT

public:
    explicit QueueDirectory(const CupsDeadlines &deadlines = {}, QObject *parent = nullptr);
    ~QueueDirectory() override;

    /// Asks for the queues now, and again whenever some seconds have passed since the last answer.
    /// While one question is on its way, no other is asked. Details that couldn't be got are asked
    /// for again, too.
    void ask();
    /// What was answered last.
    const QList<QueueInfo> &queues() const { return m_queues; }

    /// Asks for a queue's details. An earlier question is given up, and brings no signal any more.
    /// Where they can't be got they are asked for again once the server, or the queue, is another.
    void askDetails(const QString &queue);
    /// Gives the question for details up.
    void forgetDetails();

    /// Asks for the queues' PPDs, one behind the other, each once; after a failure of the server no
    /// more, until the next call.
    void askPpds(const QStringList &queues);

signals:
    /// With the first answer, and with each that is another than the one before. One queue at most
    /// is the default: that of the person, of the machine, or of the server.
    void changed(const QList<host::QueueInfo> &queues);
    /// The server can't be asked. What was answered before still stands.
    /// @param reason  for a person
    void failed(const QString &reason);
    /// After a failure the server has answered, whether with a change or not.
    void recovered();
    /// @param details  the receiver may take what is in it
    void detailsReady(const std::shared_ptr<host::QueueDetails> &details);
    void detailsFailed(const QString &queue, const QString &reason);
    /// An answer to askPpds(). @param source  without a PPD for a queue that has none, or one that
    /// can't be read
    void ppdRead(const host::PpdSource &source);

private:
    void askQueues();
    void take(QList<QueueInfo> queues);
    void askDetailsAgain();
    void askNextPpd();

    CupsDeadlines m_deadlines;
    QList<QueueInfo> m_queues;
    std::stop_source m_end;     ///< of this object
    std::stop_source m_details; ///< of the last question for details
    QString m_missed;           ///< the queue whose details couldn't be got; null for none
    QStringList m_ppds;         ///< queues whose PPDs are to be asked for
    QSet<QString> m_knownPpds;  ///< and those that were
    QTimer m_timer;
    bool m_asking = false;
    bool m_answered = false;
    bool m_failed = false;
};

} // namespace host
