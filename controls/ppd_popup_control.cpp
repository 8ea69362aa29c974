// The list whose menu is one PPD option, and how its value reaches the host.

#include "controls/popup_family.h"
#include "controls/value_text.h"
#include "platform/views/popup_view.h"
#include "ppd/conflicts.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"

namespace {

/// Menu texts pass through a buffer of 100 bytes.
constexpr int kMenuTextBytes = 99;

} // namespace

void PPDPopupControlKRVImageOptions::CreateControl(PopupView *view, const char *ppdKey,
                                                   PopupIniData *iniData,
                                                   const CtrlConstrainInfo *constrain,
                                                   const CtrlAccessInfo *access,
                                                   const QString &user, CtrlTag titleControl) {
    PopupControlKRVImageOptions::CreateControl(view, iniData, constrain, access, user);
    kPPDMainKey = ppdKey;
    ctrlIDTitleExPtr = titleControl;
}

void PPDPopupControlKRVImageOptions::rebuildRows(ppd_file_t *ppd) {
    ctrlPPDInfoArrayRef.emplace();
    const hash_multimap *table = ctrlParentPanelPtr ? ctrlParentPanelPtr->Getxppd() : nullptr;
    if (ppd && table && kPPDMainKey)
        InitializeValueFromPPD(ppd, table, &*ctrlPPDInfoArrayRef, kPPDMainKey);
}

int32_t PPDPopupControlKRVImageOptions::rowCount() const {
    return ctrlPPDInfoArrayRef ? static_cast<uint16_t>(ctrlPPDInfoArrayRef->size()) : 0;
}

bool PPDPopupControlKRVImageOptions::InitializeMenu(const Bundle *, ppd_file_t *ppd) {
    rebuildRows(ppd);
    if (!ppd || !kPPDMainKey || !ctrlParentPanelPtr || !ctrlParentPanelPtr->Getxppd())
        return false;
    ReInitializeMenu();
    if (popup())
        popup()->selectItemAtIndex(0);
    if (rowCount() > 0) {
        QString defaultChoice;
        GetUIDefaultFromPPD(ppd, kPPDMainKey, defaultChoice);
        int32_t value = 0;
        if (GetDefaultValueFromPPD(defaultChoice, &value) && value > 0) {
            if (popup())
                popup()->selectItemAtIndex(0);
            if (listctrlIniDataPtr)
                listctrlIniDataPtr->defaultValue = static_cast<uint32_t>(value);
        }
        GetUITitleFromPPD(ppd, kPPDMainKey, titleTextRef);
        SetTitleWithCFStringEx(titleTextRef);
    }
    bindOption(ppd, kPPDMainKey);
    return true;
}

void PPDPopupControlKRVImageOptions::ReInitializeMenu() {
    PopupView *menu = popup();
    if (!menu || rowCount() < 1)
        return;
    menu->removeAllItems();
    for (int32_t i = 0; i < rowCount(); ++i) {
        const ChoiceRow &row = (*ctrlPPDInfoArrayRef)[i];
        menu->addItemWithTitle(cutToBytes(row.label, kMenuTextBytes));
        menu->setItemRepresentedObject(menu->numberOfItems() - 1,
                                       cutToBytes(row.choice, kMenuTextBytes));
    }
}

bool PPDPopupControlKRVImageOptions::SetValueToTicket(PMPrintSettings, bool) {
    return true;
}

bool PPDPopupControlKRVImageOptions::BaseSetValueToTicket(PMPrintSettings settings,
                                                          bool withParam) {
    return BaseControlKRVImageOptions::SetValueToTicket(settings, withParam);
}

BaseControlKRVImageOptions *PPDPopupControlKRVImageOptions::titleControl() const {
    return ctrlIDTitleExPtr && ctrlParentPanelPtr
               ? ctrlParentPanelPtr->GetPanelControl(ctrlIDTitleExPtr)
               : nullptr;
}

void PPDPopupControlKRVImageOptions::SetTitleWithCFStringEx(const QString &title) {
    BaseControlKRVImageOptions *control = titleControl();
    if (control && !title.isNull()) {
        const QByteArray text = titleTextRef.toUtf8() + ':';
        control->SetExternalValueToUI(text.constData(), static_cast<uint32_t>(text.size()));
    }
}

void PPDPopupControlKRVImageOptions::HideTitleCtrl() {
    if (BaseControlKRVImageOptions *control = titleControl())
        views::setHidden(control->GetControlPtr(), true);
}

bool PPDPopupControlKRVImageOptions::ReInitializeCtrl(const Bundle *, ppd_file_t *) {
    ReInitializeMenu();
    return true;
}

