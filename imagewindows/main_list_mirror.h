#pragma once

#include "controls/popup_family.h"

/// A list of a child window that shows what a list of the main panel shows. It has no say of its
/// own in job and summary: the main panel's list speaks for both.
template <class List>
class MainListMirror : public List {
public:
    /// Data block and view := the item that the main panel's list shows.
    /// @return false without a parent panel, its list, the block or the view
    bool SetControlValueToUI() override {
        const ControlPanel *window = this->ctrlParentPanelPtr;
        const ControlPanel *panel = window ? window->GetParentWnd() : nullptr;
        PPDPopupControlKRVImageOptions *list = panel ? mainList(*panel) : nullptr;
        if (!list || !this->ctrlDataBlkPtr || !this->ControlPtr)
            return false;
        const auto value = static_cast<uint16_t>(list->GetCurrentControlArrayNumber() + 1);
        this->ctrlDataBlkPtr->setWord(value);
        return PopupControlKRVImageOptions::SetControlValueToUI();
    }
    /// Sends nothing. @return true
    bool SetValueToTicket(PMPrintSettings, bool) override { return true; }
    /// Adds nothing. @return 0
    int32_t GetSummaryText(QVariantMap *, QStringList *) override { return 0; }

protected:
    /// The list to show, or null.
    virtual PPDPopupControlKRVImageOptions *mainList(const ControlPanel &panel) const = 0;
};
