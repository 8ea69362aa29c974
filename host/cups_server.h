#pragma once

#include "host/content.h"
#include "host/cups_watch.h"
#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>

namespace host {

/// How long the host waits for CUPS.
struct CupsDeadlines {
    int connectMs = 5000;
    double replySeconds = 10; ///< for a sign of life: the next bytes of a reply, or room for ours
    double wholeSeconds = 30; ///< for each request with all of its reply, and each piece of a
                              ///< document that is sent, however the bytes trickle
};

/// Frees an IPP message with libcups' own call.
struct IppCloser {
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using IppPtr = std::unique_ptr<ipp_t, IppCloser>;

/// Lends the calling thread's place in the pool to other work while it waits for a server.
class PoolPlaceLent {
public:
    PoolPlaceLent();
    ~PoolPlaceLent();
    PoolPlaceLent(const PoolPlaceLent &) = delete;
    PoolPlaceLent &operator=(const PoolPlaceLent &) = delete;
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
    QString message;     ///< the printer's or the filter's own words; may be empty
    int pages = 0;       ///< printed so far, as far as the queue counts them
    bool isGone = false; ///< the server has forgotten it, as some do with jobs that are done

    bool isFinished() const { return isGone || state >= IPP_JSTATE_CANCELED; }
};

/// A job to send.
struct CupsJob {
    QString queue;
    QString title;
    const char *format; ///< MIME type of the document
    Content document;
    QList<QPair<QString, QString>> options;
};

/// @return why an option can't be sent, half a sentence; null where it can. CUPS hands options to
///         its filters as one line of words, in which a control character, or what parts words in
///         a name, would make other options of them.
QString sendingProblem(const QString &name, const QString &value);

/// Whether a text can be a queue's name: names travel as a path (RFC 8011, 4.1.4).
bool isQueueName(const QString &name);

/// One connection to the CUPS server that the environment names.
///
/// All calls on one thread; libcups keeps the user's name and password there. Never waits longer
/// than its deadlines, for a server that is silent or for one that drips. All operations throw
/// HostError with the queue's or the server's name and the reason.
class CupsServer {
public:
    /// @param password  asked when the server wants a person's name and password, on the thread of
    ///                  the request; without it, such a request is refused
    /// @param stop      ends what runs at once; later requests fail
    explicit CupsServer(const CupsDeadlines &deadlines = {}, const PasswordSource &password = {},
                        std::stop_token stop = {});
    ~CupsServer();
    CupsServer(const CupsServer &) = delete;
    CupsServer &operator=(const CupsServer &) = delete;

    /// The names of all queues, in the server's order.
    QStringList queues();
    /// All queues, as RFC 8011 tells them: in the reply a group of attributes for each. The server
    /// leaves those out that the person may not use.
    /// @param attributes  names of the attributes that are wanted
    IppPtr printers(std::span<const char *const> attributes);
    /// A queue's attributes, all or those that are wanted.
    IppPtr printerAttributes(const QString &queue, std::span<const char *const> attributes);
    /// The default queue's name, or null where the server has none.
    QString findDefaultQueue();
    /// The default queue's name. @throw HostError without one
    QString defaultQueue();
    /// The text of a queue's PPD, or null for a queue that has none.
    QByteArray findPpd(const QString &queue);
    /// The text of a queue's PPD. @throw HostError without one
    QByteArray ppd(const QString &queue);
    /// Sends a job. One that can't be sent whole is cancelled, but not by a server that is stopped;
    /// the error says so where that fails.
    /// @param progress  called before each piece of the document, with the bytes that are sent; a
    ///                  HostError of it gives the job up. May be empty
    /// @param created   told the job's number before the document is sent; may be empty
    /// @return the job's number
    int submit(const CupsJob &job, const std::function<void(qint64 sent)> &progress = {},
               const std::function<void(int id)> &created = {});
    /// @return how a job stands, in the server's words where it has some
    JobState jobState(int job);
    /// Cancels a job that isn't finished yet.
    void cancelJob(int job);

private:
    struct HttpCloser {
        void operator()(http_t *http) const { httpClose(http); }
    };

    void connect();
    /// Connects anew, until it is stopped. @return whether the server answers
    bool reconnect();
    QByteArray readBody(const QString &queue);
    int createJob(const CupsJob &job);
    /// Cancels a job that couldn't be sent whole. @return whether the server has done so
    bool undo(int job);
    void sendDocument(const CupsJob &job, int id, const std::function<void(qint64)> &progress);
    const char *answerPrompt(const char *prompt);
    /// Sends a request, which it takes, and waits for the reply. @throw HostError without one
    IppPtr ask(ipp_t *request, const QString &subject, const char *resource = "/");
    void requireQueue(const QString &queue);
    /// Why the last request on this connection brought nothing.
    QString failure() const;

    QString m_name; ///< for messages: a host, or a socket's path
    CupsDeadlines m_deadlines;
    PasswordSource m_password;
    QByteArray m_givenPassword; ///< libcups borrows it
    PoolPlaceLent m_lent;
    std::unique_ptr<http_t, HttpCloser> m_http;
    CupsWatch m_watch; ///< ends before the connection does
};

} // namespace host
