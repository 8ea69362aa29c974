#include "imagewindows/rgb_correction_list.h"

#include "platform/views/popup_view.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"

#include <algorithm>

namespace {

const QString kPerceptual = QStringLiteral("Perceptual");

} // namespace

void RGBCorrectionRowList::ReInitializeMenu() {
    PopupView *menu = popup();
    if (!menu)
        return;
    menu->removeAllItems();
    const int32_t none = GetSFStringArrayIndex(kNoneChoice);
    const int32_t withoutItem = std::max(none, 0);
    for (int32_t i = 0; i < menuRowCount(); ++i) {
        const ChoiceRow &row = m_ppd.ctrlPPDInfoArrayRef[i];
        int32_t item = -1;
        if (i != withoutItem) {
            item = menu->numberOfItems();
            addItem(*menu, row);
        }
        if (row.conflicted())
            menu->setItemEnabled(conflictItem(i, item), false);
    }
    // The item at the place of "None" is that of the row behind it, whatever row "Perceptual" is.
    if (GetSFStringArrayIndex(kPerceptual) >= 0) {
        menu->selectItemAtIndex(none);
        if (listctrlIniDataPtr)
            listctrlIniDataPtr->defaultValue = static_cast<uint32_t>(none);
    }
}

int32_t RGBCorrectionRowList::UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) {
    if (!m_ppd.hasRows)
        return 0;
    m_ppd.rebuild(ppd, ctrlParentPanelPtr);
    if (PopupView *menu = popup())
        for (int32_t i = 1; i < menuRowCount() && i <= menu->numberOfItems(); ++i)
            menu->setItemEnabled(i - 1, !m_ppd.ctrlPPDInfoArrayRef[i].conflicted());
    return 0;
}

int32_t RGBCorrectionRowList::GetIndexByControl(const int32_t *item) const {
    return item ? *item + 1 : -1;
}

bool RGBCorrectionRowList::ConvertFromPresetIndex(int32_t index) {
    m_presetIsRow0 = index == 0;
    if (!ctrlDataBlkPtr || index < 1 || index > m_ppd.rowCount())
        return false;
    ctrlDataBlkPtr->setWord(index);
    return true;
}

bool RGBCorrectionRowList::GetValueToPreset() {
    m_presetIsRow0 = false;
    if (GPPDListCtrlKRV::GetValueToPreset())
        return true;
    if (!m_presetIsRow0 || !ctrlDataBlkPtr)
        return false;
    ctrlDataBlkPtr->setWord(0);
    return true;
}

bool RGBCorrectionRowList::GetDefaultValueFromPPD(const QString &choice, int32_t *value) {
    if (!GPPDListCtrlKRV::GetDefaultValueFromPPD(choice, value))
        return false;
    *value -= 1;
    return true;
}

bool RGBCorrectionRowList::RestorePPD(ppd_file_t *ppd) {
    if (!ppd || !m_ppd.kPPDMainKey)
        return false;
    const int32_t row = ctrlDataBlkPtr ? ctrlDataBlkPtr->word() : -1;
    return row < 0 || PPDMarkOptionByIndex(ppd, row);
}

int32_t RGBCorrectionRowList::DoControlUpdateConstrain() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->updateTable ||
        !ctrlUIDataBlkPtr || !ctrlParentPanelPtr)
        return 0;
    const int32_t value = GetCurrentControlArrayNumber() + 1;
    if (value == 0 || value == ctrlUIDataBlkPtr->word())
        return 0;
    CtrlTagList tags = ctrlConstrainControlArray->updateTable->row(0);
    for (; tags && *tags; ++tags)
        if (BaseControlKRVImageOptions *control = ctrlParentPanelPtr->GetPanelControl(*tags))
            control->Update();
    return 0;
}

int32_t RGBCorrectionListCtrlKRV::conflictItem(int32_t, int32_t item) const {
    return item;
}

bool RGBCorrectionListCtrlKRV::SetValueToTicket(PMPrintSettings, bool) {
    if (!ctrlDataBlkPtr || !ctrlParentPanelPtr || !m_paPPDChoices)
        return false;
    // A view that the host has destroyed shows nothing any more; the committed value stands.
    int32_t value = popup() ? GetCurrentControlArrayNumber() + 1 : ctrlDataBlkPtr->word();
    if (ctrlParentPanelPtr->isPrinting() && (!ctrlParentPanelPtr->IsAdvancedSettingAvailable() ||
                                             !ctrlParentPanelPtr->IsColorModeAvailable())) {
        const int32_t none = GetSFStringArrayIndex(kNoneChoice);
        if (!PpdBinding::choiceAt(m_paPPDChoices.get(), none).isNull())
            value = none;
    }
    return tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_paPPDChoices.get(), value));
}

int32_t RGBCorrectionListCtrlIAKRV::conflictItem(int32_t row, int32_t) const {
    return row - 1;
}

PPDPopupControlKRVImageOptions *
RGBCorrectionListCtrlIAKRV::mainList(const ControlPanel &panel) const {
    return panel.getrgbccPopupList();
}
