#include "controls/check_box_family.h"

#include "controls/value_text.h"
#include "platform/utf8.h"
#include "platform/views/check_box_view.h"
#include "ppd/product_type.h"

#include <algorithm>

namespace {

const QString kChoiceTrue = QStringLiteral("True");
const QString kChoiceFalse = QStringLiteral("False");

} // namespace

void CheckBoxKRVImageOptions::CheckBox(CheckBoxView *view, CheckBoxIniData *iniData,
                                       const CtrlConstrainInfo *constrain,
                                       const CtrlAccessInfo *access, const QString &user) {
    CreateControl(view);
    setRecords(constrain, access, user);
    checkboxctrlIniDataPtr = iniData;
    ctrlDataSize = CtrlDataBlk::kWordSize;
}

CheckBoxView *CheckBoxKRVImageOptions::box() const {
    return qobject_cast<CheckBoxView *>(ControlPtr.data());
}

std::optional<int32_t> CheckBoxKRVImageOptions::shownValue() const {
    const CheckBoxView *view = box();
    return view ? std::optional(view->intValue()) : std::nullopt;
}

void CheckBoxKRVImageOptions::showValue(int32_t value) {
    if (CheckBoxView *view = box())
        view->setIntValue(value);
}

bool CheckBoxKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!checkboxctrlIniDataPtr)
        return true;
    if (!bundle)
        return false;
    if (CheckBoxView *view = box())
        view->setTitle(localized(bundle, checkboxctrlIniDataPtr->titleKey));
    return true;
}

const void *CheckBoxKRVImageOptions::GetDefaultDataBlk() {
    return checkboxctrlIniDataPtr ? &checkboxctrlIniDataPtr->defaultValue : nullptr;
}

const void *CheckBoxKRVImageOptions::GetIniDataBlk() {
    return checkboxctrlIniDataPtr ? &checkboxctrlIniDataPtr->iniValue : nullptr;
}

int32_t CheckBoxKRVImageOptions::DoControlUpdateConstrain() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->updateTable || !ctrlUIDataBlkPtr)
        return 0;
    TwoStateControl::DoControlUpdateConstrain();
    return 1;
}

bool CheckBoxKRVImageOptions::SimulationUIEventHandler() {
    BaseControlKRVImageOptions::SimulationUIEventHandler();
    GetValueFromUI();
    return true;
}

void PPDCheckBoxKRVImageOptions::PPDCheckBox(CheckBoxView *view, const char *ppdKey,
                                             CheckBoxIniData *iniData,
                                             const CtrlConstrainInfo *constrain,
                                             const CtrlAccessInfo *access, const QString &user) {
    CheckBox(view, iniData, constrain, access, user);
    m_ppd = PpdBinding{.kPPDMainKey = ppdKey};
}

bool PPDCheckBoxKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    m_ppd.takeTitle(ppd);
    const bool titled = InitializeTitle(bundle);
    if (m_ppd.rebuild(ppd, ctrlParentPanelPtr)) {
        int32_t value = 0;
        if (GetDefaultValueFromPPD(m_ppd.defaultChoice(ppd), &value) && checkboxctrlIniDataPtr)
            checkboxctrlIniDataPtr->defaultValue = static_cast<uint32_t>(value);
    }
    if (titled) {
        allocateBlocks(CtrlDataBlk::kWordSize);
    } else { // no value of a former PPD may answer for an option that this one lacks
        ctrlDataBlkPtr.reset();
        ctrlUIDataBlkPtr.reset();
        showValue(0);
    }
    bindOption(ppd, m_ppd.kPPDMainKey);
    return true;
}

bool PPDCheckBoxKRVImageOptions::InitializeTitle(const Bundle *) {
    if (m_ppd.titleTextRef.isNull())
        return false;
    if (CheckBoxView *view = box())
        view->setTitle(m_ppd.titleTextRef);
    return true;
}

bool PPDCheckBoxKRVImageOptions::GetDefaultValueFromPPD(const QString &choice, int32_t *value) {
    *value = choice == kChoiceTrue ? 1 : 0;
    return !choice.isNull();
}

