// What the main panel is made of: its outlets, and its controls in the order of all sweeps.

#include "controls/button_family.h"
#include "controls/popup_family.h"
#include "controls/radio_family.h"
#include "controls/slider_family.h"
#include "controls/static_text_family.h"
#include "imagewindows/color_balance_window.h"
#include "imagewindows/image_adjustment_window.h"
#include "imagewindows/output_mode_list.h"
#include "imagewindows/plugin_type_list.h"
#include "imagewindows/rgb_correction_list.h"
#include "imagewindows/screen_list.h"
#include "imagewindows/window_buttons.h"
#include "plugin/image_options_pde.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"
#include "ppd/regular_file.h"
#include "services/bundle_identity.h"

std::vector<views::Outlet> ImageOptionsPDEk27::outlets() {
    using views::outlet;
    return {
        outlet("ColorModeStaticText", ColorModeStaticText),
        outlet("OutputModeStaticText", OutputModeStaticText),
        outlet("BrightnessStaticText", BrightnessStaticText),
        outlet("BrightnessMiniStaticText", BrightnessMiniStaticText),
        outlet("BrightnessMaxStaticText", BrightnessMaxStaticText),
        outlet("ImageTypeStaticText", ImageTypeStaticText),
        outlet("RGBColorCorrectionStaticText", RGBColorCorrectionStaticText),
        outlet("CMYKColorCorrectionStaticText", CMYKColorCorrectionStaticText),
        outlet("ScreenStaticText", ScreenStaticText),
        outlet("ColorModeList", ColorModeList),
        outlet("BrightnessSlider", BrightnessSlider),
        outlet("OutputModeList", OutputModeList),
        outlet("graphicsbasicSetRdioBtn", graphicsbasicSetRdioBtn),
        outlet("graphicsadvanceSetRdioBtn", graphicsadvanceSetRdioBtn),
        outlet("ImageTypeList", ImageTypeList),
        outlet("RGBColorCorrectionList", RGBColorCorrectionList),
        outlet("CMYKColorCorrectionList", CMYKColorCorrectionList),
        outlet("ScreenList", ScreenList),
        outlet("plugintypeList", plugintypeList),
        outlet("colorbalanceButtonCtrl", colorbalanceButtonCtrl),
        outlet("imageAdjustmentButtonCtrl", imageAdjustmentButtonCtrl),
        outlet("restoredefaButton", restoredefaButton),
        outlet("helpButton", helpButton),
        outlet("imageOptionsVerStringSTextCtrl", imageOptionsVerStringSTextCtrl),
    };
}

namespace {

/// False only if the PPD names a cache file that can't be opened.
bool cacheFileReadable(ppd_file_t *ppd) {
    const ppd_attr_t *attribute = ppd ? ppdFindAttr_ALT(ppd, kQZCDFFileKey, nullptr) : nullptr;
    return !attribute || !attribute->value || RegularFileStream(attribute->value).good();
}

} // namespace

void ImageOptionsPDEk27::addTitle(PPDStaticTextCtrlKRVImageOptions *&field, TextView *view,
                                  const char *key) {
    auto control = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
    control->CreateControl(view, key, nullptr, nullptr, nullptr, QString(), nullptr);
    adopt(field, std::move(control));
}

template <class Control, class View, class Record>
void ImageOptionsPDEk27::addBound(Control *&field, const QPointer<View> &view, const char *key,
                                  Record *iniData, const CtrlConstrainInfo *constrain,
                                  const CtrlAccessInfo *access, CtrlTag title) {
    auto control = std::make_unique<Control>();
    control->CreateControl(view.data(), key, iniData, constrain, access, kControlUserCurrent,
                           title);
    adopt(field, std::move(control));
}

template <class Text>
void ImageOptionsPDEk27::addText(Text *&field, TextView *view, const char *key) {
    auto control = std::make_unique<Text>();
    control->CreateControl(view, nullptr, nullptr, nullptr, QString(), nullptr, key);
    adopt(field, std::move(control));
}

