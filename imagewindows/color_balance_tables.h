#pragma once

#include "controls/records/control_records.h"
#include "imagewindows/density_preview.h"
#include "ppd/input_filter.h"

#include <array>

// The records of the colour balance window's controls. The IniData tables here are constant; a
// window works on the copies in ColorBalanceRecords, since controls write defaults into them.

// clang-format off
inline constexpr int gClrBlncImgHviewID  = 3000;
inline constexpr int gAdjstClrBlncCboxID = 3101;
inline constexpr int gTrgtClrLboxID      = 3102;
inline constexpr int gTrgtClrStxtID      = 3202;
inline constexpr int gLwDnstStxtID       = 3301;
inline constexpr int gMdDnstStxtID       = 3302;
inline constexpr int gHghDnstStxtID      = 3303;
inline constexpr int gLwDnstSStxtID      = 3401;
inline constexpr int gMdDnstSStxtID      = 3402;
inline constexpr int gHghDnstSStxtID     = 3403;
inline constexpr int gLwDnstEtxtID       = 3500;
inline constexpr int gCynLwDnstEtxtID    = 3501;
inline constexpr int gMgntLwDnstEtxtID   = 3502;
inline constexpr int gYllwLwDnstEtxtID   = 3503;
inline constexpr int gMdDnstEtxtID       = 3510;
inline constexpr int gCynMdDnstEtxtID    = 3511;
inline constexpr int gMgntMdDnstEtxtID   = 3512;
inline constexpr int gYllwMdDnstEtxtID   = 3513;
inline constexpr int gHghDnstEtxtID      = 3520;
inline constexpr int gCynHghDnstEtxtID   = 3521;
inline constexpr int gMgntHghDnstEtxtID  = 3522;
inline constexpr int gYllwHghDnstEtxtID  = 3523;
inline constexpr int gLwDnstLarrID       = 3600;
inline constexpr int gCynLwDnstLarrID    = 3601;
inline constexpr int gMgntLwDnstLarrID   = 3602;
inline constexpr int gYllwLwDnstLarrID   = 3603;
inline constexpr int gMdDnstLarrID       = 3610;
inline constexpr int gCynMdDnstLarrID    = 3611;
inline constexpr int gMgntMdDnstLarrID   = 3612;
inline constexpr int gYllwMdDnstLarrID   = 3613;
inline constexpr int gHghDnstLarrID      = 3620;
inline constexpr int gCynHghDnstLarrID   = 3621;
inline constexpr int gMgntHghDnstLarrID  = 3622;
inline constexpr int gYllwHghDnstLarrID  = 3623;
inline constexpr int gClrBlncDfltPushID  = 3700;
inline constexpr int gClrBlncHlpPushID   = 3701;
inline constexpr int gClrBlncCnclPushID  = 3702;
inline constexpr int gClrBlncOKPushID    = 3703;
// clang-format on

extern const PopupIniData trgetcolorListIniData;
extern const CtrlAccessInfo trgetcolorListAccessInfo;
extern const CtrlConstrainInfo trgetcolorListConstrainInfoPtr;
extern const CtrlConstrainTable trgetcolorListHideConstrainArray;
extern const CtrlConstrainTable trgetcolorListConstrainArray; ///< the hide rows again; not in use
extern const CtrlConstrainTable trgetcolorListUpdateConstrainArray;
extern const CtrlConstrainTable trgetcolorListValidateArray; ///< empty; not in use
/// For each target colour the view behind the list in the order of the Tab key; ended by null.
extern const CtrlTag targetColorNextView[5];

extern const CheckBoxIniData adjustColorBalanceCboxIniData;
extern const CtrlAccessInfo adjustColorBalanceCboxAcssInfo;
extern const CtrlConstrainInfo adjustColorBalanceCboxCnstrnInfoPtr;

extern const TextEditIniData densityIniData;
extern const TextEditFilterData densityFilterData;
extern const LittleArrayIniData densityBlackLowIniData;
extern const LittleArrayIniData densityBlackMidIniData;
extern const LittleArrayIniData densityBlackHighIniData;
extern const LittleArrayIniData densityCyanLowIniData;
extern const LittleArrayIniData densityCyanMidIniData;
extern const LittleArrayIniData densityCyanHighIniData;
extern const LittleArrayIniData densityMagentaLowIniData;
extern const LittleArrayIniData densityMagentaMidIniData;
extern const LittleArrayIniData densityMagentaHighIniData;
extern const LittleArrayIniData densityYellowLowIniData;
extern const LittleArrayIniData densityYellowMidIniData;
extern const LittleArrayIniData densityYellowHighIniData;

