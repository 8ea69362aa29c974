#pragma once

/// A view's tag, by address: the tables refer to a control through the tag's variable.
using CtrlTag = const int *;

// Main panel, active controls.
inline constexpr int ColorModeTag = 101;
inline constexpr int BrightnessSliderTag = 102;
inline constexpr int ImageSettingsButtonTag = 105;
inline constexpr int ImageTypeListTag = 106;
inline constexpr int rgbColorCorrectonListTag = 107;
inline constexpr int cmykColorCorrectionListTag = 108;
inline constexpr int ScreenListTag = 109;
inline constexpr int ColorBalanceButtonTag = 110;
inline constexpr int BasicSettingsRadioTag = 1041;
inline constexpr int AdvancedSettingsRadioTag = 1042;

// Main panel, static titles.
inline constexpr int ColorModeStaticTag = 201;
inline constexpr int BrightnessStaticTag = 202;
inline constexpr int OutputModeStaticTag = 203;
inline constexpr int ImageTypeStaticTag = 206;
inline constexpr int RGBColorCorrectionTag = 207;
inline constexpr int CMYKColorCorrectionTag = 208;
inline constexpr int ScreenStaticTag = 209;

// Image adjustment windows.
inline constexpr int RGBColorCorrectionIAListTag = 501;
inline constexpr int RGBInputProfileIAListTag = 502;
inline constexpr int RGBGammaCorrectionIAListTag = 503;
inline constexpr int RGBColorTemperatureIAListTag = 504;
inline constexpr int CMYKCorrectionPopupButtonTag = 505;
inline constexpr int targetpaperIAPopupButtonTag = 506;
inline constexpr int ControlBlackOverPrintCheckBoxTag = 510;
inline constexpr int RGBColorCorrectionIASTextTag = 511;
inline constexpr int RGBInputProfileIASTextTag = 512;
inline constexpr int RGBGammaCorrectionIASTextTag = 513;
inline constexpr int RGBColorTemperatureIASTextTag = 514;
inline constexpr int CMYKCorrectionSTextCtrlTag = 515;
inline constexpr int targetpaperSTextCtrlTag = 516;
