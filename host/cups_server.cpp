#include "host/cups_server.h"

#include "host/host_error.h"

#include <QElapsedTimer>
#include <QUrl>

#include <cerrno>
#include <cstring>

namespace host {
namespace {

/// RFC 8011, 4.1.4: names of queues travel as a path; these characters never stand in one.
bool isQueueName(const QString &name) {
    for (const QChar c : name)
        if (c <= u' ' || c == u'/' || c == u'#' || c == u'?' || c == u'\x7f')
            return false;
    return !name.isEmpty() && name.toUtf8().size() < 128;
}

QByteArray printerUri(const QString &queue) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    return uri;
}

} // namespace

CupsServer::CupsServer(const CupsDeadlines &deadlines, const PasswordSource &password)
    : m_name(QString::fromLocal8Bit(cupsServer())), m_deadlines(deadlines), m_password(password) {
    connect();
    // libcups keeps the callback for each thread; all requests of this object come on one.
    cupsSetPasswordCB2(
        [](const char *prompt, http_t *, const char *, const char *, void *server) -> const char * {
            return static_cast<CupsServer *>(server)->answerPrompt(prompt);
        },
        this);
}

CupsServer::~CupsServer() {
    if (!m_givenPassword.isNull())
        cupsSetUser(nullptr);
    std::fill(m_givenPassword.begin(), m_givenPassword.end(), '\0');
    cupsSetPasswordCB2([](const char *, http_t *, const char *, const char *,
                          void *) -> const char * { return nullptr; },
                       nullptr);
}

const char *CupsServer::answerPrompt(const char *prompt) {
    if (!m_password)
        return nullptr;
    const std::optional<Credentials> given = m_password(QString::fromUtf8(prompt));
    if (!given)
        return nullptr;
    m_givenPassword = given->password.toUtf8();
    cupsSetUser(given->user.toUtf8().constData());
    return m_givenPassword.constData();
}

void CupsServer::connect() {
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                              m_deadlines.connectMs, nullptr));
    if (!m_http)
        throw HostError(QStringLiteral("CUPS server ") + m_name,
                        QStringLiteral("no CUPS server answers there: ") +
                            QString::fromUtf8(cupsLastErrorString()));
    // A reply that is late is none: the callback's 0 gives the request up.
    httpSetTimeout(
        m_http.get(), m_deadlines.replySeconds, [](http_t *, void *) { return 0; }, nullptr);
}

QString CupsServer::failure() const {
    const int error = httpError(m_http.get());
    if (error == EWOULDBLOCK || error == ETIMEDOUT)
        return QStringLiteral("CUPS server %1 gave no answer within %2 seconds")
            .arg(m_name)
            .arg(m_deadlines.replySeconds);
    if (error == 0 && cupsLastError() == IPP_STATUS_OK)
        return QStringLiteral("CUPS server %1 closed the connection or sent no valid answer")
            .arg(m_name);
    const QString text = QString::fromUtf8(cupsLastErrorString());
    return QStringLiteral("CUPS server %1: %2")
        .arg(m_name, text.isEmpty() ? QString::fromLocal8Bit(std::strerror(error)) : text);
}

CupsServer::Reply CupsServer::ask(ipp_op_t operation, const QString &queue) {
    ipp_t *request = ippNewRequest(operation);
    if (!queue.isNull())
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     printerUri(queue).constData());
    static const char *const wanted[] = {"printer-name", "printer-is-accepting-jobs"};
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2, nullptr,
                  wanted);
    Reply reply(cupsDoRequest(m_http.get(), request, "/"));
    if (!reply)
        throw HostError(queue.isNull() ? QStringLiteral("CUPS") : queue, failure());
    return reply;
}

void CupsServer::requireQueue(const QString &queue) {
    const auto none = [&] {
        return HostError(queue, QStringLiteral("no such queue on CUPS server ") + m_name);
    };
    if (!isQueueName(queue))
        throw none();
    const Reply reply = ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    if (ippGetStatusCode(reply.get()) == IPP_STATUS_ERROR_NOT_FOUND)
        throw none();
    if (ippGetStatusCode(reply.get()) > IPP_STATUS_OK_CONFLICTING)
        throw HostError(queue, failure());
}

QStringList CupsServer::queues() {
    const Reply reply = ask(IPP_OP_CUPS_GET_PRINTERS, {});
    const ipp_status_t status = ippGetStatusCode(reply.get());
    if (status > IPP_STATUS_OK_CONFLICTING && status != IPP_STATUS_ERROR_NOT_FOUND)
        throw HostError(QStringLiteral("CUPS"), failure());
    QStringList names;
    for (ipp_attribute_t *name = ippFindAttribute(reply.get(), "printer-name", IPP_TAG_NAME); name;
         name = ippFindNextAttribute(reply.get(), "printer-name", IPP_TAG_NAME))
        names.append(QString::fromUtf8(ippGetString(name, 0, nullptr)));
    return names;
}

QString CupsServer::defaultQueue() {
    const Reply reply = ask(IPP_OP_CUPS_GET_DEFAULT, {});
    ipp_attribute_t *name = ippFindAttribute(reply.get(), "printer-name", IPP_TAG_NAME);
    if (!name)
        throw HostError(QStringLiteral("CUPS server ") + m_name,
                        QStringLiteral("has no default queue"));
    return QString::fromUtf8(ippGetString(name, 0, nullptr));
}