void ImageOptionsPDEk27::addRadio(GRadioButtonKRV *&field, RadioView *view,
                                  RadioButtonIniData *iniData, const CtrlConstrainInfo *constrain,
                                  const CtrlAccessInfo *access) {
    auto control = std::make_unique<GRadioButtonKRV>();
    control->RadioButton(view, iniData, constrain, access, kControlUserCurrent);
    adopt(field, std::move(control));
    if (field) // a button that the layout lacks is no member of the group
        graphicsWndRgrpCtrl->RunTimeAddNewControl(field);
}

template <class Button>
void ImageOptionsPDEk27::addButton(Button *&field, ButtonView *view, const char *title) {
    auto control = std::make_unique<Button>();
    control->CreateControl(view, title);
    adopt(field, std::move(control));
}

void ImageOptionsPDEk27::addPluginTypeList() {
    auto control = std::make_unique<PluginTypeListCtrlKRV>();
    control->CreateControl(plugintypeList, &m_records.plugintypeList, nullptr,
                           &plugintypeListAccessInfo, kControlUserCurrent);
    adopt(pluginTypeListCtrl, std::move(control));
}

void ImageOptionsPDEk27::addImageSettingsButton(const char *title) {
    auto control = std::make_unique<GImageSettingsButtonKRV>();
    control->GImageSettingsButton(imageAdjustmentButtonCtrl, title);
    adopt(imageAdjustmentButtonCtrlPtr, std::move(control));
}

void ImageOptionsPDEk27::addHelpButton(const char *page) {
    auto control = std::make_unique<GHelpButtonKRV>();
    control->CreateControlWithHelpName(helpButton, QString::fromUtf8(page));
    adopt(helpButtonCtrl, std::move(control));
}

void ImageOptionsPDEk27::addVersionText(bool cdfSupport) {
    auto control = std::make_unique<VersionStringSTextKRVImageOptions>();
    control->CreateControl(imageOptionsVerStringSTextCtrl, nullptr, cdfSupport);
    adopt(imageOptionsVerStringSTextCtrlPtr, std::move(control));
}

void ImageOptionsPDEk27::CreatePanel(QWidget *window) {
    BasePrintPanelKRVImageOptions::CreatePanel(window);
    gPDESyncSetUI = true;
    m_records = MainPanelRecords{};
    const bool cdfSupport = cacheFileReadable(hostPPD());

    // clang-format off
    addTitle(colormodeStaticTextCtrl, ColorModeStaticText, kPPDColorModeKey);
    addTitle(outputmodeStaticTextCtrl, OutputModeStaticText, kPPDOutputModeKey);
    addTitle(brightnessStaticTextCtrl, BrightnessStaticText, kPPDBrightnessKey);
    addTitle(ImageTypeStaticTextCtrl, ImageTypeStaticText, kPPDImageTypeKey);
    addTitle(RGBColorCorrectionStaticTextCtrl, RGBColorCorrectionStaticText, kPPDRGBColorCorrectionKey);
    addTitle(CMYKColorCorrectionStaticTextCtrl, CMYKColorCorrectionStaticText, kPPDCMYKColorCorrectionKey);
    addTitle(ScreenStaticTextCtrl, ScreenStaticText, kPPDScreenKey);
    addBound(colormodePopupListCtrl, ColorModeList, kPPDColorModeKey, &m_records.colorModeList, &colorModeConstrainInfo, &colorModeListAccessInfo, &ColorModeStaticTag);
    addBound(brightnessSliderCtrl, BrightnessSlider, kPPDBrightnessKey, &m_records.brightnessSlider, nullptr, &brightnessSliderAccessInfo, &BrightnessStaticTag);
    addText(brightnessMiniStaticTextCtrl, BrightnessMiniStaticText, "Brightness Mini Value Statics Text");
    addText(BrightnessMaxStaticTextCtrl, BrightnessMaxStaticText, "Brightness Max Value Statics Text");
    addBound(outputmodePopupListCtrl, OutputModeList, kPPDOutputModeKey, &m_records.outputmodeList, &outputmodeConstrainInfo, &outputmodeListAccessInfo, &OutputModeStaticTag);
    graphicsWndRgrpCtrl = std::make_unique<RadioGroupKRVImageOptions>(); // has no view, isn't swept
    graphicsWndRgrpCtrl->RadioGroup();
    addRadio(graphicsbasicSetRdioBtnCtrl, graphicsbasicSetRdioBtn, &m_records.basicsettingRdio, &basicsettingRdioCnstrnInfoPtr, &basicsettingRdioAcssInfo);
    addRadio(graphicsadvanceSetRdioBtnCtrl, graphicsadvanceSetRdioBtn, &m_records.advancedsettingRdio, &advancedsettingRdioCnstrnInfoPtr, &advancedsettingRdioAcssInfo);
    addBound(imageTypePopupListCtrl, ImageTypeList, kPPDImageTypeKey, &m_records.imagetypeList, &imagetypeConstrainInfo, &imagetypeListAccessInfo, &ImageTypeStaticTag);
    addBound(RGBColorCorrectionListCtrl, RGBColorCorrectionList, kPPDRGBColorCorrectionKey, &m_records.rgbcolorcorrectionList, &rgbcolorcorrectionConstrainInfo, &rgbcolorcorrectionListAccessInfo, &RGBColorCorrectionTag);
    addBound(CMYKColorCorrectionListCtrl, CMYKColorCorrectionList, kPPDCMYKColorCorrectionKey, &m_records.cmykcolorcorrectionList, nullptr, &cmykcolorcorrectionListAccessInfo, &CMYKColorCorrectionTag);
    addBound(screenListConctrl, ScreenList, kPPDScreenKey, &m_records.screenList, nullptr, &screenListAccessInfo, &ScreenStaticTag);
    addPluginTypeList();
    addButton(colorbalanceButtonCtrlPtr, colorbalanceButtonCtrl, "Color Balance Button Text");
    addImageSettingsButton("Image Setting Button Text");
    addButton(restoredefaButtonCtrl, restoredefaButton, "Restore Default Button Text");
    addHelpButton("Graphics.htm");
    addVersionText(cdfSupport);
    // clang-format on

    addColorBalanceWindow();
    isPrintTypeSavetoMailbox = false;
}

