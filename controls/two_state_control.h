#pragma once

#include "controls/integer_control.h"

/// What check boxes and radio buttons share: a title, a value of 0 or 1, which indexes the disable
/// and hide tables directly, and a UI block of -1 while no constraint has been applied.
class TwoStateControl : public IntegerControl {
public:
    /// The title, then the blocks. @return false, without blocks, if there is no title
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Only the title. @return as InitializeTitle
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    virtual bool InitializeTitle(const Bundle *bundle) = 0;

    // Each walk runs if the view differs from the UI block. Hiding and disabling apply the new
    // state's row first and then release the old one's, so that a control in both never flickers.
    int32_t DoControlUpdateConstrain() override;
    int32_t DoControlHideConstrain() override;
    int32_t DoControlConstrain() override;

private:
    struct Change {
        int32_t from;
        int32_t to;
    };
    /// @return nothing if the view and the UI block agree, or one of them is missing
    std::optional<Change> change() const;
};
