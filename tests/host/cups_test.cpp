#include "run_host.h"
#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

/// What the host puts into a file is what CUPS' own filters make of the job that it sends.
TEST(Cups, FiltersPrintTheMarks) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start()) << cups.log().constData();
    ASSERT_TRUE(cups.addQueue("Queue", samplePath("velmora-mvo-530.ppd")))
        << cups.log().constData();
    ASSERT_TRUE(cups.addQueue("Plain", samplePath("velmora-plain.ppd")));

    const HostRun list = runHost({"list"}, cups.folder(), {}, cups.environment());
    EXPECT_EQ(list.exitCode, 0) << list.err.constData();
    EXPECT_EQ(list.out, "Plain\tno panel\nQueue\tpanel\n") << list.err.constData();

    for (const char *document : {"sample.ps", "sample.pdf"}) {
        // clang-format off
        const QStringList common{"-o", "QZColorMode=Black", "-o", "Duplex=DuplexNoTumble",
                                 "--setting", "com.velmora.test=a b", samplePath(document)};
        // clang-format on
        const HostRun toFile =
            runHost(QStringList{"print", "--queue", "Queue", "--to", "job.ps"} + common,
                    cups.folder(), {}, cups.environment());
        ASSERT_EQ(toFile.exitCode, 0) << toFile.err.constData();
        QFile::remove(cups.outputOf("Queue"));
        const HostRun toQueue =
            runHost(QStringList{"print", "--shown", "--queue", "Queue"} + common, cups.folder(), {},
                    cups.environment());
        ASSERT_EQ(toQueue.exitCode, 0) << toQueue.err.constData();
        EXPECT_TRUE(toQueue.out.startsWith("Queue-")) << toQueue.out.constData();
        ASSERT_TRUE(cups.waitForJobs("Queue")) << cups.log().constData();

        QStringList printed = printedFeatures(readFile(cups.outputOf("Queue")));
        QStringList written = printedFeatures(readFile(cups.folder() + "/job.ps"));
        EXPECT_TRUE(printed.contains("*QZColorMode Black")) << document << cups.log().constData();
        EXPECT_TRUE(cups.log().contains("com.velmora.test=a\\\\ b")) << "a print setting";
        EXPECT_TRUE(printed.contains("*Duplex DuplexNoTumble")) << document;
        printed.sort();
        written.sort();
        EXPECT_EQ(printed.join('\n').toStdString(), written.join('\n').toStdString()) << document;
    }

    const struct {
        QStringList arguments;
        const char *complaint;
    } bad[] = {
        {{"print", "--queue", "NoSuch", samplePath("sample.ps")}, "NoSuch: no such queue"},
        {{"print", "--queue", "../admin", samplePath("sample.ps")}, "../admin: no such queue"},
        {{"print", "--queue", "Plain", samplePath("sample.ps")}, "Plain: "}, // rejects jobs
    };
    ASSERT_TRUE(cups.command("cupsreject", {"Plain"}));
    for (const auto &c : bad) {
        const HostRun run = runHost(c.arguments, cups.folder(), {}, cups.environment());
        EXPECT_EQ(run.exitCode, 2) << c.complaint;
        EXPECT_TRUE(run.err.startsWith(QByteArray("pde-host: ") + c.complaint))
            << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    }
}

/// A server that takes the connection and says nothing, and one that isn't there.
TEST(Cups, SilentOrMissingServerIsGivenUp) {
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr *>(&address), size), 0);
    ASSERT_EQ(listen(server, 8), 0);
    ASSERT_EQ(getsockname(server, reinterpret_cast<sockaddr *>(&address), &size), 0);
    const QString name = QString("127.0.0.1:%1").arg(ntohs(address.sin_port));

    QElapsedTimer timer;
    timer.start();
    for (const bool missing : {false, true}) {
        if (missing)
            close(server);
        const HostRun run = runHost({"print", "--queue", "Q", samplePath("sample.ps")}, ".", {},
                                    {"CUPS_SERVER=" + name});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.contains(missing ? "no CUPS server answers" : "gave no answer within"))
            << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    }
    EXPECT_LT(timer.elapsed(), 40000);
}

TEST(Cups, CustomValuesReachTheFilters) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start());
    const QString ppd = writeFile(cups.folder(), "stamp.ppd",
                                  readFile(samplePath("velmora-plain.ppd")) +
                                      ppdOption("Stamp", {"None", "Plain"}) +
                                      "*CustomStamp True: \"pop pop\"\n"
                                      "*ParamCustomStamp Words: 1 string 0 40\n"
                                      "*ParamCustomStamp Level: 2 int 0 99\n");
    ASSERT_TRUE(cups.addQueue("Queue", ppd)) << cups.log().constData();
    const QString value = "Stamp={Words='it\\'s two words' Level=42}";
    const HostRun run = runHost({"print", "--queue", "Queue", "-o", value, samplePath("sample.ps")},
                                cups.folder(), {}, cups.environment());
    EXPECT_EQ(run.out, "Queue-1\n") << run.err.constData();
    ASSERT_TRUE(cups.waitForJobs("Queue")) << cups.log().constData();
    EXPECT_TRUE(readFile(cups.outputOf("Queue")).contains("(it's two words)\n42\n"))
        << readFile(cups.outputOf("Queue")).left(3000).constData();
}
