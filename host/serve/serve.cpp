#include "host/serve/serve.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/document.h"
#include "host/host_error.h"
#include "host/print.h"
#include "host/serve/answers.h"
#include "host/serve/errands.h"
#include "host/serve/job_watch.h"
#include "host/serve/line_source.h"
#include "host/serve/request.h"
#include "host/words.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

#include <unistd.h>

namespace host {
namespace {

/// Seconds for a wait's last look at a job.
constexpr double kLastLook = 5;
/// Seconds that are left to send a job at least.
constexpr double kLeastToSend = 1;

/// What a job is printed from.
struct Material {
    Document document;
    std::shared_ptr<QueueDetails> details;
};

/// Obeys the commands, one after the other: the next one is read once the former is answered.
class Server {
public:
    explicit Server(PDEPlugin &plugin)
        : m_plugin(plugin),
          m_source(STDIN_FILENO, kMostRequest, [this](const QByteArray &line) { take(line); }) {
        m_source.next();
    }

private:
    using Handler = void (Server::*)(const Request &);
    struct CommandRow {
        const char *word;
        Handler handler;
    };
    static const CommandRow kCommands[];

    void take(const QByteArray &line);
    void grant(QJsonObject answer);
    void refuse(const QString &why, QJsonObject answer = {});
    void write(const QJsonObject &answer);
    /// Runs an errand whose failure is the answer.
    template <typename Work, typename Done>
    void ask(double seconds, Work work, Done done, const QString &doubt = {});
    /// Asks for a queue, and makes the job that the request wants.
    void want(const Request &request, const std::function<void(WantedJob &)> &done);

    void list(const Request &request);
    void queue(const Request &request);
    void check(const Request &request);
    void print(const Request &request);
    void send(const Request &request, const Material &material, const QDeadlineTimer &until);
    void job(const Request &request);
    void cancel(const Request &request);

