#pragma once

#include "host/cups_server.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>
#include <stop_token>

namespace host {

/// Sends one job without holding the interface up, and follows it afterwards.
///
/// Lives on the interface's thread; connections to the server are made and used on others. After
/// send() comes either sent() or failed(), once. Then stateChanged() comes with each change, until
/// the job is finished or this object is destroyed, which doesn't touch a job that was sent.
class JobSender : public QObject {
    Q_OBJECT

public:
    /// @param askPassword  asked on the interface's thread when the server wants to know the
    /// person;
    ///                     may run an event loop of its own
    explicit JobSender(PasswordSource askPassword = {}, QObject *parent = nullptr);
    ~JobSender() override;

    /// Sends the job; to be called once.
    void send(const CupsJob &job);
    /// Gives the sending up, which then fails at once, or cancels the job that was sent.
    void cancel();
    /// The job's number on the server; 0 before sent().
    int job() const { return m_job; }

signals:
    /// @param total  bytes of the document
    void progressed(qint64 sent, qint64 total);
    void sent(int job);
    /// @param reason  for a person
    void failed(const QString &reason);
    /// A job that was given up may be left on the server, without its document.
    void leftBehind(const QString &reason);
    void stateChanged(const host::JobState &state);
    /// The server can't be asked how the job stands, or refuses to cancel it; it is asked again.
    void followFailed(const QString &reason);

private:
    /// What both threads look at.
    struct Shared {
        std::atomic<bool> gone = false;     ///< this object
        std::atomic<bool> givenUp = false;  ///< the sending
        std::stop_source stop;              ///< of the sending
        std::atomic<bool> declined = false; ///< the person, to say who they are
        std::atomic<qint64> sent = 0;
    };

    void look();
    void giveUpSending();
    /// Asks the person, for a thread that waits for the answer until `stop` holds.
    PasswordSource passwordFromHere(std::function<bool()> stop);

    PasswordSource m_askPassword;
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
    QTimer m_timer;
    qint64 m_total = 0;
    int m_job = 0;
    bool m_asking = false; ///< a question about the state is on its way
    JobState m_state;
    bool m_hasState = false;
};

} // namespace host
