#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/dialog/job_sender.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace {

/// Runs the event loop until something holds. @return whether it does
bool waitFor(const std::function<bool()> &holds) {
    QElapsedTimer timer;
    timer.start();
    while (!holds() && timer.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    return holds();
}

/// What a sender tells.
struct Told {
    explicit Told(host::JobSender &sender) {
        QObject::connect(&sender, &host::JobSender::sent, [this](int id) { job = id; });
        QObject::connect(&sender, &host::JobSender::failed,
                         [this](const QString &reason) { failure = reason; });
        QObject::connect(&sender, &host::JobSender::stateChanged,
                         [this](const host::JobState &now) { state = now; });
        QObject::connect(&sender, &host::JobSender::progressed, [this](qint64 sent, qint64 total) {
            progress = {sent, total};
        });
    }
    int job = 0;
    QString failure;
    std::optional<host::JobState> state;
    std::pair<qint64, qint64> progress;
};

} // namespace

TEST(JobSender, SendsFollowsAndCancels) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("Queue", samplePath("velmora-plain.ppd")))
        << cups.log().constData();
    qputenv("CUPS_SERVER", cups.environment()[0].section('=', 1).toUtf8());
    host::CupsJob job{"Queue", "title", CUPS_FORMAT_POSTSCRIPT, QByteArray("%!PS\nshowpage\n"), {}};
    {
        host::JobSender sender;
        const Told told(sender);
        sender.send(job);
        ASSERT_TRUE(waitFor([&] { return told.state && told.state->isFinished(); }))
            << told.failure.toStdString();
        EXPECT_EQ(told.state->state, IPP_JSTATE_COMPLETED);
        EXPECT_EQ(told.progress,
                  (std::pair<qint64, qint64>(job.document.size(), job.document.size())));
    }
    {
        host::JobSender sender;
        const Told told(sender);
        job.options = {{"job-hold-until", "indefinite"}};
        sender.send(job);
        ASSERT_TRUE(waitFor([&] { return told.state.has_value(); })) << told.failure.toStdString();
        EXPECT_EQ(told.state->state, IPP_JSTATE_HELD);
        sender.cancel();
        ASSERT_TRUE(waitFor([&] { return told.state->isFinished(); }));
        EXPECT_EQ(told.state->state, IPP_JSTATE_CANCELED);
    }
    qunsetenv("CUPS_SERVER");
}

/// A server that wants to know the person, takes one name and password, and then refuses.
TEST(JobSender, AsksWhoThePersonIs) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QByteArray received;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        QTcpSocket *peer = server.nextPendingConnection();
        QObject::connect(peer, &QTcpSocket::readyRead, [&received, peer] {
            const QByteArray request = peer->readAll();
            received += request;
            if (request.startsWith("POST"))
                peer->write(request.contains("Authorization: Basic")
                                ? "HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n"
                                : "HTTP/1.1 401 Unauthorized\r\nContent-Length: 0\r\n"
                                  "WWW-Authenticate: Basic realm=\"CUPS\"\r\n\r\n");
        });
    });
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(server.serverPort()));
    QThreadPool::globalInstance()->waitForDone(); // each thread remembers the server that it met
    const auto here = QThread::currentThread();
    for (const bool answers : {false, true}) {
        int asked = 0;
        host::JobSender sender([&](const QString &) {
            EXPECT_EQ(QThread::currentThread(), here);
            ++asked;
            return answers ? std::optional(host::Credentials{"ann", "secret"}) : std::nullopt;
        });
        const Told told(sender);
        sender.send({"Queue", "title", CUPS_FORMAT_POSTSCRIPT, QByteArray("%!PS\n"), {}});
        ASSERT_TRUE(waitFor([&] { return !told.failure.isEmpty(); }));
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(received.contains("Authorization: Basic " + QByteArray("ann:secret").toBase64()),
                  answers);
        EXPECT_TRUE(told.failure.startsWith("Queue: ")) << told.failure.toStdString();
    }
    qunsetenv("CUPS_SERVER");
}
