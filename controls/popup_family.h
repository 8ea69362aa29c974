#pragma once

#include "controls/integer_control.h"
#include "controls/ppd_bound_control.h"

#include <string>

class PopupView;

/// A list with a static menu.
///
/// Value: the item's number from 1, 0 for none, in 4-byte blocks; the view counts from 0. A list
/// without selection counts as showing its first item in the constraint walks.
class PopupControlKRVImageOptions : public IntegerControl {
public:
    /// @param view       the menu, may be null
    /// @param iniData    the panel's own copy of the record, borrowed for the control's life
    /// @param constrain  which controls depend on the value, or null
    /// @param access     where the value is stored, or null
    /// @param user       whose preferences
    void CreateControl(PopupView *view, PopupIniData *iniData, const CtrlConstrainInfo *constrain,
                       const CtrlAccessInfo *access, const QString &user);

    /// InitializeMenu, then the blocks. @return false, without blocks, if the menu can't be made
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Fills the menu from the record's keys: the localised title, the key where there is none.
    /// @return true; false without a view to fill
    virtual bool InitializeMenu(const Bundle *bundle, ppd_file_t *ppd);

    /// A value below 1 selects the first item, also in a disabled view.
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    const void *GetDefaultDataBlk() override;
    const void *GetIniDataBlk() override;
    /// @return the selected item from 0, -1 for none
    int32_t GetCurrentControlArrayNumber() override;

    int32_t DoControlUpdateConstrain() override;
    int32_t DoControlHideConstrain() override;
    int32_t DoControlConstrain() override;
    /// The menu's action, as RequestControlAction.
    void RequestPopupList();
    /// The update walk as the base class has it, past what a subclass makes of it.
    int32_t DoBaseControlUpdateConstrain();

    /// Whether the constraint table's entries under a key hold the given pair; marks play no part.
    /// @return false without a table or a PPD
    bool isChoiceConflicted(const std::string &key, const QString &option, const QString &choice,
                            ppd_file_t *ppd) const;

protected:
    PopupView *popup() const;
    std::optional<int32_t> shownValue() const override;
    void showValue(int32_t value) override;
    /// The view's value in the constraint walks: at least 1.
    int32_t walkValue();

    PopupIniData *listctrlIniDataPtr = nullptr;
};

/// A list whose menu is one PPD option.
///
/// A user's choice is told to the host, which may refuse it; the list then goes back to the item
/// that it showed, and no constraint step runs. Items that a marked choice forbids are disabled.
class PPDPopupControlKRVImageOptions : public PpdBoundControl<PopupControlKRVImageOptions> {
public:
    /// @param ppdKey        the option's keyword; outlives the control
    /// @param titleControl  tag of the static text that takes the option's title, or null
    void CreateControl(PopupView *view, const char *ppdKey, PopupIniData *iniData,
                       const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                       const QString &user, CtrlTag titleControl);

    /// Fills rows, menu, title and default from the PPD.
    /// @return false without a PPD, a constraint table or a keyword; the menu then stays as it was.
    ///         True in every other case, an option without choices too.
    bool InitializeMenu(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Menu := rows. Titles and keywords are cut at 99 bytes. Without rows the menu stays.
    virtual void ReInitializeMenu();
    /// Puts titleTextRef, with ":" behind it, into the title control.
    /// @param title  null: nothing is done
    void SetTitleWithCFStringEx(const QString &title);
    /// Hides the title control's view, past its count.
    void HideTitleCtrl();
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// The label of the committed choice under the title. A control that is held down adds nothing.
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;
    /// @return whether the control is neither disabled nor hidden by a constraint
    virtual bool ToGetSummaryText();
    bool UIEventHandler() override;
    /// Data block := the marked choice, or the PPD's default one; the host is told.
    bool GetValueToPreset() override;
    /// Data block := the value of the row at an index. @return false outside the rows
    virtual bool ConvertFromPresetIndex(int32_t index);
    int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) override;
    /// Also lets the menu explain its disabled items.
    void setTargetandAction() override;
    /// Which marked choices forbid a disabled item, in the PPD's words: "Not available with Paper
    /// Type: Transparency". Of many the first three are named. Where none forbids it any more,
    /// since a mark was changed without a new look at the items: what brings it back. Null without
    /// a PPD, or for no row.
    QString conflictText(int32_t item) const;
    /// @param value  receives the value of the row with that keyword, 0 without one
    /// @return whether there is one
    virtual bool GetDefaultValueFromPPD(const QString &choice, int32_t *value);
    /// Marks the choice that the view shows. @return false on refusal, without a PPD or a keyword;
    ///         true with nothing to mark
    bool SetPPD(ppd_file_t *ppd) override;
    /// Marks the committed choice. Results as SetPPD.
    virtual bool RestorePPD(ppd_file_t *ppd);
    /// Tells the host the choice at an index of the option. @return the host's answer; true for
    ///         nothing to tell
    bool PPDMarkOptionByIndex(ppd_file_t *ppd, int32_t index);
    /// @return the keyword of the committed choice, or null
    QString GetUISelectStr();
    /// Maps an item of the view to a row.
    virtual int32_t GetIndexByControl(const int32_t *item) const;
    /// @return the first row with that keyword, or -1
    int32_t GetSFStringArrayIndex(const QString &choice) const;
    /// The same lookup under its other name.
    int32_t GetIndexByStr(const QString &choice) const;

protected:
    /// The row count as the menu counts it, in 16 bits.
    int32_t menuRowCount() const;
    /// A new item at the menu's end; title and keyword are cut at 99 bytes.
    static void addItem(PopupView &menu, const ChoiceRow &row);
    /// The row of the committed value, or -1.
    int32_t committedRow();
};

/// A PPD list whose value goes to the host when the job is saved, if it has changed.
class GBasePPDPopupListKRV : public PPDPopupControlKRVImageOptions {
public:
    /// @return false without block, panel or choices, for an unchanged value and on refusal
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;
};

/// A PPD list that reports to the product detection and copes with a PPD that lacks its option:
/// list and title are then hidden, whatever the constraints say.
class GPPDListCtrlKRV : public GBasePPDPopupListKRV {
public:
    bool InitializeMenu(const Bundle *bundle, ppd_file_t *ppd) override;
    int32_t DoSelfUpdate() override;
    int32_t Show() override;
    int32_t Hide() override;

protected:
    bool PPDKeyIsExist = false;

private:
    bool m_hiddenForMissingKey = false;
};
