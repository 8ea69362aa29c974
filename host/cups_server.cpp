#include "host/cups_server.h"

#include "host/host_error.h"
#include "host/words.h"
#include "platform/utf8.h"

#include <QThreadPool>
#include <QUrl>

#include <atomic>
#include <cerrno>
#include <cstring>

namespace host {
namespace {

constexpr qsizetype kMostTitle = 255;       ///< bytes, RFC 8011, 5.1.3
constexpr qsizetype kLargestPpd = 64 << 20; ///< as of a PPD file

bool isFine(const IppPtr &reply) {
    return ippGetStatusCode(reply.get()) <= IPP_STATUS_OK_CONFLICTING;
}

QByteArray printerUri(const QString &queue) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    return uri;
}

ipp_t *printerRequest(ipp_op_t operation, const QString &queue,
                      std::span<const char *const> attributes) {
    ipp_t *request = ippNewRequest(operation);
    if (!queue.isNull())
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     printerUri(queue).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    if (!attributes.empty())
        ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                      int(attributes.size()), nullptr, attributes.data());
    return request;
}

ipp_t *jobRequest(ipp_op_t operation, int job) {
    ipp_t *request = ippNewRequest(operation);
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/jobs/%d", job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

/// Whether a filter reads an option as it was sent, and the one behind it, too. A brace without its
/// partner, for one, takes all that follows into a collection.
bool arrives(const QByteArray &name, const QByteArray &value) {
    QByteArray line = name + '=';
    for (const char c : value) { // as the scheduler writes it
        if (std::strchr(" \t\n\\'\"", c))
            line += '\\';
        line += c;
    }
    const QByteArray next = name + '_';
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions((line + ' ' + next + "=1").constData(), 0, &options);
    const char *told = cupsGetOption(name.constData(), count, options);
    const char *behind = cupsGetOption(next.constData(), count, options);
    const bool isSame = count == 2 && told && value == told && behind && qstrcmp(behind, "1") == 0;
    cupsFreeOptions(count, options);
    return isSame;
}

constexpr const char *kName[] = {"printer-name"};

} // namespace

bool isQueueName(const QString &name) {
    for (const QChar c : name) // that never stand in a name
        if (c <= u' ' || c == u'/' || c == u'#' || c == u'?' || c == u'\x7f')
            return false;
    return !name.isEmpty() && name.toUtf8().size() < 128;
}

QString sendingProblem(const QString &name, const QString &value) {
    constexpr int kMostName = 127, kMostValue = 1023; // bytes, RFC 8011, 5.1
    for (const QChar c : name)
        if (c <= u' ' || c == u'=' || c == u'\x7f')
            return HostWords::tr("has a character in its name that can't be sent");
    if (name.isEmpty() || name.toUtf8().size() > kMostName)
        return HostWords::tr("has a name that can't be sent");
    for (const QChar c : value)
        if (c < u' ' || c == u'\x7f')
            return HostWords::tr("has a value with a control character, which can't be sent");
    if (value.toUtf8().size() > kMostValue)
        return HostWords::tr("has a value that is too long to be sent");
    if (!arrives(name.toUtf8(), value.toUtf8()))
        return HostWords::tr("has a value that can't be sent");
    return {};
}

PoolPlaceLent::PoolPlaceLent() {
    QThreadPool::globalInstance()->releaseThread();
}

PoolPlaceLent::~PoolPlaceLent() {
    QThreadPool::globalInstance()->reserveThread();
}

CupsServer::CupsServer(const CupsDeadlines &deadlines, const PasswordSource &password,
                       std::stop_token stop)
    : m_name(QString::fromLocal8Bit(cupsServer())), m_deadlines(deadlines), m_password(password),
      m_watch(std::move(stop)) {
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
    m_watch.pause();
    const std::optional<Credentials> given = m_password(QString::fromUtf8(prompt));
    m_watch.restart();
    if (!given)
        return nullptr;
    m_givenPassword = given->password.toUtf8();
    cupsSetUser(given->user.toUtf8().constData());
    return m_givenPassword.constData();
}

bool CupsServer::reconnect() {
    int cancel = 0; // libcups looks at it several times a second while it connects
    const std::stop_callback stop(m_watch.stopToken(),
                                  [&cancel] { std::atomic_ref<int>(cancel).store(1); });
    return httpReconnect2(m_http.get(), m_deadlines.connectMs, &cancel) == 0;
}

void CupsServer::connect() {
    // Made without connecting, so that a handshake of TLS has the deadlines, too.
    if (!m_watch.isStopped())
        m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                  0, nullptr));
    const bool made = m_http && !m_watch.isStopped();
    if (made) // A reply that is late is none: the callback's 0 gives the request up.
        httpSetTimeout(
            m_http.get(), m_deadlines.replySeconds, [](http_t *, void *) { return 0; }, nullptr);
    if (made) {
        const CupsWatch::Span span(m_watch, m_http.get(), m_deadlines.wholeSeconds);
        if (reconnect())
            return;
    }
    throw HostError(HostWords::tr("CUPS server %1").arg(m_name),
                    m_watch.isStopped() ? HostWords::tr("it was given up")
                                        : HostWords::tr("no CUPS server answers there: %1")
                                              .arg(QString::fromUtf8(cupsLastErrorString())));
}

