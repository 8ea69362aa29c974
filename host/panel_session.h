#pragma once

#include "host/host_callback.h"
#include "platform/pde/pde_plugin.h"

#include <QStringList>
#include <QVariantMap>

#include <memory>

class QWidget;

namespace host {

/// The key of the summary's order in what a panel answers.
inline constexpr char kSummaryOrderKey[] = "Summary Display Order";

/// Drives the one panel that a bundle gives a dialog, in the order that panels require.
///
/// The user's work is never lost: whatever leaves the page, shows it again or sums it up saves
/// first if the user has acted since the last save. REQUIRES: no call while a child window of the
/// panel runs modally.
class PanelSession {
public:
    /// Asks the bundle for the panel. @param host  retained by the panel
    PanelSession(PDEPlugin &plugin, const std::shared_ptr<HostCallback> &host);
    /// Closes the panel if it wasn't.
    ~PanelSession();

    bool hasPanel() const { return m_panel != nullptr; }
    bool isOpen() const { return m_open; }
    /// Whether there was a panel, and is no more.
    bool hasEnded() const { return m_hadPanel && !m_panel; }

    /// Asks the panel what it is called, which needs no view of it. @return null without a panel
    QString findName();
    /// The first half of the road of a shown panel, panelKind to panelView.
    /// @return the view, owned by the panel until it gets a parent; null without a layout
    QWidget *load();
    /// The second half, restoreValuesAndReturnError and willShow. The view should stand in its
    /// window by now.
    void show();
    /// The whole road of a panel that is never shown: shouldPrint, and its end.
    void printUnseen();
    /// Readies marks and settings for a job: of an open panel by shouldPrint and save, of one that
    /// isn't shown by printUnseen(). Without a panel there is nothing to do.
    void print();

    const QString &kind() const { return m_kind; }
    const QString &name() const { return m_name; }
    const QStringList &keys() const { return m_keys; }

    /// To be told before each act of the user on the panel's views.
    void noteUserAct();
    /// The user goes to another page: values reach marks and settings.
    void leavePage();
    void willShow();
    bool restore();
    bool shouldPrint();
    bool save();
    /// @return text by title, the order under kSummaryOrderKey
    QVariantMap summary();
    /// @return whether the panel has shown a page itself
    bool help();
    void optionDidChange(const QString &option, const QString &choice);
    /// Hides, ends and destroys the panel. Nothing is saved.
    void close();

private:
    std::unique_ptr<PDEPanel> m_panel;
    QString m_kind, m_name;
    QStringList m_keys;
    bool m_hadPanel = false;
    bool m_open = false;
    bool m_unsaved = false;
    bool m_printed = false;         ///< a shouldPrint waits for its save
    bool m_actedSincePrint = false; ///< the user has acted in between
};

} // namespace host
