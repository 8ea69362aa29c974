// A server that is hurt between two steps of a person: one clear message, the choices are kept, and
// once it is mended a second try prints.

#include "support/cups_daemon.h"
#include "support/ppd_text.h"
#include "support/run_program.h"

#include "host/bundle_loader.h"
#include "host/dialog/print_dialog.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLocalSocket>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Wound {
    const char *name;
    std::function<bool(CupsDaemon &)> hurt, mend;
    bool stillPrints = false; ///< the job is taken all the same
};

const Wound kWounds[] = {
    {"Stopped", [](CupsDaemon &c) { return c.stop(), true; },
     [](CupsDaemon &c) { return c.start(); }},
    {"Deleted",
     [](CupsDaemon &c) {
         return c.command("lpadmin", {"-x", "Queue"});
     },
     [](CupsDaemon &c) { return c.addQueue("Queue", samplePath("velmora-mvo-540.ppd")); }},
    {"Rejecting", [](CupsDaemon &c) { return c.command("cupsreject", {"Queue"}); },
     [](CupsDaemon &c) { return c.command("cupsaccept", {"Queue"}); }},
    {"Paused", [](CupsDaemon &c) { return c.command("cupsdisable", {"Queue"}); },
     [](CupsDaemon &c) { return c.command("cupsenable", {"Queue"}); }, true},
    {"PpdReplaced",
     [](CupsDaemon &c) { return c.addQueue("Queue", samplePath("velmora-plain.ppd")); },
     [](CupsDaemon &) { return true; }, true},
};

enum Step { kBeforeTheWindow, kBeforeTheChoice, kBehindTheChoice };

template <class Condition>
bool wait(Condition condition) {
    return QTest::qWaitFor(condition, 30000);
}

/// The dialog in the hands of a person.
struct Person {
    explicit Person(const QTemporaryDir &folder,
                    const QString &document = samplePath("sample.ps")) {
        host::DialogSetup setup;
        setup.plugin = host::loadBundle(BUNDLE_DIR);
        setup.document = host::readDocument(document);
        setup.store = host::PresetStore(folder.path());
        setup.queue = "Queue";
        dialog.emplace(std::move(setup));
        dialog->show();
    }
    template <class View>
    View *view(const char *name) {
        return dialog->findChild<View *>(name);
    }
    QPushButton *print() {
        for (auto *button : dialog->findChildren<QPushButton *>())
            if (button->text() == "&Print")
                return button;
        return nullptr;
    }
    void choose() {
        auto *menu = view<QComboBox>("paperSize");
        menu->setCurrentIndex(menu->findText("US Letter"));
        emit menu->activated(menu->currentIndex());
    }
    bool hasChosen() { return view<QComboBox>("paperSize")->currentText() == "US Letter"; }
    bool isSent() { return view<QLabel>("jobHeadline")->text().contains("was sent."); }
    /// What the form says of a job that can't be printed.
    QString told() {
        QString words;
        for (const auto *label : dialog->findChildren<QLabel *>())
            if (label->objectName() == "presetProblems" || label->objectName() == "printerNotice" ||
                label->objectName() == "serverStatus")
                words += label->isHidden() ? QString() : label->text();
        return words;
    }

    std::optional<host::PrintDialog> dialog;
};

/// A line to a server whose next connection that sends more than so many bytes is cut, or goes
/// silent.
class CutLine : public QTcpServer {
public:
    explicit CutLine(const QString &socket) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, socket] {
            QTcpSocket *client = nextPendingConnection();
            auto *server = new QLocalSocket(client);
            server->connectToServer(socket);
            connect(client, &QTcpSocket::readyRead, server,
                    [this, client, server, sent = qint64(0)]() mutable {
                        const QByteArray bytes = client->readAll();
                        sent += bytes.size();
                        if (most < 0 || sent <= most) {
                            server->write(bytes);
                        } else if (most = -1; goesSilent) {
                            isSilent = true;
                            client->disconnect(server);
                        } else {
                            client->abort();
                        }
                    });
            connect(server, &QLocalSocket::readyRead, client,
                    [client, server] { client->write(server->readAll()); });
            connect(server, &QLocalSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
            connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        });
    }
    QByteArray address() const { return "127.0.0.1:" + QByteArray::number(serverPort()); }

    qint64 most = -1; ///< bytes; -1 for any number
    bool goesSilent = false, isSilent = false;
};

} // namespace

