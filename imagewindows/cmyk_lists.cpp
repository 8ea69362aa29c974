#include "imagewindows/cmyk_lists.h"

#include "ppd/ppd_keys.h"

const CtrlTag cmykcolorcorrectionConstrain[] = {
    &targetpaperIAPopupButtonTag,
    &targetpaperSTextCtrlTag,
    nullptr,
};

bool CMYKCorrectionListCtrlIAKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    const bool initialized = GPPDListCtrlKRV::InitializeCtrl(bundle, ppd);
    if (ctrlConstrainControlArray != &m_constrain)
        m_given = ctrlConstrainControlArray;
    if (!m_given || !m_given->disableTable)
        return false;
    m_rows.clear();
    for (int32_t i = 0; i < m_ppd.rowCount(); ++i)
        m_rows.push_back(m_given->disableTable->row(i));
    if (const int32_t none = GetIndexByStr(kNoneChoice); none >= 0 && none < m_ppd.rowCount())
        m_rows[static_cast<size_t>(none)] = cmykcolorcorrectionConstrain;
    m_table.rows = m_rows;
    m_constrain = *m_given;
    m_constrain.disableTable = &m_table;
    ctrlConstrainControlArray = &m_constrain;
    return initialized;
}

PPDPopupControlKRVImageOptions *
CMYKCorrectionListCtrlIAKRV::mainList(const ControlPanel &panel) const {
    return panel.getcmykccPopupList();
}

bool CMYKTargetMediaListCtrlIAKRV::ToGetSummaryText() {
    const ControlPanel *panel = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetParentWnd() : nullptr;
    if (ctrlHideCount > 0 || !panel || !panel->IsAdvancedSettingAvailable())
        return false;
    PPDPopupControlKRVImageOptions *list = panel->getcmykccPopupList();
    const QString choice = list ? list->GetUISelectStr() : QString();
    return !choice.isNull() && choice != kNoneChoice;
}
