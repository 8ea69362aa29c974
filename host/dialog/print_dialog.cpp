#include "host/dialog/print_dialog.h"

#include "host/conflicts/conflict_line.h"
#include "host/dialog/file_printer.h"
#include "host/dialog/job_page.h"
#include "host/dialog/page_area.h"
#include "host/dialog/plain_label.h"
#include "host/dialog/queue_job.h"
#include "host/dialog/summary_page.h"
#include "host/host_error.h"
#include "host/presets/preset_bar.h"
#include "host/presets/problem_area.h"
#include "host/presets/remember_box.h"
#include "host/preview/preview_view.h"
#include "host/queues/queue_list.h"
#include "host/settings/common_settings.h"
#include "host/settings/typed_options.h"
#include "platform/views/alert.h"
#include "platform/views/form_loader.h"
#include "platform/views/modal_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace host {
namespace {

/// Queues that are told to have a panel before they are chosen; their PPDs are read for it.
constexpr qsizetype kMostPpds = 20;

enum Tab { kGeneralTab, kPanelTab, kSummaryTab };

/// Whether a key does something to a view; others lead away from it, or wait for more.
bool isAct(const QKeyEvent &key) {
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    constexpr int kActs[] = {Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,
                             Qt::Key_Home,     Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
                             Qt::Key_F4,       Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Delete,
                             Qt::Key_Backspace};
    return std::find(std::begin(kActs), std::end(kActs), key.key()) != std::end(kActs) ||
           (!key.text().isEmpty() && key.text().at(0).isPrint());
}

} // namespace

PrintDialog::PrintDialog(DialogSetup setup) : m_setup(std::move(setup)) {
    setWindowTitle(tr("Print"));
    m_form = new QWidget;
    auto *columns = new QHBoxLayout;
    columns->addWidget(makeDocumentSide());
    columns->addWidget(makeTabs());
    m_conflictLine = new ConflictLine;
    m_problems = new ProblemArea;
    auto *layout = new QVBoxLayout(m_form);
    layout->addLayout(columns);
    layout->addWidget(m_conflictLine);
    layout->addWidget(m_problems);
    layout->addWidget(makeButtons());
    m_jobPage = new JobPage;
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_form);
    m_pages->addWidget(m_jobPage);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(m_pages);

    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &PrintDialog::refresh);
    connect(m_conflictLine, &ConflictLine::resolveAsked, this,
            [this] { settleConflicts(Purpose::Look); });
    connect(m_jobPage, &JobPage::done, this, &PrintDialog::finish);
    connect(m_jobPage, &JobPage::failed, this, &PrintDialog::backToForm);
    connect(m_jobPage, &JobPage::leftBehind, this, [this](const QString &reason) {
        tell(tr("The job couldn't be cancelled on the server, and may still be printed."),
             {reason});
    });
    connect(m_jobPage, &JobPage::closed, this, &QDialog::accept);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] {
        if (m_job && m_job->stage().isOpen())
            m_job->stage().session().help();
    });
    showDocument();
    followQueues();
    m_list->setFocus();
    resize(sizeHint().boundedTo(screen()->availableSize() * 9 / 10));
}

PrintDialog::~PrintDialog() {
    m_refresh.stop();
    for (const auto &[queue, job] : m_jobs)
        job->stage().close();
}

QWidget *PrintDialog::makeDocumentSide() {
    auto *side = new QWidget;
    m_documentName = plainLabel();
    m_documentName->setObjectName(QStringLiteral("documentName"));
    auto *choose = new QPushButton(tr("&Open…"));
    choose->setObjectName(QStringLiteral("openDocument"));
    choose->setAutoDefault(false);
    choose->setAccessibleName(tr("Open a document"));
    connect(choose, &QPushButton::clicked, this, &PrintDialog::openAnother);
    auto *row = new QHBoxLayout;
    row->addWidget(m_documentName, 1);
    row->addWidget(choose);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addLayout(row);
    m_preview = new PreviewView;
    layout->addWidget(m_preview, 1);
    connect(m_preview, &PreviewView::pageCountKnown, this,
            [this](int count) { m_common->setPageCount(count); });
    return side;
}

QWidget *PrintDialog::makeTabs() {
    auto *panelPage = new QWidget;
    m_panelHome = new QVBoxLayout(panelPage);
    m_panelHome->setContentsMargins({});
    m_summary = new SummaryPage;
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("pages"));
    m_tabs->addTab(new PageArea(makeGeneralPage()), tr("General"));
    m_tabs->addTab(new PageArea(panelPage), {});
    m_tabs->addTab(new PageArea(m_summary), tr("Summary"));
    m_tabs->setTabVisible(kPanelTab, false);
    m_tabs->setFocusPolicy(Qt::NoFocus); // the bar alone is a stop of the Tab key
    m_tabs->tabBar()->setFocusPolicy(Qt::TabFocus);
    connect(m_tabs, &QTabWidget::currentChanged, this, &PrintDialog::leaveTab);
    return m_tabs;
}

