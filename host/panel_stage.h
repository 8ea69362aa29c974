#pragma once

#include "host/panel_session.h"
#include "host/ppd_source.h"

#include <QMap>
#include <QString>

#include <memory>

class QBoxLayout;
class QWidget;

namespace host {

struct CommandLine;

/// All that one panel needs, put together in the order in which it must outlive each other: the
/// queue's PPD, the host object, a plain window, and the panel itself.
class PanelStage {
public:
    /// Opens the PPD and applies what the command line names: a preset, then choices and settings.
    /// @throw HostError
    PanelStage(const CommandLine &line, PDEPlugin &plugin);
    /// The same for a PPD that is open already.
    PanelStage(PpdSource source, PDEPlugin &plugin);
    ~PanelStage();

    const PpdSource &source() const { return m_source; }
    HostCallback &callback() const { return *m_callback; }
    /// Options of the job that are none of the PPD, from the preset of the command line.
    const QMap<QString, QString> &jobOptions() const { return m_jobOptions; }
    /// The panel of this queue; made anew when the former one was closed.
    PanelSession &session();

    /// The whole road of a shown panel.
    /// @param home  where the panel shall stand; null for a window of its own
    /// @return false if the queue has no panel, or that has no layout
    bool open(QBoxLayout *home = nullptr);
    /// Closes the panel and its window.
    void close();
    /// Closes the panel and forgets all print settings and what is known of the session.
    void startAnew();
    bool isOpen() const { return m_session && m_session->isOpen(); }
    /// The window of the open panel, or what stands in its home; else null.
    QWidget *window() const { return m_window.get(); }

private:
    PDEPlugin &m_plugin;
    PpdSource m_source;
    std::shared_ptr<HostCallback> m_callback;
    QMap<QString, QString> m_jobOptions;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<PanelSession> m_session;
};

/// Puts a panel's view into a window's layout. A view without a layout of its own keeps its size.
void placeView(QBoxLayout *layout, QWidget *view);

} // namespace host
