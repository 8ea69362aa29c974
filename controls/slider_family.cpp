#include "controls/slider_family.h"

#include "controls/value_text.h"
#include "platform/views/slider_view.h"
#include "ppd/product_type.h"

#include <cstring>

void PPDSliderBarControlKRVImageOptions::CreateControl(SliderView *view, const char *ppdKey,
                                                       SliderBarIniData *iniData,
                                                       const CtrlConstrainInfo *constrain,
                                                       const CtrlAccessInfo *access,
                                                       const QString &user) {
    BaseControlKRVImageOptions::CreateControl(view);
    setRecords(constrain, access, user);
    sliderBarIniDataPtr = iniData;
    ctrlDataSize = CtrlDataBlk::kWordSize;
    m_ppd = PpdBinding{.kPPDMainKey = ppdKey};
}

SliderView *PPDSliderBarControlKRVImageOptions::slider() const {
    return qobject_cast<SliderView *>(ControlPtr.data());
}

void PPDSliderBarControlKRVImageOptions::showRange() {
    SliderView *view = slider();
    if (!view || !sliderBarIniDataPtr)
        return;
    view->setMinValue(sliderBarIniDataPtr->minValue);
    view->setMaxValue(sliderBarIniDataPtr->maxValue);
}

bool PPDSliderBarControlKRVImageOptions::InitializeCtrl(const Bundle *, ppd_file_t *ppd) {
    showRange();
    m_ppd.rebuild(ppd, ctrlParentPanelPtr);
    allocateBlocks(CtrlDataBlk::kWordSize);
    bindOption(ppd, m_ppd.kPPDMainKey);
    return true;
}

bool PPDSliderBarControlKRVImageOptions::SetControlValueToUI() {
    SliderView *view = slider();
    if (!ctrlDataBlkPtr || !view)
        return false;
    view->setIntValue(ctrlDataBlkPtr->word());
    return true;
}

bool PPDSliderBarControlKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    SliderView *view = slider();
    if (!value || !views::isEnabled(view))
        return false;
    int32_t position;
    std::memcpy(&position, value, sizeof position);
    view->setIntValue(position);
    return true;
}

void PPDSliderBarControlKRVImageOptions::SetValueFromUIToControl() {
    if (ctrlDataBlkPtr && ctrlUIDataBlkPtr && ControlPtr)
        ctrlDataBlkPtr->setWord(ctrlUIDataBlkPtr->word());
}

CtrlDataBlk *PPDSliderBarControlKRVImageOptions::GetValueFromUI() {
    const SliderView *view = slider();
    if (!ctrlUIDataBlkPtr || !view)
        return nullptr;
    ctrlUIDataBlkPtr->setWord(view->intValue());
    return ctrlUIDataBlkPtr.get();
}

bool PPDSliderBarControlKRVImageOptions::SetValueToTicket(PMPrintSettings, bool) {
    return true;
}

CtrlDataBlk *PPDSliderBarControlKRVImageOptions::GetValueFromControl() {
    return ctrlDataBlkPtr.get();
}

bool PPDSliderBarControlKRVImageOptions::ConvertFromPreferenceString(const char *text) {
    return integerFromText(text, ctrlDataBlkPtr.get());
}

bool PPDSliderBarControlKRVImageOptions::ConvertToPreferenceString(char *buffer) {
    return integerToText(ctrlDataBlkPtr.get(), buffer, kPreferenceBufferSize);
}

const void *PPDSliderBarControlKRVImageOptions::GetDefaultDataBlk() {
    return sliderBarIniDataPtr ? &sliderBarIniDataPtr->defaultValue : nullptr;
}

uint32_t PPDSliderBarControlKRVImageOptions::GetDefaultDataSize() {
    return CtrlDataBlk::kWordSize;
}

const void *PPDSliderBarControlKRVImageOptions::GetIniDataBlk() {
    return sliderBarIniDataPtr ? &sliderBarIniDataPtr->iniValue : nullptr;
}

uint32_t PPDSliderBarControlKRVImageOptions::GetIniDataSize() {
    return CtrlDataBlk::kWordSize;
}

