#include "imagewindows/image_adjustment_tables.h"

// clang-format off
const PopupIniData rgbcolorcorrectionListIniDataIA {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData rgbinputprofileListIniDataIA    {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData rgbgammacorrectionListIniDataIA {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData colortemperatureListIniDataIA   {.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData cmykcolorcorrectionListIniDataIA{.startValue = 1, .defaultValue = 1, .iniValue = 0};
const PopupIniData targetpaperListIniDataIA        {.startValue = 1, .defaultValue = 1, .iniValue = 0};

const CheckBoxIniData blackOverPrintCboxIniData        {.startValue = 0, .defaultValue = 0, .iniValue = -1, .titleKey = "Black Over Print Text"};
const CheckBoxIniData invalidateColorProfileCboxIniData{.startValue = 0, .defaultValue = 0, .iniValue = -1, .titleKey = "Invalidate Color Profile Print Text"};
// clang-format on

// All of them reach the job as marks of the PPD, or not at all.
const CtrlAccessInfo rgbcolorcorrectionListAccessInfoIA{};
const CtrlAccessInfo rgbinputprofileListAccessInfoIA{};
const CtrlAccessInfo rgbgammacorrectionListAccessInfoIA{};
const CtrlAccessInfo colortemperatureListAccessInfoIA{};
const CtrlAccessInfo cmykcolorcorrectionListAccessInfoIA{};
const CtrlAccessInfo targetpaperListAccessInfoIA{};
const CtrlAccessInfo plugintypeIAListAccessInfo{};
const CtrlAccessInfo blackOverPrintCboxAcssInfo{};
const CtrlAccessInfo invalidateColorProfileCboxAcssInfo{};

namespace {

const CtrlConstrainTable cmykcolorcorrectionConstrainArrayInfoIA{};

// Product type: the fourth one has no target paper.

const CtrlTag type02IAHideConstrainArray[] = {
    &targetpaperSTextCtrlTag,
    &targetpaperIAPopupButtonTag,
    nullptr,
};
const CtrlTagList plugintypeIAListHideConstrainRows[] = {
    nullptr, nullptr, nullptr, type02IAHideConstrainArray, nullptr,
};
const CtrlConstrainTable plugintypeIAListHideConstrainArray{plugintypeIAListHideConstrainRows};

} // namespace

const CtrlConstrainInfo cmykcolorcorrectionConstrainInfoIA{
    .disableTable = &cmykcolorcorrectionConstrainArrayInfoIA,
};
const CtrlConstrainInfo plugintypeIAListConstrainInfoPtr{
    .hideTable = &plugintypeIAListHideConstrainArray,
};
