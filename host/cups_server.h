#pragma once

#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <memory>

namespace host {

/// How long the host waits for CUPS.
struct CupsDeadlines {
    int connectMs = 5000;
    double replySeconds = 10; ///< for each reply, and each piece of a document that is sent
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
/// Never asks for a password, and never waits longer than its deadlines for a silent server. All
/// operations throw HostError with the queue's or the server's name and the reason.
class CupsServer {
public:
    explicit CupsServer(const CupsDeadlines &deadlines = {});

    /// The names of all queues, in the server's order.
    QStringList queues();
    /// The default queue's name. @throw HostError without one
    QString defaultQueue();
    /// The text of a queue's PPD.
    QByteArray ppd(const QString &queue);
    /// Sends a job. One that can't be sent whole is cancelled.
    /// @return the job's number
    int submit(const CupsJob &job);

private:
    struct HttpCloser {
        void operator()(http_t *http) const { httpClose(http); }
    };
    struct IppCloser {
        void operator()(ipp_t *ipp) const { ippDelete(ipp); }
    };
    using Reply = std::unique_ptr<ipp_t, IppCloser>;

    /// @param queue  asks about that queue; null for the server
    Reply ask(ipp_op_t operation, const QString &queue);
    void requireQueue(const QString &queue);
    /// Why the last request on this connection brought nothing.
    QString failure() const;

    QString m_name; ///< for messages: a host, or a socket's path
    CupsDeadlines m_deadlines;
    std::unique_ptr<http_t, HttpCloser> m_http;
};

} // namespace host
