#include "controls/base_control.h"

#include "controls/value_text.h"
#include "platform/bundle.h"
#include "platform/pde/pde_plugin_callback.h"
#include "platform/preferences.h"
#include "platform/views/view.h"
#include "ppd/ppd_query.h"
#include "services/bundle_identity.h"

const QString kControlUserCurrent = preferences::kCFPreferencesCurrentUser;

BaseControlKRVImageOptions::BaseControlKRVImageOptions() = default;

BaseControlKRVImageOptions::~BaseControlKRVImageOptions() {
    SetControlPtr(nullptr);
}

void BaseControlKRVImageOptions::CreateControl(QWidget *view) {
    SetControlPtr(view);
    ctrlInWhichGroup = -1;
    ctrlConstrainCount = 0;
    ctrlHideCount = 0;
    ctrlDataSize = 0;
    ctrlDataBlkPtr.reset();
    ctrlUIDataBlkPtr.reset();
    ctrlConstrainControlArray = nullptr;
    ctrlDataAccessInfoPtr = nullptr;
    m_paPPDChoices.reset();
    m_ptPPDOptions = nullptr;
    LocalizeTableName = QString();
    valueDidChange = false;
}

void BaseControlKRVImageOptions::setRecords(const CtrlConstrainInfo *constrain,
                                            const CtrlAccessInfo *access, const QString &user) {
    ctrlConstrainControlArray = constrain;
    ctrlDataAccessInfoPtr = access;
    if (!user.isNull())
        userNameinPreference = user;
}

void BaseControlKRVImageOptions::SetControlPtr(QWidget *view) {
    // The former view must not call a control that it has lost.
    auto *former = dynamic_cast<views::ActionSource *>(ControlPtr.data());
    if (former && ControlPtr != view)
        former->dropAction();
    ControlPtr = view;
    m_viewTag.reset();
}

int BaseControlKRVImageOptions::viewTag() const {
    if (!ControlPtr)
        return 0;
    if (!m_viewTag)
        m_viewTag = views::tag(ControlPtr);
    return *m_viewTag;
}

void BaseControlKRVImageOptions::SetParenetPanel(ControlPanel *panel) {
    ctrlParentPanelPtr = panel;
}

int32_t BaseControlKRVImageOptions::Open() {
    return 0;
}
int32_t BaseControlKRVImageOptions::Close() {
    return 0;
}

void BaseControlKRVImageOptions::setTargetandAction() {
    if (auto *source = dynamic_cast<views::ActionSource *>(ControlPtr.data()))
        source->setAction([this] { RequestControlAction(); });
}

bool BaseControlKRVImageOptions::InitializeCtrl(const Bundle *, ppd_file_t *) {
    if (ctrlParentPanelPtr)
        LocalizeTableName = ctrlParentPanelPtr->localizeTableName();
    return true;
}

bool BaseControlKRVImageOptions::ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    return InitializeCtrl(bundle, ppd);
}

int32_t BaseControlKRVImageOptions::ConstrainPanelControlFromPPD(ppd_file_t *) {
    return 0;
}
int32_t BaseControlKRVImageOptions::UpdateConflictsPanelControlFromPPD(ppd_file_t *) {
    return 0;
}
CtrlDataBlk *BaseControlKRVImageOptions::GetValueFromUI() {
    return nullptr;
}
bool BaseControlKRVImageOptions::GetValueToPreset() {
    return false;
}
CtrlDataBlk *BaseControlKRVImageOptions::GetValueFromControl() {
    return nullptr;
}
bool BaseControlKRVImageOptions::InvalidateData() {
    return true;
}
bool BaseControlKRVImageOptions::InvalidateDataAndReturnError() {
    return true;
}
bool BaseControlKRVImageOptions::InvalidateDataOnCancel() {
    return true;
}
bool BaseControlKRVImageOptions::PreInvalidateData() {
    return true;
}
bool BaseControlKRVImageOptions::PreInvalidateDataOnCancel() {
    return true;
}

bool BaseControlKRVImageOptions::InvalidateDataOnPrintCommand() {
    return PreInvalidateData() && InvalidateData();
}

void BaseControlKRVImageOptions::SetValueFromUIToControl() {
    if (ctrlDataBlkPtr && ctrlUIDataBlkPtr && ctrlDataSize != 0)
        ctrlDataBlkPtr->copyFrom(ctrlUIDataBlkPtr->bytes(), ctrlDataSize);
}

bool BaseControlKRVImageOptions::SetControlValueToUI() {
    return true;
}

bool BaseControlKRVImageOptions::SetUIValueToIniData() {
    const void *initial = GetIniDataBlk();
    const uint32_t size = GetIniDataSize();
    if (ctrlUIDataBlkPtr && initial && size != 0) {
        ctrlUIDataBlkPtr->copyFrom(initial, size);
        ctrlDataSize = size;
    }
    return true;
}

