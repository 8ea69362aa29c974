#pragma once

#include "controls/ppd_bound_control.h"
#include "controls/two_state_control.h"

class CheckBoxView;

/// A check box with a localised title.
///
/// Value: 0 off, 1 on.
class CheckBoxKRVImageOptions : public TwoStateControl {
public:
    /// @param view       the box, may be null
    /// @param iniData    the panel's own copy of the record, borrowed for the control's life
    /// @param constrain  which controls depend on the value, or null
    /// @param access     where the value is stored, or null
    /// @param user       whose preferences
    void CheckBox(CheckBoxView *view, CheckBoxIniData *iniData, const CtrlConstrainInfo *constrain,
                  const CtrlAccessInfo *access, const QString &user);

    /// View := the localised title of the record, "no translation" where there is none.
    /// @return false without a bundle; true without a record, with the form's title left
    bool InitializeTitle(const Bundle *bundle) override;

    const void *GetDefaultDataBlk() override;
    const void *GetIniDataBlk() override;

    /// @return 1 if there is an update table and a UI block, else 0
    int32_t DoControlUpdateConstrain() override;
    bool SimulationUIEventHandler() override;

protected:
    CheckBoxView *box() const;
    std::optional<int32_t> shownValue() const override;
    void showValue(int32_t value) override;

    CheckBoxIniData *checkboxctrlIniDataPtr = nullptr;
};

/// A check box that stands for a PPD option with the choices "True" and "False".
///
/// The value isn't the row's index: the option may list either choice first. If row 0 is "False",
/// value 0 is row 0 and value 1 is row 1; else the other way round. A user's click is told to the
/// host only after the constraint steps have run, so that the constraints of a refused click stay.
class PPDCheckBoxKRVImageOptions : public PpdBoundControl<CheckBoxKRVImageOptions> {
public:
    /// @param ppdKey  the option's keyword; outlives the control
    void PPDCheckBox(CheckBoxView *view, const char *ppdKey, CheckBoxIniData *iniData,
                     const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                     const QString &user);

    /// Title, rows, default and option from the PPD. The blocks are made only if there is a title.
    /// @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// View := the option's title. @return false without one
    bool InitializeTitle(const Bundle *bundle) override;
    /// @param value  receives 1 for exactly "True", else 0
    /// @return false for a null choice
    bool GetDefaultValueFromPPD(const QString &choice, int32_t *value);
    /// Marks the committed value. @return the host's answer; false without PPD, keyword or block;
    ///         true for a negative value
    bool RestorePPD(ppd_file_t *ppd);
    /// Tells the host the choice of a value. @return the host's answer; false without such a choice
    bool PPDMarkOptionByIndex(ppd_file_t *ppd, int32_t value);
    /// The constraint steps, then the host. A refusal shows the UI block's value again.
    /// @return the result of the constraint steps
    bool UIEventHandler() override;
    /// UI block := view, and that value marked. Results as RestorePPD.
    bool SetPPD(ppd_file_t *ppd) override;
    /// Data block := the marked choice; the host is told. Without a mark the block stays.
    /// @return false without panel or option, and on refusal
    bool GetValueToPreset() override;
    /// The label of the committed choice, cut to 23 bytes, under the title; also for a box that is
    /// held down. @return 0
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;

protected:
    /// The row of a value, 0 or 1, in the option's order.
    int32_t rowOfValue(int32_t value) const;
};

/// A PPD check box whose value goes to the host when the job is saved, if it has changed.
class GBasePPDCheckBoxKRV : public PPDCheckBoxKRVImageOptions {
public:
    /// Tells the host the choice at the value as it stands: 0 is the option's first choice, whether
    /// that is "True" or "False".
    /// @return false without block, panel or choice, for an unchanged value and on refusal
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
};

/// A PPD check box that reports to the product detection, and goes back when the host refuses.
class GCheckBoxKRV : public GBasePPDCheckBoxKRV {
public:
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Marks what the view shows; the UI block stays, so that it still holds the former value.
    bool SetPPD(ppd_file_t *ppd) override;
};

/// A PPD check box for an option that takes no part in the product detection.
class GCheckBoxExtKRV : public GBasePPDCheckBoxKRV {
public:
    /// Reports nothing.
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
};