QString CupsServer::failure() const {
    const int error = httpError(m_http.get());
    if (m_watch.isStopped())
        return HostWords::tr("it was given up");
    if (m_watch.hasExpired())
        return HostWords::tr("CUPS server %1 sent no whole answer within %2 seconds")
            .arg(m_name)
            .arg(m_deadlines.wholeSeconds);
    if (error == EWOULDBLOCK || error == ETIMEDOUT)
        return HostWords::tr("CUPS server %1 gave no answer within %2 seconds")
            .arg(m_name)
            .arg(m_deadlines.replySeconds);
    QString reason;
    if (cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        reason = QString::fromUtf8(cupsLastErrorString()); // "Success" for a lost connection
    else if (error != 0 && error != EPIPE && error != ECONNRESET)
        reason = QString::fromLocal8Bit(std::strerror(error));
    if (reason == QString::fromLocal8Bit(std::strerror(0)))
        reason.clear();
    return reason.isEmpty()
               ? HostWords::tr("CUPS server %1 closed the connection or sent no valid answer")
                     .arg(m_name)
               : HostWords::tr("CUPS server %1: %2").arg(m_name, reason);
}

IppPtr CupsServer::ask(ipp_t *request, const QString &subject, const char *resource) {
    const CupsWatch::Span span(m_watch, m_http.get(), m_deadlines.wholeSeconds);
    IppPtr reply(cupsDoRequest(m_http.get(), request, resource));
    if (!reply)
        throw HostError(subject, failure());
    return reply;
}

void CupsServer::requireQueue(const QString &queue) {
    printerAttributes(queue, kName);
}

IppPtr CupsServer::printerAttributes(const QString &queue,
                                     std::span<const char *const> attributes) {
    const auto none = [&] {
        return HostError(queue, HostWords::tr("no such queue on CUPS server %1").arg(m_name));
    };
    if (!isQueueName(queue))
        throw none();
    IppPtr reply = ask(printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue, attributes), queue);
    if (ippGetStatusCode(reply.get()) == IPP_STATUS_ERROR_NOT_FOUND)
        throw none();
    if (!isFine(reply))
        throw HostError(queue, failure());
    return reply;
}

IppPtr CupsServer::printers(std::span<const char *const> attributes) {
    const QString subject = QStringLiteral("CUPS");
    IppPtr reply = ask(printerRequest(IPP_OP_CUPS_GET_PRINTERS, {}, attributes), subject);
    // "Not found" is CUPS' word for a server without queues.
    if (!isFine(reply) && ippGetStatusCode(reply.get()) != IPP_STATUS_ERROR_NOT_FOUND)
        throw HostError(subject, failure());
    return reply;
}

QStringList CupsServer::queues() {
    const IppPtr reply = printers(kName);
    QStringList names;
    for (ipp_attribute_t *name = ippFindAttribute(reply.get(), "printer-name", IPP_TAG_NAME); name;
         name = ippFindNextAttribute(reply.get(), "printer-name", IPP_TAG_NAME))
        names.append(QString::fromUtf8(ippGetString(name, 0, nullptr)));
    return names;
}

QString CupsServer::findDefaultQueue() {
    const IppPtr reply =
        ask(printerRequest(IPP_OP_CUPS_GET_DEFAULT, {}, kName), QStringLiteral("CUPS"));
    ipp_attribute_t *name = ippFindAttribute(reply.get(), "printer-name", IPP_TAG_NAME);
    return name ? QString::fromUtf8(ippGetString(name, 0, nullptr)) : QString();
}

QString CupsServer::defaultQueue() {
    const QString name = findDefaultQueue();
    if (name.isNull())
        throw HostError(HostWords::tr("CUPS server %1").arg(m_name),
                        HostWords::tr("has no default queue"));
    return name;
}

QByteArray CupsServer::ppd(const QString &queue) {
    const QByteArray text = findPpd(queue);
    if (text.isNull())
        throw HostError(queue, HostWords::tr("the queue has no PPD"));
    return text;
}

QByteArray CupsServer::findPpd(const QString &queue) {
    requireQueue(queue);
    const QByteArray path = "/printers/" + QUrl::toPercentEncoding(queue) + ".ppd";
    const CupsWatch::Span span(m_watch, m_http.get(), m_deadlines.wholeSeconds);
    httpClearFields(m_http.get());
    if (httpGet(m_http.get(), path.constData()) != 0 &&
        (!reconnect() || httpGet(m_http.get(), path.constData()) != 0))
        throw HostError(queue, failure());
    http_status_t status;
    do
        status = httpUpdate(m_http.get());
    while (status == HTTP_STATUS_CONTINUE);
    if (status == HTTP_STATUS_ERROR)
        throw HostError(queue, failure());
    if (status != HTTP_STATUS_OK) {
        httpFlush(m_http.get());
        if (status == HTTP_STATUS_NOT_FOUND)
            return {};
        throw HostError(
            queue,
            HostWords::tr("its PPD can't be read: %1").arg(QString::fromUtf8(httpStatus(status))));
    }
    return readBody(queue);
}