bool PPDPopupControlKRVImageOptions::ToGetSummaryText() {
    return ctrlConstrainCount <= 0 && ctrlHideCount <= 0;
}

int32_t PPDPopupControlKRVImageOptions::committedRow() {
    if (!ctrlDataBlkPtr || !ctrlPPDInfoArrayRef)
        return -1;
    const int32_t item = ctrlDataBlkPtr->word() - 1;
    const int32_t row = GetIndexByControl(&item);
    return row < static_cast<int32_t>(ctrlPPDInfoArrayRef->size()) ? row : -1;
}

void PPDPopupControlKRVImageOptions::addSummaryRow(const QString &text, QVariantMap *summary,
                                                   QStringList *orderArray) const {
    if (text.isNull() || titleTextRef.isNull())
        return;
    summary->insert(titleTextRef, text);
    orderArray->append(titleTextRef);
}

int32_t PPDPopupControlKRVImageOptions::GetSummaryText(QVariantMap *summary,
                                                       QStringList *orderArray) {
    if (!ToGetSummaryText() || !summary || !orderArray)
        return 0;
    if (const int32_t row = committedRow(); row >= 0)
        addSummaryRow((*ctrlPPDInfoArrayRef)[row].label, summary, orderArray);
    return 0;
}

bool PPDPopupControlKRVImageOptions::UIEventHandler() {
    if (ppd_file_t *ppd = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetCurrentPPD() : nullptr) {
        if (!SetPPD(ppd)) {
            if (popup())
                popup()->selectItemAtIndex(popup()->itemBeforeAct());
            return true;
        }
        ctrlParentPanelPtr->UpdateConflictsPanelControlFromPPD(ppd);
        valueDidChange = true;
    }
    return PopupControlKRVImageOptions::UIEventHandler();
}

bool PPDPopupControlKRVImageOptions::SetDefaultValueToUI() {
    if (!PopupControlKRVImageOptions::SetDefaultValueToUI() || !ctrlParentPanelPtr)
        return false;
    ppd_file_t *ppd = ctrlParentPanelPtr->GetCurrentPPD();
    return !ppd || SetPPD(ppd);
}

bool PPDPopupControlKRVImageOptions::SetControlValueToUI() {
    if (!ctrlDataBlkPtr || !popup())
        return false;
    if (popup()->indexOfSelectedItem() != ctrlDataBlkPtr->word() - 1)
        valueDidChange = true;
    return PopupControlKRVImageOptions::SetControlValueToUI();
}

bool PPDPopupControlKRVImageOptions::GetValueToPreset() {
    if (!ctrlParentPanelPtr || !m_ptPPDOptions || !ctrlPPDInfoArrayRef)
        return false;
    const int32_t index = GetIndexOfMarkedOptionWithKey(
        m_ptPPDOptions, ctrlParentPanelPtr->GetCurrentPPD(), kPPDMainKey);
    if (index < 0 || index > static_cast<int32_t>(ctrlPPDInfoArrayRef->size()))
        return false;
    if (index < m_ptPPDOptions->num_choices &&
        !tellHost(kPPDMainKey, QString::fromUtf8(m_ptPPDOptions->choices[index].choice)))
        return false;
    return ConvertFromPresetIndex(index);
}

bool PPDPopupControlKRVImageOptions::ConvertFromPresetIndex(int32_t index) {
    if (!ctrlDataBlkPtr || !ctrlPPDInfoArrayRef)
        return false;
    const int32_t value = index + 1;
    if (value < 1 || value > static_cast<int32_t>(ctrlPPDInfoArrayRef->size()))
        return false;
    ctrlDataBlkPtr->setWord(value);
    return true;
}

int32_t PPDPopupControlKRVImageOptions::UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) {
    if (!ctrlPPDInfoArrayRef)
        return 0;
    rebuildRows(ppd);
    if (PopupView *menu = popup())
        for (int32_t i = 0; i < std::min<int32_t>(menu->numberOfItems(), rowCount()); ++i)
            menu->setItemEnabled(i, !(*ctrlPPDInfoArrayRef)[i].conflicted());
    return 0;
}

int32_t PPDPopupControlKRVImageOptions::Open() {
    ppd_file_t *ppd = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetCurrentPPD() : nullptr;
    if (!ppd)
        return 0;
    UpdateConflictsPanelControlFromPPD(ppd);
    GetValueToPreset();
    SetControlValueToUI();
    SimulationUIEventHandler();
    return 0;
}

bool PPDPopupControlKRVImageOptions::GetDefaultValueFromPPD(const QString &choice, int32_t *value) {
    *value = 0;
    if (!ctrlPPDInfoArrayRef || choice.isNull())
        return false;
    const int32_t row = GetSFStringArrayIndex(choice);
    if (row < 0)
        return false;
    *value = row + 1;
    return true;
}

