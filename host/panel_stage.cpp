#include "host/panel_stage.h"

#include "host/command_line.h"
#include "host/cups_server.h"
#include "host/host_error.h"
#include "host/presets/preset_commands.h"

#include <QVBoxLayout>
#include <QWidget>

namespace host {
namespace {

PpdSource openSource(const CommandLine &line) {
    if (!line.ppd.isNull())
        return openPpdFile(line.ppd);
    CupsServer server;
    return openQueue(server, line.queue.isNull() ? server.defaultQueue() : line.queue);
}

} // namespace

void placeView(QBoxLayout *layout, QWidget *view) {
    if (!view->layout())
        view->setMinimumSize(view->size());
    layout->addWidget(view);
}

PanelStage::PanelStage(const CommandLine &line, PDEPlugin &plugin)
    : PanelStage(openSource(line), plugin) {
    m_jobOptions = useNamedPreset(line, *this);
    markChoices(m_source, line.marks);
    for (const auto &[key, value] : line.settings)
        if (PMPrintSettingsSetValue(m_callback->printSettings(), key, value, false) != kPMNoError)
            throw HostError(QStringLiteral("--setting ") + key, QStringLiteral("can't be set"));
}

PanelStage::PanelStage(PpdSource source, PDEPlugin &plugin)
    : m_plugin(plugin), m_source(std::move(source)),
      m_callback(std::make_shared<HostCallback>(m_source.ppd.get(), m_source.printer)) {}

PanelStage::~PanelStage() {
    close();
}

PanelSession &PanelStage::session() {
    if (!m_session || m_session->hasEnded())
        m_session = std::make_unique<PanelSession>(m_plugin, m_callback);
    return *m_session;
}

bool PanelStage::open(QBoxLayout *home) {
    if (!session().hasPanel())
        return false;
    QWidget *view = m_session->load();
    if (!view)
        return false;
    m_window = std::make_unique<QWidget>();
    m_window->setWindowTitle(m_session->name());
    placeView(new QVBoxLayout(m_window.get()), view);
    if (home)
        home->addWidget(m_window.get());
    m_session->show();
    m_window->show();
    return true;
}

void PanelStage::close() {
    m_session.reset();
    m_window.reset();
}

void PanelStage::startAnew() {
    close();
    m_callback = std::make_shared<HostCallback>(m_source.ppd.get(), m_source.printer);
}

} // namespace host
