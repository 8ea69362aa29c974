#include "support/cups_daemon.h"
#include "support/ppd_text.h"
#include "support/run_program.h"

#include "host/bundle_loader.h"
#include "host/dialog/queue_job.h"
#include "host/queues/queue_directory.h"
#include "host/queues/queue_list.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace {

template <class Condition>
bool wait(Condition condition) {
    return QTest::qWaitFor(condition, 60000);
}

/// A directory, and what it has told.
struct Followed {
    explicit Followed(const host::CupsDeadlines &deadlines = {}) : directory(deadlines) {
        using Directory = host::QueueDirectory;
        QObject::connect(&directory, &Directory::changed, [this] { ++changes; });
        QObject::connect(&directory, &Directory::failed,
                         [this](const QString &why) { reason = why; });
        QObject::connect(&directory, &Directory::detailsReady,
                         [this](const auto &given) { details.append(given); });
        QObject::connect(&directory, &Directory::detailsFailed,
                         [this](const QString &, const QString &why) { missed.append(why); });
    }
    /// The line of a queue's state; empty where it isn't told.
    QString state(const QString &name) const {
        for (const host::QueueInfo &queue : directory.queues())
            if (queue.name == name)
                return (queue.isDefault ? "default, " : "") + host::stateLine(queue);
        return {};
    }
    /// Asks until a queue has a state.
    bool becomes(const QString &name, const QString &line) {
        return wait([&] {
            if (state(name) != line)
                directory.ask();
            return state(name) == line;
        });
    }

    host::QueueDirectory directory;
    int changes = 0;
    QString reason;
    QList<std::shared_ptr<host::QueueDetails>> details;
    QStringList missed;
};

/// A server that answers each request with the same reply, or in a bad way.
class ScriptedServer : public QTcpServer {
public:
    enum class Manner { Answers, Silent, Resets, Drips, TalksNonsense, CutsPpd, CutsChunks };

    explicit ScriptedServer(Manner manner, const QByteArray &reply = {}) : m_reply(reply) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, [this, manner] {
            QTcpSocket *peer = nextPendingConnection();
            if (manner == Manner::Resets)
                return peer->abort();
            connect(peer, &QTcpSocket::readyRead, [this, peer, manner] { take(peer, manner); });
        });
    }
    QByteArray address() const { return "127.0.0.1:" + QByteArray::number(serverPort()); }

private:
    void take(QTcpSocket *peer, Manner manner) {
        QByteArray &request = m_requests[peer];
        request += peer->readAll();
        const qsizetype head = request.indexOf("\r\n\r\n");
        const qsizetype at = request.indexOf("Content-Length: ");
        const qsizetype body = at < 0 ? 0 : request.mid(at + 16, 8).split('\r')[0].toInt();
        if (head < 0 || request.size() < head + 4 + body)
            return;
        const bool isGet = request.startsWith("GET");
        request.clear();
        if (manner == Manner::TalksNonsense)
            peer->write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n"
                        "Content-Length: 9\r\n\r\nnonsense!");
        if (manner == Manner::Drips)
            drip(peer);
        if (manner < Manner::CutsPpd && manner != Manner::Answers)
            return;
        if (!isGet) {
            peer->write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                        QByteArray::number(m_reply.size()) + "\r\n\r\n" + m_reply);
            return;
        }
        peer->write(manner == Manner::CutsPpd
                        ? "HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n*PPD-Adobe: \"4.3\"\n"
                        : "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                          "11\r\n*PPD-Adobe: \"4.3\"\r\n");
        peer->disconnectFromHost();
    }
    void drip(QTcpSocket *peer) {
        peer->write("HTTP/1.1 200 OK\r\nX-Endless: ");
        auto *timer = new QTimer(peer);
        connect(timer, &QTimer::timeout, peer, [peer] { peer->write("."); });
        timer->start(10);
    }

    QByteArray m_reply;
    QHash<QTcpSocket *, QByteArray> m_requests;
};

/// A reply that tells queues, each with the attributes that `add` gives it.
QByteArray replyWith(int count, const std::function<void(ipp_t *, int)> &add) {
    const host::IppPtr reply(ippNew());
    ippSetVersion(reply.get(), 2, 0);
    ippSetStatusCode(reply.get(), IPP_STATUS_OK);
    ippSetRequestId(reply.get(), 1);
    ippAddString(reply.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr,
                 "utf-8");
    ippAddString(reply.get(), IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language",
                 nullptr, "en");
    for (int i = 0; i < count; ++i) {
        add(reply.get(), i);
        ippAddSeparator(reply.get());
    }
    QByteArray bytes;
    const ipp_iocb_t append = [](void *to, ipp_uchar_t *data, size_t size) -> ssize_t {
        static_cast<QByteArray *>(to)->append(reinterpret_cast<char *>(data), qsizetype(size));
        return ssize_t(size);
    };
    ippWriteIO(&bytes, append, 1, nullptr, reply.get());
    return bytes;
}

