#include "support/cups_daemon.h"

#include <cups/cups.h>

#include "support/run_program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QThreadPool>

#include <csignal>

#include <arpa/inet.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int freePort() {
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const bool bound = bind(fd, reinterpret_cast<sockaddr *>(&address), size) == 0 &&
                       getsockname(fd, reinterpret_cast<sockaddr *>(&address), &size) == 0;
    close(fd);
    return bound ? ntohs(address.sin_port) : 0;
}

} // namespace

CupsDaemon::~CupsDaemon() {
    stop();
}

void CupsDaemon::stop() {
    m_server.terminate();
    if (!m_server.waitForFinished(5000))
        m_server.kill();
    m_server.waitForFinished(5000);
}

bool CupsDaemon::start() {
    QDir root(m_folder.path());
    // Filters run as another user, who must get through to the spool.
    QFile::setPermissions(root.path(), QFile::Permissions(0x7755));
    for (const char *name : {"root", "root/ppd", "spool", "tmp", "cache", "state"})
        root.mkpath(name);
    QFile::setPermissions(root.filePath("tmp"), QFile::Permissions(0x7777));
    const QByteArray configuration =
        "Listen " + socket().toLocal8Bit() +
        "\nListen 127.0.0.1:" + QByteArray::number(freePort()) +
        "\nBrowsing Off\nWebInterface No\nLogLevel debug\nDefaultAuthType None\n"
        "<Location />\nAllow all\n</Location>\n<Policy default>\n<Limit All>\nOrder allow,deny\n"
        "Allow all\n</Limit>\n</Policy>\n";
    QByteArray files = "FileDevice Yes\nSystemGroup root\n";
    for (const auto &[key, path] : {std::pair("ServerRoot", "root"),
                                    {"RequestRoot", "spool"},
                                    {"TempDir", "tmp"},
                                    {"CacheDir", "cache"},
                                    {"StateDir", "state"},
                                    {"ErrorLog", "error_log"},
                                    {"AccessLog", "access_log"},
                                    {"PageLog", "page_log"}})
        files += QByteArray(key) + ' ' + root.filePath(path).toLocal8Bit() + '\n';
    const QString conf = writeFile(root.path(), "root/cupsd.conf", configuration);
    // A test that is killed takes its server along.
    m_server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_server.start("cupsd",
                   {"-c", conf, "-s", writeFile(root.path(), "root/files.conf", files), "-f"});
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 10000 && m_server.state() != QProcess::NotRunning) {
        if (command("lpstat", {"-r"}))
            return true;
        QThread::msleep(100);
    }
    return false;
}

bool CupsDaemon::command(const QString &program, const QStringList &arguments, QByteArray *out) {
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("CUPS_SERVER", socket());
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    if (!process.waitForFinished(20000))
        return false;
    const QByteArray text = process.readAllStandardOutput();
    if (out)
        *out = text;
    return process.exitCode() == 0 && !text.contains("not running");
}

bool CupsDaemon::addQueue(const QString &name, const QString &ppd) {
    return command("lpadmin", {"-p", name, "-E", "-v", "file://" + outputOf(name), "-P", ppd});
}

bool CupsDaemon::waitForJobs(const QString &queue) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 30000) {
        QByteArray pending, done;
        if (command("lpstat", {"-W", "not-completed", "-o", queue}, &pending) &&
            pending.isEmpty() && command("lpstat", {"-W", "completed", "-o", queue}, &done) &&
            !done.isEmpty())
            return true;
        QThread::msleep(100);
    }
    return false;
}

QByteArray CupsDaemon::log() const {
    return readFile(m_folder.filePath("error_log"));
}

void ServerInUse::use(const QByteArray &address) {
    if (address.isEmpty())
        qunsetenv("CUPS_SERVER");
    else
        qputenv("CUPS_SERVER", address);
    cupsSetServer(nullptr);                       // libcups keeps the name for each thread
    QThreadPool::globalInstance()->waitForDone(); // which ends its threads
}
