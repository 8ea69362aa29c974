// The list whose menu is one PPD option, and how its value reaches the host.

#include "controls/popup_family.h"
#include "controls/value_text.h"
#include "platform/bundle.h"
#include "platform/utf8.h"
#include "platform/views/popup_view.h"
#include "ppd/conflicts.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"

namespace {

/// Menu texts pass through a buffer of 100 bytes.
constexpr int kMenuTextBytes = 99;
/// Choices that an explanation names.
constexpr qsizetype kMostCauses = 3;

} // namespace

void PPDPopupControlKRVImageOptions::CreateControl(PopupView *view, const char *ppdKey,
                                                   PopupIniData *iniData,
                                                   const CtrlConstrainInfo *constrain,
                                                   const CtrlAccessInfo *access,
                                                   const QString &user, CtrlTag titleControl) {
    PopupControlKRVImageOptions::CreateControl(view, iniData, constrain, access, user);
    m_ppd = PpdBinding{.kPPDMainKey = ppdKey, .ctrlIDTitleExPtr = titleControl};
}

int32_t PPDPopupControlKRVImageOptions::menuRowCount() const {
    return static_cast<uint16_t>(m_ppd.rowCount());
}

bool PPDPopupControlKRVImageOptions::InitializeMenu(const Bundle *, ppd_file_t *ppd) {
    if (!m_ppd.rebuild(ppd, ctrlParentPanelPtr))
        return false;
    ReInitializeMenu();
    if (popup())
        popup()->selectItemAtIndex(0);
    if (menuRowCount() > 0) {
        int32_t value = 0;
        if (GetDefaultValueFromPPD(m_ppd.defaultChoice(ppd), &value) && value > 0) {
            if (popup())
                popup()->selectItemAtIndex(0);
            if (listctrlIniDataPtr)
                listctrlIniDataPtr->defaultValue = static_cast<uint32_t>(value);
        }
        m_ppd.takeTitle(ppd);
        SetTitleWithCFStringEx(m_ppd.titleTextRef);
    }
    bindOption(ppd, m_ppd.kPPDMainKey);
    return true;
}

void PPDPopupControlKRVImageOptions::ReInitializeMenu() {
    PopupView *menu = popup();
    if (!menu || menuRowCount() < 1)
        return;
    menu->removeAllItems();
    for (const ChoiceRow &row : m_ppd.ctrlPPDInfoArrayRef.first(menuRowCount()))
        addItem(*menu, row);
}

void PPDPopupControlKRVImageOptions::addItem(PopupView &menu, const ChoiceRow &row) {
    menu.addItemWithTitle(cutToBytes(row.label, kMenuTextBytes));
    menu.setItemRepresentedObject(menu.numberOfItems() - 1, cutToBytes(row.choice, kMenuTextBytes));
}

void PPDPopupControlKRVImageOptions::SetTitleWithCFStringEx(const QString &title) {
    if (!title.isNull())
        m_ppd.showTitle(ctrlParentPanelPtr);
}

void PPDPopupControlKRVImageOptions::HideTitleCtrl() {
    if (BaseControlKRVImageOptions *control = m_ppd.titleControl(ctrlParentPanelPtr))
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
    if (!ctrlDataBlkPtr)
        return -1;
    const int32_t item = ctrlDataBlkPtr->word() - 1;
    const int32_t row = GetIndexByControl(&item);
    return row < m_ppd.rowCount() ? row : -1;
}

int32_t PPDPopupControlKRVImageOptions::GetSummaryText(QVariantMap *summary,
                                                       QStringList *orderArray) {
    if (ToGetSummaryText())
        m_ppd.addSummaryRow(m_ppd.label(committedRow()), summary, orderArray);
    return 0;
}

bool PPDPopupControlKRVImageOptions::UIEventHandler() {
    if (ppd_file_t *ppd = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetCurrentPPD() : nullptr) {
        if (!SetPPD(ppd)) {
            if (PopupView *menu = popup()) {
                const int told = ctrlUIDataBlkPtr ? ctrlUIDataBlkPtr->word() - 1 : 0;
                menu->selectItemAtIndex(menu->itemBeforeAct().value_or(std::max(told, 0)));
            }
            return true;
        }
        ctrlParentPanelPtr->UpdateConflictsPanelControlFromPPD(ppd);
        valueDidChange = true;
    }
    return PopupControlKRVImageOptions::UIEventHandler();
}

bool PPDPopupControlKRVImageOptions::GetValueToPreset() {
    const int32_t index = m_ppd.presetIndex(m_ptPPDOptions, ctrlParentPanelPtr);
    if (index < 0)
        return false;
    if (index < m_ptPPDOptions->num_choices &&
        !tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_ptPPDOptions, index)))
        return false;
    return ConvertFromPresetIndex(index);
}

bool PPDPopupControlKRVImageOptions::ConvertFromPresetIndex(int32_t index) {
    const int32_t value = index + 1;
    if (!ctrlDataBlkPtr || value < 1 || value > m_ppd.rowCount())
        return false;
    ctrlDataBlkPtr->setWord(value);
    return true;
}

int32_t PPDPopupControlKRVImageOptions::UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) {
    if (!m_ppd.hasRows)
        return 0; // the menu was never made
    m_ppd.rebuild(ppd, ctrlParentPanelPtr);
    if (PopupView *menu = popup())
        for (int32_t i = 0; i < std::min<int32_t>(menu->numberOfItems(), menuRowCount()); ++i)
            menu->setItemEnabled(i, !m_ppd.ctrlPPDInfoArrayRef[i].conflicted());
    return 0;
}

