#pragma once

#include "controls/integer_control.h"
#include "controls/ppd_binding.h"

class SliderView;

/// A slider that is bound to a PPD option, over the range of its record.
///
/// Value: the position, a whole number around 0, in 4-byte blocks. A move marks nothing: the value
/// leaves when the job is saved.
class PPDSliderBarControlKRVImageOptions : public IntegerControl {
public:
    /// @param view       the slider, may be null
    /// @param ppdKey     the option's keyword; outlives the control
    /// @param iniData    the panel's own copy of the record, borrowed for the control's life
    /// @param constrain  which controls depend on the value, or null
    /// @param access     where the value is stored, or null
    /// @param user       whose preferences
    void CreateControl(SliderView *view, const char *ppdKey, SliderBarIniData *iniData,
                       const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                       const QString &user);

    /// The record's range, rows and option from the PPD, and the blocks. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Sends nothing: a slider has no ticket entry of its own. @return true
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
    /// There is no ticket text to make. @return true
    bool ConvertToTickectData(char *buffer) override;
    /// Nothing is stored under a ticket key. @return as the base class
    bool GetValueToPreset() override;
    const void *GetDefaultDataBlk() override;
    const void *GetIniDataBlk() override;

protected:
    SliderView *slider() const;
    std::optional<int32_t> shownValue() const override;
    /// A value out of range is clamped, silently.
    void showValue(int32_t value) override;
    /// View's ends := the record's range.
    void showRange();

    PpdBinding m_ppd;
    SliderBarIniData *sliderBarIniDataPtr = nullptr;
};

/// A slider whose positions are the choices of its option.
///
/// The choices run from the highest position to the lowest: row i is position maxValue - i. The
/// range is half the number of rows on either side of 0. An even number of rows leaves the lowest
/// position without a row, so that nothing is sent and summarised there; a custom choice, which
/// libcups adds behind the others, counts as a row and shifts the range.
class GPPDSliderBarControlKRV : public PPDSliderBarControlKRVImageOptions {
public:
    /// @param titleControl  tag of the static text that takes the option's title, or null
    void CreateControl(SliderView *view, const char *ppdKey, SliderBarIniData *iniData,
                       const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                       const QString &user, CtrlTag titleControl);

    /// Range, tick marks, title and default from the PPD, range and default also into the record.
    /// Without the option the record's range stays, without tick marks, and a former title goes.
    /// Reports to the product detection. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// @param value  receives the position of the row with that keyword, 0 without one
    /// @return whether there is one
    bool GetDefaultValueFromPPD(const QString &choice, int32_t *value);
    /// Tells the host the committed position's choice, at every save.
    /// @return the host's answer; false without block, panel or such a choice
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
    /// The label of the committed position under the title; also for a slider that is held down.
    /// @return 0
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;
    /// Mark and view anew, without constraints. Nothing without a panel or its PPD. @return 0
    int32_t Open() override;
    /// Data block := the marked choice's position, or the PPD's default one; the host is told.
    /// @return false without panel, option, mark and default, and on refusal
    bool GetValueToPreset() override;
    /// Puts the option's title, with ":" behind it, into the title control.
    /// @param title  null: nothing is done
    void SetTitleWithCFStringEx(const QString &title);

protected:
    /// The row of a position; it may lie outside the rows.
    int64_t rowOfPosition(int32_t position) const;
};
