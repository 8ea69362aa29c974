#include "controls/slider_family.h"

#include "platform/views/slider_view.h"
#include "ppd/product_type.h"

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

std::optional<int32_t> PPDSliderBarControlKRVImageOptions::shownValue() const {
    const SliderView *view = slider();
    return view ? std::optional(view->intValue()) : std::nullopt;
}

void PPDSliderBarControlKRVImageOptions::showValue(int32_t value) {
    if (SliderView *view = slider())
        view->setIntValue(value);
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

bool PPDSliderBarControlKRVImageOptions::SetValueToTicket(PMPrintSettings, bool) {
    return true;
}

bool PPDSliderBarControlKRVImageOptions::ConvertToTickectData(char *buffer) {
    return BaseControlKRVImageOptions::ConvertToTickectData(buffer);
}

bool PPDSliderBarControlKRVImageOptions::GetValueToPreset() {
    return BaseControlKRVImageOptions::GetValueToPreset();
}

const void *PPDSliderBarControlKRVImageOptions::GetDefaultDataBlk() {
    return sliderBarIniDataPtr ? &sliderBarIniDataPtr->defaultValue : nullptr;
}

const void *PPDSliderBarControlKRVImageOptions::GetIniDataBlk() {
    return sliderBarIniDataPtr ? &sliderBarIniDataPtr->iniValue : nullptr;
}

void GPPDSliderBarControlKRV::CreateControl(SliderView *view, const char *ppdKey,
                                            SliderBarIniData *iniData,
                                            const CtrlConstrainInfo *constrain,
                                            const CtrlAccessInfo *access, const QString &user,
                                            CtrlTag titleControl) {
    PPDSliderBarControlKRVImageOptions::CreateControl(view, ppdKey, iniData, constrain, access,
                                                      user);
    m_ppd.ctrlIDTitleExPtr = titleControl;
}

bool GPPDSliderBarControlKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    if (!PPDSliderBarControlKRVImageOptions::InitializeCtrl(bundle, ppd))
        return false;
    const bool hadTitle = !m_ppd.titleTextRef.isNull();
    m_ppd.takeTitle(ppd);
    if (m_ppd.rowCount() == 0) {
        if (hadTitle) // what a former PPD has left
            m_ppd.clearTitle(ctrlParentPanelPtr);
        if (SliderView *view = slider()) {
            view->setAllowsTickMarkValuesOnly(false);
            view->setNumberOfTickMarks(0);
        }
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
    m_ppd.addSummaryRow(m_ppd.label(rowOfPosition(ctrlDataBlkPtr->word())), summary, orderArray);
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
    if (index < 0 || !tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_ptPPDOptions, index)) ||
        !ctrlDataBlkPtr || !sliderBarIniDataPtr)
        return false;
    ctrlDataBlkPtr->setWord(sliderBarIniDataPtr->maxValue - index);
    return true;
}

void GPPDSliderBarControlKRV::SetTitleWithCFStringEx(const QString &title) {
    if (!title.isNull())
        m_ppd.showTitle(ctrlParentPanelPtr);
}