bool PPDPopupControlKRVImageOptions::SetPPD(ppd_file_t *ppd) {
    if (!ppd || !kPPDMainKey)
        return false;
    const int32_t item = GetCurrentControlArrayNumber();
    return item < 0 || PPDMarkOptionByIndex(ppd, GetIndexByControl(&item));
}

bool PPDPopupControlKRVImageOptions::RestorePPD(ppd_file_t *ppd) {
    if (!ppd || !kPPDMainKey)
        return false;
    if (!ctrlDataBlkPtr || ctrlDataBlkPtr->word() < 1)
        return true;
    const int32_t item = ctrlDataBlkPtr->word() - 1;
    return PPDMarkOptionByIndex(ppd, GetIndexByControl(&item));
}

bool PPDPopupControlKRVImageOptions::PPDMarkOptionByIndex(ppd_file_t *ppd, int32_t index) {
    if (!ppd || index < 0 || !m_paPPDChoices || m_paPPDChoices->empty())
        return true;
    const auto place = static_cast<size_t>(index);
    return place < m_paPPDChoices->size() &&
           tellHost(kPPDMainKey, (*m_paPPDChoices)[place].ppdTitle());
}

QString PPDPopupControlKRVImageOptions::GetUISelectStr() {
    const int32_t row = committedRow();
    return row >= 0 ? (*ctrlPPDInfoArrayRef)[row].choice : QString();
}

int32_t PPDPopupControlKRVImageOptions::GetIndexByControl(const int32_t *item) const {
    return item ? *item : -1;
}

int32_t PPDPopupControlKRVImageOptions::GetSFStringArrayIndex(const QString &choice) const {
    if (ctrlPPDInfoArrayRef && !choice.isNull())
        for (qsizetype i = 0; i < ctrlPPDInfoArrayRef->size(); ++i)
            if ((*ctrlPPDInfoArrayRef)[i].choice == choice)
                return static_cast<int32_t>(i);
    return -1;
}

int32_t PPDPopupControlKRVImageOptions::GetIndexByStr(const QString &choice) const {
    return GetSFStringArrayIndex(choice);
}

bool GBasePPDPopupListKRV::SetValueToTicket(PMPrintSettings, bool) {
    if (!ctrlDataBlkPtr || !ctrlParentPanelPtr || !m_paPPDChoices || !valueDidChange)
        return false;
    const int32_t index = ctrlDataBlkPtr->word() - 1;
    if (index < 0 || static_cast<size_t>(index) >= m_paPPDChoices->size())
        return false;
    if (!tellHost(kPPDMainKey, (*m_paPPDChoices)[static_cast<size_t>(index)].ppdTitle()))
        return false;
    valueDidChange = false;
    return true;
}

bool GPPDListCtrlKRV::InitializeMenu(const Bundle *bundle, ppd_file_t *ppd) {
    PPDKeyIsExist = ppd && kPPDMainKey && CheckPPDKeyIsExist(ppd, kPPDMainKey);
    if (PPDKeyIsExist) {
        if (m_hiddenForMissingKey) {
            m_hiddenForMissingKey = false;
            views::setHidden(ControlPtr, ctrlHideCount > 0);
            if (BaseControlKRVImageOptions *title = titleControl())
                views::setHidden(title->GetControlPtr(), title->hideCount() > 0);
        }
        if (!PPDPopupControlKRVImageOptions::InitializeMenu(bundle, ppd))
            return false;
    } else {
        // Nothing of a former PPD may go on answering for an option that this one lacks.
        ctrlPPDInfoArrayRef.reset();
        titleTextRef = QString();
        bindOption(nullptr, nullptr);
        if (popup())
            popup()->removeAllItems();
    }
    CPPDChecker::Instance()->AddCheck(kPPDMainKey, rowCount() > 0);
    return true;
}

int32_t GPPDListCtrlKRV::DoSelfUpdate() {
    if (!PPDKeyIsExist) {
        m_hiddenForMissingKey = true;
        views::setHidden(ControlPtr, true);
        HideTitleCtrl();
    }
    return 0;
}

int32_t GPPDListCtrlKRV::Show() {
    if (PPDKeyIsExist)
        return PopupControlKRVImageOptions::Show();
    HideTitleCtrl();
    return 0;
}

int32_t GPPDListCtrlKRV::Hide() {
    if (PPDKeyIsExist)
        return PopupControlKRVImageOptions::Hide();
    HideTitleCtrl();
    return 0;
}
