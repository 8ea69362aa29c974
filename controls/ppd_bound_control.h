#pragma once

#include "controls/base_control.h"
#include "controls/ppd_binding.h"

#include <optional>

/// What a list and a check box share once they are bound to a PPD option: their value is a mark, so
/// that showing, restoring and sending it go by the option.
/// @tparam Plain  the family's class without an option
template <class Plain>
class PpdBoundControl : public Plain {
public:
    /// Conflicts, mark, view and constraints anew. Nothing without a panel or its PPD. @return 0
    int32_t Open() override {
        ppd_file_t *ppd = PpdBinding::currentPpd(this->ctrlParentPanelPtr);
        if (!ppd)
            return 0;
        this->UpdateConflictsPanelControlFromPPD(ppd);
        this->GetValueToPreset();
        this->SetControlValueToUI();
        this->SimulationUIEventHandler();
        return 0;
    }
    /// Sends nothing: the value leaves as a mark. @return true
    bool SetValueToTicket(PMPrintSettings, bool) override { return true; }
    /// The ticket write of the base class, for subclasses.
    bool BaseSetValueToTicket(PMPrintSettings settings, bool withParam) {
        return BaseControlKRVImageOptions::SetValueToTicket(settings, withParam);
    }
    /// As the plain class; a value that wasn't shown before counts as changed.
    bool SetControlValueToUI() override {
        const std::optional<int32_t> shown = this->shownValue();
        if (!this->ctrlDataBlkPtr || !shown)
            return false;
        if (*shown != this->ctrlDataBlkPtr->word())
            this->valueDidChange = true;
        return Plain::SetControlValueToUI();
    }
    /// View := default, and the default marked. @return false without a panel or on refusal
    bool SetDefaultValueToUI() override {
        if (!Plain::SetDefaultValueToUI() || !this->ctrlParentPanelPtr)
            return false;
        ppd_file_t *ppd = this->ctrlParentPanelPtr->GetCurrentPPD();
        return !ppd || SetPPD(ppd);
    }
    /// Marks the choice that the view shows. @return false on refusal, without a PPD or a keyword
    virtual bool SetPPD(ppd_file_t *ppd) = 0;

protected:
    /// Tells the host the choice at an index at save time, once for each change.
    /// @return false without panel or choice, for an unchanged value and on refusal
    bool sendChangedChoice(int64_t index) {
        if (!this->ctrlParentPanelPtr || !this->valueDidChange ||
            !this->tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(this->getPPDChoices(), index)))
            return false;
        this->valueDidChange = false;
        return true;
    }

    PpdBinding m_ppd;
};
