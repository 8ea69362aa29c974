#include "controls/two_state_control.h"

#include "controls/value_text.h"

bool TwoStateControl::ConvertToPreferenceString(char *buffer) {
    return integerToText(ctrlDataBlkPtr.get(), buffer, kPreferenceBufferSize);
}

bool TwoStateControl::ConvertFromPreferenceString(const char *text) {
    return integerFromText(text, ctrlDataBlkPtr.get());
}

bool TwoStateControl::ConvertToTickectData(char *buffer) {
    return integerToText(ctrlDataBlkPtr.get(), buffer, kTicketBufferSize);
}

CtrlDataBlk *TwoStateControl::GetValueFromControl() {
    return ctrlDataBlkPtr.get();
}

void TwoStateControl::SetValueFromUIToControl() {
    if (ctrlDataBlkPtr && ctrlUIDataBlkPtr && ControlPtr)
        ctrlDataBlkPtr->setWord(ctrlUIDataBlkPtr->word());
}

uint32_t TwoStateControl::GetDefaultDataSize() {
    return CtrlDataBlk::kWordSize;
}

uint32_t TwoStateControl::GetIniDataSize() {
    return CtrlDataBlk::kWordSize;
}

std::optional<TwoStateControl::Change> TwoStateControl::change() const {
    const std::optional<int32_t> shown = shownState();
    if (!shown || !ctrlUIDataBlkPtr || *shown == ctrlUIDataBlkPtr->word())
        return std::nullopt;
    return Change{ctrlUIDataBlkPtr->word(), *shown};
}

int32_t TwoStateControl::DoControlUpdateConstrain() {
    return change() ? BaseControlKRVImageOptions::DoControlUpdateConstrain() : 0;
}

int32_t TwoStateControl::DoControlHideConstrain() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->hideTable : nullptr;
    const std::optional<Change> step = change();
    if (!table || !step)
        return 0;
    HideControlConstrains(table->row(step->to));
    if (step->from >= 0)
        ShowControlConstrains(table->row(step->from));
    return 0;
}

int32_t TwoStateControl::DoControlConstrain() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->disableTable : nullptr;
    const std::optional<Change> step = change();
    if (!table || !step)
        return 0;
    DisableControlConstrains(table->row(step->to));
    if (step->from >= 0)
        EnableControlConstrains(table->row(step->from));
    return 0;
}
