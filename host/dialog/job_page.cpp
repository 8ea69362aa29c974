#include "host/dialog/job_page.h"

#include "host/background.h"
#include "host/dialog/job_sender.h"
#include "host/dialog/password_dialog.h"
#include "host/dialog/plain_label.h"
#include "host/document.h"
#include "host/files.h"
#include "host/ps_job.h"

#include <QAccessible>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {
namespace {

/// The progress bar's scale: whole documents may be larger than an int.
constexpr int kSteps = 1000;

} // namespace

JobPage::JobPage(QWidget *parent)
    : QWidget(parent), m_headline(plainLabel()), m_state(plainLabel()), m_remark(plainLabel()),
      m_bar(new QProgressBar), m_cancel(new QPushButton), m_close(new QPushButton(tr("C&lose"))) {
    m_headline->setObjectName(QStringLiteral("jobHeadline"));
    QFont font = m_headline->font();
    font.setBold(true);
    m_headline->setFont(font);
    m_headline->setWordWrap(true);
    m_headline->setAlignment(Qt::AlignHCenter);
    m_headline->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_state->setObjectName(QStringLiteral("jobState"));
    for (QLabel *label : {m_state, m_remark}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter);
    }
    m_bar->setObjectName(QStringLiteral("jobProgress"));
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setObjectName(QStringLiteral("jobCancel"));
    m_cancel->setAutoDefault(false);
    m_close->setObjectName(QStringLiteral("jobClose"));

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_close);
    auto *words = new QWidget; // in the middle of a window that was made for more
    words->setFixedWidth(fontMetrics().averageCharWidth() * 56);
    auto *column = new QVBoxLayout(words);
    for (QWidget *view : {static_cast<QWidget *>(m_headline), static_cast<QWidget *>(m_bar),
                          static_cast<QWidget *>(m_state), static_cast<QWidget *>(m_remark)})
        column->addWidget(view);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    auto *middle = new QHBoxLayout; // which gives wrapped words the height that they need
    middle->addStretch();
    middle->addWidget(words);
    middle->addStretch();
    layout->addLayout(middle);
    layout->addStretch(3);
    layout->addLayout(buttons);
    connect(m_close, &QPushButton::clicked, this, &JobPage::closed);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        if (m_underWay)
            giveUp();
        else if (m_sender)
            m_sender->cancel();
    });
}

JobPage::~JobPage() {
    if (m_givenUp)
        *m_givenUp = true;
}

void JobPage::begin(const QString &headline, int total) {
    m_underWay = true;
    m_isFinished = false;
    m_headline->setText(headline);
    m_bar->setRange(0, total);
    m_bar->setValue(0);
    m_bar->show();
    m_cancel->setText(tr("&Cancel"));
    m_cancel->setEnabled(true);
    m_cancel->show();
    m_cancel->setFocus();
    m_close->hide();
    showWords({});
}

void JobPage::end(const QString &headline, const QString &state) {
    m_underWay = false;
    m_headline->setText(headline);
    m_bar->hide();
    m_cancel->setText(tr("Cancel &Job"));
    m_cancel->setEnabled(true); // also behind a Cancel that came too late
    m_cancel->setVisible(!m_isFinished);
    m_close->show();
    m_close->setDefault(true);
    m_close->setFocus();
    showWords(state);
    emit done();
}

void JobPage::fail(const QString &reason) {
    m_underWay = false;
    m_isFinished = true;
    emit failed(reason);
}

/// For a screen reader the page is what it says.
void JobPage::showWords(const QString &words) {
    m_state->setText(words);
    setAccessibleName(m_headline->text());
    setAccessibleDescription(words);
    QAccessibleEvent told(m_state, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}

void JobPage::tell(const QString &words) {
    m_remark->setText(words);
}

void JobPage::giveUp() {
    if (!m_underWay)
        return;
    m_cancel->setEnabled(false);
    if (m_givenUp) {
        *m_givenUp = true;
        m_givenUp.reset();
        fail({});
    } else if (m_sender) {
        showWords(tr("Cancelling…"));
        m_sender->cancel();
    }
}

void JobPage::send(const CupsJob &job) {
    delete m_sender;
    m_sender = new JobSender(
        [this](const QString &prompt) { return askPassword(window(), prompt); }, this);
    begin(tr("Sending “%1” to %2…").arg(job.title, job.queue), kSteps);
    connect(m_sender, &JobSender::progressed, this, [this](qint64 sent, qint64 total) {
        m_bar->setValue(total > 0 ? int(double(sent) / double(total) * kSteps) : 0);
    });
    connect(m_sender, &JobSender::sent, this, [this, queue = job.queue](int id) {
        end(tr("The job %1 was sent.").arg(queue + QLatin1Char('-') + QString::number(id)), {});
    });
    connect(m_sender, &JobSender::failed, this,
            [this](const QString &reason) { fail(m_cancel->isEnabled() ? reason : QString()); });
    connect(m_sender, &JobSender::leftBehind, this, &JobPage::leftBehind);
    connect(m_sender, &JobSender::stateChanged, this, &JobPage::showState);
    connect(m_sender, &JobSender::followFailed, this,
            [this](const QString &reason) { showWords(reason); });
    m_sender->send(job);
}

void JobPage::showState(const JobState &state) {
    const QString words = [&] {
        if (state.isGone)
            return tr("The server no longer knows the job; it is done.");
        switch (state.state) {
        case IPP_JSTATE_PENDING:
            return tr("Waiting to be printed.");
        case IPP_JSTATE_HELD:
            return tr("Held until somebody releases it.");
        case IPP_JSTATE_PROCESSING:
            return state.pages > 0 ? tr("Printing: %n page(s) so far.", nullptr, state.pages)
                                   : tr("Printing.");
        case IPP_JSTATE_STOPPED:
            return tr("Stopped: the printer can't go on.");
        case IPP_JSTATE_CANCELED:
            return tr("Cancelled.");
        case IPP_JSTATE_ABORTED:
            return tr("The printer gave the job up.");
        case IPP_JSTATE_COMPLETED:
            return tr("Printed.");
        }
        return QString();
    }();
    if (state.isFinished()) {
        m_isFinished = true;
        m_cancel->hide();
    }
    showWords(state.message.isEmpty() ? words : words + QLatin1Char('\n') + state.message);
}

void JobPage::writeFile(const QString &target, const Document &document, const QStringList &inputs,
                        const PsCode &code) {
    begin(tr("Writing “%1”…").arg(QFileInfo(target).fileName()), 0);
    m_givenUp = std::make_shared<std::atomic<bool>>(false);
    inBackground(
        this,
        [=, givenUp = m_givenUp] {
            const auto requireWanted = [&] {
                if (*givenUp)
                    throw HostError(target, tr("given up"));
            };
            Outputs outputs(inputs);
            const Content postScript = toPostScript(document, givenUp.get());
            outputs.add(target, [&](const Sink &sink) {
                writePsJob(code, postScript, QFileInfo(document.path).fileName(),
                           [&](const QByteArray &bytes) {
                               requireWanted();
                               sink(bytes);
                           });
            });
            requireWanted();
            outputs.commit();
            return true;
        },
        [=, this, givenUp = m_givenUp](bool) {
            if (*givenUp)
                return;
            m_givenUp.reset();
            m_isFinished = true;
            end(tr("The file was written."), target);
        },
        [this, givenUp = m_givenUp](const QString &reason) {
            if (*givenUp)
                return;
            m_givenUp.reset();
            fail(reason);
        });
}

} // namespace host
