#pragma once

#include "controls/popup_family.h"

/// The target colour list of the colour balance window: which colour's number fields and arrows
/// show.
///
/// Value: the item from 0, in all stages, unlike other lists. The UI block begins at 0 without any
/// row in force; InitializeConstrains brings the first one, and the walks then go from row to row.
class ColorTargetListCtrlKRV : public PopupControlKRVImageOptions {
public:
    /// Hides the row of the default item, once, when the window is first opened.
    void InitializeConstrains();
    /// Puts the colour's first field behind the list in the order of the Tab key, then the steps.
    bool UIEventHandler() override;
    /// The steps, then UI block := view. @return true
    bool SimulationUIEventHandler() override;
    /// View := an int32_t, the item from 0. @return false without a view or a value
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    /// In black and white, the second item of the main panel's colour mode, only the first item can
    /// be chosen, and it is selected.
    int32_t DoSelfUpdate() override;
    // Both walks run if the view differs from the UI block.
    int32_t DoControlHideConstrain() override;
    int32_t DoControlUpdateConstrain() override;

protected:
    std::optional<int32_t> shownValue() const override;
    void showValue(int32_t value) override;

private:
    /// The window's titles name the fields that show now.
    void labelShownFields();
};