bool BaseControlKRVImageOptions::SetControlValueToDefault() {
    const void *value = GetDefaultDataBlk();
    const uint32_t size = GetDefaultDataSize();
    if (ctrlDataBlkPtr && value) {
        ctrlDataBlkPtr->copyFrom(value, size);
        ctrlDataSize = size;
    }
    return true;
}

int32_t BaseControlKRVImageOptions::GetSummaryText(QVariantMap *, QStringList *) {
    return 0;
}

bool BaseControlKRVImageOptions::UIEventHandler() {
    return runConstraintSteps();
}
bool BaseControlKRVImageOptions::SimulationUIEventHandler() {
    return runConstraintSteps();
}

bool BaseControlKRVImageOptions::runConstraintSteps() {
    DoControlUpdateConstrain();
    DoSelfUpdate();
    DoControlHideConstrain();
    DoControlConstrain();
    return true;
}

int32_t BaseControlKRVImageOptions::DoControlUpdateConstrain() {
    if (ctrlConstrainControlArray && ctrlConstrainControlArray->updateTable)
        forEachControl(ctrlConstrainControlArray->updateTable->row(GetCurrentControlArrayNumber()),
                       &BaseControlKRVImageOptions::Update);
    return 0;
}

int32_t BaseControlKRVImageOptions::DoSelfUpdate() {
    return 0;
}
int32_t BaseControlKRVImageOptions::DoControlHideConstrain() {
    return 0;
}
int32_t BaseControlKRVImageOptions::DoControlConstrain() {
    return 0;
}

void BaseControlKRVImageOptions::forEachControl(CtrlTagList tags,
                                                int32_t (BaseControlKRVImageOptions::*call)()) {
    if (!tags || !ctrlParentPanelPtr)
        return;
    for (; *tags; ++tags)
        if (BaseControlKRVImageOptions *control = ctrlParentPanelPtr->GetPanelControl(*tags))
            (control->*call)();
}

void BaseControlKRVImageOptions::HideControlConstrains(CtrlTagList tags) {
    forEachControl(tags, &BaseControlKRVImageOptions::Hide);
}

void BaseControlKRVImageOptions::ShowControlConstrains(CtrlTagList tags) {
    forEachControl(tags, &BaseControlKRVImageOptions::Show);
}

void BaseControlKRVImageOptions::DisableControlConstrains(CtrlTagList tags) {
    forEachControl(tags, &BaseControlKRVImageOptions::Disable);
}

void BaseControlKRVImageOptions::EnableControlConstrains(CtrlTagList tags) {
    forEachControl(tags, &BaseControlKRVImageOptions::Enable);
}

namespace {

CtrlTagList currentRow(const CtrlConstrainTable *table, int32_t index) {
    return table ? table->row(index) : nullptr;
}

} // namespace

void BaseControlKRVImageOptions::HideControlConstrains() {
    if (ctrlConstrainControlArray)
        HideControlConstrains(
            currentRow(ctrlConstrainControlArray->hideTable, GetCurrentControlArrayNumber()));
}

void BaseControlKRVImageOptions::ShowControlConstrains() {
    if (ctrlConstrainControlArray)
        ShowControlConstrains(
            currentRow(ctrlConstrainControlArray->hideTable, GetCurrentControlArrayNumber()));
}

void BaseControlKRVImageOptions::DisableControlConstrains() {
    if (ctrlConstrainControlArray)
        DisableControlConstrains(
            currentRow(ctrlConstrainControlArray->disableTable, GetCurrentControlArrayNumber()));
}

void BaseControlKRVImageOptions::EnableControlConstrains() {
    if (ctrlConstrainControlArray)
        EnableControlConstrains(
            currentRow(ctrlConstrainControlArray->disableTable, GetCurrentControlArrayNumber()));
}

bool BaseControlKRVImageOptions::SetControlData(const void *) {
    return true;
}
bool BaseControlKRVImageOptions::SetExternalValueToUI(const void *, uint32_t) {
    return true;
}

bool BaseControlKRVImageOptions::setExternalValueToData(const void *value, uint32_t size,
                                                        int32_t valueType) {
    if (!ctrlDataBlkPtr || !value)
        return true;
    if (valueType == kValueTypeInteger) {
        int32_t number;
        std::memcpy(&number, value, sizeof number);
        ctrlDataBlkPtr->setWord(number);
    } else if (valueType == kValueTypeText) {
        ctrlDataBlkPtr->clear();
        ctrlDataBlkPtr->copyFrom(value, size);
    }
    return true;
}

