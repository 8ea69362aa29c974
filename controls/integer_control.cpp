#include "controls/integer_control.h"

#include "controls/value_text.h"
#include "platform/views/view.h"

#include <cstring>

bool IntegerControl::ConvertToPreferenceString(char *buffer) {
    return integerToText(ctrlDataBlkPtr.get(), buffer, kPreferenceBufferSize);
}

bool IntegerControl::ConvertFromPreferenceString(const char *text) {
    return integerFromText(text, ctrlDataBlkPtr.get());
}

bool IntegerControl::ConvertToTickectData(char *buffer) {
    return integerToText(ctrlDataBlkPtr.get(), buffer, kTicketBufferSize);
}

CtrlDataBlk *IntegerControl::GetValueFromUI() {
    const std::optional<int32_t> shown = shownValue();
    if (!ctrlUIDataBlkPtr || !shown)
        return nullptr;
    ctrlUIDataBlkPtr->setWord(*shown);
    return ctrlUIDataBlkPtr.get();
}

CtrlDataBlk *IntegerControl::GetValueFromControl() {
    return ctrlDataBlkPtr.get();
}

void IntegerControl::SetValueFromUIToControl() {
    if (ctrlDataBlkPtr && ctrlUIDataBlkPtr && ControlPtr)
        ctrlDataBlkPtr->setWord(ctrlUIDataBlkPtr->word());
}

bool IntegerControl::SetControlValueToUI() {
    if (!ctrlDataBlkPtr || !shownValue())
        return false;
    showValue(ctrlDataBlkPtr->word());
    return true;
}

bool IntegerControl::SetExternalValueToUI(const void *value, uint32_t) {
    if (!value || !views::isEnabled(GetControlPtr()))
        return false;
    showValue(externalInteger(value));
    return true;
}

bool IntegerControl::GetValueToPreset() {
    const std::optional<int32_t> value = presetNumber();
    if (!value || !ctrlDataBlkPtr)
        return false;
    ctrlDataBlkPtr->setWord(*value);
    return true;
}

uint32_t IntegerControl::GetDefaultDataSize() {
    return CtrlDataBlk::kWordSize;
}

uint32_t IntegerControl::GetIniDataSize() {
    return CtrlDataBlk::kWordSize;
}

int32_t IntegerControl::externalInteger(const void *value) {
    int32_t number;
    std::memcpy(&number, value, sizeof number);
    return number;
}