QWidget *PrintDialog::makeGeneralPage() {
    m_list = new QueueList;
    m_list->setRecent(m_setup.store.recentQueues());
    m_notice = plainLabel();
    m_notice->setObjectName(QStringLiteral("printerNotice"));
    m_notice->setWordWrap(true);
    m_presets = new PresetBar(m_setup.store, [this] {
        savePanel();
        return m_job ? m_job->preset() : Preset{};
    });
    m_remember = new RememberBox(m_setup.store);
    m_common = new CommonSettings;
    m_typed = new TypedOptions(m_common->form(), this);
    m_settingsPart = new QWidget;
    auto *part = new QVBoxLayout(m_settingsPart);
    part->setContentsMargins({});
    part->addWidget(m_presets);
    part->addWidget(m_common);
    part->addWidget(m_remember);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_notice);
    layout->addWidget(m_settingsPart);

    connect(m_common, &CommonSettings::changed, this, &PrintDialog::takeChange);
    connect(m_common, &CommonSettings::pagesJudged, this, [this] {
        m_presets->noteChange();
        refreshSoon();
    });
    connect(m_typed, &TypedOptions::changed, this, &PrintDialog::takeChange);
    connect(m_presets, &PresetBar::chosen, this, [this](const Preset *preset) {
        change([preset](QueueJob &job) { return preset ? job.use(*preset) : job.useDefaults(); });
    });
    connect(m_presets, &PresetBar::instanceChosen, this, [this](const QString &name) {
        change([&](QueueJob &job) { return job.useDefaults(name); });
    });
    return page;
}

QDialogButtonBox *PrintDialog::makeButtons() {
    auto *buttons = new QDialogButtonBox;
    buttons->setObjectName(QStringLiteral("buttons"));
    m_print = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    m_print->setDefault(true);
    cancel->setAutoDefault(false);
    connect(m_print, &QPushButton::clicked, this, &PrintDialog::print);
    connect(cancel, &QPushButton::clicked, this, &PrintDialog::reject);
    return buttons;
}

void PrintDialog::reject() {
    if (ModalWindow::current() || !views::currentAlert().isNull())
        return;
    if (m_jobPage->isUnderWay())
        m_jobPage->giveUp();
    else if (m_pages->currentWidget() == m_jobPage)
        accept(); // the job is sent
    else
        QDialog::reject();
}

// The printer.

void PrintDialog::followQueues() {
    connect(&m_directory, &QueueDirectory::changed, this, &PrintDialog::takeQueues);
    connect(&m_directory, &QueueDirectory::failed, m_list, &QueueList::setFailure);
    connect(&m_directory, &QueueDirectory::recovered, this, [this] { m_list->setFailure({}); });
    connect(&m_directory, &QueueDirectory::detailsReady, this, &PrintDialog::takeDetails);
    connect(&m_directory, &QueueDirectory::ppdRead, this, [this](const PpdSource &source) {
        const auto callback = std::make_shared<HostCallback>(source.ppd.get(), source.printer);
        m_list->setPanel(source.printer.id, PanelSession(*m_setup.plugin, callback).findName());
    });
    connect(&m_directory, &QueueDirectory::detailsFailed, this,
            [this](const QString &, const QString &reason) {
                m_failure = reason;
                refreshPrinter();
            });
    connect(m_list, &QueueList::retryAsked, &m_directory, &QueueDirectory::ask);
    connect(m_list, &QueueList::pickedByPerson, this, &PrintDialog::pick);
    connect(m_list, &QueueList::selectionChanged, this, &PrintDialog::showQueue);
    m_isPicked = !m_setup.queue.isNull() || m_setup.file;
    if (!m_isPicked)
        qApp->installEventFilter(this);
    m_list->select(m_setup.queue);
    showQueue();
    m_directory.ask();
}

void PrintDialog::takeQueues(const QList<QueueInfo> &queues) {
    m_list->setFailure({});
    m_list->setQueues(queues);
    selectDefault();
    refreshPrinter();
    QStringList names;
    for (const QueueInfo &queue : queues.first(std::min<qsizetype>(queues.size(), kMostPpds)))
        names.append(queue.name);
    m_directory.askPpds(names);
}