int32_t PPDCheckBoxKRVImageOptions::rowOfValue(int32_t value) const {
    const bool falseFirst =
        m_ppd.rowCount() > 0 && m_ppd.ctrlPPDInfoArrayRef[0].choice == kChoiceFalse;
    return (value != 0) == falseFirst ? 1 : 0;
}

bool PPDCheckBoxKRVImageOptions::PPDMarkOptionByIndex(ppd_file_t *, int32_t value) {
    return tellHost(m_ppd.kPPDMainKey,
                    PpdBinding::choiceAt(m_paPPDChoices.get(), rowOfValue(value)));
}

bool PPDCheckBoxKRVImageOptions::RestorePPD(ppd_file_t *ppd) {
    if (!ppd || !m_ppd.kPPDMainKey || !ctrlDataBlkPtr)
        return false;
    const int32_t value = ctrlDataBlkPtr->word();
    return value < 0 || PPDMarkOptionByIndex(ppd, value);
}

bool PPDCheckBoxKRVImageOptions::SetPPD(ppd_file_t *ppd) {
    if (!ppd || !m_ppd.kPPDMainKey)
        return false;
    const CtrlDataBlk *shown = GetValueFromUI();
    return shown && (shown->word() < 0 || PPDMarkOptionByIndex(ppd, shown->word()));
}

// The walks come before the host's answer: those of a refused click stay applied, and its row is
// counted again by the next change. Since SetPPD has stored the new value by then, the view goes
// back only in a class whose SetPPD leaves the UI block alone.
bool PPDCheckBoxKRVImageOptions::UIEventHandler() {
    const bool walked = CheckBoxKRVImageOptions::UIEventHandler();
    ppd_file_t *ppd = PpdBinding::currentPpd(ctrlParentPanelPtr);
    if (!ppd)
        return walked;
    if (SetPPD(ppd)) {
        ctrlParentPanelPtr->UpdateConflictsPanelControlFromPPD(ppd);
        valueDidChange = true;
    } else if (ctrlUIDataBlkPtr) {
        showValue(std::max(ctrlUIDataBlkPtr->word(), 0));
    }
    return walked;
}

bool PPDCheckBoxKRVImageOptions::GetValueToPreset() {
    if (m_ppd.presetIndex(m_ptPPDOptions, ctrlParentPanelPtr) < 0)
        return false;
    const QString marked = m_ppd.markedChoice(ctrlParentPanelPtr);
    if (marked.isNull())
        return true;
    if (!tellHost(m_ppd.kPPDMainKey, marked) || !ctrlDataBlkPtr)
        return false;
    ctrlDataBlkPtr->setWord(marked == kChoiceTrue ? 1 : 0);
    return true;
}

int32_t PPDCheckBoxKRVImageOptions::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    if (!ctrlDataBlkPtr)
        return 0;
    const QString label = m_ppd.label(rowOfValue(ctrlDataBlkPtr->word()));
    m_ppd.addSummaryRow(cutToBytes(label, kSummaryTextBytes), summary, orderArray);
    return 0;
}

// The value is the index here, and the order of the choices plays no part, unlike where the box
// marks the option: a queue that lists "True" first gets the other choice at this point.
bool GBasePPDCheckBoxKRV::SetValueToTicket(PMPrintSettings, bool) {
    return ctrlDataBlkPtr && sendChangedChoice(ctrlDataBlkPtr->word());
}

bool GCheckBoxKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    if (!GBasePPDCheckBoxKRV::InitializeCtrl(bundle, ppd))
        return false;
    return CPPDChecker::Instance()->AddCheck(m_ppd.kPPDMainKey, m_ppd.rowCount() > 0);
}

bool GCheckBoxKRV::SetPPD(ppd_file_t *ppd) {
    const std::optional<int32_t> shown = shownValue();
    return ppd && m_ppd.kPPDMainKey && shown && PPDMarkOptionByIndex(ppd, *shown);
}

bool GCheckBoxExtKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    return GBasePPDCheckBoxKRV::InitializeCtrl(bundle, ppd);
}