void PPDPopupControlKRVImageOptions::setTargetandAction() {
    PopupControlKRVImageOptions::setTargetandAction();
    if (PopupView *menu = popup())
        menu->setExplainer([this](int item) { return conflictText(item); });
}

QString PPDPopupControlKRVImageOptions::conflictText(int32_t item) const {
    ppd_file_t *ppd = PpdBinding::currentPpd(ctrlParentPanelPtr);
    const int32_t number = GetIndexByControl(&item);
    if (!ppd || number < 0 || number >= m_ppd.rowCount())
        return {};
    const ChoiceRow &row = m_ppd.ctrlPPDInfoArrayRef[number];
    const QList<ForbiddingChoice> causes =
        forbiddingMarks(ppd, ctrlParentPanelPtr->Getxppd(), row.option.toUtf8().constData(),
                        row.choice.toUtf8().constData());
    const auto format = [bundle = ctrlParentPanelPtr->GetPDEBundleRef(), this](const char *key,
                                                                               const char *text) {
        const QString english = QString::fromUtf8(text);
        return bundle ? bundle->localizedString(QString::fromUtf8(key), english, LocalizeTableName)
                      : english;
    };
    if (causes.isEmpty())
        return format("Conflict Past Text", "Available again once another setting is chosen");
    unsigned int encoding;
    GetCFStringEncodingFromPPD(ppd, &encoding);
    const QString list = format("Conflict List Text", "%1, %2");
    const QString pair = format("Conflict Choice Text", "%1: %2");
    QString named;
    for (qsizetype i = 0; i < std::min(causes.size(), kMostCauses + 1); ++i) {
        const auto &[option, choice] = causes[i];
        const QString cause = i == kMostCauses
                                  ? QStringLiteral("…")
                                  : pair.arg(labelOr(option->text, encoding, option->keyword),
                                             labelOr(choice->text, encoding, choice->choice));
        named = named.isNull() ? cause : list.arg(named, cause);
    }
    return format("Conflict Text", "Not available with %1").arg(named);
}

bool PPDPopupControlKRVImageOptions::GetDefaultValueFromPPD(const QString &choice, int32_t *value) {
    *value = 0;
    const int32_t row = GetSFStringArrayIndex(choice);
    if (row < 0)
        return false;
    *value = row + 1;
    return true;
}

bool PPDPopupControlKRVImageOptions::SetPPD(ppd_file_t *ppd) {
    if (!ppd || !m_ppd.kPPDMainKey)
        return false;
    const int32_t item = GetCurrentControlArrayNumber();
    return item < 0 || PPDMarkOptionByIndex(ppd, GetIndexByControl(&item));
}

bool PPDPopupControlKRVImageOptions::RestorePPD(ppd_file_t *ppd) {
    if (!ppd || !m_ppd.kPPDMainKey)
        return false;
    if (!ctrlDataBlkPtr || ctrlDataBlkPtr->word() < 1)
        return true;
    const int32_t item = ctrlDataBlkPtr->word() - 1;
    return PPDMarkOptionByIndex(ppd, GetIndexByControl(&item));
}

bool PPDPopupControlKRVImageOptions::PPDMarkOptionByIndex(ppd_file_t *ppd, int32_t index) {
    if (!ppd || index < 0 || !m_paPPDChoices || m_paPPDChoices->empty())
        return true;
    return tellHost(m_ppd.kPPDMainKey, PpdBinding::choiceAt(m_paPPDChoices.get(), index));
}

QString PPDPopupControlKRVImageOptions::GetUISelectStr() {
    const int32_t row = committedRow();
    return row >= 0 ? m_ppd.ctrlPPDInfoArrayRef[row].choice : QString();
}

int32_t PPDPopupControlKRVImageOptions::GetIndexByControl(const int32_t *item) const {
    return item ? *item : -1;
}

int32_t PPDPopupControlKRVImageOptions::GetSFStringArrayIndex(const QString &choice) const {
    return m_ppd.find(choice);
}

int32_t PPDPopupControlKRVImageOptions::GetIndexByStr(const QString &choice) const {
    return GetSFStringArrayIndex(choice);
}

bool GBasePPDPopupListKRV::SetValueToTicket(PMPrintSettings, bool) {
    return ctrlDataBlkPtr && sendChangedChoice(int64_t{ctrlDataBlkPtr->word()} - 1);
}

bool GPPDListCtrlKRV::InitializeMenu(const Bundle *bundle, ppd_file_t *ppd) {
    PPDKeyIsExist = ppd && m_ppd.kPPDMainKey && CheckPPDKeyIsExist(ppd, m_ppd.kPPDMainKey);
    if (PPDKeyIsExist) {
        if (m_hiddenForMissingKey) {
            m_hiddenForMissingKey = false;
            views::setHidden(ControlPtr, ctrlHideCount > 0);
            if (BaseControlKRVImageOptions *title = m_ppd.titleControl(ctrlParentPanelPtr))
                views::setHidden(title->GetControlPtr(), title->hideCount() > 0);
        }
        if (!PPDPopupControlKRVImageOptions::InitializeMenu(bundle, ppd))
            return false;
    } else {
        // Nothing of a former PPD may go on answering for an option that this one lacks.
        m_ppd.ctrlPPDInfoArrayRef.clear();
        m_ppd.titleTextRef = QString();
        bindOption(nullptr, nullptr);
        if (popup())
            popup()->removeAllItems();
    }
    CPPDChecker::Instance()->AddCheck(m_ppd.kPPDMainKey, m_ppd.rowCount() > 0);
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
