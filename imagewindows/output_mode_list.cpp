#include "imagewindows/output_mode_list.h"

#include "controls/value_text.h"
#include "platform/utf8.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "ppd/resource_names.h"

namespace {

/// The mode's keyword begins behind a prefix of the attribute's value.
constexpr int kMailboxPrefixLength = 4;
constexpr int kMailboxValueBytes = 255;

} // namespace

bool GOutputModeListCtrlKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    MailboxSetValueIndex = 0;
    IsMailBoxKeyExist = false;
    if (!GPPDListCtrlKRV::InitializeCtrl(bundle, ppd))
        return false;
    const ppd_attr_t *attribute = findVendorAttribute(ppd, kQZMailboxSetting);
    if (!attribute)
        return true;
    const QString mode = cutToBytes(QString::fromUtf8(attribute->value).mid(kMailboxPrefixLength),
                                    kMailboxValueBytes);
    MailboxSetValueIndex = 1 + FindPPDKeyPairsMatch(m_ppd.ctrlPPDInfoArrayRef,
                                                    QString::fromUtf8(m_ppd.kPPDMainKey), mode);
    IsMailBoxKeyExist = true;
    return true;
}

bool GOutputModeListCtrlKRV::isForced() const {
    return IsMailBoxKeyExist && ctrlParentPanelPtr && ctrlParentPanelPtr->getPrintTypeMailbox();
}

bool GOutputModeListCtrlKRV::GetValueToPreset() {
    if (!GPPDListCtrlKRV::GetValueToPreset())
        return false;
    if (isForced())
        SetControlValueToPPDMailboxSetValue();
    return true;
}

bool GOutputModeListCtrlKRV::SetControlValueToPPDMailboxSetValue() {
    if (ctrlDataBlkPtr && ctrlDataBlkPtr->word() != MailboxSetValueIndex) {
        ctrlDataBlkPtr->setWord(MailboxSetValueIndex);
        valueDidChange = true;
    }
    return true;
}

bool GOutputModeListCtrlKRV::ToGetSummaryText() {
    return true;
}

void GOutputModeListCtrlKRV::SetValueFromUIToControl() {
    if (!isForced())
        return GPPDListCtrlKRV::SetValueFromUIToControl();
    // Restored defaults are shown and marked, so that the host has lost the mailbox mode.
    if (ctrlUIDataBlkPtr && ctrlUIDataBlkPtr->word() != MailboxSetValueIndex)
        valueDidChange = true;
    SetControlValueToPPDMailboxSetValue();
}

void GOutputModeListCtrlKRV::ResetCFStringEx() {
    if (BaseControlKRVImageOptions *title = m_ppd.titleControl(ctrlParentPanelPtr))
        title->ResetStatus();
}

void GOutputModeListCtrlKRV::DisableCFStringEx() {
    if (BaseControlKRVImageOptions *title = m_ppd.titleControl(ctrlParentPanelPtr))
        title->Disable();
}

int32_t GOutputModeListCtrlKRV::UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) {
    GPPDListCtrlKRV::UpdateConflictsPanelControlFromPPD(ppd);
    if (!IsMailBoxKeyExist)
        return 0;
    ResetStatus();
    ResetCFStringEx();
    if (isForced()) {
        Disable();
        DisableCFStringEx();
    }
    return DoSelfUpdate(); // a list whose option is missing was shown by the reset
}

int32_t GOutputModeListCtrlKRV::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    if (!ToGetSummaryText() || !ctrlDataBlkPtr)
        return 0;
    QString label = m_ppd.label(isForced() ? MailboxSetValueIndex - 1 : committedRow());
    if (label.toUtf8().size() > kSummaryTextBytes)
        label = QLatin1String("");
    m_ppd.addSummaryRow(label, summary, orderArray);
    return 0;
}

bool GOutputModeListCtrlKRV::SetDefaultValueToUI() {
    if (!GPPDListCtrlKRV::SetDefaultValueToUI())
        return false;
    GetValueFromUI();
    return true;
}
