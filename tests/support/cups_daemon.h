#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A CUPS server of the test's own, on a socket and a free loopback port, with everything that it
/// writes in one folder. Ends with the object.
class CupsDaemon {
public:
    ~CupsDaemon();

    /// @return whether it answers
    bool start();
    /// Ends it; start() goes on with the same queues.
    void stop();
    /// Adds a queue that writes its jobs, filtered, to outputOf(name).
    bool addQueue(const QString &name, const QString &ppd);
    QString outputOf(const QString &queue) const { return m_folder.filePath(queue + ".out"); }
    /// Waits until the queue has printed all its jobs.
    bool waitForJobs(const QString &queue);
    /// Runs a CUPS command against this server. @return whether it succeeded
    bool command(const QString &program, const QStringList &arguments, QByteArray *out = nullptr);
    /// What makes a program use this server.
    QStringList environment() const { return {"CUPS_SERVER=" + socket()}; }
    /// The server's address as the variable has it.
    QByteArray address() const { return socket().toUtf8(); }
    QString folder() const { return m_folder.path(); }
    QByteArray log() const;

private:
    QString socket() const { return m_folder.filePath("socket"); }

    QTemporaryDir m_folder;
    QProcess m_server;
};

/// Makes this program use a server, on all of its threads, until the object ends.
class ServerInUse {
public:
    explicit ServerInUse(const QByteArray &address) { use(address); }
    ~ServerInUse() { use({}); }
    ServerInUse(const ServerInUse &) = delete;
    ServerInUse &operator=(const ServerInUse &) = delete;

private:
    static void use(const QByteArray &address);
};
