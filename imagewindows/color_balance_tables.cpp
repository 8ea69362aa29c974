#include "imagewindows/color_balance_tables.h"

#include "ppd/ppd_keys.h"

namespace {

const char *const trgetcolorListIniMenu[] = {
    "Target Color Black Text",
    "Target Color Cyan Text",
    "Target Color Magenta Text",
    "Target Color Yellow Text",
    nullptr,
};

// The fields and arrows of the colours that aren't the target are hidden.

// clang-format off
const CtrlTag trgetBWColorImageConstrainArray[] = {
    &gCynLwDnstEtxtID, &gCynLwDnstLarrID, &gCynMdDnstEtxtID, &gCynMdDnstLarrID, &gCynHghDnstEtxtID, &gCynHghDnstLarrID,
    &gMgntLwDnstEtxtID, &gMgntLwDnstLarrID, &gMgntMdDnstEtxtID, &gMgntMdDnstLarrID, &gMgntHghDnstEtxtID, &gMgntHghDnstLarrID,
    &gYllwLwDnstEtxtID, &gYllwLwDnstLarrID, &gYllwMdDnstEtxtID, &gYllwMdDnstLarrID, &gYllwHghDnstEtxtID, &gYllwHghDnstLarrID,
    nullptr,
};
const CtrlTag trgetCyanColorImageConstrainArray[] = {
    &gLwDnstEtxtID, &gLwDnstLarrID, &gMdDnstEtxtID, &gMdDnstLarrID, &gHghDnstEtxtID, &gHghDnstLarrID,
    &gMgntLwDnstEtxtID, &gMgntLwDnstLarrID, &gMgntMdDnstEtxtID, &gMgntMdDnstLarrID, &gMgntHghDnstEtxtID, &gMgntHghDnstLarrID,
    &gYllwLwDnstEtxtID, &gYllwLwDnstLarrID, &gYllwMdDnstEtxtID, &gYllwMdDnstLarrID, &gYllwHghDnstEtxtID, &gYllwHghDnstLarrID,
    nullptr,
};
const CtrlTag trgetMagentaColorImageConstrainArray[] = {
    &gLwDnstEtxtID, &gLwDnstLarrID, &gMdDnstEtxtID, &gMdDnstLarrID, &gHghDnstEtxtID, &gHghDnstLarrID,
    &gCynLwDnstEtxtID, &gCynLwDnstLarrID, &gCynMdDnstEtxtID, &gCynMdDnstLarrID, &gCynHghDnstEtxtID, &gCynHghDnstLarrID,
    &gYllwLwDnstEtxtID, &gYllwLwDnstLarrID, &gYllwMdDnstEtxtID, &gYllwMdDnstLarrID, &gYllwHghDnstEtxtID, &gYllwHghDnstLarrID,
    nullptr,
};
const CtrlTag trgetYellowColorImageConstrainArray[] = {
    &gLwDnstEtxtID, &gLwDnstLarrID, &gMdDnstEtxtID, &gMdDnstLarrID, &gHghDnstEtxtID, &gHghDnstLarrID,
    &gCynLwDnstEtxtID, &gCynLwDnstLarrID, &gCynMdDnstEtxtID, &gCynMdDnstLarrID, &gCynHghDnstEtxtID, &gCynHghDnstLarrID,
    &gMgntLwDnstEtxtID, &gMgntLwDnstLarrID, &gMgntMdDnstEtxtID, &gMgntMdDnstLarrID, &gMgntHghDnstEtxtID, &gMgntHghDnstLarrID,
    nullptr,
};
const CtrlTagList trgetcolorListRows[] = {
    trgetBWColorImageConstrainArray,
    trgetCyanColorImageConstrainArray,
    trgetMagentaColorImageConstrainArray,
    trgetYellowColorImageConstrainArray,
    nullptr,
};

const CtrlTag trgetcolorImageConstrainArray[] = {&gClrBlncImgHviewID, nullptr};
const CtrlTagList trgetcolorListUpdateRows[] = {
    trgetcolorImageConstrainArray,
    trgetcolorImageConstrainArray,
    trgetcolorImageConstrainArray,
    trgetcolorImageConstrainArray,
    nullptr,
};

// While the box is off, everything else but the buttons is disabled.

const CtrlTag adjustColorBalanceOffCnstrnArray[] = {
    &gTrgtClrStxtID, &gTrgtClrLboxID, &gClrBlncImgHviewID,
    &gLwDnstStxtID, &gLwDnstSStxtID, &gMdDnstStxtID, &gMdDnstSStxtID, &gHghDnstStxtID, &gHghDnstSStxtID,
    &gLwDnstEtxtID, &gCynLwDnstEtxtID, &gMgntLwDnstEtxtID, &gYllwLwDnstEtxtID,
    &gMdDnstEtxtID, &gCynMdDnstEtxtID, &gMgntMdDnstEtxtID, &gYllwMdDnstEtxtID,
    &gHghDnstEtxtID, &gCynHghDnstEtxtID, &gMgntHghDnstEtxtID, &gYllwHghDnstEtxtID,
    &gLwDnstLarrID, &gCynLwDnstLarrID, &gMgntLwDnstLarrID, &gYllwLwDnstLarrID,
    &gMdDnstLarrID, &gCynMdDnstLarrID, &gMgntMdDnstLarrID, &gYllwMdDnstLarrID,
    &gHghDnstLarrID, &gCynHghDnstLarrID, &gMgntHghDnstLarrID, &gYllwHghDnstLarrID,
    nullptr,
};
const CtrlTagList adjustColorBalanceCBoxRows[] = {adjustColorBalanceOffCnstrnArray, nullptr};
const CtrlConstrainTable adjustColorBalanceCBoxCnstrnArray{adjustColorBalanceCBoxRows};

// A number field tells its arrows and then the preview; arrows tell their field first.

const CtrlTag densityBlackLowNumberEditCnstrnArray[]          = {&gLwDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityBlackMidNumberEditCnstrnArray[]          = {&gMdDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityBlackHighNumberEditCnstrnArray[]         = {&gHghDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanLowNumberEditCnstrnArray[]           = {&gCynLwDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanMidNumberEditCnstrnArray[]           = {&gCynMdDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanHighNumberEditCnstrnArray[]          = {&gCynHghDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaLowNumberEditCnstrnArray[]        = {&gMgntLwDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaMidNumberEditCnstrnArray[]        = {&gMgntMdDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaHighNumberEditCnstrnArray[]       = {&gMgntHghDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowLowNumberEditCnstrnArray[]         = {&gYllwLwDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowMidNumberEditCnstrnArray[]         = {&gYllwMdDnstLarrID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowHighNumberEditCnstrnArray[]        = {&gYllwHghDnstLarrID, &gClrBlncImgHviewID, nullptr};

const CtrlTag densityBlackLowLittleArrayEditCnstrnArray[]     = {&gLwDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityBlackMidLittleArrayEditCnstrnArray[]     = {&gMdDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityBlackHighLittleArrayEditCnstrnArray[]    = {&gHghDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanLowDLittleArrayEditCnstrnArray[]     = {&gCynLwDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanMidLittleArrayEditCnstrnArray[]      = {&gCynMdDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityCyanHighLittleArrayEditCnstrnArray[]     = {&gCynHghDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaLowLittleArrayEditCnstrnArray[]   = {&gMgntLwDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaMidLittleArrayEditCnstrnArray[]   = {&gMgntMdDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityMagentaHighLittleArrayEditCnstrnArray[]  = {&gMgntHghDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowLowLittleArrayEditCnstrnArray[]    = {&gYllwLwDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowMidLittleArrayEditCnstrnArray[]    = {&gYllwMdDnstEtxtID, &gClrBlncImgHviewID, nullptr};
const CtrlTag densityYellowHighLittleArrayEditCnstrnArray[]   = {&gYllwHghDnstEtxtID, &gClrBlncImgHviewID, nullptr};

const CtrlTagList densityBlackLowNumberEditUpdateRows[]       = {densityBlackLowNumberEditCnstrnArray};
const CtrlTagList densityBlackMidNumberEditUpdateRows[]       = {densityBlackMidNumberEditCnstrnArray};
const CtrlTagList densityBlackHighNumberEditUpdateRows[]      = {densityBlackHighNumberEditCnstrnArray};
const CtrlTagList densityCyanLowNumberEditUpdateRows[]        = {densityCyanLowNumberEditCnstrnArray};
const CtrlTagList densityCyanMidNumberEditUpdateRows[]        = {densityCyanMidNumberEditCnstrnArray};
const CtrlTagList densityCyanHighNumberEditUpdateRows[]       = {densityCyanHighNumberEditCnstrnArray};
const CtrlTagList densityMagentaLowNumberEditUpdateRows[]     = {densityMagentaLowNumberEditCnstrnArray};
const CtrlTagList densityMagentaMidNumberEditUpdateRows[]     = {densityMagentaMidNumberEditCnstrnArray};
const CtrlTagList densityMagentaHighNumberEditUpdateRows[]    = {densityMagentaHighNumberEditCnstrnArray};
const CtrlTagList densityYellowLowNumberEditUpdateRows[]      = {densityYellowLowNumberEditCnstrnArray};
const CtrlTagList densityYellowMidNumberEditUpdateRows[]      = {densityYellowMidNumberEditCnstrnArray};
const CtrlTagList densityYellowHighNumberEditUpdateRows[]     = {densityYellowHighNumberEditCnstrnArray};

const CtrlTagList densityBlackLowLittleArrayUpdateRows[]      = {densityBlackLowLittleArrayEditCnstrnArray};
const CtrlTagList densityBlackMidLittleArrayUpdateRows[]      = {densityBlackMidLittleArrayEditCnstrnArray};
const CtrlTagList densityBlackHighLittleArrayUpdateRows[]     = {densityBlackHighLittleArrayEditCnstrnArray};
const CtrlTagList densityCyanLowLittleArrayUpdateRows[]       = {densityCyanLowDLittleArrayEditCnstrnArray};
const CtrlTagList densityCyanMidLittleArrayUpdateRows[]       = {densityCyanMidLittleArrayEditCnstrnArray};
const CtrlTagList densityCyanHighLittleArrayUpdateRows[]      = {densityCyanHighLittleArrayEditCnstrnArray};
const CtrlTagList densityMagentaLowLittleArrayUpdateRows[]    = {densityMagentaLowLittleArrayEditCnstrnArray};
const CtrlTagList densityMagentaMidLittleArrayUpdateRows[]    = {densityMagentaMidLittleArrayEditCnstrnArray};
const CtrlTagList densityMagentaHighLittleArrayUpdateRows[]   = {densityMagentaHighLittleArrayEditCnstrnArray};
const CtrlTagList densityYellowLowLittleArrayUpdateRows[]     = {densityYellowLowLittleArrayEditCnstrnArray};
const CtrlTagList densityYellowMidLittleArrayUpdateRows[]     = {densityYellowMidLittleArrayEditCnstrnArray};
const CtrlTagList densityYellowHighLittleArrayUpdateRows[]    = {densityYellowHighLittleArrayEditCnstrnArray};

const CtrlConstrainTable densityBlackLowNumberEditUpdateCnstrnArray {densityBlackLowNumberEditUpdateRows};
const CtrlConstrainTable densityBlackMidNumberEditUpdateCnstrnArray {densityBlackMidNumberEditUpdateRows};
const CtrlConstrainTable densityBlackHighNumberEditUpdateCnstrnArray{densityBlackHighNumberEditUpdateRows};
const CtrlConstrainTable densityCyanLowNumberEditUpdateCnstrnArray  {densityCyanLowNumberEditUpdateRows};
const CtrlConstrainTable densityCyanMidNumberEditUpdateCnstrnArray  {densityCyanMidNumberEditUpdateRows};
const CtrlConstrainTable densityCyanHighNumberEditUpdateCnstrnArray {densityCyanHighNumberEditUpdateRows};
const CtrlConstrainTable densityMagentaLowNumberEditUpdateCnstrnArray{densityMagentaLowNumberEditUpdateRows};
const CtrlConstrainTable densityMagentaMidNumberEditUpdateCnstrnArray{densityMagentaMidNumberEditUpdateRows};
const CtrlConstrainTable densityMagentaHighNumberEditUpdateCnstrnArray{densityMagentaHighNumberEditUpdateRows};
const CtrlConstrainTable densityYellowLowNumberEditUpdateCnstrnArray{densityYellowLowNumberEditUpdateRows};
const CtrlConstrainTable densityYellowMidNumberEditUpdateCnstrnArray{densityYellowMidNumberEditUpdateRows};
const CtrlConstrainTable densityYellowHighNumberEditUpdateCnstrnArray{densityYellowHighNumberEditUpdateRows};

const CtrlConstrainTable densityBlackLowLittleArrayUpdateCnstrnArray{densityBlackLowLittleArrayUpdateRows};
const CtrlConstrainTable densityBlackMidLittleArrayUpdateCnstrnArray{densityBlackMidLittleArrayUpdateRows};
const CtrlConstrainTable densityBlackHighLittleArrayUpdateCnstrnArray{densityBlackHighLittleArrayUpdateRows};
const CtrlConstrainTable densityCyanLowLittleArrayUpdateCnstrnArray {densityCyanLowLittleArrayUpdateRows};
const CtrlConstrainTable densityCyanMidLittleArrayUpdateCnstrnArray {densityCyanMidLittleArrayUpdateRows};
const CtrlConstrainTable densityCyanHighLittleArrayUpdateCnstrnArray{densityCyanHighLittleArrayUpdateRows};
const CtrlConstrainTable densityMagentaLowLittleArrayUpdateCnstrnArray{densityMagentaLowLittleArrayUpdateRows};
const CtrlConstrainTable densityMagentaMidLittleArrayUpdateCnstrnArray{densityMagentaMidLittleArrayUpdateRows};
const CtrlConstrainTable densityMagentaHighLittleArrayUpdateCnstrnArray{densityMagentaHighLittleArrayUpdateRows};
const CtrlConstrainTable densityYellowLowLittleArrayUpdateCnstrnArray{densityYellowLowLittleArrayUpdateRows};
const CtrlConstrainTable densityYellowMidLittleArrayUpdateCnstrnArray{densityYellowMidLittleArrayUpdateRows};
const CtrlConstrainTable densityYellowHighLittleArrayUpdateCnstrnArray{densityYellowHighLittleArrayUpdateRows};
// clang-format on

} // namespace

const PopupIniData trgetcolorListIniData{
    .startValue = 0, .defaultValue = 0, .iniValue = 0, .menuKeys = trgetcolorListIniMenu};
const CtrlAccessInfo trgetcolorListAccessInfo{
    .ticketKey = "com.velmora.mvo.printsettings.TargetColorLboxTicketKey"};
const CtrlConstrainTable trgetcolorListHideConstrainArray{trgetcolorListRows};
const CtrlConstrainTable trgetcolorListConstrainArray{trgetcolorListRows};
const CtrlConstrainTable trgetcolorListUpdateConstrainArray{trgetcolorListUpdateRows};
const CtrlConstrainTable trgetcolorListValidateArray{};
const CtrlConstrainInfo trgetcolorListConstrainInfoPtr{
    .hideTable = &trgetcolorListHideConstrainArray,
    .updateTable = &trgetcolorListUpdateConstrainArray,
};
const CtrlTag targetColorNextView[5] = {
    &gLwDnstEtxtID, &gCynLwDnstEtxtID, &gMgntLwDnstEtxtID, &gYllwLwDnstEtxtID, nullptr,
};

const CheckBoxIniData adjustColorBalanceCboxIniData{.startValue = 0,
                                                    .defaultValue = 0,
                                                    .iniValue = -1,
                                                    .titleKey =
                                                        "Adjust Color Balance Check Box Text"};
const CtrlAccessInfo adjustColorBalanceCboxAcssInfo{};
const CtrlConstrainInfo adjustColorBalanceCboxCnstrnInfoPtr{
    .disableTable = &adjustColorBalanceCBoxCnstrnArray,
};

const TextEditIniData densityIniData{.minLength = 1, .maxLength = 2};
const TextEditFilterData densityFilterData{
    .filterFirst = {2, {{'-', '-'}, {'0', '3'}}},
    .filterValid = {2, {{'-', '-'}, {'0', '3'}}},
    .errorKey = "Message??",
};

// clang-format off
const LittleArrayIniData densityBlackLowIniData {.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityBlackMidIniData {.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityBlackHighIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityCyanLowIniData  {.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityCyanMidIniData  {.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityCyanHighIniData {.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityMagentaLowIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityMagentaMidIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityMagentaHighIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityYellowLowIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityYellowMidIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};
const LittleArrayIniData densityYellowHighIniData{.startValue = 0, .defaultValue = 0, .iniValue = 0, .minValue = -3, .maxValue = 3, .stepValue = 1};

// A density reaches the job as the choice of its PPD option.
const CtrlAccessInfo densityBlackLowTextEditAccessInfo{};
const CtrlAccessInfo densityBlackMidTextEditAccessInfo{};
const CtrlAccessInfo densityBlackHighTextEditAccessInfo{};
const CtrlAccessInfo densityCyanLowTextEditAccessInfo{};
const CtrlAccessInfo densityCyanMidTextEditAccessInfo{};
const CtrlAccessInfo densityCyanHighTextEditAccessInfo{};
const CtrlAccessInfo densityMagentaLowTextEditAccessInfo{};
const CtrlAccessInfo densityMagentaMidTextEditAccessInfo{};
const CtrlAccessInfo densityMagentaHighTextEditAccessInfo{};
const CtrlAccessInfo densityYellowLowTextEditAccessInfo{};
const CtrlAccessInfo densityYellowMidTextEditAccessInfo{};
const CtrlAccessInfo densityYellowHighTextEditAccessInfo{};

const CtrlAccessInfo densityBlackLowLittleArrayAccessInfo{};
const CtrlAccessInfo densityBlackMidLittleArrayAccessInfo{};
const CtrlAccessInfo densityBlackHighLittleArrayAccessInfo{};
const CtrlAccessInfo densityCyanLowLittleArrayAccessInfo{};
const CtrlAccessInfo densityCyanMidLittleArrayAccessInfo{};
const CtrlAccessInfo densityCyanHighLittleArrayAccessInfo{};
const CtrlAccessInfo densityMagentaLowLittleArrayAccessInfo{};
const CtrlAccessInfo densityMagentaMidLittleArrayAccessInfo{};
const CtrlAccessInfo densityMagentaHighLittleArrayAccessInfo{};
const CtrlAccessInfo densityYellowLowLittleArrayAccessInfo{};
const CtrlAccessInfo densityYellowMidLittleArrayAccessInfo{};
const CtrlAccessInfo densityYellowHighLittleArrayAccessInfo{};

const CtrlConstrainInfo densityBlackLowNumberEditCnstrnInfoPtr  {.updateTable = &densityBlackLowNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityBlackMidNumberEditCnstrnInfoPtr  {.updateTable = &densityBlackMidNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityBlackHighNumberEditCnstrnInfoPtr {.updateTable = &densityBlackHighNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanLowNumberEditCnstrnInfoPtr   {.updateTable = &densityCyanLowNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanMidNumberEditCnstrnInfoPtr   {.updateTable = &densityCyanMidNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanHighNumberEditCnstrnInfoPtr  {.updateTable = &densityCyanHighNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaLowNumberEditCnstrnInfoPtr{.updateTable = &densityMagentaLowNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaMidNumberEditCnstrnInfoPtr{.updateTable = &densityMagentaMidNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaHighNumberEditCnstrnInfoPtr{.updateTable = &densityMagentaHighNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowLowNumberEditCnstrnInfoPtr {.updateTable = &densityYellowLowNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowMidNumberEditCnstrnInfoPtr {.updateTable = &densityYellowMidNumberEditUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowHighNumberEditCnstrnInfoPtr{.updateTable = &densityYellowHighNumberEditUpdateCnstrnArray};

const CtrlConstrainInfo densityBlackLowLittleArrayCnstrnInfoPtr {.updateTable = &densityBlackLowLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityBlackMidLittleArrayCnstrnInfoPtr {.updateTable = &densityBlackMidLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityBlackHighLittleArrayCnstrnInfoPtr{.updateTable = &densityBlackHighLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanLowLittleArrayCnstrnInfoPtr  {.updateTable = &densityCyanLowLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanMidLittleArrayCnstrnInfoPtr  {.updateTable = &densityCyanMidLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityCyanHighLittleArrayCnstrnInfoPtr {.updateTable = &densityCyanHighLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaLowLittleArrayCnstrnInfoPtr{.updateTable = &densityMagentaLowLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaMidLittleArrayCnstrnInfoPtr{.updateTable = &densityMagentaMidLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityMagentaHighLittleArrayCnstrnInfoPtr{.updateTable = &densityMagentaHighLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowLowLittleArrayCnstrnInfoPtr{.updateTable = &densityYellowLowLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowMidLittleArrayCnstrnInfoPtr{.updateTable = &densityYellowMidLittleArrayUpdateCnstrnArray};
const CtrlConstrainInfo densityYellowHighLittleArrayCnstrnInfoPtr{.updateTable = &densityYellowHighLittleArrayUpdateCnstrnArray};

const ColorBalanceControlMapItem colorBalanceImageControlMapItem[5] = {
    {&gLwDnstLarrID, &gMdDnstLarrID, &gHghDnstLarrID},
    {&gCynLwDnstLarrID, &gCynMdDnstLarrID, &gCynHghDnstLarrID},
    {&gMgntLwDnstLarrID, &gMgntMdDnstLarrID, &gMgntHghDnstLarrID},
    {&gYllwLwDnstLarrID, &gYllwMdDnstLarrID, &gYllwHghDnstLarrID},
    {},
};

// Black high shares the access record of black mid.
const DensityRow kDensityRows[kTargetColors][kDensityRanges] = {
    {
        {"gWndLowDCBEtxtCtrl", "gWndLowDCBLarrCtrl", kPPDColorDensityBlackLowKey, &densityBlackLowIniData, &densityBlackLowNumberEditCnstrnInfoPtr, &densityBlackLowTextEditAccessInfo, &densityBlackLowLittleArrayCnstrnInfoPtr, &densityBlackLowLittleArrayAccessInfo},
        {"gWndMidDCBEtxtCtrl", "gWndMidDCBLarrCtrl", kPPDColorDensityBlackMidKey, &densityBlackMidIniData, &densityBlackMidNumberEditCnstrnInfoPtr, &densityBlackMidTextEditAccessInfo, &densityBlackMidLittleArrayCnstrnInfoPtr, &densityBlackMidLittleArrayAccessInfo},
        {"gWndHighDCBEtxtCtrl", "gWndHighDCBLarrCtrl", kPPDColorDensityBlackHighKey, &densityBlackHighIniData, &densityBlackHighNumberEditCnstrnInfoPtr, &densityBlackMidTextEditAccessInfo, &densityBlackHighLittleArrayCnstrnInfoPtr, &densityBlackHighLittleArrayAccessInfo},
    },
    {
        {"gWndCyanLowDCBEtxtCtrl", "gWndCyanLowDCBLarrCtrl", kPPDColorDensityCyanLowKey, &densityCyanLowIniData, &densityCyanLowNumberEditCnstrnInfoPtr, &densityCyanLowTextEditAccessInfo, &densityCyanLowLittleArrayCnstrnInfoPtr, &densityCyanLowLittleArrayAccessInfo},
        {"gWndCyanMidDCBEtxtCtrl", "gWndCyanMidDCBLarrCtrl", kPPDColorDensityCyanMidKey, &densityCyanMidIniData, &densityCyanMidNumberEditCnstrnInfoPtr, &densityCyanMidTextEditAccessInfo, &densityCyanMidLittleArrayCnstrnInfoPtr, &densityCyanMidLittleArrayAccessInfo},
        {"gWndCyanHighDCBEtxtCtrl", "gWndCyanHighDCBLarrCtrl", kPPDColorDensityCyanHighKey, &densityCyanHighIniData, &densityCyanHighNumberEditCnstrnInfoPtr, &densityCyanHighTextEditAccessInfo, &densityCyanHighLittleArrayCnstrnInfoPtr, &densityCyanHighLittleArrayAccessInfo},
    },
    {
        {"gWndMagentaLowDCBEtxtCtrl", "gWndMagentaLowDCBLarrCtrl", kPPDColorDensityMagentaLowKey, &densityMagentaLowIniData, &densityMagentaLowNumberEditCnstrnInfoPtr, &densityMagentaLowTextEditAccessInfo, &densityMagentaLowLittleArrayCnstrnInfoPtr, &densityMagentaLowLittleArrayAccessInfo},
        {"gWndMagentaMidDCBEtxtCtrl", "gWndMagentaMidDCBLarrCtrl", kPPDColorDensityMagentaMidKey, &densityMagentaMidIniData, &densityMagentaMidNumberEditCnstrnInfoPtr, &densityMagentaMidTextEditAccessInfo, &densityMagentaMidLittleArrayCnstrnInfoPtr, &densityMagentaMidLittleArrayAccessInfo},
        {"gWndMagentaHighDCBEtxtCtrl", "gWndMagentaHighDCBLarrCtrl", kPPDColorDensityMagentaHighKey, &densityMagentaHighIniData, &densityMagentaHighNumberEditCnstrnInfoPtr, &densityMagentaHighTextEditAccessInfo, &densityMagentaHighLittleArrayCnstrnInfoPtr, &densityMagentaHighLittleArrayAccessInfo},
    },
    {
        {"gWndYellowLowDCBEtxtCtrl", "gWndYellowLowDCBLarrCtrl", kPPDColorDensityYellowLowKey, &densityYellowLowIniData, &densityYellowLowNumberEditCnstrnInfoPtr, &densityYellowLowTextEditAccessInfo, &densityYellowLowLittleArrayCnstrnInfoPtr, &densityYellowLowLittleArrayAccessInfo},
        {"gWndYellowMidDCBEtxtCtrl", "gWndYellowMidDCBLarrCtrl", kPPDColorDensityYellowMidKey, &densityYellowMidIniData, &densityYellowMidNumberEditCnstrnInfoPtr, &densityYellowMidTextEditAccessInfo, &densityYellowMidLittleArrayCnstrnInfoPtr, &densityYellowMidLittleArrayAccessInfo},
        {"gWndYellowHighDCBEtxtCtrl", "gWndYellowHighDCBLarrCtrl", kPPDColorDensityYellowHighKey, &densityYellowHighIniData, &densityYellowHighNumberEditCnstrnInfoPtr, &densityYellowHighTextEditAccessInfo, &densityYellowHighLittleArrayCnstrnInfoPtr, &densityYellowHighLittleArrayAccessInfo},
    },
};
// clang-format on

ColorBalanceRecords::ColorBalanceRecords() {
    for (int color = 0; color < kTargetColors; ++color)
        for (int range = 0; range < kDensityRanges; ++range)
            steppers[color][range] = *kDensityRows[color][range].iniData;
}
