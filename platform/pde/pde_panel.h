#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

class QWidget;

/// Room for an error text that a callback may fill. The panels of this system never do.
struct PDEError {
    QString message;
};

/// One panel of a print dialog.
///
/// The host calls a panel on its one thread, in this order when the panel is shown: panelKind,
/// panelName, supportedPPDOptionKeys, panelView, restoreValuesAndReturnError, willShow; then, as
/// the user works, summaryInfo and shouldShowHelp at any time; saveValuesAndReturnError before
/// every later willShow, before summaryInfo and before the page is left, since some controls mark
/// their choice only then; for printing saveValuesAndReturnError, or shouldPrint and then
/// saveValuesAndReturnError; at last shouldHide, terminate and the destructor.
///
/// A dialog that never shows the panel calls supportedPPDOptionKeys and then shouldPrint, which
/// builds everything by itself.
///
/// While a child window of the panel runs modally the host makes no call. A call that comes too
/// early does nothing and answers the value documented below. Nothing throws.
///
/// After the host's ppdFile has begun to answer another PPD, and after the host has destroyed the
/// view, the next calls are supportedPPDOptionKeys and restoreValuesAndReturnError. No call gives
/// the panel up (terminate, destructor) from inside a call that the panel makes to the host.
class PDEPanel {
public:
    /// Gives the panel up. The view goes with it if the host has not destroyed it before.
    virtual ~PDEPanel() = default;

    /// The panel's root view, loaded on first use.
    /// @return owned by the panel until the host gives it a parent; null if the layout can't load
    virtual QWidget *panelView() = 0;
    /// The title to show, in the user's language.
    virtual QString panelName() = 0;
    /// A constant that identifies this kind of panel.
    virtual QString panelKind() = 0;
    /// Builds the constraint table for the current PPD; before anything that builds controls.
    /// @return the keywords of the PPD options that the panel deals with
    virtual QStringList supportedPPDOptionKeys() = 0;
    /// The panel is about to be shown: its controls take up the current marks.
    virtual void willShow() = 0;
    /// @return whether the panel may be hidden; always true here
    virtual bool shouldHide() = 0;
    /// The job is about to be printed: values go to marks and settings.
    /// @return whether printing may go on; always true here
    virtual bool shouldPrint() = 0;
    /// The user asks for help.
    /// @return true if the host should show its own help, false if the panel has shown a page
    virtual bool shouldShowHelp() = 0;
    /// Another panel changed an option. This system's panel takes such changes up at the next
    /// willShow or restore and ignores the notice.
    virtual void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) = 0;
    /// Builds the panel on the first call with a PPD, and loads all values on every call.
    /// @param error  may be null
    /// @return false only if the help book could not be registered; everything else is done then
    /// too
    virtual bool restoreValuesAndReturnError(PDEError *error) = 0;
    /// Writes values to marks and settings, unless shouldPrint has just done so.
    /// @param error  may be null
    /// @return whether the settings were written; true for a panel that was never built
    virtual bool saveValuesAndReturnError(PDEError *error) = 0;
    /// The rows for the host's summary page: text by title, and under "Summary Display Order" the
    /// list of the titles in the order to show. Before the panel is built, an empty list alone.
    virtual QVariantMap summaryInfo() = 0;
    /// The dialog ends; only the destructor may follow.
    virtual void terminate() = 0;
};
