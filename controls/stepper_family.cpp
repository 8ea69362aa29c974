#include "controls/stepper_family.h"

#include "controls/text_entry_family.h"
#include "controls/value_text.h"
#include "platform/utf8.h"
#include "platform/views/stepper_view.h"
#include "ppd/product_type.h"
#include "ppd/text_utils.h"

#include <array>
#include <cstdio>

void LittleArrayKRVImageOptions::LittleArrayControl(StepperView *view, LittleArrayIniData *iniData,
                                                    const CtrlConstrainInfo *constrain,
                                                    const CtrlAccessInfo *access,
                                                    const QString &user, const QString &titleStr) {
    BaseControlKRVImageOptions::CreateControl(view);
    setRecords(constrain, access, user);
    littleArrayIniDataPtr = iniData;
    ctrlDataSize = CtrlDataBlk::kWordSize;
    titleTextRef = titleStr;
    lastValue = iniData ? iniData->defaultValue : 0;
}

StepperView *LittleArrayKRVImageOptions::stepper() const {
    return qobject_cast<StepperView *>(ControlPtr.data());
}

std::optional<int32_t> LittleArrayKRVImageOptions::shownValue() const {
    const StepperView *view = stepper();
    return view ? std::optional(view->intValue()) : std::nullopt;
}

void LittleArrayKRVImageOptions::showValue(int32_t value) {
    lastValue = value;
    if (StepperView *view = stepper()) {
        view->setIntValue(value);
        lastValue = view->intValue();
    }
}

void LittleArrayKRVImageOptions::SetRange(int32_t min, int32_t max) {
    StepperView *view = stepper();
    if (!view)
        return;
    const int32_t before = view->intValue();
    view->setMinValue(min);
    view->setMaxValue(max);
    if (view->intValue() != before)
        lastValue = view->intValue();
}

bool LittleArrayKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    if (littleArrayIniDataPtr)
        SetRange(littleArrayIniDataPtr->minValue, littleArrayIniDataPtr->maxValue);
    allocateBlocks(CtrlDataBlk::kWordSize);
    return true;
}

// A held-down stepper takes a value, too, unlike a check box: its number field may be written.
bool LittleArrayKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    if (!value || !stepper())
        return false;
    showValue(externalInteger(value));
    return true;
}

bool LittleArrayKRVImageOptions::isCommittedInRange() const {
    return ctrlDataBlkPtr && littleArrayIniDataPtr &&
           ctrlDataBlkPtr->word() >= littleArrayIniDataPtr->minValue &&
           ctrlDataBlkPtr->word() <= littleArrayIniDataPtr->maxValue;
}

bool LittleArrayKRVImageOptions::SetValueToTicket(PMPrintSettings settings, bool withParam) {
    return isCommittedInRange() &&
           BaseControlKRVImageOptions::SetValueToTicket(settings, withParam);
}

bool LittleArrayKRVImageOptions::GetValueToPreset() {
    if (!IntegerControl::GetValueToPreset())
        return false;
    showValue(ctrlDataBlkPtr->word());
    return true;
}

bool LittleArrayKRVImageOptions::ToGetSummaryText() {
    return true;
}

int32_t LittleArrayKRVImageOptions::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    if (!ToGetSummaryText() || !ctrlDataBlkPtr)
        return 0;
    const int value = ctrlDataBlkPtr->word();
    std::array<char, 256> text{};
    ConvertIntToFloatStr(&value, text.data(), static_cast<int>(text.size()));
    addSummaryRow(titleTextRef, QString::fromUtf8(text.data()), summary, orderArray);
    return 0;
}

const void *LittleArrayKRVImageOptions::GetIniDataBlk() {
    return littleArrayIniDataPtr ? &littleArrayIniDataPtr->iniValue : nullptr;
}

const void *LittleArrayKRVImageOptions::GetDefaultDataBlk() {
    return littleArrayIniDataPtr ? &littleArrayIniDataPtr->defaultValue : nullptr;
}

bool LittleArrayKRVImageOptions::SetDefaultValueToUI() {
    if (littleArrayIniDataPtr)
        lastValue = littleArrayIniDataPtr->defaultValue;
    return true;
}

void PPDLittleArrayControlKRVImageOptions::PPDLittleArrayControl(
    StepperView *view, LittleArrayIniData *iniData, const char *ppdKey,
    const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access, const QString &user) {
    LittleArrayControl(view, iniData, constrain, access, user, QString());
    m_ppd = PpdBinding{.kPPDMainKey = ppdKey};
    lastValue = 0;
}

