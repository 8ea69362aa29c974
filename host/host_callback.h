#pragma once

#include "platform/pde/pde_plugin_callback.h"

#include <QList>
#include <QPair>
#include <QString>

#include <functional>

namespace host {

/// The host's side of a dialog: PPD, settings and session, and a record of what panels ask for.
///
/// The PPD is borrowed and outlives the panels.
class HostCallback : public PDEPluginCallback {
public:
    using Call = QPair<QString, QString>; ///< option and choice

    HostCallback(ppd_file_t *ppd, const Printer &printer);

    ppd_file_t *ppdFile() override { return m_ppd; }
    PMPrintSettings printSettings() override { return &m_settings; }
    PMPrintSession printSession() override { return &m_session; }
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override;

    /// Called after each change of a mark that a panel asks for, with the option; not where the
    /// choice was marked before, as with most that a panel saves.
    void setObserver(std::function<void(const QString &option)> observer) {
        m_observer = std::move(observer);
    }

    const PrintSettings &settings() const { return m_settings; }
    /// What was asked for since the last call of this function, granted or not, in order.
    QList<Call> takeCalls() { return std::exchange(m_calls, {}); }

private:
    ppd_file_t *m_ppd;
    PrintSettings m_settings;
    PrintSession m_session;
    QList<Call> m_calls;
    std::function<void(const QString &)> m_observer;
};

} // namespace host
