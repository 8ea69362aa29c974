#include "host/panel_session.h"

#include <utility>

namespace host {

PanelSession::PanelSession(PDEPlugin &plugin, const std::shared_ptr<HostCallback> &host) {
    std::vector<std::unique_ptr<PDEPanel>> panels =
        plugin.PDEPanelsForType(QLatin1String(kPrintPanelType), host);
    if (!panels.empty())
        m_panel = std::move(panels.front());
    m_hadPanel = m_panel != nullptr;
}

PanelSession::~PanelSession() {
    close();
}

QString PanelSession::findName() {
    if (m_panel) {
        m_kind = m_panel->panelKind();
        m_name = m_panel->panelName();
    }
    return m_name;
}

QWidget *PanelSession::load() {
    findName();
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
    close();
}

void PanelSession::noteUserAct() {
    m_unsaved = true;
    m_actedSincePrint = m_printed;
}

void PanelSession::print() {
    if (m_open) {
        shouldPrint();
        save();
    } else if (m_panel) {
        printUnseen();
    }
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
    m_printed = true;
    m_actedSincePrint = false;
    return m_panel->shouldPrint();
}

bool PanelSession::save() {
    if (std::exchange(m_actedSincePrint, false)) // the save behind a shouldPrint writes nothing
        m_panel->saveValuesAndReturnError(nullptr);
    m_unsaved = m_printed = false;
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
    m_open = m_unsaved = m_printed = m_actedSincePrint = false;
}

} // namespace host
