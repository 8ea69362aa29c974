#pragma once

#include "controls/popup_family.h"

/// A list of a child window that shows what a list of the main panel shows. It has no say of its
/// own in job and summary: the main panel's list speaks for both. In a layout without that list it
/// shows and sums up its own value, which it has marked itself.
template <class List>
class MainListMirror : public List {
public:
    /// Data block and view := the item that the main panel's list shows.
    /// @return false without a parent panel, the block or the view
    bool SetControlValueToUI() override {
        const ControlPanel *window = this->ctrlParentPanelPtr;
        const ControlPanel *panel = window ? window->GetParentWnd() : nullptr;
        PPDPopupControlKRVImageOptions *list = panel ? mainList(*panel) : nullptr;
        if (!panel || !this->ctrlDataBlkPtr || !this->ControlPtr)
            return false;
        if (!list)
            return List::SetControlValueToUI();
        const auto value = static_cast<uint16_t>(list->GetCurrentControlArrayNumber() + 1);
        this->ctrlDataBlkPtr->setWord(value);
        return PopupControlKRVImageOptions::SetControlValueToUI();
    }
    /// Sends nothing. @return true
    bool SetValueToTicket(PMPrintSettings, bool) override { return true; }
    /// Adds nothing beside the main panel's list. @return 0
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override {
        const ControlPanel *panel =
            this->ctrlParentPanelPtr ? this->ctrlParentPanelPtr->GetParentWnd() : nullptr;
        return panel && !mainList(*panel) ? List::GetSummaryText(summary, orderArray) : 0;
    }

protected:
    /// The list to show, or null.
    virtual PPDPopupControlKRVImageOptions *mainList(const ControlPanel &panel) const = 0;
};