/// The printer that nobody had to choose. Never takes the place of one that the person is at work
/// with.
void PrintDialog::selectDefault() {
    if (m_isPicked || m_isOpening || m_directory.queues().isEmpty())
        return;
    pick(); // from here on it changes by the person's hand only
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return;
    for (const QueueInfo &queue : m_directory.queues())
        if (queue.isDefault)
            return m_list->select(queue.name);
}

void PrintDialog::pick() {
    m_isPicked = true;
    qApp->removeEventFilter(this);
}

bool PrintDialog::eventFilter(QObject *watched, QEvent *event) {
    const auto isOfSettings = [&] {
        const auto *widget = qobject_cast<QWidget *>(watched);
        const QWidget *const list = m_list->focusProxy(); // on the row that is chosen already
        return widget &&
               (m_settingsPart->isAncestorOf(widget) || list == widget ||
                list->isAncestorOf(widget) || m_panelHome->parentWidget()->isAncestorOf(widget));
    };
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!isAct(*static_cast<QKeyEvent *>(event)))
            break;
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::Shortcut:
        if (isOfSettings())
            pick();
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void PrintDialog::showQueue() {
    const QString queue = m_list->selected();
    if (m_job && m_job->queueOrFile() == queue)
        return;
    leaveJob();
    tell({});
    m_wasTold = false;
    m_failure.clear();
    m_directory.forgetDetails();
    if (const auto found = m_jobs.find(queue); found != m_jobs.end()) {
        showJob(*found->second);
    } else if (queue.isNull()) {
        try {
            QueueDetails details{m_setup.file ? std::move(*m_setup.file) : openFilePrinter()};
            auto job = std::make_unique<QueueJob>(std::move(details), *m_setup.plugin, true);
            showJob(*m_jobs.emplace(queue, std::move(job)).first->second);
            if (m_setup.store.hasLastUsed(m_job->queue()))
                m_presets->chooseLastUsed();
        } catch (const HostError &error) {
            m_failure = error.text();
        }
    } else {
        m_directory.askDetails(queue);
    }
    refreshPrinter();
}

void PrintDialog::takeDetails(const std::shared_ptr<QueueDetails> &details) {
    const QString queue = details->source.printer.id;
    m_failure.clear();
    auto job = std::make_unique<QueueJob>(std::move(*details), *m_setup.plugin, false);
    QueueJob &taken = *(m_jobs[queue] = std::move(job));
    const QStringList problems = taken.useDefaults();
    showJob(taken);
    m_presets->setProblems(problems);
    const QueueInfo *info = m_list->selectedInfo();
    if (m_setup.store.hasLastUsed(queue))
        m_presets->chooseLastUsed();
    else if (info && info->isDefault && !info->instance.isNull())
        m_presets->chooseInstance(info->instance);
    refreshPrinter();
}

void PrintDialog::showJob(QueueJob &job) {
    m_job = &job;
    m_chosenLast.clear();
    m_conflicts.emplace(job.ppd());
    const bool wasHere = m_presets->setQueue(job.queue(), job.isToFile());
    m_presets->setInstances(job.instances());
    m_remember->setQueue(job.queue(), job.isToFile());
    openPanel();
    showSettings();
    wasHere ? m_presets->noteChange() : m_presets->settle();
    refresh();
}

void PrintDialog::leaveJob() {
    if (!m_job)
        return;
    savePanel();
    m_tabs->setCurrentIndex(kGeneralTab);
    m_tabs->setTabVisible(kPanelTab, false);
    m_job->stage().close();
    m_common->setSettings(nullptr);
    m_typed->setOptions(nullptr);
    m_presets->setQueue({});
    m_conflicts.reset();
    m_job = nullptr;
}

void PrintDialog::openPanel() {
    PanelStage &stage = m_job->stage();
    const bool open = m_job->ppd() && stage.open(m_panelHome);
    m_tabs->setTabVisible(kPanelTab, open);
    if (!open)
        return;
    m_tabs->setTabText(kPanelTab, stage.session().name());
    if (!m_job->isToFile())
        m_list->setPanel(m_job->queue(), stage.session().name());
    views::assignMnemonics(stage.window());
    stage.callback().setObserver([this](const QString &option) {
        m_chosenLast = option;
        refreshSoon();
    });
}

void PrintDialog::showSettings() {
    const ConflictReason reason = [this](const QString &option, const QString &choice) {
        return m_conflicts->reasonAgainst(option, choice);
    };
    m_common->setSettings(&m_job->settings(), reason);
    QStringList elsewhere =
        m_job->stage().isOpen() ? m_job->stage().session().keys() : QStringList();
    for (const Setting setting : JobSettings::all())
        elsewhere.append(m_job->settings().key(setting));
    m_typed->setOptions(m_job->ppd(), elsewhere, reason);
    views::assignMnemonics(m_settingsPart);
    orderTabs();
}

