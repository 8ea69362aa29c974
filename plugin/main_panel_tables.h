#pragma once

#include "controls/records/control_records.h"

// The records of the main panel's controls. The IniData tables here are constant; a panel works on
// the copies in MainPanelRecords, since controls write defaults and ranges into them.

extern const PopupIniData plugintypeListIniData;
extern const PopupIniData colorModeListIniData;
extern const PopupIniData outputmodeListIniData;
extern const PopupIniData imagetypeListIniData;
extern const PopupIniData rgbcolorcorrectionListIniData;
extern const PopupIniData cmykcolorcorrectionListIniData;
extern const PopupIniData screenListIniData;
extern const SliderBarIniData brightnessSliderIniData;
extern const RadioButtonIniData basicsettingRdioIniData;
extern const RadioButtonIniData advancedsettingRdioIniData;

extern const CtrlAccessInfo basicsettingRdioAcssInfo;
extern const CtrlAccessInfo advancedsettingRdioAcssInfo;
extern const CtrlAccessInfo colorModeListAccessInfo;
extern const CtrlAccessInfo brightnessSliderAccessInfo;
extern const CtrlAccessInfo outputmodeListAccessInfo;
extern const CtrlAccessInfo imagetypeListAccessInfo;
extern const CtrlAccessInfo rgbcolorcorrectionListAccessInfo;
extern const CtrlAccessInfo cmykcolorcorrectionListAccessInfo;
extern const CtrlAccessInfo screenListAccessInfo;
extern const CtrlAccessInfo plugintypeListAccessInfo;

extern const CtrlConstrainInfo colorModeConstrainInfo;
extern const CtrlConstrainInfo outputmodeConstrainInfo;
extern const CtrlConstrainInfo imagetypeConstrainInfo;
extern const CtrlConstrainInfo rgbcolorcorrectionConstrainInfo;
extern const CtrlConstrainInfo basicsettingRdioCnstrnInfoPtr;
extern const CtrlConstrainInfo advancedsettingRdioCnstrnInfoPtr;

/// One panel's own copies of the records that its controls write.
struct MainPanelRecords {
    PopupIniData plugintypeList = plugintypeListIniData; ///< shared with the panel's windows
    PopupIniData colorModeList = colorModeListIniData;
    PopupIniData outputmodeList = outputmodeListIniData;
    PopupIniData imagetypeList = imagetypeListIniData;
    PopupIniData rgbcolorcorrectionList = rgbcolorcorrectionListIniData;
    PopupIniData cmykcolorcorrectionList = cmykcolorcorrectionListIniData;
    PopupIniData screenList = screenListIniData;
    SliderBarIniData brightnessSlider = brightnessSliderIniData;
    RadioButtonIniData basicsettingRdio = basicsettingRdioIniData;
    RadioButtonIniData advancedsettingRdio = advancedsettingRdioIniData;
};