bool PPDLittleArrayControlKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    if (!LittleArrayKRVImageOptions::InitializeCtrl(bundle, ppd))
        return false;
    m_ppd.rebuild(ppd, ctrlParentPanelPtr);
    if (m_ppd.rowCount() > 0) {
        if (littleArrayIniDataPtr)
            littleArrayIniDataPtr->defaultValue = leadingInteger(m_ppd.defaultChoice(ppd));
        m_ppd.takeTitle(ppd);
    }
    bindOption(ppd, m_ppd.kPPDMainKey);
    return true;
}

bool PPDLittleArrayControlKRVImageOptions::GetValueToPreset() {
    if (!ctrlDataBlkPtr || m_ppd.presetIndex(m_ptPPDOptions, ctrlParentPanelPtr) < 0)
        return false;
    ctrlDataBlkPtr->setWord(0);
    const QString marked = m_ppd.markedChoice(ctrlParentPanelPtr);
    if (marked.isNull())
        return true;
    if (!tellHost(m_ppd.kPPDMainKey, marked))
        return false;
    lastValue = leadingInteger(marked);
    ctrlDataBlkPtr->setWord(lastValue);
    return true;
}

int32_t PPDLittleArrayControlKRVImageOptions::Open() {
    if (PpdBinding::currentPpd(ctrlParentPanelPtr)) {
        GetValueToPreset();
        LittleArrayKRVImageOptions::SetControlValueToUI();
    }
    return 0;
}

int32_t PPDLittleArrayControlKRVImageOptions::GetSummaryText(QVariantMap *summary,
                                                             QStringList *orderArray) {
    if (!ToGetSummaryText() || !ctrlDataBlkPtr)
        return 0;
    for (const ChoiceRow &row : m_ppd.ctrlPPDInfoArrayRef)
        if (leadingInteger(row.choice) == ctrlDataBlkPtr->word()) {
            m_ppd.addSummaryRow(cutToBytes(row.label, kSummaryTextBytes), summary, orderArray,
                                kSummaryTextBytes);
            break;
        }
    return 0;
}

void PPDLittleArrayControlKRVImageOptions::RequestControlAction() {
    if (!stepper())
        return;
    const int32_t value = stepper()->intValue();
    if (value == lastValue) {
        views::beep();
        return;
    }
    UIEventHandler();
    lastValue = value;
}

bool GBasePPDLittleArrowKRV::SetValueToTicket(PMPrintSettings, bool) {
    if (!isCommittedInRange())
        return false;
    const int64_t index = int64_t{littleArrayIniDataPtr->maxValue} - ctrlDataBlkPtr->word();
    return tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_paPPDChoices.get(), index));
}

bool GLittleArrayControlKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    const bool result = GBasePPDLittleArrowKRV::InitializeCtrl(bundle, ppd);
    CPPDChecker::Instance()->AddCheck(m_ppd.kPPDMainKey, m_ppd.rowCount() > 0);
    return result;
}

int32_t GLittleArrayControlKRV::DoControlUpdateConstrain() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->updateTable : nullptr;
    const CtrlTagList row = table ? table->row(GetCurrentControlArrayNumber()) : nullptr;
    if (row && *row && ctrlParentPanelPtr && stepper()) {
        auto *field = dynamic_cast<GTextEditCtrlKRV *>(ctrlParentPanelPtr->GetPanelControl(*row));
        if (field && field->GetEditMaxLength() > 0) {
            std::array<char, 24> text{};
            const int length = std::snprintf(text.data(), text.size(), "%d", stepper()->intValue());
            field->SetExternalValueToUI(text.data(), static_cast<uint32_t>(length));
        }
    }
    return GBasePPDLittleArrowKRV::DoControlUpdateConstrain();
}

bool GLittleArrayControlKRV::SetDefaultValueToUI() {
    return BaseControlKRVImageOptions::SetDefaultValueToUI();
}

bool GLittleArrayControlKRV::ToGetSummaryText() {
    const ControlPanel *main = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetParentWnd() : nullptr;
    return main && main->IsColorBalanceAdjustmentAvailable() && main->IsColorModeAvailable();
}

bool GBlackLittleArrayControlKRV::ToGetSummaryText() {
    const ControlPanel *main = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetParentWnd() : nullptr;
    return main && main->IsColorBalanceAdjustmentAvailable();
}
