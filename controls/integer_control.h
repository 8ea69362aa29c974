#pragma once

#include "controls/base_control.h"

#include <optional>

/// What every family with a whole number for a value shares: 4-byte blocks, their decimal text, and
/// the way between view, blocks and print settings.
class IntegerControl : public BaseControlKRVImageOptions {
public:
    bool ConvertToPreferenceString(char *buffer) override;
    bool ConvertFromPreferenceString(const char *text) override;
    bool ConvertToTickectData(char *buffer) override;

    /// @return the UI block; null, with nothing read, without a block or a view
    CtrlDataBlk *GetValueFromUI() override;
    CtrlDataBlk *GetValueFromControl() override;
    void SetValueFromUIToControl() override;
    /// @return false without a block or a view
    bool SetControlValueToUI() override;
    /// View := an integer. @return false, with nothing set, for a missing value and a disabled view
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    /// Data block := the value under the record's ticket key; the view stays.
    bool GetValueToPreset() override;
    /// @return 4
    uint32_t GetDefaultDataSize() override;
    /// @return 4
    uint32_t GetIniDataSize() override;

protected:
    /// The view's value as the blocks hold it; nothing without a view.
    virtual std::optional<int32_t> shownValue() const = 0;
    /// View := a value of a block; nothing without a view.
    virtual void showValue(int32_t value) = 0;
    /// The integer that SetExternalValueToUI was handed.
    static int32_t externalInteger(const void *value);
};
