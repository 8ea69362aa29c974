#include "imagewindows/image_adjustment_window.h"

#include "controls/button_family.h"
#include "controls/check_box_family.h"
#include "controls/radio_family.h"
#include "controls/static_text_family.h"
#include "imagewindows/cmyk_lists.h"
#include "imagewindows/rgb_correction_list.h"
#include "imagewindows/window_buttons.h"
#include "platform/bundle.h"
#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/popup_view.h"
#include "platform/views/text_view.h"
#include "ppd/constraint_cache.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "services/bundle_identity.h"

#include <algorithm>

ImageAdjustmentWindow::~ImageAdjustmentWindow() {
    terminate(); // while the fields still stand that it clears
}

ModalWindow *ImageAdjustmentWindow::loadWindow(const Bundle *bundle) {
    return loadForm(bundle, formName(), {});
}

template <class View>
View *ImageAdjustmentWindow::outlet(const char *name) const {
    return windowRef ? windowRef->findChild<View *>(QLatin1String(name)) : nullptr;
}

void ImageAdjustmentWindow::addTitle(PPDStaticTextCtrlKRVImageOptions *&field, const char *name,
                                     const char *key) {
    auto control = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
    control->CreateControl(outlet<TextView>(name), key, nullptr, nullptr, nullptr, QString(),
                           nullptr);
    adopt(field, std::move(control));
}

template <class List>
void ImageAdjustmentWindow::addList(List *&field, const char *name, const char *key,
                                    PopupIniData *iniData, const CtrlConstrainInfo *constrain,
                                    const CtrlAccessInfo *access, CtrlTag title) {
    auto control = std::make_unique<List>();
    control->CreateControl(outlet<PopupView>(name), key, iniData, constrain, access,
                           kControlUserCurrent, title);
    adopt(field, std::move(control));
}

template <class Button>
void ImageAdjustmentWindow::addButton(Button *&field, const char *name, const char *title) {
    auto control = std::make_unique<Button>();
    control->CreateControl(outlet<ButtonView>(name), title);
    adopt(field, std::move(control));
}

void ImageAdjustmentWindow::addPluginTypeList() {
    auto control = std::make_unique<PopupControlKRVImageOptions>();
    control->CreateControl(outlet<PopupView>("plugintypeIAPopupListCtrl"), m_plugintypeList,
                           &plugintypeIAListConstrainInfoPtr, &plugintypeIAListAccessInfo,
                           kControlUserCurrent);
    adopt(plugintypeIAPopupListCtrl, std::move(control));
}

void ImageAdjustmentWindow::addHelpButton() {
    auto control = std::make_unique<GHelpButtonKRV>();
    control->CreateControlWithHelpName(outlet<ButtonView>("helpButtonIA"),
                                       QStringLiteral("ImageAdj.htm"));
    adopt(helpButtonCtrlIA, std::move(control));
}

void ImageAdjustmentWindow::addGroupBox(GroupBoxControlKRVImageOptions &field, const char *name,
                                        const char *title) {
    field.CreateControl(outlet<QGroupBox>(name), title);
    field.InitializeTitle(pluginBundle.get());
}

void ImageAdjustmentWindow::addCheckBox(GCheckBoxExtKRV *&field, const char *name, const char *key,
                                        CheckBoxIniData *iniData, const CtrlAccessInfo *access) {
    auto control = std::make_unique<GCheckBoxExtKRV>();
    control->PPDCheckBox(outlet<CheckBoxView>(name), key, iniData, nullptr, access,
                         kControlUserCurrent);
    adopt(field, std::move(control));
}

void ImageAdjustmentWindow::addFurtherControls() {}