QByteArray CupsServer::readBody(const QString &queue) {
    QByteArray text(""); // an empty file is one, too
    char block[16384];
    for (ssize_t count; (count = httpRead2(m_http.get(), block, sizeof block)) != 0;) {
        if (count < 0)
            throw HostError(queue, failure());
        text.append(block, count);
        if (text.size() > kLargestPpd)
            throw HostError(queue, HostWords::tr("its PPD is too large"));
    }
    // A connection that ends too early, by the watch's hand or another, reads as an end, too.
    if (m_watch.hasExpired() || m_watch.isStopped() || httpError(m_http.get()) != 0 ||
        httpGetRemaining(m_http.get()) > 0)
        throw HostError(queue, failure());
    return text;
}

/// Makes a job as cupsCreateJob() does, but so that custom values of several parameters, "{A=1
/// B='two words'}", reach the filters: libcups would send them as collections, which cupsd leaves
/// out of the filters' options.
int CupsServer::createJob(const CupsJob &job) {
    for (const auto &[name, value] : job.options)
        if (const QString problem = sendingProblem(name, value); !problem.isNull())
            throw HostError(name, problem);
    ipp_t *request = ippNewRequest(IPP_OP_CREATE_JOB);
    const QByteArray printer = printerUri(job.queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printer.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 cutToBytes(job.title, kMostTitle).toUtf8().constData());
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
    const IppPtr reply =
        ask(request, job.queue, printer.mid(printer.indexOf("/printers/")).constData());
    ipp_attribute_t *id = ippFindAttribute(reply.get(), "job-id", IPP_TAG_INTEGER);
    if (!id || !isFine(reply))
        throw HostError(job.queue, failure());
    return ippGetInteger(id, 0);
}

int CupsServer::submit(const CupsJob &job, const std::function<void(qint64)> &progress,
                       const std::function<void(int)> &created) {
    requireQueue(job.queue);
    const int id = createJob(job);
    if (created)
        created(id);
    try {
        sendDocument(job, id, progress);
    } catch (const HostError &error) {
        if (m_watch.isStopped() || undo(id))
            throw;
        throw HostError(HostWords::tr("job %1").arg(id),
                        HostWords::tr("%1; it couldn't be cancelled, and may still be printed")
                            .arg(error.text()));
    }
    return id;
}

bool CupsServer::undo(int job) {
    { // the server may still wait for the rest on this connection
        const CupsWatch::Span span(m_watch, m_http.get(), m_deadlines.wholeSeconds);
        if (!reconnect())
            return false;
    }
    try {
        cancelJob(job);
    } catch (const HostError &) {
        return false;
    }
    return true;
}

void CupsServer::sendDocument(const CupsJob &job, int id,
                              const std::function<void(qint64)> &progress) {
    const QByteArray queue = job.queue.toUtf8();
    const CupsWatch::Span span(m_watch, m_http.get(), m_deadlines.wholeSeconds);
    const auto require = [&](bool done) {
        if (!done)
            throw HostError(job.queue, failure());
    };
    require(cupsStartDocument(m_http.get(), queue.constData(), id, job.title.toUtf8().constData(),
                              job.format, 1) == HTTP_STATUS_CONTINUE);
    constexpr qint64 kBlock = 64 << 10;
    for (qint64 at = 0; at < job.document.size(); at += kBlock) {
        if (progress)
            progress(at);
        const QByteArray piece = job.document.read(at, kBlock);
        m_watch.restart(); // each piece has its time for itself
        require(cupsWriteRequestData(m_http.get(), piece.constData(), size_t(piece.size())) ==
                HTTP_STATUS_CONTINUE);
    }
    m_watch.restart();
    // cupsFinishDocument() would take a connection that is lost here for a success.
    const QByteArray resource = "/printers/" + queue;
    const IppPtr reply(cupsGetResponse(m_http.get(), resource.constData()));
    require(reply && isFine(reply));
}

JobState CupsServer::jobState(int job) {
    ipp_t *request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, job);
    static const char *const wanted[] = {"job-state", "job-printer-state-message",
                                         "job-media-sheets-completed"};
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(wanted)), nullptr, wanted);
    const QString subject = HostWords::tr("job %1").arg(job);
    const IppPtr reply = ask(request, subject);
    JobState state;
    state.isGone = ippGetStatusCode(reply.get()) == IPP_STATUS_ERROR_NOT_FOUND;
    if (state.isGone)
        return state;
    if (!isFine(reply))
        throw HostError(subject, failure());
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

void CupsServer::cancelJob(int job) {
    ipp_t *request = jobRequest(IPP_OP_CANCEL_JOB, job);
    const QString subject = HostWords::tr("job %1").arg(job);
    const IppPtr reply = ask(request, subject, "/jobs/");
    if (!isFine(reply))
        throw HostError(subject, failure());
}

} // namespace host