void ImageOptionsPDEk27::addColorBalanceWindow() {
    ColorBalanceWndKRV &window = *colorBalanceWndPtr;
    window.ColorBalanceWnd(window.loadWindow(pluginBundle.get()),
                           QStringLiteral("Color Balance Window Title String"));
    RunTimeAddNewWindow(&window);
}

// A queue that can only ignore embedded profiles gets the window for black overprint, while the
// settings button asks for the plain one, which stays inert: the button then opens nothing.
void ImageOptionsPDEk27::addImageAdjustmentWindow(const Bundle *bundle, ppd_file_t *ppd) {
    const bool further = ppd && (ppdFindOption(ppd, kPPDBlackOverPrintKey) ||
                                 ppdFindOption(ppd, kQZInvalidateColorProfile));
    ImageAdjustmentWindow *window = imageAdjustmentWndPtr.get();
    if (further)
        window = imageAdjustmentBlackOverWndPtr.get();
    if (window == m_adjustmentWindow && window->GetParentWnd() == this)
        return;
    if (m_adjustmentWindow && m_adjustmentWindow != window)
        m_adjustmentWindow->CreatePanel(nullptr, QString());
    window->setPluginTypeRecord(&m_records.plugintypeList);
    window->CreatePanel(window->loadWindow(bundle),
                        QStringLiteral("Image Type Window Title String"));
    RunTimeAddNewWindow(window);
    m_adjustmentWindow = window;
}

int32_t ImageOptionsPDEk27::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    addImageAdjustmentWindow(bundle, ppd);
    CPPDChecker::Instance()->Init();
    if (const int32_t status = BasePrintPanelKRVImageOptions::InitializeUserPane(bundle, ppd))
        return status;
    if (!CPPDChecker::Instance()->RunCheck())
        return 1;
    SetPrintTypeToPanel();
    return 0;
}

bool ImageOptionsPDEk27::SetPrintTypeToPanel() {
    const int type = CPPDChecker::Instance()->productType;
    if (!pluginTypeListCtrl || type < 1)
        return false;
    pluginTypeListCtrl->SetPluginType(type);
    return true;
}
