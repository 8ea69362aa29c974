#pragma once

#include "controls/popup_family.h"

/// The output mode list. A PPD may say which mode a mailbox job takes: the list is then forced to
/// that mode and disabled, title and all, for as long as the job goes to a mailbox.
class GOutputModeListCtrlKRV : public GPPDListCtrlKRV {
public:
    /// Menu and blocks, then the mailbox mode: the attribute's value without its first four
    /// characters, looked up among the rows. @return false if the list stays unusable
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    bool GetValueToPreset() override;
    /// Data block := the mailbox mode. The host doesn't have a mode that is new to the block, so
    /// that the next save sends it. @return true
    bool SetControlValueToPPDMailboxSetValue();
    /// @return true: a list that is held down by the job type is still told of
    bool ToGetSummaryText() override;
    void SetValueFromUIToControl() override;
    /// ResetStatus and Disable of the title's control.
    void ResetCFStringEx();
    void DisableCFStringEx();
    int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) override;
    /// A label of 24 bytes of UTF-8 or more doesn't fit the row, which is then empty.
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;
    bool SetDefaultValueToUI() override;

protected:
    int32_t MailboxSetValueIndex = 0; ///< from 1; 0 when the attribute names no row
    bool IsMailBoxKeyExist = false;

private:
    /// Whether the PPD has a mailbox mode and the job goes to a mailbox.
    bool isForced() const;
};
