#pragma once

#include <QString>

/// The keywords of the maker's PPD files. The panels of one driver share the list; this panel asks
/// only for some of them.
///
/// A name mostly begins with `KPPD` or `kPPD` for an option and with `kQZ` for an attribute;
/// "QZX...Settings" states a feature class of a product. Constants that share a text do so on
/// purpose.

// Options and attributes that only the sibling panels ask for.
inline constexpr const char *kQZProductTypeFeatures = "QZXFeaturesSettings";
inline constexpr const char *kQZLayoutSettings = "QZXLayoutSettings";
inline constexpr const char *kQZTabMarginExKey = "QZTabMarginShiftEx";
inline constexpr const char *KPPDOutputModeKey = "QZOutputMode";
inline constexpr const char *KPPDGrayBalanceKey = "QZGrayBalance";
inline constexpr const char *KPPDHalftoneKey = "QZHalftone";
inline constexpr const char *KPPDTonerSaverKey = "QZTonerSaver";
inline constexpr const char *KPPDSaveBlankSheetKey = "QZSaveBlankSheet";
inline constexpr const char *KPPDSlipSheetKey = "QZSlipSheet";
inline constexpr const char *KPPDSlipSheetMediaTypeKey = "QZSlipSheetMediaType";
inline constexpr const char *KPPDSlipSheetPrintKey = "QZSlipSheetPrint";
inline constexpr const char *KPPDStapleKey = "QZStaple";
inline constexpr const char *KPPDPunchKey = "QZPunch";
inline constexpr const char *KPPDNumPunchHolesKey = "QZNumPunchHoles";
inline constexpr const char *KPPDIntCoverSheetKey = "QZIntCoverSheet";
inline constexpr const char *KPPDIntCoverSheetPrintKey = "QZIntCoverSheetPrint";
inline constexpr const char *KPPDIntBackCoverSheetKey = "QZIntBackCoverSheet";
inline constexpr const char *KPPDIntSheetMediaTypeKey = "QZIntSheetMediaType";
inline constexpr const char *KPPDFoldKey = "QZFold";
inline constexpr const char *KPPDIntTabbedPaperKey = "QZIntTabbedPaper";
inline constexpr const char *KPPDCustomPageSizeCorrectionKey = "QZCustomPageSizeCorrection";
inline constexpr const char *KPPDMSILeadingEdgeKey = "QZMSILeadingEdge";
inline constexpr const char *KPPDSubPaperSelectionKey = "QZSubPaperSelection";
inline constexpr const char *KPPDSignatureKey = "QZSignature";
inline constexpr const char *KPPDSignDrawLineKey = "QZSigDrawOutline";
inline constexpr const char *KPPDSigSizeKey = "QZSigSize";
inline constexpr const char *KPPDSigVolKey = "QZSigVol";
inline constexpr const char *KPPDTwoRepeatPrintKey = "QZTwoRepeatPrint";
inline constexpr const char *KPPDMixSizePrintKey = "QZMixSizePrint";
inline constexpr const char *KPPDTabMarginShiftKey = "QZTabMarginShift";
inline constexpr const char *KPPDTabMarginShiftKeyEx = "QZTabMarginShiftEx";
inline constexpr const char *KPPDMTFKey = "QZMTF";
inline constexpr const char *KPPDFTypeKey = "QZFType";
inline constexpr const char *KPPDIntSheet = "QZIntSheet";
inline constexpr const char *KPPDMediaColor = "QZMediaColor";
inline constexpr const char *KPPDInvalidateColorProfile = "QZInvalidateColorProfile";
inline constexpr const char *KPPDUncollateSeparator = "QZUncollateSeparator";
inline constexpr const char *KPPDForcedMediaType = "QZForcedMediaType";
inline constexpr const char *KPPDNumberInSequence = "QZTabNumberInSequence";
inline constexpr const char *KPPDQZJog = "QZJog";
inline constexpr const char *kQZTrimmerKey = "QZTrimming";
inline constexpr const char *KPPDTrimmerShiftKeyEx = "QZTrimming";
inline constexpr const char *KPPDQZSquareFoldKey = "QZSquareFold";
inline constexpr const char *kPPDRegionalPaperSetting = "QZRegionalPaperSetting";
inline constexpr const char *KPPDIgnoreTimeout = "QZIgnoreTimeout";
inline constexpr const char *KPPDSharpness = "QZSharpness";
inline constexpr const char *KPPDMonochromePriority = "QZMonochromePriority";
inline constexpr const char *KPPDFrameMode = "QZFrameMode";
inline constexpr const char *KPPDEjectOption = "QZEjectOptions";
inline constexpr const char *KPPDQZColorBalanceAdjustment = "QZColorBalanceAdjustment";
inline constexpr const char *KPPDColorDensityMagentaLow = "QZColorDensityBlackLow";
inline constexpr const char *KPPDColorDensityMagentaMid = "QZColorDensityBlackMid";
inline constexpr const char *KPPDColorDensityBlackHigh = "QZColorDensityBlackHigh";
inline constexpr const char *KPPDTrapping = "QZSetTrapMode";
inline constexpr const char *KPPDSharpnessAdjustment = "QZSharpness";
inline constexpr const char *KPPDCoilPunchFaceSupported = "QZCoilPunchFace";
inline constexpr const char *KPPDBindPosition = "QZPBindPosition";
inline constexpr const char *KPPDBindTrimming = "QZPBindTrimming";
inline constexpr const char *KPPDBindCutPageSize = "QZPBindCutPageSize";
inline constexpr const char *KPPDBindImagePosition = "QZPBindImagePosition";
inline constexpr const char *KPPDBindCutPositionTop = "QZPBindCutPositionTop";
inline constexpr const char *KPPDBindCutPositionFore = "QZPBindCutPositionFore";
inline constexpr const char *KPPDBindPageSize = "QZPBindPageSize";
inline constexpr const char *KPPDBindCoverPageSize = "QZPBindCoverPageSize";
inline constexpr const char *KPPDBindCoverMediaType = "QZPBindCoverMediaType";
inline constexpr const char *KPPDBindCoverMediaColor = "QZPBindCoverMediaColor";
inline constexpr const char *KPPDBindCoverPaperTray = "QZPBindCoverPaperTray";
inline constexpr const char *KPPDBindRotationAdjustTop = "QZPBindRotationAdjustTop";
inline constexpr const char *KPPDBindRotationAdjustBot = "QZPBindRotationAdjustBot";
inline constexpr const char *KPPDBindRotationAdjustFore = "QZPBindRotationAdjustFore";
inline constexpr const char *KPPDBindCutPageAdjustTB = "QZPBindCutPageAdjustmentTB";
inline constexpr const char *KPPDBindCutPageAdjustFore = "QZPBindCutPageAdjustmentFore";
inline constexpr const char *KPPDBindCutPositionAdjustTB = "QZPBindCutPositionAdjustmentTB";
inline constexpr const char *KPPDBindCoverAdjustX = "QZPBindCoverAdjustX";
inline constexpr const char *KPPDBindCoverAdjustY = "QZPBindCoverAdjustY";
inline constexpr const char *KPPDLineWeightAdjustment = "QZLineWeightAdjustment";
inline constexpr const char *KPPDCharEncoding = "QZPrinterLanguageEncoding";
inline constexpr const char *kQZProductTypePrintType = "QZXPrintTypeSettings";
inline constexpr const char *kPPDHardDiskKey = "QZHardDisk";
inline constexpr const char *kRAMDiskSettingKey = "QZRAMDisk";
inline constexpr const char *kPPDMaxMailBoxNumber = "QZXMailBoxSettings";
inline constexpr const char *kPPDMinimunDigitPasscode = "QZMinDigitPasscode";
inline constexpr const char *KPPDSecurePrintDefault = "QZPTSecurePrintDefault";
inline constexpr const char *kPPDPTPasswdLimit = "QZPTPasswdLimit";
inline constexpr const char *kQZProductTypeJBA = "QZXAccountingSettings";
inline constexpr const char *kPPDCustomizeUserPrompt = "QZSelectID";
inline constexpr const char *kPPDDeviceModel = "QZDeviceModel";
inline constexpr const char *kQZProductTypeWatermark = "QZXWatermarkSettings";
inline constexpr const char *kQZOutputOptionsKey = "QZOutputOptions";
inline constexpr const char *kPPDMediaColorKey = "QZMediaColor";
inline constexpr const char *kQZProductTypeSpecialPages = "QZXSpecialPagesSettings";
inline constexpr const char *kQZRegionalPaperSetting = "QZRegionalPaperSetting";
inline constexpr const char *kQZHolePunchSettings = "QZNumPunchHoles";

