#pragma once

#include "ppd/ppd_keys.h"

#include <array>

/// The PPD options that the image options panel deals with, in the order in which the host hears of
/// them. Constraints are kept if they touch one of these. The first 24 tell the product type: a
/// further option goes behind them.
inline constexpr std::array<const char *, 26> kPanelOptionKeys{
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDRGBColorCorrectionKey,
    kPPDCMYKColorCorrectionKey,
    kPPDScreenKey,
    kPPDRGBInputProfileKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorTemperatureKey,
    kPPDTargetPaperKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    kPPDBlackOverPrintKey,
    kQZInvalidateColorProfile,
};
