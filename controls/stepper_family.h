#pragma once

#include "controls/integer_control.h"
#include "controls/ppd_binding.h"

class StepperView;

/// The small arrows beside a number field.
///
/// Value: the number itself, in 4-byte blocks. `lastValue` follows the view whenever the program
/// sets it, and is set ahead of it where the view is about to follow: an attempt that leaves the
/// view at `lastValue` has met the end of the range.
class LittleArrayKRVImageOptions : public IntegerControl {
public:
    /// @param view      the arrows, may be null
    /// @param iniData   the panel's own copy of the record, borrowed for the control's life
    /// @param titleStr  the title in the summary; null for none
    void LittleArrayControl(StepperView *view, LittleArrayIniData *iniData,
                            const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                            const QString &user, const QString &titleStr);

    /// Range from the record, and fresh blocks. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// View := an int32_t, also in a disabled view. @return false without a view or a value
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    /// The base class's write, for a value in the record's range.
    /// @return false, with nothing written, outside it or without a block or a record
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
    /// Data block, view and lastValue := the value under the record's ticket key.
    bool GetValueToPreset() override;
    /// @return whether the control has a row in the summary
    virtual bool ToGetSummaryText();
    /// The value in tenths under the title, "1.2" for 12.
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;

    /// The view's range. A value that it cuts is followed by lastValue.
    void SetRange(int32_t min, int32_t max);
    const void *GetIniDataBlk() override;
    const void *GetDefaultDataBlk() override;
    /// Only lastValue := default: the view follows by others' updates. @return true
    bool SetDefaultValueToUI() override;

protected:
    StepperView *stepper() const;
    std::optional<int32_t> shownValue() const override;
    /// View := a number, as far as its range goes, and lastValue behind it.
    void showValue(int32_t value) override;
    bool isCommittedInRange() const;

    LittleArrayIniData *littleArrayIniDataPtr = nullptr;
    QString titleTextRef;
    int32_t lastValue = 0;
};

/// Arrows whose number is a PPD option: its choices' keywords are decimal numbers.
class PPDLittleArrayControlKRVImageOptions : public LittleArrayKRVImageOptions {
public:
    /// @param ppdKey  the option's keyword; outlives the control
    void PPDLittleArrayControl(StepperView *view, LittleArrayIniData *iniData, const char *ppdKey,
                               const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                               const QString &user);

    /// Rows, default and title from the PPD, where it has the option. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Data block and lastValue := the marked choice's number, 0 without a mark; the host is told.
    /// @return false without panel, option or block, and on refusal
    bool GetValueToPreset() override;
    /// Preset and view anew, without constraint steps. @return 0
    int32_t Open() override;
    /// The committed choice's label under the option's title, each cut at a whole character within
    /// 23 bytes.
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;
    /// An attempt of a person: a beep at the end of the range, else the event. The UI block stays.
    void RequestControlAction() override;

protected:
    PpdBinding m_ppd;
};

/// PPD arrows whose committed number goes to the host at every save, changed or not.
class GBasePPDLittleArrowKRV : public PPDLittleArrayControlKRVImageOptions {
public:
    /// Choices run from the greatest number down: the choice at maxValue - value is told.
    /// @return the host's answer; false outside range or choices
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
};

/// The arrows of one density, beside a number field that shows their value.
class GLittleArrayControlKRV : public GBasePPDLittleArrowKRV {
public:
    /// Reports to the product detection whether the option is there.
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Puts the number into the number field, the first tag of the update row, then walks the row.
    int32_t DoControlUpdateConstrain() override;
    /// View := default; the event that follows brings the number field along. @return true
    bool SetDefaultValueToUI() override;
    /// @return whether colour balance and colour mode are both available; false without a main
    ///         panel
    bool ToGetSummaryText() override;
};

/// A density of black, which counts in black and white, too.
class GBlackLittleArrayControlKRV : public GLittleArrayControlKRV {
public:
    /// @return whether colour balance is available; false without a main panel
    bool ToGetSummaryText() override;
};
