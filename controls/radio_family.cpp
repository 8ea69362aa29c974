#include "controls/radio_family.h"

#include "platform/bundle.h"
#include "platform/views/radio_view.h"
#include "services/bundle_identity.h"
#include "services/system_version.h"

void RadioButtonKRVImageOptions::RadioButton(RadioView *view, RadioButtonIniData *iniData,
                                             const CtrlConstrainInfo *constrain,
                                             const CtrlAccessInfo *access, const QString &user) {
    CreateControl(view);
    setRecords(constrain, access, user);
    RadioGrpPtr = nullptr;
    radiobuttonIniDataPtr = iniData;
    ctrlDataSize = CtrlDataBlk::kWordSize;
}

RadioView *RadioButtonKRVImageOptions::button() const {
    return qobject_cast<RadioView *>(ControlPtr.data());
}

std::optional<int32_t> RadioButtonKRVImageOptions::shownValue() const {
    const RadioView *view = button();
    return view ? std::optional(view->intValue()) : std::nullopt;
}

void RadioButtonKRVImageOptions::showValue(int32_t value) {
    if (RadioView *view = button())
        view->setIntValue(value);
}

bool RadioButtonKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!radiobuttonIniDataPtr)
        return true;
    if (!bundle)
        return false;
    if (RadioView *view = button())
        view->setTitle(bundle->localizedString(QString::fromUtf8(radiobuttonIniDataPtr->titleKey),
                                               kNoTranslation));
    return true;
}

bool RadioButtonKRVImageOptions::SetControlValueToUI() {
    if (!ctrlDataBlkPtr)
        return false;
    if (ctrlDataBlkPtr->word() > 0)
        SetGrpcurRadio();
    return TwoStateControl::SetControlValueToUI();
}

bool RadioButtonKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    if (!value)
        return false;
    const int32_t state = externalInteger(value);
    showValue(state);
    if (state > 0)
        SetGrpcurRadio();
    return views::isEnabled(button());
}

bool RadioButtonKRVImageOptions::setExternalValueToData(const void *value, uint32_t, int32_t) {
    if (!value)
        return true;
    const int32_t state = externalInteger(value);
    if (ctrlDataBlkPtr)
        ctrlDataBlkPtr->setWord(state);
    if (state > 0)
        SetGrpcurRadio();
    return true;
}

CtrlDataBlk *RadioButtonKRVImageOptions::GetValueFromUI() {
    TwoStateControl::GetValueFromUI();
    return ctrlUIDataBlkPtr.get();
}

void RadioButtonKRVImageOptions::SetValueFromUIToControl() {
    if (ctrlDataBlkPtr && ctrlUIDataBlkPtr)
        ctrlDataBlkPtr->setWord(ctrlUIDataBlkPtr->word());
}

const void *RadioButtonKRVImageOptions::GetDefaultDataBlk() {
    return radiobuttonIniDataPtr ? &radiobuttonIniDataPtr->defaultValue : nullptr;
}

const void *RadioButtonKRVImageOptions::GetIniDataBlk() {
    return radiobuttonIniDataPtr ? &radiobuttonIniDataPtr->iniValue : nullptr;
}

bool RadioButtonKRVImageOptions::UIEventHandler() {
    SetGrpcurRadio();
    BaseControlKRVImageOptions::UIEventHandler();
    if (RadioGrpPtr)
        RadioGrpPtr->GetValueFromUI();
    return true;
}

bool RadioButtonKRVImageOptions::SimulationUIEventHandler() {
    if (RadioGrpPtr && RadioGrpPtr->GetcurRadio() < 0)
        RadioGrpPtr->SetcurRadio(0);
    BaseControlKRVImageOptions::SimulationUIEventHandler();
    GetValueFromUI();
    return true;
}

void RadioButtonKRVImageOptions::SetGrpcurRadio() {
    if (RadioGrpPtr)
        RadioGrpPtr->SetcurRadio(GetRadioIndex());
}

int32_t RadioButtonKRVImageOptions::GetRadioIndex() const {
    if (!RadioGrpPtr)
        return -1;
    const RadioGroupKRVImageOptions::Buttons &buttons = RadioGrpPtr->buttons();
    for (size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i]->viewTag() == viewTag())
            return static_cast<int32_t>(i);
    return -1;
}

RadioButtonKRVImageOptions *RadioButtonKRVImageOptions::GetAnotherRadioCtrlFromGroup() const {
    RadioButtonKRVImageOptions *last = nullptr;
    if (RadioGrpPtr) {
        for (RadioButtonKRVImageOptions *other : RadioGrpPtr->buttons()) {
            last = other;
            if (other->viewTag() != viewTag())
                break;
        }
    }
    return last;
}

int32_t RadioButtonKRVImageOptions::Update() {
    const int32_t current = RadioGrpPtr ? RadioGrpPtr->GetcurRadio() : -1;
    if (current == GetRadioIndex())
        return 0;
    // Where views may be exclusive, one that is off already still has its constraints to release.
    if (systemVersion() < kSystemVersion1080 && shownValue().value_or(0) == 0)
        return 0;
    showValue(0);
    SimulationUIEventHandler();
    return 0;
}

bool RadioButtonKRVImageOptions::GetValueToPreset() {
    if (!TwoStateControl::GetValueToPreset())
        return false;
    showValue(ctrlDataBlkPtr->word()); // the view too, unlike a check box
    return true;
}

void RadioGroupKRVImageOptions::RadioGroup() {
    CreateControl(nullptr);
    fCtrlGroupArray.emplace();
    _control_num_item = 0;
    curRadio = -1;
}

int32_t RadioGroupKRVImageOptions::RunTimeAddNewControl(RadioButtonKRVImageOptions *button) {
    if (!fCtrlGroupArray)
        return 0;
    if (!button)
        return _control_num_item;
    button->SetCtrlGrp(this);
    fCtrlGroupArray->push_back(button);
    return _control_num_item++;
}

CtrlDataBlk *RadioGroupKRVImageOptions::GetValueFromUI() {
    for (RadioButtonKRVImageOptions *button : buttons())
        button->GetValueFromUI();
    return nullptr;
}

void RadioGroupKRVImageOptions::SetcurRadio(int32_t index) {
    if (index >= 0 && index < _control_num_item)
        curRadio = index;
}

const RadioGroupKRVImageOptions::Buttons &RadioGroupKRVImageOptions::buttons() const {
    static const Buttons none;
    return fCtrlGroupArray ? *fCtrlGroupArray : none;
}

bool GRadioButtonKRV::UIEventHandler() {
    if (ctrlUIDataBlkPtr && shownValue() == ctrlUIDataBlkPtr->word())
        return true;
    return RadioButtonKRVImageOptions::UIEventHandler();
}

bool GRadioButtonKRV::InitializeConstrains() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->disableTable || IsChecked())
        return false;
    DisableControlConstrains(ctrlConstrainControlArray->disableTable->row(0));
    return true;
}

bool GRadioButtonKRV::IsChecked() const {
    return shownValue() == 1;
}
