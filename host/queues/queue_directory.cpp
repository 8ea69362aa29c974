#include "host/queues/queue_directory.h"

#include "host/background.h"
#include "platform/ppd_file.h"

namespace host {
namespace {

constexpr int kAgainMs = 5000;
constexpr int kAgainAfterFailureMs = 15000;

/// As libcups asks for a queue's defaults: those that an administrator has set.
constexpr const char *kDefaults[] = {"printer-defaults", "job-sheets-default"};

void markDefault(QList<QueueInfo> &queues, const QStringList &names) {
    for (const QString &name : names) {
        const QString queue = name.section(u'/', 0, 0);
        for (QueueInfo &info : queues)
            if (info.name.compare(queue, Qt::CaseInsensitive) == 0) {
                info.isDefault = true;
                info.instance = name.contains(u'/') ? name.section(u'/', 1) : QString();
                return;
            }
    }
}

/// @param text  null for a queue without a PPD
PpdSource sourceOf(const QByteArray &text, const QString &queue) {
    return text.isNull() ? PpdSource{nullptr, Printer{queue}} : openPpdText(text, queue);
}

} // namespace

QList<QueueInfo> readQueues(CupsServer &server) {
    QList<QueueInfo> queues = queuesOf(server.printers(queueAttributes()).get());
    markDefault(queues, readUserOptions().defaults + QStringList{server.findDefaultQueue()});
    return queues;
}

std::shared_ptr<QueueDetails> readDetails(CupsServer &server, const QString &queue) {
    auto details = std::make_shared<QueueDetails>();
    details->serverDefaults = serverDefaults(server.printerAttributes(queue, kDefaults).get());
    details->userOptions = readUserOptions();
    details->source = sourceOf(server.findPpd(queue), queue);
    return details;
}

QueueDirectory::QueueDirectory(const CupsDeadlines &deadlines, QObject *parent)
    : QObject(parent), m_deadlines(deadlines) {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &QueueDirectory::askQueues);
}

QueueDirectory::~QueueDirectory() {
    m_end.request_stop();
    m_details.request_stop();
}

void QueueDirectory::ask() {
    askDetailsAgain();
    askQueues();
}

void QueueDirectory::askQueues() {
    if (m_asking)
        return;
    m_asking = true;
    m_timer.stop();
    inBackground(
        this,
        [deadlines = m_deadlines, stop = m_end.get_token()] {
            CupsServer server(deadlines, {}, stop);
            return readQueues(server);
        },
        [this](QList<QueueInfo> queues) {
            m_asking = false;
            m_timer.start(kAgainMs);
            take(std::move(queues));
        },
        [this](const QString &reason) {
            m_asking = false;
            m_failed = true;
            m_timer.start(kAgainAfterFailureMs);
            emit failed(reason);
        });
}

void QueueDirectory::take(QList<QueueInfo> queues) {
    const bool isBack = std::exchange(m_failed, false);
    const bool isOther = !std::exchange(m_answered, true) || queues != m_queues;
    m_queues = std::move(queues);
    if (isBack)
        emit recovered();
    if (isOther)
        emit changed(m_queues);
    if (isBack || isOther)
        askDetailsAgain();
}

void QueueDirectory::askDetailsAgain() {
    if (!m_missed.isNull())
        askDetails(QString(m_missed));
}

void QueueDirectory::forgetDetails() {
    m_missed = QString();
    m_details.request_stop();
    m_details = std::stop_source();
}

void QueueDirectory::askDetails(const QString &queue) {
    forgetDetails();
    const std::stop_token stop = m_details.get_token();
    inBackground(
        this,
        [deadlines = m_deadlines, stop, queue] {
            CupsServer server(deadlines, {}, stop);
            return readDetails(server, queue);
        },
        [this, stop](const std::shared_ptr<QueueDetails> &details) {
            if (!stop.stop_requested())
                emit detailsReady(details);
        },
        [this, stop, queue](const QString &reason) {
            if (stop.stop_requested())
                return;
            m_missed = queue;
            emit detailsFailed(queue, reason);
        });
}

void QueueDirectory::askPpds(const QStringList &queues) {
    const bool isIdle = m_ppds.isEmpty();
    for (const QString &queue : queues)
        if (!m_knownPpds.contains(queue)) {
            m_knownPpds.insert(queue);
            m_ppds.append(queue);
        }
    if (isIdle)
        askNextPpd();
}

void QueueDirectory::askNextPpd() {
    if (m_ppds.isEmpty())
        return;
    inBackground(
        this,
        [deadlines = m_deadlines, stop = m_end.get_token(), queue = m_ppds.first()] {
            CupsServer server(deadlines, {}, stop);
            const QByteArray text = server.findPpd(queue);
            try {
                return sourceOf(text, queue);
            } catch (const HostError &) {
                return sourceOf({}, queue); // told to whoever chooses the queue
            }
        },
        [this](const PpdSource &source) {
            emit ppdRead(source);
            m_ppds.removeFirst();
            askNextPpd();
        },
        [this](const QString &) {
            for (const QString &queue : std::exchange(m_ppds, {}))
                m_knownPpds.remove(queue);
        });
}

} // namespace host

// Of its own, so that what links this object takes no other class along.
#include "moc_queue_directory.cpp" // NOLINT(bugprone-suspicious-include)