void ImageAdjustmentWindow::CreatePanel(QWidget *window, const QString &theWinTitleStr) {
    PopupWinInPanel(window, theWinTitleStr);

    // clang-format off
    addTitle(rgbcolorcorrectionIASTextCtrl, "rgbcolorcorrectionIASTextCtrl", kPPDRGBColorCorrectionKey);
    addTitle(rgbinputprofileIASTextCtrl, "rgbinputprofileIASTextCtrl", kPPDRGBInputProfileKey);
    addTitle(rgbgammacorrectionIASTextCtrl, "rgbgammacorrectionIASTextCtrl", kPPDRGBGammaCorrectionKey);
    addTitle(rgbcolortemperatureIASTextCtrl, "rgbcolortemperatureIASTextCtrl", kPPDColorTemperatureKey);
    addTitle(cmykcolorcorrectionIASTextCtrl, "cmykcolorcorrectionIASTextCtrl", kPPDCMYKColorCorrectionKey);
    addTitle(cmyktargetpaperIASTextCtrl, "cmyktargetpaperIASTextCtrl", kPPDTargetPaperKey);
    addList(rgbcolorcorrectionIAPopupListCtrl, "rgbcolorcorrectionIAPopupListCtrl", kPPDRGBColorCorrectionKey, &m_records.rgbcolorcorrectionList, nullptr, &rgbcolorcorrectionListAccessInfoIA, &RGBColorCorrectionIASTextTag);
    addList(rgbinputprofileIAPopupListCtrl, "rgbinputprofileIAPopupListCtrl", kPPDRGBInputProfileKey, &m_records.rgbinputprofileList, nullptr, &rgbinputprofileListAccessInfoIA, &RGBInputProfileIASTextTag);
    addList(rgbgammacorrectionIAPopupListCtrl, "rgbgammacorrectionIAPopupListCtrl", kPPDRGBGammaCorrectionKey, &m_records.rgbgammacorrectionList, nullptr, &rgbgammacorrectionListAccessInfoIA, &RGBGammaCorrectionIASTextTag);
    addList(rgbcolortemperatureIAPopupListCtrl, "rgbcolortemperatureIAPopupListCtrl", kPPDColorTemperatureKey, &m_records.colortemperatureList, nullptr, &colortemperatureListAccessInfoIA, &RGBColorTemperatureIASTextTag);
    addList(cmykcolorcorrectionIAPopupListCtrl, "cmykcolorcorrectionIAPopupListCtrl", kPPDCMYKColorCorrectionKey, &m_records.cmykcolorcorrectionList, &cmykcolorcorrectionConstrainInfoIA, &cmykcolorcorrectionListAccessInfoIA, &CMYKCorrectionSTextCtrlTag);
    addList(targetpaperIAPopupListCtrl, "targetpaperIAPopupListCtrl", kPPDTargetPaperKey, &m_records.targetpaperList, nullptr, &targetpaperListAccessInfoIA, &targetpaperSTextCtrlTag);
    addPluginTypeList();
    addGroupBox(RGBCorrectionGroupBoxCtrl, "RGBCorrectionGroupBox", "RGB Color Correction Text");
    addGroupBox(CMYKCorrectionGroupBoxCtrl, "CMYKCorrectionGroupBox", "CMYK Color Correction Text");
    addFurtherControls();
    addButton(OKButtonCtrlIA, "OKButtonIA", "OK Button Text");
    addButton(cancelButtonCtrlIA, "cancelButtonIA", "Cancel Button Text");
    addButton(restoredefaButtonCtrlIA, "restoredefaButtonIA", "Restore Default Button Text");
    addHelpButton();
    // clang-format on
}

int32_t ImageAdjustmentWindow::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    m_records = ImageAdjustmentRecords{}; // no default of a former PPD
    SetxppdPtr(nullptr);
    PopupWinInPanelKRVImageOptions::InitializeUserPane(bundle, ppd);
    DoGroupBoxHideCheck(ppd);
    SetxppdPtr(makeConstraintTable(ppd));
    if (const int32_t status = InitializeUserPaneControl(bundle, ppd))
        return status;
    SetControlEventHandler();
    InitializeUserPaneTitle();
    views::assignMnemonics(windowRef);
    return 0;
}

int32_t ImageAdjustmentWindow::ReInitializeUserPane() {
    if (const int32_t status = PopupWinInPanelKRVImageOptions::ReInitializeUserPane())
        return status;
    InitializeUserPaneTitle();
    views::assignMnemonics(windowRef);
    return 0;
}

