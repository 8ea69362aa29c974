// What the main panel is made of: its outlets, and its controls in the order of all sweeps.

#include "controls/button_family.h"
#include "controls/popup_family.h"
#include "controls/static_text_family.h"
#include "plugin/image_options_pde.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"
#include "ppd/regular_file.h"

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

template <class List>
void ImageOptionsPDEk27::addList(List *&field, PopupView *view, const char *key,
                                 PopupIniData *iniData, const CtrlConstrainInfo *constrain,
                                 const CtrlAccessInfo *access, CtrlTag title) {
    auto control = std::make_unique<List>();
    control->CreateControl(view, key, iniData, constrain, access, kControlUserCurrent, title);
    adopt(field, std::move(control));
}

template <class Text>
void ImageOptionsPDEk27::addText(Text *&field, TextView *view, const char *key) {
    auto control = std::make_unique<Text>();
    control->CreateControl(view, nullptr, nullptr, nullptr, QString(), nullptr, key);
    adopt(field, std::move(control));
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
    addList(colormodePopupListCtrl, ColorModeList, kPPDColorModeKey, &m_records.colorModeList, &colorModeConstrainInfo, &colorModeListAccessInfo, &ColorModeStaticTag);
    addText(brightnessMiniStaticTextCtrl, BrightnessMiniStaticText, "Brightness Mini Value Statics Text");
    addText(BrightnessMaxStaticTextCtrl, BrightnessMaxStaticText, "Brightness Max Value Statics Text");
    addList(imageTypePopupListCtrl, ImageTypeList, kPPDImageTypeKey, &m_records.imagetypeList, &imagetypeConstrainInfo, &imagetypeListAccessInfo, &ImageTypeStaticTag);
    addList(CMYKColorCorrectionListCtrl, CMYKColorCorrectionList, kPPDCMYKColorCorrectionKey, &m_records.cmykcolorcorrectionList, nullptr, &cmykcolorcorrectionListAccessInfo, &CMYKColorCorrectionTag);
    // clang-format on

    auto help = std::make_unique<GHelpButtonKRV>();
    help->CreateControlWithHelpName(helpButton, QStringLiteral("Graphics.htm"));
    adopt(helpButtonCtrl, std::move(help));
    auto version = std::make_unique<VersionStringSTextKRVImageOptions>();
    version->CreateControl(imageOptionsVerStringSTextCtrl, nullptr, cdfSupport);
    adopt(imageOptionsVerStringSTextCtrlPtr, std::move(version));

    isPrintTypeSavetoMailbox = false;
}

int32_t ImageOptionsPDEk27::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    return bindControls(bundle, ppd);
}

int32_t ImageOptionsPDEk27::bindControls(const Bundle *bundle, ppd_file_t *ppd) {
    CPPDChecker::Instance()->Init();
    if (const int32_t status = BasePrintPanelKRVImageOptions::InitializeUserPane(bundle, ppd))
        return status;
    return CPPDChecker::Instance()->RunCheck() ? 0 : 1;
}
