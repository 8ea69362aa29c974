#include "plugin/main_panel_tables.h"

namespace {

const char *const plugintypeListIniMenu[] = {
    "Type00-1", "Type00-2", "Type01", "Type02", "Type03", nullptr,
};

} // namespace

// clang-format off
const PopupIniData plugintypeListIniData         {.startValue = 0, .defaultValue = 1, .iniValue = -1, .menuKeys = plugintypeListIniMenu};
const PopupIniData colorModeListIniData          {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData outputmodeListIniData         {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData imagetypeListIniData          {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData rgbcolorcorrectionListIniData {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData cmykcolorcorrectionListIniData{.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData screenListIniData             {.startValue = 1, .defaultValue = 1, .iniValue = 0};

const SliderBarIniData brightnessSliderIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -5, .maxValue = 5};

const RadioButtonIniData basicsettingRdioIniData   {.startValue = 1, .defaultValue = 1, .iniValue = -1, .titleKey = "Basic Setting Radio Button"};
const RadioButtonIniData advancedsettingRdioIniData{.startValue = 0, .defaultValue = 0, .iniValue = -1, .titleKey = "Advanced Setting Radio Button"};

const CtrlAccessInfo basicsettingRdioAcssInfo   {.ticketKey = "com.velmora.mvo.printsettings.BasicSettingRadioBtnTicketKey"};
const CtrlAccessInfo advancedsettingRdioAcssInfo{.ticketKey = "com.velmora.mvo.printsettings.AdvancedSettingRadioBtnTicketKey"};
// clang-format on

// The others reach the job as marks of the PPD.
const CtrlAccessInfo colorModeListAccessInfo{};
const CtrlAccessInfo brightnessSliderAccessInfo{};
const CtrlAccessInfo outputmodeListAccessInfo{};
const CtrlAccessInfo imagetypeListAccessInfo{};
const CtrlAccessInfo rgbcolorcorrectionListAccessInfo{};
const CtrlAccessInfo cmykcolorcorrectionListAccessInfo{};
const CtrlAccessInfo screenListAccessInfo{};
const CtrlAccessInfo plugintypeListAccessInfo{};

namespace {

// Colour mode: the second item is black and white, which has no colour settings.

const CtrlTag colorModeBWConstrain[] = {
    &BasicSettingsRadioTag,      &AdvancedSettingsRadioTag,
    &ImageTypeListTag,           &rgbColorCorrectonListTag,
    &cmykColorCorrectionListTag, &ImageTypeStaticTag,
    &RGBColorCorrectionTag,      &CMYKColorCorrectionTag,
    &ImageSettingsButtonTag,     nullptr,
};
const CtrlTagList colorModeConstrainRows[] = {nullptr, colorModeBWConstrain, nullptr, nullptr};
const CtrlConstrainTable colorModeConstrainArrayInfo{colorModeConstrainRows};

const CtrlTag colorModeUpdateControl[] = {&ScreenListTag, nullptr};
const CtrlTagList colorModeControlUpdateRows[] = {
    colorModeUpdateControl,
    colorModeUpdateControl,
    nullptr,
};
const CtrlConstrainTable colorModeControlUpdateArrayInfo{colorModeControlUpdateRows};

// Output mode, image type and RGB correction: a change resets the screen list.

const CtrlTag outputmodeUpdateControl[] = {&ScreenListTag, nullptr};
const CtrlTagList outputmodeControlUpdateRows[] = {
    outputmodeUpdateControl,
    outputmodeUpdateControl,
    outputmodeUpdateControl,
    outputmodeUpdateControl,
    nullptr,
};
const CtrlConstrainTable outputmodeControlUpdateArrayInfo{outputmodeControlUpdateRows};

const CtrlTag imagetypeUpdateControl[] = {&ScreenListTag, nullptr};
// clang-format off
const CtrlTagList imagetypeControlUpdateRows[] = {
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    imagetypeUpdateControl,
    nullptr,
};
// clang-format on
const CtrlConstrainTable imagetypeControlUpdateArrayInfo{imagetypeControlUpdateRows};

const CtrlTag rgbcolorcorrectionUpdateControl[] = {&ScreenListTag, nullptr};
const CtrlTagList rgbcolorcorrectionControlUpdateRows[] = {
    rgbcolorcorrectionUpdateControl,
    rgbcolorcorrectionUpdateControl,
    rgbcolorcorrectionUpdateControl,
    rgbcolorcorrectionUpdateControl,
    nullptr,
};
const CtrlConstrainTable rgbcolorcorrectionControlUpdateArrayInfo{
    rgbcolorcorrectionControlUpdateRows};

// Basic: while it is off, the image type list is hidden.

const CtrlTag gbRadioHideConstrainArray[] = {&ImageTypeStaticTag, &ImageTypeListTag, nullptr};
const CtrlTagList gbHideConstrainRows[] = {gbRadioHideConstrainArray, nullptr};
const CtrlConstrainTable gbHideConstrainArray{gbHideConstrainRows};

const CtrlTag gbRadioUpdateConstrainArray[] = {&AdvancedSettingsRadioTag, nullptr};
const CtrlTagList gbUpdateConstrainRows[] = {gbRadioUpdateConstrainArray, nullptr};
const CtrlConstrainTable gbUpdateConstrainArray{gbUpdateConstrainRows};

// Advanced: while it is off, the correction lists are hidden, and the lists of the image adjustment
// window disabled.

const CtrlTag gaRadioDisableConstrainArray[] = {
    &RGBColorCorrectionIASTextTag,
    &RGBColorCorrectionIAListTag,
    &RGBInputProfileIASTextTag,
    &RGBInputProfileIAListTag,
    &RGBColorTemperatureIASTextTag,
    &RGBColorTemperatureIAListTag,
    &CMYKCorrectionSTextCtrlTag,
    &CMYKCorrectionPopupButtonTag,
    &targetpaperSTextCtrlTag,
    &targetpaperIAPopupButtonTag,
    nullptr,
};
const CtrlTagList gaDisableConstrainRows[] = {gaRadioDisableConstrainArray, nullptr};
const CtrlConstrainTable gaDisableConstrainArray{gaDisableConstrainRows};

const CtrlTag gaRadioHideConstrainArray[] = {
    &RGBColorCorrectionTag,
    &rgbColorCorrectonListTag,
    &CMYKColorCorrectionTag,
    &cmykColorCorrectionListTag,
    nullptr,
};
const CtrlTagList gaHideConstrainRows[] = {gaRadioHideConstrainArray, nullptr};
const CtrlConstrainTable gaHideConstrainArray{gaHideConstrainRows};

const CtrlTag gaRadioUpdateConstrainArray[] = {&BasicSettingsRadioTag, nullptr};
const CtrlTagList gaUpdateConstrainRows[] = {gaRadioUpdateConstrainArray, nullptr};
const CtrlConstrainTable gaUpdateConstrainArray{gaUpdateConstrainRows};

} // namespace

const CtrlConstrainInfo colorModeConstrainInfo{
    .disableTable = &colorModeConstrainArrayInfo,
    .updateTable = &colorModeControlUpdateArrayInfo,
};
const CtrlConstrainInfo outputmodeConstrainInfo{.updateTable = &outputmodeControlUpdateArrayInfo};
const CtrlConstrainInfo imagetypeConstrainInfo{.updateTable = &imagetypeControlUpdateArrayInfo};
const CtrlConstrainInfo rgbcolorcorrectionConstrainInfo{
    .updateTable = &rgbcolorcorrectionControlUpdateArrayInfo,
};
const CtrlConstrainInfo basicsettingRdioCnstrnInfoPtr{
    .hideTable = &gbHideConstrainArray,
    .updateTable = &gbUpdateConstrainArray,
};
const CtrlConstrainInfo advancedsettingRdioCnstrnInfoPtr{
    .disableTable = &gaDisableConstrainArray,
    .hideTable = &gaHideConstrainArray,
    .updateTable = &gaUpdateConstrainArray,
};