bool BaseControlKRVImageOptions::SetDefaultValueToUI() {
    const void *value = GetDefaultDataBlk();
    if (ctrlDataBlkPtr && value)
        SetExternalValueToUI(value, GetDefaultDataSize());
    return true;
}

const void *BaseControlKRVImageOptions::GetDefaultDataBlk() {
    return nullptr;
}
uint32_t BaseControlKRVImageOptions::GetDefaultDataSize() {
    return 0;
}
const void *BaseControlKRVImageOptions::GetIniDataBlk() {
    return nullptr;
}
uint32_t BaseControlKRVImageOptions::GetIniDataSize() {
    return 0;
}

int32_t BaseControlKRVImageOptions::Disable() {
    ctrlConstrainCount += 1;
    if (ctrlConstrainCount >= 1 && views::isEnabled(ControlPtr))
        views::setEnabled(ControlPtr, false);
    return 0;
}

int32_t BaseControlKRVImageOptions::Enable() {
    ctrlConstrainCount -= 1;
    if (ctrlConstrainCount <= 0 && ControlPtr && !views::isEnabled(ControlPtr))
        views::setEnabled(ControlPtr, true);
    return 0;
}

int32_t BaseControlKRVImageOptions::Hide() {
    ctrlHideCount += 1;
    if (ctrlHideCount >= 1)
        views::setHidden(ControlPtr, true);
    return 0;
}

int32_t BaseControlKRVImageOptions::Show() {
    ctrlHideCount -= 1;
    if (ctrlHideCount <= 0)
        views::setHidden(ControlPtr, false);
    return 0;
}

void BaseControlKRVImageOptions::PPDCtrlShow() {
    views::setHidden(ControlPtr, false);
}
void BaseControlKRVImageOptions::PPDCtrlHide() {
    views::setHidden(ControlPtr, true);
}

int32_t BaseControlKRVImageOptions::ResetStatus() {
    ctrlConstrainCount = 0;
    ctrlHideCount = 0;
    if (!ControlPtr)
        return 0;
    if (!views::isEnabled(ControlPtr))
        views::setEnabled(ControlPtr, true);
    if (views::isHidden(ControlPtr))
        views::setHidden(ControlPtr, false);
    return 0;
}

void BaseControlKRVImageOptions::releaseHolds() {
    if (ctrlConstrainCount > 0)
        views::setEnabled(ControlPtr, true);
    if (ctrlHideCount > 0)
        views::setHidden(ControlPtr, false);
    ctrlConstrainCount = 0;
    ctrlHideCount = 0;
}

int32_t BaseControlKRVImageOptions::Update() {
    return 0;
}
int32_t BaseControlKRVImageOptions::GetCurrentControlArrayNumber() {
    return 0;
}
bool BaseControlKRVImageOptions::IsOutputNullToTicket() {
    return false;
}

void BaseControlKRVImageOptions::RequestControlAction() {
    UIEventHandler();
    GetValueFromUI();
}

void BaseControlKRVImageOptions::allocateBlocks(uint32_t size) {
    ctrlDataBlkPtr = std::make_unique<CtrlDataBlk>(size);
    ctrlUIDataBlkPtr = std::make_unique<CtrlDataBlk>(size);
    ctrlDataSize = size;
}

QString BaseControlKRVImageOptions::localized(const Bundle *bundle, const char *key) const {
    return bundle && key
               ? bundle->localizedString(QString::fromUtf8(key), kNoTranslation, LocalizeTableName)
               : kNoTranslation;
}

std::optional<int32_t> BaseControlKRVImageOptions::presetNumber() const {
    if (!ctrlParentPanelPtr || !ctrlDataAccessInfoPtr || !ctrlDataAccessInfoPtr->ticketKey)
        return std::nullopt;
    QString value;
    if (PMPrintSettingsGetValue(ctrlParentPanelPtr->GetCurrentPMPrintSettings(),
                                QString::fromUtf8(ctrlDataAccessInfoPtr->ticketKey),
                                &value) != kPMNoError)
        return std::nullopt;
    return leadingInteger(value);
}

bool BaseControlKRVImageOptions::tellHost(const char *option, const QString &choice) const {
    PDEPluginCallback *host =
        ctrlParentPanelPtr ? ctrlParentPanelPtr->GetCurrentPDECallbackObj() : nullptr;
    return host && option && !choice.isNull() &&
           host->willChangePPDOptionKeyValue(QString::fromUtf8(option), choice);
}

void BaseControlKRVImageOptions::bindOption(ppd_file_t *ppd, const char *key) {
    m_ptPPDOptions = ppd && key ? ppdFindOption(ppd, key) : nullptr;
    m_paPPDChoices = ArrayFromPPDOption(m_ptPPDOptions);
}
