#pragma once

#include "controls/records/control_records.h"

// The records of the image adjustment windows' controls. The IniData tables here are constant; a
// window works on the copies in ImageAdjustmentRecords, since controls write defaults into them.

extern const PopupIniData rgbcolorcorrectionListIniDataIA;
extern const PopupIniData rgbinputprofileListIniDataIA;
extern const PopupIniData rgbgammacorrectionListIniDataIA;
extern const PopupIniData colortemperatureListIniDataIA;
extern const PopupIniData cmykcolorcorrectionListIniDataIA;
extern const PopupIniData targetpaperListIniDataIA;
extern const CheckBoxIniData blackOverPrintCboxIniData;
extern const CheckBoxIniData invalidateColorProfileCboxIniData;

extern const CtrlAccessInfo rgbcolorcorrectionListAccessInfoIA;
extern const CtrlAccessInfo rgbinputprofileListAccessInfoIA;
extern const CtrlAccessInfo rgbgammacorrectionListAccessInfoIA;
extern const CtrlAccessInfo colortemperatureListAccessInfoIA;
extern const CtrlAccessInfo cmykcolorcorrectionListAccessInfoIA;
extern const CtrlAccessInfo targetpaperListAccessInfoIA;
extern const CtrlAccessInfo plugintypeIAListAccessInfo;
extern const CtrlAccessInfo blackOverPrintCboxAcssInfo;
extern const CtrlAccessInfo invalidateColorProfileCboxAcssInfo;

/// Has an empty disable table: the list fills a copy of its own from the PPD.
extern const CtrlConstrainInfo cmykcolorcorrectionConstrainInfoIA;
extern const CtrlConstrainInfo plugintypeIAListConstrainInfoPtr;

/// One window's own copies of the records that its controls write; a window uses those of the
/// controls that it has.
struct ImageAdjustmentRecords {
    PopupIniData rgbcolorcorrectionList = rgbcolorcorrectionListIniDataIA;
    PopupIniData rgbinputprofileList = rgbinputprofileListIniDataIA;
    PopupIniData rgbgammacorrectionList = rgbgammacorrectionListIniDataIA;
    PopupIniData colortemperatureList = colortemperatureListIniDataIA;
    PopupIniData cmykcolorcorrectionList = cmykcolorcorrectionListIniDataIA;
    PopupIniData targetpaperList = targetpaperListIniDataIA;
    CheckBoxIniData blackOverPrintCbox = blackOverPrintCboxIniData;
    CheckBoxIniData invalidateColorProfileCbox = invalidateColorProfileCboxIniData;
};