extern const CtrlAccessInfo densityBlackLowTextEditAccessInfo;
extern const CtrlAccessInfo densityBlackMidTextEditAccessInfo;
extern const CtrlAccessInfo densityBlackHighTextEditAccessInfo; ///< not in use
extern const CtrlAccessInfo densityCyanLowTextEditAccessInfo;
extern const CtrlAccessInfo densityCyanMidTextEditAccessInfo;
extern const CtrlAccessInfo densityCyanHighTextEditAccessInfo;
extern const CtrlAccessInfo densityMagentaLowTextEditAccessInfo;
extern const CtrlAccessInfo densityMagentaMidTextEditAccessInfo;
extern const CtrlAccessInfo densityMagentaHighTextEditAccessInfo;
extern const CtrlAccessInfo densityYellowLowTextEditAccessInfo;
extern const CtrlAccessInfo densityYellowMidTextEditAccessInfo;
extern const CtrlAccessInfo densityYellowHighTextEditAccessInfo;
extern const CtrlAccessInfo densityBlackLowLittleArrayAccessInfo;
extern const CtrlAccessInfo densityBlackMidLittleArrayAccessInfo;
extern const CtrlAccessInfo densityBlackHighLittleArrayAccessInfo;
extern const CtrlAccessInfo densityCyanLowLittleArrayAccessInfo;
extern const CtrlAccessInfo densityCyanMidLittleArrayAccessInfo;
extern const CtrlAccessInfo densityCyanHighLittleArrayAccessInfo;
extern const CtrlAccessInfo densityMagentaLowLittleArrayAccessInfo;
extern const CtrlAccessInfo densityMagentaMidLittleArrayAccessInfo;
extern const CtrlAccessInfo densityMagentaHighLittleArrayAccessInfo;
extern const CtrlAccessInfo densityYellowLowLittleArrayAccessInfo;
extern const CtrlAccessInfo densityYellowMidLittleArrayAccessInfo;
extern const CtrlAccessInfo densityYellowHighLittleArrayAccessInfo;

extern const CtrlConstrainInfo densityBlackLowNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityBlackMidNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityBlackHighNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanLowNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanMidNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanHighNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaLowNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaMidNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaHighNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowLowNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowMidNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowHighNumberEditCnstrnInfoPtr;
extern const CtrlConstrainInfo densityBlackLowLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityBlackMidLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityBlackHighLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanLowLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanMidLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityCyanHighLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaLowLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaMidLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityMagentaHighLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowLowLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowMidLittleArrayCnstrnInfoPtr;
extern const CtrlConstrainInfo densityYellowHighLittleArrayCnstrnInfoPtr;

/// The steppers of each target colour, ended by an empty row.
extern const ColorBalanceControlMapItem colorBalanceImageControlMapItem[5];

inline constexpr int kTargetColors = 4;  ///< black, cyan, magenta, yellow
inline constexpr int kDensityRanges = 3; ///< low, mid, high

/// What one density is made of: a number field and a stepper beside it.
struct DensityRow {
    const char *edit;    ///< outlet
    const char *stepper; ///< outlet
    const char *ppdKey;
    const LittleArrayIniData *iniData;
    const CtrlConstrainInfo *editConstrain;
    const CtrlAccessInfo *editAccess;
    const CtrlConstrainInfo *stepperConstrain;
    const CtrlAccessInfo *stepperAccess;
};
extern const DensityRow kDensityRows[kTargetColors][kDensityRanges];

/// One window's own copies of the records that its controls write.
struct ColorBalanceRecords {
    ColorBalanceRecords();

    PopupIniData trgetcolorList = trgetcolorListIniData;
    CheckBoxIniData adjustColorBalanceCbox = adjustColorBalanceCboxIniData;
    TextEditIniData density = densityIniData;
    std::array<std::array<LittleArrayIniData, kDensityRanges>, kTargetColors> steppers;
};