void addText(ipp_t *ipp, ipp_tag_t tag, const char *name, const QByteArray &value) {
    ippAddString(ipp, IPP_TAG_PRINTER, tag, name, nullptr, value.constData());
}

} // namespace

TEST(Queues, FollowTheServer) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start()) << cups.log().constData();
    const ServerInUse server(cups.address());
    Followed told;
    told.directory.askDetails("A"); // that comes later
    told.directory.ask();
    ASSERT_TRUE(wait([&] { return told.changes > 0 && !told.missed.isEmpty(); }));
    EXPECT_TRUE(told.directory.queues().isEmpty());
    const int changes = told.changes;
    ASSERT_TRUE(cups.addQueue("A", samplePath("velmora-mvo-530.ppd")) &&
                cups.command("lpadmin", {"-p", "Raw", "-E", "-v", "file:///dev/null"}) &&
                cups.command("lpadmin", {"-p", "A", "-c", "Class"}));
    ASSERT_TRUE(wait([&] { return told.changes > changes; })) << "it follows by itself";
    ASSERT_TRUE(wait([&] { return !told.details.isEmpty(); })) << "what was missed comes, too";
    EXPECT_TRUE(told.details[0]->source.ppd);
    told.directory.askDetails("Class");
    ASSERT_TRUE(wait([&] { return told.details.size() > 1; }))
        << told.missed.join(' ').toStdString();
    EXPECT_TRUE(told.details.last()->source.ppd) << "that of its first printer";

    const struct {
        QStringList command;
        const char *queue, *state;
    } steps[] = {
        {{"lpadmin", "-d", "A"}, "A", "default, Idle"},
        {{"cupsdisable", "-r", "Closed\tuntil Monday", "A"},
         "A",
         "default, Paused: Closed until Monday"},
        {{"cupsreject", "A"}, "A", "default, Paused, takes no jobs"},
        {{"cupsreject", "-r", "Gone", "Raw"}, "Raw", "Idle, takes no jobs: Gone"},
        {{"cupsenable", "A"}, "A", "default, Idle, takes no jobs"},
        {{"lpadmin", "-x", "A"}, "A", ""},
    };
    for (const auto &step : steps) {
        ASSERT_TRUE(cups.command(step.command[0], step.command.mid(1))) << step.state;
        EXPECT_TRUE(told.becomes(step.queue, step.state))
            << step.state << " but " << told.state(step.queue).toStdString();
    }

    told.details.clear();
    told.missed.clear();
    told.directory.askDetails("Class"); // is moot
    told.directory.askDetails("Raw");
    ASSERT_TRUE(wait([&] { return !told.details.isEmpty(); }));
    EXPECT_EQ(told.details[0]->source.printer.id, "Raw");
    EXPECT_FALSE(told.details[0]->source.ppd);
    EXPECT_EQ(host::optionValue(told.details[0]->serverDefaults, "job-sheets"), "none,none");
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(told.details.size(), 1);
    EXPECT_EQ(told.missed.size(), 0);
}

TEST(Queues, BadServersAreToldAndNeverWaitedFor) {
    using Manner = ScriptedServer::Manner;
    const QByteArray fine = replyWith(0, {});
    const struct {
        Manner manner;
        host::CupsDeadlines deadlines;
        const char *queues, *details; ///< in the reasons; null where there is none
    } cases[] = {
        {Manner::Silent, {5000, 0.3, 3600}, "gave no answer within", "gave no answer within"},
        {Manner::Drips, {5000, 3600, 0.3}, "no whole answer within", "no whole answer within"},
        {Manner::Resets, {}, "CUPS server", "CUPS server"},
        {Manner::TalksNonsense, {}, "CUPS server", "CUPS server"},
        {Manner::CutsPpd, {}, nullptr, "closed the connection"},
        {Manner::CutsChunks, {}, nullptr, "closed the connection"},
    };
    for (const auto &c : cases) {
        const ScriptedServer script(c.manner, fine);
        const ServerInUse server(script.address());
        Followed told(c.deadlines);
        told.directory.ask();
        told.directory.askDetails("Queue");
        ASSERT_TRUE(wait([&] {
            return !told.missed.isEmpty() && (c.queues ? !told.reason.isNull() : told.changes > 0);
        })) << int(c.manner);
        EXPECT_TRUE(told.missed[0].contains(c.details)) << told.missed[0].toStdString();
        EXPECT_TRUE(told.reason.contains(c.queues ? c.queues : "")) << told.reason.toStdString();
    }
    for (const Manner manner : {Manner::Silent, Manner::Drips}) {
        const ScriptedServer script(manner);
        const ServerInUse server(script.address());
        {
            Followed told({5000, 3600, 3600});
            told.directory.ask();
            told.directory.askDetails("Queue");
            QTest::qWait(100); // whether they are connected by then or not
        }
        EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(60000)) << int(manner);
    }
}