void GPPDSliderBarControlKRV::CreateControl(SliderView *view, const char *ppdKey,
                                            SliderBarIniData *iniData,
                                            const CtrlConstrainInfo *constrain,
                                            const CtrlAccessInfo *access, const QString &user,
                                            CtrlTag titleControl) {
    PPDSliderBarControlKRVImageOptions::CreateControl(view, ppdKey, iniData, constrain, access,
                                                      user);
    ctrlIDTitleExPtr = titleControl;
}

bool GPPDSliderBarControlKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    if (!PPDSliderBarControlKRVImageOptions::InitializeCtrl(bundle, ppd))
        return false;
    const bool hadTitle = !m_ppd.titleTextRef.isNull();
    m_ppd.takeTitle(ppd);
    if (m_ppd.rowCount() == 0) {
        if (hadTitle) // the title of a former PPD
            SetTitleWithCFStringEx(QLatin1String(""));
        return CPPDChecker::Instance()->AddCheck(m_ppd.kPPDMainKey, false);
    }
    SetTitleWithCFStringEx(m_ppd.titleTextRef);
    if (sliderBarIniDataPtr) {
        const int32_t half = m_ppd.rowCount() / 2;
        sliderBarIniDataPtr->minValue = -half;
        sliderBarIniDataPtr->maxValue = half;
        int32_t position = 0;
        if (GetDefaultValueFromPPD(m_ppd.defaultChoice(ppd), &position))
            sliderBarIniDataPtr->defaultValue = position;
        showRange();
        if (SliderView *view = slider()) {
            view->setAllowsTickMarkValuesOnly(true);
            view->setNumberOfTickMarks(half + 1 + half);
        }
    }
    return CPPDChecker::Instance()->AddCheck(m_ppd.kPPDMainKey, true);
}

int64_t GPPDSliderBarControlKRV::rowOfPosition(int32_t position) const {
    return sliderBarIniDataPtr ? int64_t{sliderBarIniDataPtr->maxValue} - position : -1;
}

bool GPPDSliderBarControlKRV::GetDefaultValueFromPPD(const QString &choice, int32_t *value) {
    *value = 0;
    const int32_t row = m_ppd.find(choice);
    if (row < 0 || !sliderBarIniDataPtr)
        return false;
    *value = sliderBarIniDataPtr->maxValue - row;
    return true;
}

bool GPPDSliderBarControlKRV::SetValueToTicket(PMPrintSettings, bool) {
    return ctrlDataBlkPtr &&
           tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_paPPDChoices.get(),
                                                            rowOfPosition(ctrlDataBlkPtr->word())));
}

int32_t GPPDSliderBarControlKRV::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    if (!ctrlDataBlkPtr)
        return 0;
    const int64_t row = rowOfPosition(ctrlDataBlkPtr->word());
    if (row >= 0 && row < m_ppd.rowCount())
        m_ppd.addSummaryRow(m_ppd.ctrlPPDInfoArrayRef[row].label, summary, orderArray);
    return 0;
}

int32_t GPPDSliderBarControlKRV::Open() {
    if (!PpdBinding::currentPpd(ctrlParentPanelPtr))
        return 0;
    GetValueToPreset();
    SetControlValueToUI();
    return 0;
}

bool GPPDSliderBarControlKRV::GetValueToPreset() {
    const int32_t index = m_ppd.presetIndex(m_ptPPDOptions, ctrlParentPanelPtr);
    if (index < 0 ||
        !tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_paPPDChoices.get(), index)) ||
        !ctrlDataBlkPtr || !sliderBarIniDataPtr)
        return false;
    ctrlDataBlkPtr->setWord(sliderBarIniDataPtr->maxValue - index);
    return true;
}

void GPPDSliderBarControlKRV::SetTitleWithCFStringEx(const QString &title) {
    BaseControlKRVImageOptions *control =
        ctrlIDTitleExPtr && ctrlParentPanelPtr
            ? ctrlParentPanelPtr->GetPanelControl(ctrlIDTitleExPtr)
            : nullptr;
    if (control && !title.isNull()) {
        const QByteArray text = title.isEmpty() ? QByteArray("") : title.toUtf8() + ':';
        control->SetExternalValueToUI(text.constData(), static_cast<uint32_t>(text.size()));
    }
}
