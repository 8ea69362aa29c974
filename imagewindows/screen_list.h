#pragma once

#include "controls/popup_family.h"

/// The screen list, which depends on other choices: a person's change of one of them resets it.
class ScreenListCtrlKRV : public GPPDListCtrlKRV {
public:
    /// Back to the default, unless the panel is restoring or showing stored values. @return 0
    int32_t Update() override;
};
