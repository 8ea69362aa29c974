#include "host/dialog/job_sender.h"

#include "host/background.h"

#include <QSemaphore>

namespace host {
namespace {

constexpr int kProgressMs = 100;
constexpr int kFollowMs = 1500;
constexpr int kPatienceMs = 100; ///< between two looks whether an asked person was left alone

} // namespace

JobSender::JobSender(PasswordSource askPassword, QObject *parent)
    : QObject(parent), m_askPassword(std::move(askPassword)) {
    connect(&m_timer, &QTimer::timeout, this, &JobSender::look);
}

JobSender::~JobSender() {
    m_shared->gone = true;
    if (m_job == 0)
        giveUpSending();
}

void JobSender::giveUpSending() {
    m_shared->givenUp = true;
    m_shared->stop.request_stop();
}

PasswordSource JobSender::passwordFromHere(std::function<bool()> stop) {
    if (!m_askPassword)
        return {};
    struct Answer {
        QSemaphore given;
        std::optional<Credentials> credentials;
    };
    const auto tries = std::make_shared<int>(0);
    return [asker = QPointer<JobSender>(this), home = QCoreApplication::instance(),
            stop = std::move(stop), shared = m_shared, tries](const QString &question) {
        const QString prompt = (*tries)++ == 0
                                   ? question
                                   : tr("The name or the password is wrong.") + u'\n' + question;
        const auto answer = std::make_shared<Answer>();
        QMetaObject::invokeMethod(
            home,
            [asker, answer, prompt] {
                if (asker)
                    answer->credentials = asker->m_askPassword(prompt);
                answer->given.release();
            },
            Qt::QueuedConnection);
        while (!answer->given.tryAcquire(1, kPatienceMs))
            if (stop())
                return std::optional<Credentials>();
        shared->declined = !answer->credentials;
        return answer->credentials;
    };
}

void JobSender::send(const CupsJob &job) {
    m_total = job.document.size();
    m_timer.start(kProgressMs);
    // The server may be slow, so a job that is given up is cancelled when nobody waits for it.
    const auto tidyUp = [asker = QPointer<JobSender>(this),
                         home = QCoreApplication::instance()](int id) {
        QThreadPool::globalInstance()->start([=] {
            try {
                CupsServer().cancelJob(id);
            } catch (const HostError &error) {
                QMetaObject::invokeMethod(
                    home,
                    [asker, reason = error.text()] {
                        if (asker)
                            emit asker->leftBehind(reason);
                    },
                    Qt::QueuedConnection);
            }
        });
    };
    inBackground(
        this,
        [job, tidyUp, shared = m_shared,
         password = passwordFromHere([shared = m_shared] { return bool(shared->givenUp); })] {
            int id = 0;
            try {
                return CupsServer({}, password, shared->stop.get_token())
                    .submit(
                        job, [&shared](qint64 sent) { shared->sent = sent; },
                        [&id](int created) { id = created; });
            } catch (const HostError &) {
                if (shared->declined && !shared->givenUp)
                    throw HostError(job.queue, tr("the server wants to know who you are"));
                if (!shared->givenUp)
                    throw;
                if (id != 0)
                    tidyUp(id);
                throw HostError(job.queue, tr("the job was cancelled"));
            }
        },
        [this](int id) {
            m_job = id;
            m_timer.start(kFollowMs);
            emit progressed(m_total, m_total);
            emit sent(id);
            if (m_shared->givenUp) // too late for the sending
                cancel();
        },
        [this](const QString &reason) {
            m_timer.stop();
            emit failed(reason);
        });
}

void JobSender::cancel() {
    if (m_job == 0)
        return giveUpSending();
    inBackground(
        this,
        [job = m_job,
         password = passwordFromHere([shared = m_shared] { return bool(shared->gone); })] {
            CupsServer({}, password).cancelJob(job);
            return true;
        },
        [this](bool) { look(); }, [this](const QString &reason) { emit followFailed(reason); });
}

void JobSender::look() {
    if (m_job == 0) {
        emit progressed(m_shared->sent, m_total);
        return;
    }
    if (m_asking)
        return;
    m_asking = true;
    inBackground(
        this, [job = m_job] { return CupsServer().jobState(job); },
        [this](const JobState &state) {
            m_asking = false;
            if (state.isFinished())
                m_timer.stop();
            if (m_hasState && state.isGone == m_state.isGone && state.state == m_state.state &&
                state.message == m_state.message && state.pages == m_state.pages)
                return;
            m_hasState = true;
            m_state = state;
            emit stateChanged(state);
        },
        [this](const QString &reason) {
            m_asking = false;
            m_hasState = false; // what was told of it is no longer on view
            emit followFailed(reason);
        });
}

} // namespace host