QByteArray CupsServer::ppd(const QString &queue) {
    requireQueue(queue);
    const QByteArray path = "/printers/" + QUrl::toPercentEncoding(queue) + ".ppd";
    httpClearFields(m_http.get());
    if (httpGet(m_http.get(), path.constData()) != 0 &&
        (httpReconnect2(m_http.get(), m_deadlines.connectMs, nullptr) != 0 ||
         httpGet(m_http.get(), path.constData()) != 0))
        throw HostError(queue, failure());
    http_status_t status;
    do
        status = httpUpdate(m_http.get());
    while (status == HTTP_STATUS_CONTINUE);
    if (status == HTTP_STATUS_ERROR)
        throw HostError(queue, failure());
    if (status != HTTP_STATUS_OK) {
        httpFlush(m_http.get());
        throw HostError(queue, status == HTTP_STATUS_NOT_FOUND
                                   ? QStringLiteral("the queue has no PPD")
                                   : QStringLiteral("its PPD can't be read: ") +
                                         QString::fromUtf8(httpStatus(status)));
    }
    QByteArray text;
    char block[16384];
    QElapsedTimer timer;
    timer.start();
    for (ssize_t count; (count = httpRead2(m_http.get(), block, sizeof block)) != 0;) {
        if (count < 0 || timer.hasExpired(qint64(6000 * m_deadlines.replySeconds)))
            throw HostError(queue, failure());
        text.append(block, count);
    }
    return text;
}

/// Makes a job as cupsCreateJob() does, but so that custom values of several parameters, "{A=1
/// B='two words'}", reach the filters: libcups would send them as collections, which cupsd leaves
/// out of the filters' options.
int CupsServer::createJob(const CupsJob &job) {
    ipp_t *request = ippNewRequest(IPP_OP_CREATE_JOB);
    const QByteArray printer = printerUri(job.queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printer.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 job.title.toUtf8().constData());
    cups_option_t *list = nullptr;
    int count = 0;
    QList<QPair<QByteArray, QByteArray>> customValues;
    for (const auto &[name, value] : job.options) {
        const QByteArray key = name.toUtf8(), text = value.toUtf8();
        // CUPS' own collections have names with dashes, as "media-col" has.
        if (text.startsWith('{') && !key.contains('-'))
            customValues.append({key, text});
        else
            count = cupsAddOption(key.constData(), text.constData(), count, &list);
    }
    cupsEncodeOptions2(request, count, list, IPP_TAG_OPERATION);
    cupsEncodeOptions2(request, count, list, IPP_TAG_JOB);
    for (const auto &[key, text] : customValues)
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_TEXT, key.constData(), nullptr,
                     text.constData());
    cupsEncodeOptions2(request, count, list, IPP_TAG_SUBSCRIPTION); // groups stand in this order
    cupsFreeOptions(count, list);
    const Reply reply(cupsDoRequest(m_http.get(), request,
                                    printer.mid(printer.indexOf("/printers/")).constData()));
    ipp_attribute_t *id =
        reply ? ippFindAttribute(reply.get(), "job-id", IPP_TAG_INTEGER) : nullptr;
    if (!id || ippGetStatusCode(reply.get()) > IPP_STATUS_OK_CONFLICTING)
        throw HostError(job.queue, failure());
    return ippGetInteger(id, 0);
}

int CupsServer::submit(const CupsJob &job, const std::function<bool(qint64)> &progress) {
    requireQueue(job.queue);
    const QByteArray queue = job.queue.toUtf8();
    const int id = createJob(job);
    bool givenUp = false;
    const auto send = [&] {
        if (cupsStartDocument(m_http.get(), queue.constData(), id, job.title.toUtf8().constData(),
                              job.format, 1) != HTTP_STATUS_CONTINUE)
            return false;
        constexpr qsizetype kBlock = 64 << 10;
        for (qsizetype at = 0; at < job.document.size(); at += kBlock) {
            givenUp = progress && !progress(at);
            if (givenUp)
                return false;
            if (cupsWriteRequestData(m_http.get(), job.document.constData() + at,
                                     size_t(qMin(kBlock, job.document.size() - at))) !=
                HTTP_STATUS_CONTINUE)
                return false;
        }
        return cupsFinishDocument(m_http.get(), queue.constData()) <= IPP_STATUS_OK_CONFLICTING;
    };
    if (!send()) {
        const QString reason = givenUp ? QStringLiteral("the job was cancelled") : failure();
        if (givenUp) { // the server still waits for the rest on this connection
            m_http.reset();
            connect();
        }
        cupsCancelJob2(m_http.get(), queue.constData(), id, 0);
        throw HostError(job.queue, reason);
    }
    return id;
}

JobState CupsServer::jobState(int job) {
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/jobs/%d", job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    static const char *const wanted[] = {"job-state", "job-printer-state-message",
                                         "job-media-sheets-completed"};
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(wanted)), nullptr, wanted);
    const Reply reply(cupsDoRequest(m_http.get(), request, "/"));
    const QString subject = QStringLiteral("job %1").arg(job);
    if (!reply || ippGetStatusCode(reply.get()) > IPP_STATUS_OK_CONFLICTING)
        throw HostError(subject, failure());
    JobState state;
    if (ipp_attribute_t *found = ippFindAttribute(reply.get(), "job-state", IPP_TAG_ENUM))
        state.state = static_cast<ipp_jstate_t>(ippGetInteger(found, 0));
    if (ipp_attribute_t *found =
            ippFindAttribute(reply.get(), "job-printer-state-message", IPP_TAG_TEXT))
        state.message = QString::fromUtf8(ippGetString(found, 0, nullptr));
    if (ipp_attribute_t *found =
            ippFindAttribute(reply.get(), "job-media-sheets-completed", IPP_TAG_INTEGER))
        state.pages = ippGetInteger(found, 0);
    return state;
}

void CupsServer::cancelJob(const QString &queue, int job) {
    if (cupsCancelJob2(m_http.get(), queue.toUtf8().constData(), job, 0) >
        IPP_STATUS_OK_CONFLICTING)
        throw HostError(QStringLiteral("job %1").arg(job), failure());
}

} // namespace host