/// The keyboard goes through the window as the eye does. Views that were made for a printer would
/// come last otherwise.
void PrintDialog::orderTabs() {
    QList<QWidget *> order;
    const auto add = [&order](QWidget *block) {
        QWidget *widget = block;
        do {
            if (widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() &&
                (widget == block || block->isAncestorOf(widget)))
                order.append(widget);
            widget = widget->nextInFocusChain();
        } while (widget != block);
    };
    const auto addItem = [&add](QLayoutItem *item) {
        for (int i = 0; item && item->layout() && i < item->layout()->count(); ++i)
            if (QWidget *widget = item->layout()->itemAt(i)->widget())
                add(widget);
        if (item && item->widget())
            add(item->widget());
    };
    add(m_tabs->parentWidget()->findChild<QWidget *>(QStringLiteral("openDocument")));
    add(m_preview);
    add(m_tabs->tabBar());
    add(m_list);
    add(m_presets);
    for (int row = 0; row < m_common->form()->rowCount(); ++row)
        for (const auto role : {QFormLayout::FieldRole, QFormLayout::SpanningRole})
            addItem(m_common->form()->itemAt(row, role));
    add(m_remember);
    add(m_panelHome->parentWidget());
    add(m_summary);
    add(m_conflictLine);
    add(m_problems);
    add(m_print->parentWidget());
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void PrintDialog::change(const std::function<QStringList(QueueJob &)> &work) {
    if (!m_job)
        return;
    m_job->stage().close();
    const QStringList problems = work(*m_job);
    openPanel();
    showSettings();
    m_presets->setProblems(problems);
    refresh();
}

// What follows from a change.

void PrintDialog::takeChange(const QString &option) {
    pick();
    m_chosenLast = option;
    if (m_job->stage().isOpen())
        if (const ppd_choice_t *choice =
                m_job->ppd() ? ppdFindMarkedChoice(m_job->ppd(), option.toUtf8().constData())
                             : nullptr)
            m_job->stage().session().optionDidChange(option, QString::fromUtf8(choice->choice));
    m_presets->noteChange();
    refreshSoon();
}

void PrintDialog::savePanel() {
    if (!m_job || !m_job->stage().isOpen() || ModalWindow::current())
        return;
    m_job->stage().session().noteUserAct(); // any view may have changed
    m_job->stage().session().leavePage();
}

void PrintDialog::leaveTab(int next) {
    if (std::exchange(m_tab, next) == kPanelTab) {
        savePanel();
        m_presets->noteChange();
    }
    if (next == kPanelTab && m_job && m_job->stage().isOpen())
        m_job->stage().session().willShow();
    refreshSoon();
}

void PrintDialog::refresh() {
    if (!m_job || ModalWindow::current())
        return;
    if (m_tab == kGeneralTab)
        refreshSettings();
    if (m_tab == kSummaryTab)
        refreshSummary();
    m_preview->setSheet(m_job->sheet());
    const QList<Conflict> standing = m_conflicts->standing();
    m_conflictLine->show(standing.size(),
                         standing.isEmpty() ? QString() : textOf(standing.first()));
}

void PrintDialog::refreshSettings() {
    m_common->refresh();
    m_typed->refresh();
}

void PrintDialog::refreshSummary() {
    PanelStage &stage = m_job->stage();
    const bool open = stage.isOpen();
    savePanel();
    m_summary->show(open ? stage.session().name() : QString(),
                    open ? stage.session().summary() : QVariantMap(), sentList(m_job->toSend()));
}

void PrintDialog::refreshPrinter() {
    const QueueInfo *info = m_list->selectedInfo();
    QueueProblem problem = info ? queueProblem(*info) : QueueProblem{};
    m_wasTold = m_wasTold || info;
    if (!info && m_wasTold)
        problem = {tr("The server has this printer no longer."), true};
    QString notice;
    if (!m_failure.isNull())
        notice = m_failure;
    else if (!m_job)
        notice = tr("Getting the printer's settings…");
    else
        notice = problem.sentence;
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
    m_settingsPart->setEnabled(m_job);
    m_tabs->setTabEnabled(kSummaryTab, m_job);
    m_print->setEnabled(m_job && !problem.preventsPrinting);
    m_print->setToolTip(m_print->isEnabled() ? QString() : notice);
    m_print->setAccessibleDescription(m_print->toolTip());
}

void PrintDialog::tell(const QString &headline, const QStringList &lines) {
    m_problems->show(headline, lines);
}

} // namespace host
