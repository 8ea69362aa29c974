#pragma once

#include "controls/button_family.h"

/// Opens the colour balance window of its panel.
class GColorBalanceButtonKRV : public BaseButtonKRVImageOptions {
public:
    /// @return true
    bool UIEventHandler() override;
};

/// Opens the image adjustment window: the form with black overprint for a PPD that has the option,
/// the plain one for any other. A PPD for which the panel has built neither opens nothing.
class GImageSettingsButtonKRV : public BaseButtonKRVImageOptions {
public:
    void GImageSettingsButton(ButtonView *view, const char *title);
    /// Title, then which form to ask for. @return false without a title
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// @return false without a panel
    bool UIEventHandler() override;

protected:
    bool bIsBlackOverPrint = false;
};

/// Commits the values of its window and closes it.
class GOKButtonKRV : public BaseButtonKRVImageOptions {
public:
    /// Ends a pending edit, then asks each control in order whether its value is valid.
    /// @return false at the first that isn't: nothing is committed and the window stays open
    bool UIEventHandler() override;
};

/// Closes its window without a commit. A person's close of the window presses this button.
class GCancelButtonKRV : public BaseButtonKRVImageOptions {
public:
    void setTargetandAction() override;
    /// @return true
    bool UIEventHandler() override;
};

/// Gives every control of its own panel or window the default. Nothing is committed or closed, and
/// child windows keep their values.
class GRestoreDefaultButtonKRV : public BaseButtonKRVImageOptions {
public:
    /// @return true
    bool UIEventHandler() override;
};

/// OK of an image adjustment window: commits without a test of the values, and shows the two
/// correction lists that the main panel has too with their new values there.
class GOKButtonIAKRV : public GOKButtonKRV {
public:
    /// @return true
    bool UIEventHandler() override;
    /// Selects in a list of the main panel what a list of this button's window shows, and runs the
    /// target's simulated event. Equal items, compared in 16 bits, or a missing control: nothing.
    void DoPanelControlSync(ControlPanel *panel, CtrlTag syncSrcCtrl, CtrlTag syncTrgCtrl);
};

/// Cancel of an image adjustment window, whose lists have marked the PPD already: puts the marks
/// back first.
class GImageAdjCancelButtonKRV : public GCancelButtonKRV {
public:
    /// @return true
    bool UIEventHandler() override;
};
