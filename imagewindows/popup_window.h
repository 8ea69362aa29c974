#pragma once

#include "platform/views/form_loader.h"
#include "platform/views/modal_window.h"
#include "plugin/base/base_print_panel.h"

/// A modal child window of a panel, and a panel itself: its controls have values, sweeps and
/// records of their own.
///
/// A window is inert until PopupWinInPanel gives it the view that it stands in, a ModalWindow. A
/// person's change goes to the live blocks, and OK takes it over to the committed ones; a person's
/// close presses Cancel. A window that is destroyed during its run ends the run first; nothing of
/// it is touched when the run returns.
class PopupWinInPanelKRVImageOptions : public BasePrintPanelKRVImageOptions {
public:
    ~PopupWinInPanelKRVImageOptions() override;

    /// Makes the registries; the first step of a window's life.
    /// @param window    a ModalWindow, borrowed; null leaves the object inert
    /// @param winTitle  the localisation key of the title; null for a window without one
    void PopupWinInPanel(QWidget *window, const QString &winTitle);
    /// Strings table, title, controls and their actions, in this order. Child windows are left out.
    /// @return 0
    int32_t InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Controls, title and actions anew, with the bundle and PPD of the latest InitializeUserPane.
    /// @return 0
    virtual int32_t ReInitializeUserPane();
    /// Shows the committed values and runs the window until a button ends it. The window object may
    /// be gone when this returns. Does nothing without a window, without controls and for a window
    /// that is up. @return 0
    virtual int32_t ActivateWindow();
    /// @return 0
    virtual int32_t ReleaseWindow();
    /// Ends the run and closes the window. @return 0
    virtual int32_t DeactivateWindow();
    /// Sets the localised title, from the default strings table.
    /// @return 1 if a title was set; 0 without a key, a bundle or a window
    virtual int32_t InitializeUserPaneTitle(const Bundle *bundle);
    virtual int32_t ReInitializeUserPaneTitle();
    /// Reads every view into its control's live block. @return 0
    virtual int32_t SycValueFromUI();
    /// Puts the marks of the PPD back to the committed values; here there is nothing to put back.
    virtual void RestoreMarkedPPD();
    /// @return the parent panel's; null without one
    QString GetCurrentPrinterString() const override;
    void terminate() override;

    /// Whether the start-up that happens once per window has been done.
    bool IsActived() const { return isActived; }
    void ChangeActivedStatus() { isActived = true; }
    void ChangeActivedStatus(bool actived) { isActived = actived; }

    /// Commits the text that a person is still editing.
    void endPendingEdits();
    /// Gives that text up.
    void dropPendingEdits();

protected:
    /// Loads the form in which the window stands. A former one is given up, since its views are as
    /// the former controls left them.
    /// @param name     the form's file name, without its ending
    /// @param outlets  connected to the form's views
    /// @param classes  view classes of the form beyond the platform's
    /// @return the form, which this object keeps; null, with a line in the log, without one
    ModalWindow *loadForm(const Bundle *bundle, const QString &name,
                          const std::vector<views::Outlet> &outlets,
                          const std::vector<views::ViewClass> &classes = {});
    /// Runs the window over the window in which the parent panel stands at this moment. Nothing of
    /// the object may be used behind the call.
    void runModalForWindow();

    QString winTitleTextRef;
    ppd_file_t *currentPPD = nullptr;
    bool isActived = false;

    /// Whether there is a window with controls, and it isn't up.
    bool canOpen() const;

private:
    /// Whether the window stands, with its loop running.
    bool isRunning() const;
    void endRun() override;

    QPointer<ModalWindow> m_form;
};
