#include "pde-qt/tab_work.h"

#include "host/bundle_loader.h"
#include "host/host_error.h"
#include "host/settings/job_options.h"
#include "pde-qt/bundle_place.h"
#include "pde-qt/cups_options.h"
#include "pde-qt/parked.h"
#include "pde-qt/print_panel_tab.h"
#include "pde-qt/tab_pages.h"
#include "platform/views/form_loader.h"
#include "platform/views/modal_window.h"

#include <QEvent>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QTabWidget>

namespace pdeqt {
namespace {

constexpr int kLaterMs = 200;

} // namespace

host::OptionList TabWork::Choices::now() const {
    return host::jobOptionsToSend(job->ppd(), nullptr, {});
}

TabWork::TabWork(QPrintDialog *dialog, const QString &bundle, QWidget *tab, TabPages *pages)
    : m_dialog(dialog), m_window(dialog), m_bundle(bundle), m_tab(tab), m_pages(pages),
      m_printer(dialog) {
    m_later.setSingleShot(true);
    m_later.setInterval(kLaterMs);
    connect(&m_later, &QTimer::timeout, this, [this] {
        if (m_window && m_window->isVisible()) // else its printer may be gone, and Show follows
            follow();
    });
    connect(&m_printer, &DialogPrinter::changed, this, &TabWork::follow);
    connect(&m_directory, &host::QueueDirectory::detailsReady, this, &TabWork::take);
    connect(&m_directory, &host::QueueDirectory::detailsFailed, this,
            [this](const QString &, const QString &reason) {
                showFailure(PrintPanelTab::tr("The printer's options can't be shown."), reason);
            });
    connect(m_pages, &TabPages::retryAsked, this, &TabWork::ask);
    connect(dialog, qOverload<>(&QDialog::accepted), this, &TabWork::accept);
    dialog->installEventFilter(this);
    m_givenFor = dialog->printer()->printerName();
    if (const QPrintEngine *engine = dialog->printer()->printEngine())
        m_given = engineOptions(*engine);
    follow();
}

TabWork::~TabWork() {
    const bool isRunning = ModalWindow::current();
    for (auto &[name, choices] : m_choices)
        if (isRunning && choices.job->stage().isOpen())
            park(std::move(choices.job));
        else
            choices.job->stage().close();
}

// The printer.

bool TabWork::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_window && event->type() == QEvent::Show && !event->spontaneous()) {
        if (std::exchange(m_isMissed, false))
            m_followed.reset();
        follow();
    }
    return QObject::eventFilter(watched, event);
}

void TabWork::follow() {
    if (!m_window)
        return;
    if (ModalWindow::current()) { // a panel isn't closed under its windows
        m_later.start();
        return;
    }
    const ChosenPrinter printer = m_printer.now();
    if (m_followed == printer)
        return;
    leavePrinter();
    m_followed = printer;
    if (printer.isFile)
        showWords(PrintPanelTab::tr("A file has no image options."));
    else if (printer.name.isEmpty())
        showWords(PrintPanelTab::tr("No printer is chosen."));
    else if (const auto found = m_choices.find(printer.name); found != m_choices.end())
        show(found->second);
    else
        ask();
}

void TabWork::leavePrinter() {
    m_directory.forgetDetails();
    m_isMissed = false;
    if (!m_shown)
        return;
    save();
    m_shown->job->stage().close();
    m_shown = nullptr;
}

void TabWork::ask() {
    m_isMissed = false;
    m_pages->showWords(PrintPanelTab::tr("Getting the printer's options…"));
    try {
        if (!m_plugin)
            m_plugin = host::loadBundle(m_bundle.isNull() ? bundleOfThisLibrary() : m_bundle);
        m_directory.askDetails(m_followed->queue());
    } catch (const host::HostError &error) {
        showFailure(PrintPanelTab::tr("The image options can't be loaded."), error.text());
    }
}