TEST(Sending, ALineThatIsCutOrSilentLosesNothing) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("Queue", samplePath("velmora-mvo-540.ppd")));
    CutLine line(cups.address());
    const ServerInUse server(line.address());
    const QTemporaryDir folder;
    const QByteArray comment = "%" + QByteArray(63, 'x') + "\n";
    Person person(folder, writeFile(folder.path(), "long.ps",
                                    "%!PS\n" + comment.repeated(1 << 16) + "showpage\n"));
    ASSERT_TRUE(wait([&] { return person.print()->isEnabled(); }));
    person.choose();
    line.most = 1 << 20;
    person.print()->click();
    EXPECT_TRUE(wait([&] { return person.told().contains("wasn't printed"); }))
        << person.view<QLabel>("jobHeadline")->text().toStdString();
    EXPECT_TRUE(person.hasChosen());

    line.most = 1 << 20;
    line.goesSilent = true;
    person.print()->click();
    ASSERT_TRUE(wait([&] { return line.isSilent; }));
    person.view<QPushButton>("jobCancel")->click();
    // Far from the time for which a server is waited for.
    EXPECT_TRUE(QTest::qWaitFor([&] { return person.print()->isVisible(); }, 5000))
        << person.view<QLabel>("jobHeadline")->text().toStdString();
    EXPECT_TRUE(person.hasChosen());
    QByteArray left;
    EXPECT_TRUE(wait([&] { return cups.command("lpstat", {"-o"}, &left) && left.isEmpty(); }));

    person.print()->click();
    EXPECT_TRUE(wait([&] { return person.view<QLabel>("jobState")->text() == "Printed."; }))
        << person.told().toStdString();
}

class Hurt : public testing::TestWithParam<std::tuple<Wound, Step>> {};

TEST_P(Hurt, IsToldAndNothingIsLost) {
    const auto &[wound, step] = GetParam();
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("Queue", samplePath("velmora-mvo-540.ppd")));
    const ServerInUse server(cups.address());
    const QTemporaryDir folder;
    if (step == kBeforeTheWindow) {
        ASSERT_TRUE(wound.hurt(cups));
    }
    Person person(folder);
    if (step != kBeforeTheWindow) {
        ASSERT_TRUE(wait([&] { return person.print()->isEnabled(); }));
        if (step == kBehindTheChoice)
            person.choose();
        ASSERT_TRUE(wound.hurt(cups));
        if (step == kBeforeTheChoice)
            person.choose();
        person.print()->click();
    }
    if (wound.stillPrints) {
        ASSERT_TRUE(wait([&] { return person.print()->isEnabled(); }));
        if (!person.isSent())
            person.print()->click();
        EXPECT_TRUE(wait([&] { return person.isSent(); })) << person.told().toStdString();
        ASSERT_TRUE(wound.mend(cups));
        EXPECT_TRUE(wait([&] { return person.view<QLabel>("jobState")->text() == "Printed."; }));
        return;
    }
    EXPECT_TRUE(wait([&] { return !person.told().isEmpty(); }));
    EXPECT_FALSE(person.isSent());
    ASSERT_TRUE(wound.mend(cups));
    person.view<QPushButton>("retry")->click();
    ASSERT_TRUE(wait([&] { return person.print()->isEnabled(); })) << person.told().toStdString();
    if (step == kBeforeTheWindow)
        person.choose();
    EXPECT_TRUE(person.hasChosen());
    person.print()->click();
    EXPECT_TRUE(wait([&] { return person.isSent(); })) << person.told().toStdString();
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Wound, Step>> &info) {
    const char *const steps[] = {"BeforeTheWindow", "BeforeTheChoice", "BehindTheChoice"};
    return std::string(std::get<0>(info.param).name) + steps[std::get<1>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Server, Hurt,
                         testing::Combine(testing::ValuesIn(kWounds),
                                          testing::Values(kBeforeTheWindow, kBeforeTheChoice,
                                                          kBehindTheChoice)),
                         nameOf);

/// A server that takes connections and never answers: the window lives, and makes a file.
TEST(SilentServer, HoldsNothingUp) {
    QTcpServer silent;
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const ServerInUse server("127.0.0.1:" + QByteArray::number(silent.serverPort()));
    const QTemporaryDir folder;
    qint64 longest = 0; // between two turns of the event loop
    QElapsedTimer turn;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { longest = qMax(longest, turn.restart()); });
    turn.start();
    heart.start(10);
    {
        Person person(folder);
        QTest::qWait(1500);
        EXPECT_FALSE(person.print()->isEnabled());
        EXPECT_TRUE(person.dialog->isVisible());
        person.dialog->reject(); // Cancel works meanwhile
        EXPECT_FALSE(person.dialog->isVisible());
    }
    // What waits for this server waits for seconds; a busy machine never takes that long.
    EXPECT_LT(longest, 2000);
}