TEST(Queues, HostileAnswersAreHarmless) {
    const auto add = [](ipp_t *ipp, int i) {
        const QByteArray number = QByteArray::number(i);
        if (i % 10 == 9) { // all of a wrong type
            for (const char *name : host::queueAttributes())
                ippAddInteger(ipp, IPP_TAG_PRINTER, IPP_TAG_INTEGER, name, i);
            return;
        }
        const QByteArray names[] = {"Q" + number, "Q0", "../admin",  "a b",
                                    "\xff\xfe",   "",   "Q" + number};
        addText(ipp, IPP_TAG_NAME, "printer-name", names[i % 7]);
        addText(ipp, IPP_TAG_TEXT, "printer-info",
                QByteArray("\xe2\x80\xae<b>evil</b>\n") + QByteArray(500, 'x') +
                    "\xf0\x9f\x96\xa8");
        addText(ipp, IPP_TAG_TEXT, "printer-location", i % 2 ? "cut \xf0\x9f" : "\x01\x02");
        ippAddInteger(ipp, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", i % 2 ? 99 : 5);
        ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "printer-state-reasons", nullptr,
                     "media-jam-error");
        ippAddBoolean(ipp, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 0);
    };
    const ScriptedServer script(ScriptedServer::Manner::Answers, replyWith(1000, add));
    const ServerInUse server(script.address());
    Followed told;
    told.directory.ask();
    ASSERT_TRUE(wait([&] { return told.changes == 1; })) << told.reason.toStdString();
    EXPECT_EQ(told.directory.queues().size(), 257); // those with a name of their own
    const host::QueueInfo &queue = told.directory.queues()[0];
    EXPECT_EQ(queue.name, "Q0");
    EXPECT_TRUE(queue.description.startsWith("<b>evil</b> xxx") && queue.description.size() <= 300);
    EXPECT_EQ(queue.location, "");
    EXPECT_EQ(host::stateLine(queue), "Paused, takes no jobs: paper jam");
    EXPECT_TRUE(host::queueProblem(queue).preventsPrinting);
}

/// The PPD's, then the server's, then what `lpoptions` has written for the machine, for the person,
/// for the instance.
TEST(Queues, DefaultsComeInOrder) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(".cups");
    writeFile(folder.path(), "lpoptions",
              "# all\nDest q Tray=Machine Tone=Machine Fold=Machine\nDefault other\n");
    writeFile(folder.path(), ".cups/lpoptions",
              "Dest Q Tone=Person Fold=Person number-up=2 note=\"two words\" noCollate\n"
              "default\tQ/Draft Fold=Instance copies=3\nDest Q/Bad \xff\n"
              "Dest\nNonsense\nDest Q/Empty\n");
    qputenv("CUPS_SERVERROOT", folder.path().toUtf8());
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toUtf8());
    for (const char *variable : {"LPDEST", "PRINTER"})
        qunsetenv(variable);
    host::UserOptions options = host::readUserOptions();
    EXPECT_EQ(options.defaults, QStringList{"Q/Draft"});
    EXPECT_EQ(options.instancesOf("Q"), (QStringList{"Draft", "Empty"}));
    EXPECT_EQ(options.problems.size(), 1) << options.problems.join('\n').toStdString();
    qputenv("PRINTER", "Third/Set");
    EXPECT_EQ(host::readUserOptions().defaults, (QStringList{"Third/Set", "Q/Draft"}));
    qputenv("LPDEST", "Fourth");
    EXPECT_EQ(host::readUserOptions().defaults, (QStringList{"Fourth", "Q/Draft"}));
    for (const char *variable : {"LPDEST", "PRINTER", "CUPS_SERVERROOT"})
        qunsetenv(variable);
    qputenv("HOME", home);

    QByteArray text = readFile(samplePath("velmora-plain.ppd"));
    for (const char *option : {"Ink", "Feed", "Tray", "Tone", "Fold"})
        text += ppdOption(option, {"Ppd", "Server", "Machine", "Person", "Instance"}, "Ppd");
    host::QueueJob job(
        {host::openPpdText(text, "Q"),
         {{"Feed", "Server"}, {"Tray", "Server"}, {"copies", "2"}, {"job-sheets", "x"}},
         options},
        *host::loadBundle(BUNDLE_DIR), false);
    const auto marks = [&] {
        QStringList list;
        for (const char *option : {"Ink", "Feed", "Tray", "Tone", "Fold"})
            list.append(ppdFindMarkedChoice(job.ppd(), option)->choice);
        return list.join(' ') + ' ' + QString::number(job.settings().copies()) + ' ' +
               job.settings().value(host::Setting::NumberUp);
    };
    EXPECT_EQ(marks().toStdString(), "Ppd Server Machine Person Person 2 2");
    job.useDefaults("Draft");
    EXPECT_EQ(marks().toStdString(), "Ppd Server Machine Person Instance 3 2");
    job.useDefaults("Empty");
    EXPECT_EQ(marks().toStdString(), "Ppd Server Machine Person Person 2 2");
    EXPECT_EQ(host::optionValue(host::optionsOf(job.toSend()), "note"), "two words");
    EXPECT_FALSE(host::optionValue(host::optionsOf(job.toSend()), "job-sheets"));
}

