#pragma once

#include "controls/base_control.h"

#include <optional>

/// What check boxes and radio buttons share: a value of 0 or 1 in 4-byte blocks, which indexes the
/// disable and hide tables directly, and a UI block of -1 while no constraint has been applied.
class TwoStateControl : public BaseControlKRVImageOptions {
public:
    bool ConvertToPreferenceString(char *buffer) override;
    bool ConvertFromPreferenceString(const char *text) override;
    bool ConvertToTickectData(char *buffer) override;

    CtrlDataBlk *GetValueFromControl() override;
    void SetValueFromUIToControl() override;
    uint32_t GetDefaultDataSize() override;
    uint32_t GetIniDataSize() override;

    // Each walk runs if the view differs from the UI block. Hiding and disabling apply the new
    // state's row first and then release the old one's, so that a control in both never flickers.
    int32_t DoControlUpdateConstrain() override;
    int32_t DoControlHideConstrain() override;
    int32_t DoControlConstrain() override;

protected:
    /// @return 0 or 1; nothing without a view
    virtual std::optional<int32_t> shownState() const = 0;

private:
    struct Change {
        int32_t from;
        int32_t to;
    };
    /// @return nothing if the view and the UI block agree, or one of them is missing
    std::optional<Change> change() const;
};