int32_t ImageAdjustmentWindow::InitializeUserPaneTitle() {
    if (winTitleTextRef.isNull() || !pluginBundle || !windowRef)
        return 0;
    windowRef->setWindowTitle(
        pluginBundle->localizedString(winTitleTextRef, kNoTranslation, LocalizeTableName));
    return 1;
}

void ImageAdjustmentWindow::InitializePaneConstrains() {
    const ControlPanel *panel = GetParentWnd();
    auto *advanced =
        dynamic_cast<GRadioButtonKRV *>(panel ? panel->getgraphicsadvanceSetRdioCtrl() : nullptr);
    if (advanced)
        advanced->InitializeConstrains();
}

void ImageAdjustmentWindow::DoGroupBoxHideCheck(ppd_file_t *ppd) {
    views::setHidden(CMYKCorrectionGroupBoxCtrl.GetControlPtr(),
                     !CheckPPDKeyIsExist(ppd, kPPDCMYKColorCorrectionKey) &&
                         !CheckPPDKeyIsExist(ppd, kPPDTargetPaperKey));
}

int32_t ImageAdjustmentWindow::ActivateWindow() {
    if (!canOpen())
        return 0;
    SetCurrentValueToUI();
    SyncMarkedPPD();
    runModalForWindow();
    return 0;
}

void ImageAdjustmentWindow::SyncMarkedPPD() {
    if (m_ptCurrentPPD)
        UpdateConflictsPanelControlFromPPD(m_ptCurrentPPD);
}

void ImageAdjustmentWindow::RestoreMarkedPPD() {
    PPDPopupControlKRVImageOptions *const lists[] = {
        rgbcolorcorrectionIAPopupListCtrl,  rgbinputprofileIAPopupListCtrl,
        rgbgammacorrectionIAPopupListCtrl,  rgbcolortemperatureIAPopupListCtrl,
        cmykcolorcorrectionIAPopupListCtrl, targetpaperIAPopupListCtrl,
    };
    if (!m_ptCurrentPPD ||
        std::find(std::begin(lists), std::end(lists), nullptr) != std::end(lists))
        return;
    for (PPDPopupControlKRVImageOptions *list : lists)
        list->RestorePPD(m_ptCurrentPPD);
    SyncMarkedPPD();
}

int32_t ImageAdjustmentWindow::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    const ControlPanel *panel = GetParentWnd();
    if (!panel || !panel->IsColorModeAvailable())
        return 0;
    return PopupWinInPanelKRVImageOptions::GetSummaryText(summary, orderArray);
}

QString ImageAdjustmentWndKRV::formName() const {
    return QStringLiteral("QZImageOptions_ImageAdjustment");
}

// The base class would clear fields that are gone by then.
ImageAdjustmentBlackOverWndKRV::~ImageAdjustmentBlackOverWndKRV() {
    terminate();
}

QString ImageAdjustmentBlackOverWndKRV::formName() const {
    return QStringLiteral("QZImageOptions_ImageAdjustmentBlackOver");
}

void ImageAdjustmentBlackOverWndKRV::addFurtherControls() {
    addGroupBox(blackGroupBoxPtr, "blackGroupBoxPtr", "Black Text");
    addCheckBox(blackOverprintCheckBoxPtr, "blackOverprintCheckBoxPtr", kPPDBlackOverPrintKey,
                &m_records.blackOverPrintCbox, &blackOverPrintCboxAcssInfo);
}

ImageAdjustmentInvalidateColorProfileWndKRV::~ImageAdjustmentInvalidateColorProfileWndKRV() {
    terminate();
}

QString ImageAdjustmentInvalidateColorProfileWndKRV::formName() const {
    return QStringLiteral("QZImageOptions_ImageAdjustmentInvalidateColorProfile");
}

void ImageAdjustmentInvalidateColorProfileWndKRV::addFurtherControls() {
    addGroupBox(invalidateColorProfileGroupBoxPtr, "invalidateColorProfileGroupBoxPtr",
                "Invalidate Color Profile Text");
    addCheckBox(invalidateColorProfileCheckBoxPtr, "invalidateColorProfileCheckBoxPtr",
                kQZInvalidateColorProfile, &m_records.invalidateColorProfileCbox,
                &invalidateColorProfileCboxAcssInfo);
}
