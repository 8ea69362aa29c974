#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/dialog/job_sender.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

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
    host::CupsJob job{"Queue", "title", CUPS_FORMAT_POSTSCRIPT, "%!PS\nshowpage\n", {}};
    {
        host::JobSender sender;
        const Told told(sender);
        sender.send(job);
        ASSERT_TRUE(waitFor([&] { return told.state && told.state->isFinished(); }))
            << told.failure.toStdString();
        EXPECT_EQ(told.state->state, IPP_JSTATE_COMPLETED);
        EXPECT_EQ(told.progress, std::pair(job.document.size(), job.document.size()));
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
    {
        host::JobSender sender;
        const Told told(sender);
        job.document = QByteArray(64 << 20, ' ');
        sender.send(job);
        sender.cancel(); // before all of it is there
        ASSERT_TRUE(waitFor([&] { return !told.failure.isEmpty(); }));
        EXPECT_EQ(told.failure, "Queue: the job was cancelled");
        EXPECT_EQ(told.job, 0);
        QByteArray waiting;
        EXPECT_TRUE(cups.command("lpstat", {"-o"}, &waiting));
        EXPECT_EQ(waiting, "");
    }
    {
        host::JobSender sender;
        const Told told(sender);
        job.queue = "Nowhere";
        sender.send(job);
        ASSERT_TRUE(waitFor([&] { return !told.failure.isEmpty(); }));
        EXPECT_TRUE(told.failure.startsWith("Nowhere: no such queue"));
    }
    qunsetenv("CUPS_SERVER");
}