TEST(Queues, ListKeepsWhatThePersonLooksAt) {
    host::QueueList list;
    auto *view = list.findChild<QListView *>("queueList");
    auto *filter = list.findChild<QLineEdit *>("queueFilter");
    auto *status = list.findChild<QLabel *>("serverStatus");
    const auto names = [&] {
        QStringList shown;
        for (int row = 0; row < view->model()->rowCount(); ++row)
            shown.append(view->model()->index(row, 0).data().toString());
        return shown.join(u' ').toStdString();
    };
    const auto told = [&](int row, int role) {
        return view->model()->index(row, 0).data(role).toString().toStdString();
    };
    list.resize(300, 300);
    list.show();
    list.select("Q2");
    EXPECT_EQ(names(), "Print to File Q2");
    EXPECT_EQ(status->text(), "Looking for printers…");

    QList<host::QueueInfo> queues;
    for (const int number : {10, 9, 2, 1})
        queues.append({"Q" + QString::number(number)});
    queues[0].isDefault = true;
    queues[0].state = host::QueueState::Paused;
    queues[0].location = "Cellar";
    list.setRecent({"Q9", "Gone"});
    list.setQueues(queues);
    EXPECT_EQ(names(), "Print to File Q9 Q1 Q2 Q10");
    EXPECT_FALSE(filter->isVisible() || status->isVisible());
    EXPECT_EQ(told(4, Qt::AccessibleTextRole), "Q10, Default · Paused");
    EXPECT_EQ(told(4, Qt::AccessibleDescriptionRole), "Cellar");
    queues.removeAt(2);
    list.setQueues(queues);
    EXPECT_EQ(list.selected(), "Q2");
    EXPECT_EQ(told(3, Qt::AccessibleTextRole), "Q2, No longer on the server");
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(list.selected(), "Q10");
    EXPECT_TRUE(wait([&] { return names() == "Print to File Q9 Q1 Q10"; }));

    for (int number = 100; number < 1100; ++number)
        queues.append({"Q" + QString::number(number)});
    list.setQueues(queues);
    EXPECT_TRUE(filter->isVisible());
    view->scrollTo(view->model()->index(700, 0));
    const int scrolled = view->verticalScrollBar()->value();
    queues.append({"A"});
    queues[0].description = "changed";
    list.setQueues(queues);
    EXPECT_EQ(view->verticalScrollBar()->value(), scrolled + 1);
    QTest::keyClicks(view, "Q107");
    EXPECT_EQ(list.selected(), "Q107");
    filter->setFocus();
    QTest::keyClicks(filter, "cell");
    EXPECT_EQ(names(), "Print to File Q10 Q107");
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_EQ(view->model()->rowCount(), 1005);
    EXPECT_EQ(list.selected(), "Q107");

    list.setFailure("CUPS server x: is <b>down</b>");
    EXPECT_EQ(status->text(), "CUPS server x: is <b>down</b>");
    bool asked = false;
    QObject::connect(&list, &host::QueueList::retryAsked, [&] { asked = true; });
    list.findChild<QPushButton *>("retry")->click();
    EXPECT_TRUE(asked);
    EXPECT_EQ(status->text(), "Looking for printers…");
}