void TabWork::take(const std::shared_ptr<host::QueueDetails> &details) {
    Choices &choices = m_choices[m_followed->name];
    choices.job = std::make_unique<host::QueueJob>(std::move(*details), *m_plugin, false);
    choices.job->useDefaults(m_followed->instance());
    choices.defaults = choices.now();
    if (m_followed->name == m_givenFor)
        choices.job->settings().takeOptions(m_given);
    choices.before = choices.now();
    show(choices);
}

void TabWork::show(Choices &choices) {
    m_shown = &choices;
    host::PanelStage &stage = choices.job->stage();
    if (!choices.job->ppd() || !stage.open(m_pages->panelHome())) {
        showWords(PrintPanelTab::tr("This printer has no image options."));
        return;
    }
    m_pages->showPanel();
    views::assignMnemonics(stage.window());
    setTitle(stage.session().name());
    emit settled(true);
}

void TabWork::showWords(const QString &sentence) {
    m_pages->showWords(sentence);
    emit settled(false);
}

void TabWork::showFailure(const QString &sentence, const QString &reason) {
    m_isMissed = true;
    m_pages->showFailure(sentence, reason);
    emit settled(false);
}

void TabWork::setTitle(const QString &title) {
    m_tab->setWindowTitle(title);
    for (QWidget *above = m_tab->parentWidget(); above; above = above->parentWidget())
        if (auto *tabs = qobject_cast<QTabWidget *>(above)) {
            if (const int index = tabs->indexOf(m_tab); index >= 0)
                tabs->setTabText(index, title);
            return;
        }
}

// The panel.

host::PanelSession *TabWork::session() const {
    if (!m_shown || !m_shown->job->stage().isOpen() || ModalWindow::current())
        return nullptr;
    return &m_shown->job->stage().session();
}

void TabWork::save() {
    if (host::PanelSession *panel = session()) {
        panel->noteUserAct(); // any view may have changed
        panel->leavePage();
    }
}

void TabWork::enterPage() {
    if (host::PanelSession *panel = session())
        panel->willShow();
}

void TabWork::leavePage() {
    if (m_window && m_window->isVisible())
        save();
}

// The job.

/// Marks what a person has chosen in Qt's own list of the printer's options, and left alone in the
/// panel.
void TabWork::takeForeign(const host::OptionList &options) {
    using host::optionValue;
    const host::OptionList now = m_shown->now();
    host::OptionList news;
    for (const auto &[name, value] : options)
        if (session()->keys().contains(name, Qt::CaseInsensitive) &&
            optionValue(m_shown->foreign, name) != value &&
            optionValue(m_shown->defaults, name) != value &&
            optionValue(m_shown->before, name) == optionValue(now, name))
            news.append({name, value});
    if (news.isEmpty())
        return;
    m_shown->job->settings().takeOptions(news);
    session()->willShow();
}

host::OptionList TabWork::finish(const host::OptionList &options) {
    if (!m_shown || !m_shown->job->stage().isOpen())
        return {};
    if (host::PanelSession *panel = session()) {
        save();
        takeForeign(options);
        panel->print();
    }
    m_shown->before = m_shown->now();
    m_shown->foreign = options;
    host::PanelStage &stage = m_shown->job->stage();
    return panelOptions(m_shown->job->ppd(), stage.session().keys(), stage.callback().settings());
}

void TabWork::accept() {
    const QPrinter *printer = m_dialog->printer();
    QPrintEngine *engine = printer->printEngine();
    if (!engine)
        return;
    const host::OptionList options = engineOptions(*engine);
    // Where the server has gone, Qt's printer is another than its list shows.
    const bool isOurs = m_followed && printer->outputFormat() == QPrinter::NativeFormat &&
                        printer->printerName() == m_followed->name;
    const host::OptionList ours = isOurs ? finish(options) : host::OptionList();
    const host::OptionList all = merged(options, m_put, ours);
    if (all != options)
        setEngineOptions(*engine, all);
    m_put.clear();
    for (const auto &[name, value] : ours)
        m_put.append(name);
}

} // namespace pdeqt
