#include "host/panel_session.h"

namespace host {
namespace {

/// The type of panels that a print dialog asks for.
const QString kPanelType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

} // namespace

PanelSession::PanelSession(PDEPlugin &plugin, const std::shared_ptr<HostCallback> &host) {
    std::vector<std::unique_ptr<PDEPanel>> panels = plugin.PDEPanelsForType(kPanelType, host);
    if (!panels.empty())
        m_panel = std::move(panels.front());
}

PanelSession::~PanelSession() {
    close();
}

QWidget *PanelSession::load() {
    m_kind = m_panel->panelKind();
    m_name = m_panel->panelName();
    m_keys = m_panel->supportedPPDOptionKeys();
    return m_panel->panelView();
}

void PanelSession::show() {
    m_panel->restoreValuesAndReturnError(nullptr);
    m_panel->willShow();
    m_open = true;
}

void PanelSession::printUnseen() {
    m_keys = m_panel->supportedPPDOptionKeys();
    m_panel->shouldPrint();
}

void PanelSession::leavePage() {
    if (m_open && m_unsaved)
        save();
}

void PanelSession::willShow() {
    leavePage();
    m_panel->willShow();
}

bool PanelSession::restore() {
    m_unsaved = false;
    return m_panel->restoreValuesAndReturnError(nullptr);
}

bool PanelSession::shouldPrint() {
    return m_panel->shouldPrint();
}

bool PanelSession::save() {
    m_unsaved = false;
    return m_panel->saveValuesAndReturnError(nullptr);
}

QVariantMap PanelSession::summary() {
    leavePage();
    return m_panel->summaryInfo();
}

bool PanelSession::help() {
    return !m_panel->shouldShowHelp();
}

void PanelSession::optionDidChange(const QString &option, const QString &choice) {
    m_panel->PPDOptionKeyValueDidChange(option, choice);
}

void PanelSession::close() {
    if (!m_panel)
        return;
    if (m_open)
        m_panel->shouldHide();
    m_panel->terminate();
    m_panel.reset();
    m_open = false;
}

} // namespace host
