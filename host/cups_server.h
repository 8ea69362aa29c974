#pragma once

#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace host {

/// How long the host waits for CUPS.
struct CupsDeadlines {
    int connectMs = 5000;
    double replySeconds = 10; ///< for each reply, and each piece of a document that is sent
};

/// Whom a server shall take the person for.
struct Credentials {
    QString user;
    QString password;
};
/// @param prompt  libcups' own question. @return nothing to give the request up
using PasswordSource = std::function<std::optional<Credentials>(const QString &prompt)>;

/// How a job stands.
struct JobState {
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    QString message; ///< the printer's or the filter's own words; may be empty
    int pages = 0;   ///< printed so far, as far as the queue counts them

    bool isFinished() const { return state >= IPP_JSTATE_CANCELED; }
};

/// A job to send.
struct CupsJob {
    QString queue;
    QString title;
    const char *format; ///< MIME type of the document
    QByteArray document;
    QList<QPair<QString, QString>> options;
};

/// One connection to the CUPS server that the environment names.
///
/// All calls on one thread; libcups keeps the user's name and password there. Never waits longer
/// than its deadlines for a silent server. All operations throw HostError with the queue's or the
/// server's name and the reason.
class CupsServer {
public:
    /// @param password  asked when the server wants a person's name and password, on the thread of
    ///                  the request; without it, such a request is refused
    explicit CupsServer(const CupsDeadlines &deadlines = {}, const PasswordSource &password = {});
    ~CupsServer();
    CupsServer(const CupsServer &) = delete;
    CupsServer &operator=(const CupsServer &) = delete;

    /// The names of all queues, in the server's order.
    QStringList queues();
    /// The default queue's name. @throw HostError without one
    QString defaultQueue();
    /// The text of a queue's PPD.
    QByteArray ppd(const QString &queue);
    /// Sends a job. One that can't be sent whole is cancelled.
    /// @param progress  called before each piece of the document, with the bytes that are sent; its
    ///                  false gives the job up, which is then an error, too. May be empty
    /// @return the job's number
    int submit(const CupsJob &job, const std::function<bool(qint64 sent)> &progress = {});
    /// @return how a job stands, in the server's words where it has some
    JobState jobState(int job);
    /// Cancels a job that isn't finished yet.
    void cancelJob(const QString &queue, int job);

private:
    struct HttpCloser {
        void operator()(http_t *http) const { httpClose(http); }
    };
    struct IppCloser {
        void operator()(ipp_t *ipp) const { ippDelete(ipp); }
    };
    using Reply = std::unique_ptr<ipp_t, IppCloser>;

    void connect();
    int createJob(const CupsJob &job);
    const char *answerPrompt(const char *prompt);
    /// @param queue  asks about that queue; null for the server
    Reply ask(ipp_op_t operation, const QString &queue);
    void requireQueue(const QString &queue);
    /// Why the last request on this connection brought nothing.
    QString failure() const;

    QString m_name; ///< for messages: a host, or a socket's path
    CupsDeadlines m_deadlines;
    PasswordSource m_password;
    QByteArray m_givenPassword; ///< libcups borrows it
    std::unique_ptr<http_t, HttpCloser> m_http;
};

} // namespace host