    PDEPlugin &m_plugin;
    Errands m_errands;
    LineSource m_source;
};

const Server::CommandRow Server::kCommands[] = {
    {"list", &Server::list},   {"queue", &Server::queue}, {"check", &Server::check},
    {"print", &Server::print}, {"job", &Server::job},     {"cancel", &Server::cancel},
};

void Server::take(const QByteArray &line) {
    if (line.isNull())
        return QApplication::quit();
    QString why;
    const std::optional<Request> request = readRequest(line, &why);
    if (!request)
        return refuse(why);
    for (const CommandRow &row : kCommands)
        if (request->command == QLatin1String(row.word))
            return (this->*row.handler)(*request);
}

void Server::grant(QJsonObject answer) {
    answer.insert(QStringLiteral("ok"), true);
    write(answer);
}

void Server::refuse(const QString &why, QJsonObject answer) {
    answer.insert(QStringLiteral("ok"), false);
    answer.insert(QStringLiteral("why"), why);
    write(answer);
}

void Server::write(const QJsonObject &answer) {
    const QByteArray line = QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
    const size_t written = std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    if (written == size_t(line.size()) && std::fflush(stdout) == 0)
        m_source.next();
    else
        QApplication::quit(); // nobody reads any more
}

template <typename Work, typename Done>
void Server::ask(double seconds, Work work, Done done, const QString &doubt) {
    m_errands.run(
        seconds, doubt, std::move(work),
        [this, done = std::move(done)](auto result) mutable {
            try {
                done(std::move(result));
            } catch (const HostError &error) {
                refuse(error.text());
            }
        },
        [this](const QString &reason) { refuse(reason); });
}

void Server::list(const Request &request) {
    ask(
        request.seconds,
        [](const Reach &reach) {
            CupsServer server(reach.deadlines, {}, reach.stop);
            return readQueues(server);
        },
        [this](const QList<QueueInfo> &queues) {
            QJsonArray list;
            for (const QueueInfo &queue : queues)
                list.append(queueJson(queue));
            grant({{"queues", list}});
        });
}

void Server::want(const Request &request, const std::function<void(WantedJob &)> &done) {
    ask(
        request.seconds,
        [queue = request.text("queue")](const Reach &reach) {
            CupsServer server(reach.deadlines, {}, reach.stop);
            return readDetails(server, queue);
        },
        [this, request, done](const std::shared_ptr<QueueDetails> &details) {
            WantedJob wanted(std::move(*details), m_plugin, request);
            done(wanted);
        });
}

void Server::queue(const Request &request) {
    want(request, [this](WantedJob &wanted) {
        QJsonObject answer = offersJson(wanted, PresetStore());
        const QJsonObject verdict = verdictJson(wanted);
        for (const char *member : {"problems", "notes"})
            answer.insert(QLatin1String(member), verdict[QLatin1String(member)]);
        grant(answer);
    });
}

void Server::check(const Request &request) {
    want(request, [this](WantedJob &wanted) { grant(verdictJson(wanted)); });
}

void Server::print(const Request &request) {
    const QDeadlineTimer until{qint64(request.seconds * 1000)};
    ask(
        request.seconds,
        [path = request.text("document"), queue = request.text("queue")](const Reach &reach) {
            Document document = readDocument(path);
            CupsServer server(reach.deadlines, {}, reach.stop);
            return Material{std::move(document), readDetails(server, queue)};
        },
        [this, request, until](const Material &material) { send(request, material, until); });
}

void Server::send(const Request &request, const Material &material, const QDeadlineTimer &until) {
    WantedJob wanted(std::move(*material.details), m_plugin, request);
    const QString refusal = refusalOf(wanted, request.flag("anyway"));
    if (!refusal.isNull())
        return refuse(refusal, verdictJson(wanted));
    CupsJob job = cupsJob(wanted.job().queue(), material.document);
    if (const QString title = request.text("title"); !title.isNull())
        job.title = title;
    job.options = wanted.ready();
    ask(
        qMax(kLeastToSend, double(until.remainingTime()) / 1000),
        [job = std::move(job)](const Reach &reach) {
            CupsServer server(reach.deadlines, {}, reach.stop);
            return server.submit(job, [&](qint64) {
                if (*reach.isLate)
                    throw HostError(job.queue, HostWords::tr("the job was cancelled"));
            });
        },
        [this, notes = wanted.notes()](int id) {
            grant({{"job", id}, {"notes", QJsonArray::fromStringList(notes)}});
        },
        HostWords::tr("it isn't known whether the job was sent"));
}

void Server::job(const Request &request) {
    JobWait wait{JobWait::For::Nothing, request.text("known"), request.seconds};
    if (const QString what = request.text("wait"); !what.isNull())
        wait.what = what == u"finished" ? JobWait::For::Finish : JobWait::For::Change;
    const bool waits = wait.what != JobWait::For::Nothing;
    ask(
        request.seconds + (waits ? kLastLook : 0),
        [job = request.job(), wait](const Reach &reach) { return watchJob(reach, job, wait); },
        [this, waits, job = request.job()](const WatchedJob &watched) {
            QJsonObject answer = jobStateJson(watched.state);
            answer.insert(QStringLiteral("job"), job);
            if (waits)
                answer.insert(QStringLiteral("changed"), watched.hasChanged);
            grant(answer);
        });
}

void Server::cancel(const Request &request) {
    ask(
        request.seconds,
        [job = request.job()](const Reach &reach) {
            CupsServer server(reach.deadlines, {}, reach.stop);
            server.cancelJob(job);
            return job;
        },
        [this](int job) {
            grant({{"job", job}});
        },
        HostWords::tr("it isn't known whether the job was cancelled"));
}

} // namespace

void serve(const CommandLine &line) {
    PDEPlugin *plugin = loadBundle(line.bundle);
    QApplication::setQuitOnLastWindowClosed(false);
    const Server server(*plugin);
    QApplication::exec();
}

} // namespace host
