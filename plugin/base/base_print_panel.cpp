// A panel's registries and state.

#include "plugin/base/base_print_panel.h"

#include "platform/pde/pde_plugin_callback.h"
#include "platform/views/view.h"
#include "ppd/ppd_query.h"
#include "ppd/print_session.h"

BasePrintPanelKRVImageOptions::BasePrintPanelKRVImageOptions() = default;

BasePrintPanelKRVImageOptions::~BasePrintPanelKRVImageOptions() {
    leaveParent();
    releaseWindows();
}

void BasePrintPanelKRVImageOptions::leaveParent() {
    if (m_registeredWith && m_registeredWith->fWindowGroupArray)
        m_registeredWith->_parentPane_num_item -=
            static_cast<int32_t>(std::erase(*m_registeredWith->fWindowGroupArray, this));
    m_registeredWith = nullptr;
    pParentPane = nullptr;
}

void BasePrintPanelKRVImageOptions::releaseWindows() {
    if (fWindowGroupArray)
        for (BasePrintPanelKRVImageOptions *window : *fWindowGroupArray) {
            window->endRun();
            window->m_registeredWith = nullptr;
            window->pParentPane = nullptr;
        }
    fWindowGroupArray.reset();
}

void BasePrintPanelKRVImageOptions::clearFields() {
    for (const auto &clearField : m_fields)
        clearField();
    m_fields.clear();
}

void BasePrintPanelKRVImageOptions::terminate() {
    clearFields();
    fCtrlGroupArray.reset();
    fCtrlInstallableGroupArray.reset();
    releaseWindows();
    currentPrintString = QString();
}

void BasePrintPanelKRVImageOptions::willShow() {}
bool BasePrintPanelKRVImageOptions::shouldHide() {
    return true;
}

void BasePrintPanelKRVImageOptions::CreatePanel(QWidget *window) {
    clearFields();
    fCtrlGroupArray.emplace();
    fCtrlInstallableGroupArray.emplace();
    releaseWindows();
    fWindowGroupArray.emplace();
    AllGroupNameStrArray.clear();
    GeneralGroupOptionArray.clear();
    leaveParent();
    pdeBundleRef = nullptr;
    isRegistPrintEvent = false;
    currentPrintString = QString();
    currentPrintSession = nullptr;
    _control_num_item = 0;
    _installableControl_num_item = 0;
    _parentPane_num_item = 0;
    m_pSettings = nullptr;
    m_ptCurrentPPD = nullptr;
    preferenceDictionaryRef.reset();
    preferenceDictionaryAnyUserRef.reset();
    windowRef = window;
}

void BasePrintPanelKRVImageOptions::SetPanelControlPtr(QWidget *window) {
    windowRef = window;
}

void BasePrintPanelKRVImageOptions::initWithCallback(
    const std::shared_ptr<PDEPluginCallback> &host) {
    m_retainedCallback = host;
    m_pPDECallbackObj = host.get();
    thePDEName = QString();
}

int32_t BasePrintPanelKRVImageOptions::RunTimeAddNewControl(
    std::unique_ptr<BaseControlKRVImageOptions> control) {
    if (!control || !control->GetControlPtr())
        return _control_num_item;
    if (!fCtrlGroupArray)
        return 0;
    control->SetParenetPanel(this);
    fCtrlGroupArray->push_back(std::move(control));
    return _control_num_item++;
}

int32_t BasePrintPanelKRVImageOptions::RunTimeAddNewInstallableControl(
    std::unique_ptr<BaseControlKRVImageOptions> control) {
    if (!control || !fCtrlInstallableGroupArray)
        return 0;
    control->SetParenetPanel(this);
    fCtrlInstallableGroupArray->push_back(std::move(control));
    return _installableControl_num_item++;
}

int32_t BasePrintPanelKRVImageOptions::RunTimeAddNewWindow(BasePrintPanelKRVImageOptions *window) {
    if (!window || !fWindowGroupArray)
        return 0;
    window->leaveParent();
    window->SetParenetPane(this);
    window->m_registeredWith = this;
    fWindowGroupArray->push_back(window);
    return _parentPane_num_item++;
}

BaseControlKRVImageOptions *BasePrintPanelKRVImageOptions::GetPanelControl(CtrlTag tag) {
    if (!tag)
        return nullptr;
    for (const auto &registry : {&fCtrlGroupArray, &fCtrlInstallableGroupArray})
        if (*registry)
            for (const auto &control : **registry)
                if (control->GetControlPtr() && control->viewTag() == *tag)
                    return control.get();
    if (fWindowGroupArray)
        for (BasePrintPanelKRVImageOptions *window : *fWindowGroupArray)
            if (BaseControlKRVImageOptions *control = window->GetPanelControl(tag))
                return control;
    return nullptr;
}

bool BasePrintPanelKRVImageOptions::takePrinterString(PMPrintSession session) {
    currentPrintString = QLatin1String("");
    return SetPrinterString(session, &currentPrintString) == 0;
}

bool BasePrintPanelKRVImageOptions::SetCurrentPrinterString(PMPrintSession session) {
    SetCurrentPrintSession(session);
    return takePrinterString(session) && eachWindow(true, [session](auto &window) {
               return window.SetCurrentPrinterString(session);
           });
}

bool BasePrintPanelKRVImageOptions::SetCurrentPrintSettings(PMPrintSettings settings,
                                                            ppd_file_t *ppd,
                                                            PDEPluginCallback *callback,
                                                            PMPrintSession session) {
    SetCurrentPMPrintSettings(settings);
    SetCurrentPPD(ppd);
    SetCurrentPDECallbackObj(callback);
    return takePrinterString(session) && eachWindow(true, [=](auto &window) {
               return window.SetCurrentPrintSettings(settings, ppd, callback, session);
           });
}

ppd_file_t *BasePrintPanelKRVImageOptions::GetPPDRefFromCurrentPrintSession() const {
    return currentPrintSession && m_pPDECallbackObj ? m_pPDECallbackObj->ppdFile() : nullptr;
}

void BasePrintPanelKRVImageOptions::SetxppdPtr(const std::shared_ptr<hash_multimap> &table) {
    xppd = table;
    eachWindow(0, [&table](auto &window) {
        window.SetxppdPtr(table);
        return 0;
    });
}

void BasePrintPanelKRVImageOptions::setPreferDictionary(
    const std::shared_ptr<QVariantMap> &user, const std::shared_ptr<QVariantMap> &anyUser) {
    preferenceDictionaryRef = user;
    preferenceDictionaryAnyUserRef = anyUser;
    eachWindow(0, [&](auto &window) {
        window.setPreferDictionary(user, anyUser);
        return 0;
    });
}

void BasePrintPanelKRVImageOptions::takeLocalizeTable(ppd_file_t *ppd) {
    const ppd_attr_t *attribute =
        ppd ? ppdFindAttr_ALT(ppd, "QZLocalizableFileIndex", nullptr) : nullptr;
    if (attribute && attribute->value)
        LocalizeTableName = QStringLiteral("Localizable") + QString::fromUtf8(attribute->value);
}