// Asked for by this panel.
inline constexpr const char *kPPDColorModeKey = "QZColorMode";
inline constexpr const char *kPPDOutputModeKey = "QZOutputMode";
inline constexpr const char *kPPDBrightnessKey = "QZBrightness";
inline constexpr const char *kPPDImageTypeKey = "QZRGBImageType";
inline constexpr const char *kPPDRGBColorCorrectionKey = "QZRGBCorrection";
inline constexpr const char *kPPDCMYKColorCorrectionKey = "QZCMYKCorrectionSTD";
inline constexpr const char *kPPDScreenKey = "QZEngineScreen";
inline constexpr const char *kPPDRGBInputProfileKey = "QZRGBInputProfile";
inline constexpr const char *kPPDRGBGammaCorrectionKey = "QZRGBGammaCorrection";
inline constexpr const char *kPPDColorTemperatureKey = "QZColorTemperature";
inline constexpr const char *kPPDTargetPaperKey = "QZCMYKCorrectionTarget";
inline constexpr const char *kPPDBlackOverPrintKey = "QZBlackOverprint";
inline constexpr const char *kPPDColorBalanceAdjustmentKey = "QZColorBalanceAdjustment";
inline constexpr const char *kPPDColorDensityBlackLowKey = "QZColorDensityBlackLow";
inline constexpr const char *kPPDColorDensityCyanLowKey = "QZColorDensityCyanLow";
inline constexpr const char *kPPDColorDensityMagentaLowKey = "QZColorDensityMagentaLow";
inline constexpr const char *kPPDColorDensityYellowLowKey = "QZColorDensityYellowLow";
inline constexpr const char *kPPDColorDensityBlackMidKey = "QZColorDensityBlackMid";
inline constexpr const char *kPPDColorDensityCyanMidKey = "QZColorDensityCyanMid";
inline constexpr const char *kPPDColorDensityMagentaMidKey = "QZColorDensityMagentaMid";
inline constexpr const char *kPPDColorDensityYellowMidKey = "QZColorDensityYellowMid";
inline constexpr const char *kPPDColorDensityBlackHighKey = "QZColorDensityBlackHigh";
inline constexpr const char *kPPDColorDensityCyanHighKey = "QZColorDensityCyanHigh";
inline constexpr const char *kPPDColorDensityMagentaHighKey = "QZColorDensityMagentaHigh";
inline constexpr const char *kPPDColorDensityYellowHighKey = "QZColorDensityYellowHigh";
inline constexpr const char *kQZProductTypeImageOptions = "QZXImageOptionsSettings";
inline constexpr const char *kQZCDFFileKey = "QZXCDFSetting";
inline constexpr const char *kQZMailboxSetting = "QZXMailBoxSettings";
inline constexpr const char *kQZInvalidateColorProfile = "QZInvalidateColorProfile";
/// The choice of a correction that isn't made.
inline const QString kNoneChoice = QStringLiteral("None");
inline constexpr const char *KVendorPPDPrefix = "QZ";
inline constexpr const char *KVendorPPDValue = "QZ";

// Values of *LanguageEncoding: of PPD 4.3, and for UTF-8 both spellings in use.
inline constexpr const char *kISOLatin1 = "ISOLatin1";
inline constexpr const char *kWindowsANSI = "WindowsANSI";
inline constexpr const char *kJIS83_RKSJ = "JIS83-RKSJ";
inline constexpr const char *kUTF_8 = "UTF-8";
inline constexpr const char *kUTF8 = "UTF8";
