#pragma once

#include "controls/two_state_control.h"

#include <vector>

class RadioGroupKRVImageOptions;
class RadioView;

/// One radio button, with a value of its own.
///
/// Value: 0 off, 1 on. A button goes to the print settings itself; it has no PPD option. Each
/// button walks its own tables by its own change; its update table names its partner, whose Update
/// then switches that one off.
class RadioButtonKRVImageOptions : public TwoStateControl {
public:
    /// @param view       the button, may be null
    /// @param iniData    the panel's own copy of the record, borrowed for the control's life
    /// @param constrain  which controls depend on the value, or null
    /// @param access     where the value is stored, or null
    /// @param user       whose preferences
    void RadioButton(RadioView *view, RadioButtonIniData *iniData,
                     const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                     const QString &user);

    /// View := the record's title from the default strings table, whatever table the panel has.
    /// @return false without a bundle; true without a record, with the form's title left
    bool InitializeTitle(const Bundle *bundle) override;

    /// A button that is on becomes the group's current one, even without a view to show it.
    bool SetControlValueToUI() override;
    /// Sets a disabled view too, unlike a check box. @return whether the view is enabled; false,
    /// with nothing set, for a missing value
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    /// Takes the value as an integer, whatever its type. @return true
    bool setExternalValueToData(const void *value, uint32_t size, int32_t valueType) override;
    /// @return the UI block, untouched without a view
    CtrlDataBlk *GetValueFromUI() override;
    /// Data block := UI block, also without a view.
    void SetValueFromUIToControl() override;
    const void *GetDefaultDataBlk() override;
    const void *GetIniDataBlk() override;
    /// @return 4
    uint32_t GetCtrlDataSize() const { return CtrlDataBlk::kWordSize; }

    /// This button becomes the current one, its constraints follow, and every button of the group
    /// reads its view. @return true
    bool UIEventHandler() override;
    /// In a group without a current button the first one becomes it. @return true
    bool SimulationUIEventHandler() override;
    /// Makes this button the group's current one.
    void SetGrpcurRadio();
    /// @return this button's index in the group, by tag; -1 without group and if it isn't there
    int32_t GetRadioIndex() const;
    /// @return the first button of the group with another tag, else the last one; null without any
    RadioButtonKRVImageOptions *GetAnotherRadioCtrlFromGroup() const;
    /// @param group  borrowed, may be null
    void SetCtrlGrp(RadioGroupKRVImageOptions *group) { RadioGrpPtr = group; }
    /// The partner has been switched: a button that isn't current goes off and releases its
    /// constraints. @return 0
    int32_t Update() override;
    /// Data block and view := the value under the record's ticket key.
    bool GetValueToPreset() override;

protected:
    RadioView *button() const;
    std::optional<int32_t> shownValue() const override;
    void showValue(int32_t value) override;

    RadioGroupKRVImageOptions *RadioGrpPtr = nullptr;
    RadioButtonIniData *radiobuttonIniDataPtr = nullptr;
};

/// Which buttons belong together, and which of them is current.
///
/// Owns nothing: buttons and group belong to one panel, and only buttons that the panel has kept
/// may be handed in. The group has no view, and no value of its own.
class RadioGroupKRVImageOptions : public BaseControlKRVImageOptions {
public:
    /// An empty group without a current button. The first step of a group's life.
    void RadioGroup();
    /// Takes a button, which learns of its group.
    /// @return the index that it took; 0 before RadioGroup
    int32_t RunTimeAddNewControl(RadioButtonKRVImageOptions *button);
    /// Every button reads its view. @return null, so that no sweep goes on to commit a value here
    CtrlDataBlk *GetValueFromUI() override;
    /// @return -1 before any button was current
    int32_t GetcurRadio() const { return curRadio; }
    /// An index outside the group is ignored.
    void SetcurRadio(int32_t index);

    using Buttons = std::vector<RadioButtonKRVImageOptions *>;
    /// In the order in which they came.
    const Buttons &buttons() const;

protected:
    std::optional<Buttons> fCtrlGroupArray;
    int32_t _control_num_item = 0;
    int32_t curRadio = -1;
};

/// The button of the main panel's Basic and Advanced pair.
class GRadioButtonKRV : public RadioButtonKRVImageOptions {
public:
    /// A click on the button that is on does nothing. @return true
    bool UIEventHandler() override;
    /// Puts the disable row of "off" in force while the button is off.
    /// @return whether there is a disable table and the button is off
    bool InitializeConstrains();
    bool IsChecked() const;
};
